#pragma once

#include "model/ValueHolder.h"

/// A field that shows the sum of all values of a key.
class ZEB_EXPORT CSumValueHolder : public CValueHolder {
 public:
  CSumValueHolder();
  CSumValueHolder(const CSumValueHolder& other);
  ~CSumValueHolder() override;

  /// Reads the record from `node`, which is the `SumValueHolder` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `SumValueHolder` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  bool IsSumValueHolder() const override;

  CSumValueHolder& operator=(const CSumValueHolder& other);

  const wchar_t* GetName() const { return m_strName.c_str(); }
  void SetName(const wchar_t* name) { m_strName = name; }
  /// The internal key whose values are summed.
  const wchar_t* GetSumKey() const { return m_strSumKey.c_str(); }
  void SetSumKey(const wchar_t* key) { m_strSumKey = key; }
  /// Whether the sum starts anew on each page.
  bool GetResetSumAfterPageEnd() const { return m_bResetSumAfterPageEnd; }
  void SetResetSumAfterPageEnd(bool reset) { m_bResetSumAfterPageEnd = reset; }
  /// Whether the field shows the running sum.
  bool GetCumulative() const { return m_bCumulative; }
  void SetCumulative(bool cumulative) { m_bCumulative = cumulative; }

 private:
  std::wstring m_strName;
  std::wstring m_strSumKey;
  bool m_bResetSumAfterPageEnd = false;
  bool m_bCumulative = false;
};
