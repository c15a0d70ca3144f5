#pragma once

#include "platform/Export.h"

#include <map>
#include <string>
#include <vector>

/// Descriptive data of a printed document, a carrier for the components that make one. Not saved. Value class.
class ZEB_EXPORT CMetadata {
 public:
  CMetadata();
  CMetadata(const CMetadata& other);
  virtual ~CMetadata();

  CMetadata& operator=(const CMetadata& other);

  const wchar_t* GetTitle() const { return m_strTitle.c_str(); }
  void SetTitle(const wchar_t* title) { m_strTitle = title; }
  const wchar_t* GetAuthor() const { return m_strAuthor.c_str(); }
  void SetAuthor(const wchar_t* author) { m_strAuthor = author; }
  const wchar_t* GetSubject() const { return m_strSubject.c_str(); }
  void SetSubject(const wchar_t* subject) { m_strSubject = subject; }
  const wchar_t* GetCreator() const { return m_strCreator.c_str(); }
  void SetCreator(const wchar_t* creator) { m_strCreator = creator; }

  /// Appends a keyword; duplicates are kept.
  void AddKeyword(const wchar_t* keyword);
  int GetKeywordCount() const;
  /// The keyword at an index, which is not checked.
  const wchar_t* GetKeywordAt(int index) const;
  void ClearKeywords();

  /// Enters a pair. A key that is there keeps its first value.
  void AddKeyValuePair(const wchar_t* key, const wchar_t* value);
  int GetKeyValuePairCount() const;
  /// The value of a key, null if the key is unknown.
  const wchar_t* GetValueAtKey(const wchar_t* key) const;
  /// Gives the pair at an index, in ascending key order. An index that is negative or beyond the end gives the
  /// last pair; without any pair both texts become empty.
  void GetKeyAndValueAt(int index, std::wstring& key, std::wstring& value) const;
  void ClearKeyValuePairs();

  /// Empties texts, keywords and pairs.
  void ClearAllMetadata();

 private:
  std::wstring m_strTitle;
  std::wstring m_strAuthor;
  std::wstring m_strSubject;
  std::wstring m_strCreator;
  std::vector<std::wstring> m_rgstrKeywords;
  std::map<std::wstring, std::wstring> m_mapKeyValuePairs;
};
