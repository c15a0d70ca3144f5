#include "model/CopyValueHolderKey.h"

#include <cwchar>

CCopyValueHolderKey::CCopyValueHolderKey(const wchar_t* zone, const wchar_t* valueHolder)
    : m_strZone(zone), m_strValueHolder(valueHolder), m_strKey(m_strZone + L"|" + m_strValueHolder) {}
CCopyValueHolderKey::CCopyValueHolderKey(const CCopyValueHolderKey& other) = default;
CCopyValueHolderKey::~CCopyValueHolderKey() = default;
CCopyValueHolderKey& CCopyValueHolderKey::operator=(const CCopyValueHolderKey& other) = default;

// Fixed behaviour: the parts are compared, not the joined key, in which a "|" of a part would be ambiguous.
bool CCopyValueHolderKey::CompareKey(const wchar_t* zone, const wchar_t* valueHolder) const {
  return std::wcscmp(m_strZone.c_str(), zone) == 0 && std::wcscmp(m_strValueHolder.c_str(), valueHolder) == 0;
}
