#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

#include <string>

/// The values of a character collection in a PDF CIDSystemInfo dictionary.
class ZEB_EXPORT CPDFCharCollName {
 public:
  CPDFCharCollName();
  CPDFCharCollName(const CPDFCharCollName& other);
  ~CPDFCharCollName();
  CPDFCharCollName& operator=(const CPDFCharCollName& other);

  /// No valid collection until it is set.
  CFontMetrics::CharColl GetCharColl() const;
  void SetCharColl(CFontMetrics::CharColl collection);
  /// The /Ordering entry.
  const wchar_t* GetOrdering() const;
  void SetOrdering(const wchar_t* ordering);
  /// The /Supplement entry. Default 0.
  int GetSupplement() const;
  void SetSupplement(int supplement);

 private:
  CFontMetrics::CharColl m_CharColl;
  std::wstring m_strOrdering;
  int m_iSupplement;
};
