#include "model/Metadata.h"

#include <cstddef>
#include <iterator>

CMetadata::CMetadata() = default;
CMetadata::CMetadata(const CMetadata& other) = default;
CMetadata::~CMetadata() = default;
CMetadata& CMetadata::operator=(const CMetadata& other) = default;

void CMetadata::AddKeyword(const wchar_t* keyword) { m_rgstrKeywords.emplace_back(keyword); }

int CMetadata::GetKeywordCount() const { return static_cast<int>(m_rgstrKeywords.size()); }

const wchar_t* CMetadata::GetKeywordAt(int index) const {
  return m_rgstrKeywords[static_cast<std::size_t>(index)].c_str();
}

void CMetadata::ClearKeywords() { m_rgstrKeywords.clear(); }

void CMetadata::AddKeyValuePair(const wchar_t* key, const wchar_t* value) {
  m_mapKeyValuePairs.emplace(key, value);
}

int CMetadata::GetKeyValuePairCount() const { return static_cast<int>(m_mapKeyValuePairs.size()); }

const wchar_t* CMetadata::GetValueAtKey(const wchar_t* key) const {
  const auto found = m_mapKeyValuePairs.find(key);
  return found == m_mapKeyValuePairs.end() ? nullptr : found->second.c_str();
}

// Fixed behaviour: an index that no pair has gives the last pair.
void CMetadata::GetKeyAndValueAt(int index, std::wstring& key, std::wstring& value) const {
  key.clear();
  value.clear();
  if (m_mapKeyValuePairs.empty()) return;
  const int last = GetKeyValuePairCount() - 1;
  const int step = index < 0 || index > last ? last : index;
  const auto pair = std::next(m_mapKeyValuePairs.begin(), step);
  key = pair->first;
  value = pair->second;
}

void CMetadata::ClearKeyValuePairs() { m_mapKeyValuePairs.clear(); }

void CMetadata::ClearAllMetadata() {
  m_strTitle.clear();
  m_strAuthor.clear();
  m_strSubject.clear();
  m_strCreator.clear();
  ClearKeywords();
  ClearKeyValuePairs();
}
