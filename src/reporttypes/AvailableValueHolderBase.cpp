#include "reporttypes/AvailableValueHolderBase.h"

#include "reporttypes/DoubleElement.h"

#include <cstddef>
#include <cwchar>

namespace {

template <std::size_t Size>
void CopyLimited(wchar_t (&target)[Size], const wchar_t* text) {
  std::size_t length = std::wcslen(text);
  if (length > Size - 1) {
    length = Size - 1;
  }
  std::wmemmove(target, text, length);
  target[length] = L'\0';
}

}  // namespace

// The texts start as empty ones: reading one that was never set is then harmless.
CAvailableValueHolderBase::CAvailableValueHolderBase()
    : m_szValueText{}, m_szInternalKey{}, m_szExternalKey{}, m_szExternalDescription{} {}

CAvailableValueHolderBase::CAvailableValueHolderBase(const CAvailableValueHolderBase& other) = default;

CAvailableValueHolderBase::~CAvailableValueHolderBase() = default;

CAvailableValueHolderBase& CAvailableValueHolderBase::operator=(const CAvailableValueHolderBase& other) =
    default;

const wchar_t* CAvailableValueHolderBase::GetValueAsText() { return nullptr; }

CDoubleElement* CAvailableValueHolderBase::GetValueAsDouble() { return new CDoubleElement; }

void CAvailableValueHolderBase::CallGetValue() {}

const wchar_t* CAvailableValueHolderBase::GetInternalKey() const { return m_szInternalKey; }

void CAvailableValueHolderBase::SetInternalKey(const wchar_t* key) { CopyLimited(m_szInternalKey, key); }

const wchar_t* CAvailableValueHolderBase::GetExternalKey() const { return m_szExternalKey; }

void CAvailableValueHolderBase::SetExternalKey(const wchar_t* key) { CopyLimited(m_szExternalKey, key); }

const wchar_t* CAvailableValueHolderBase::GetExternalDescription() const { return m_szExternalDescription; }

void CAvailableValueHolderBase::SetExternalDescription(const wchar_t* description) {
  CopyLimited(m_szExternalDescription, description);
}
