#pragma once

#include "model/ValueHolder.h"

#include <map>

/// A field whose value is a formula. Holds the formula's text and, for each internal key in it, the type of the
/// key's value; computing it is the formula parser's business.
class ZEB_EXPORT CFormulaValueHolder : public CValueHolder {
 public:
  CFormulaValueHolder();
  CFormulaValueHolder(const CFormulaValueHolder& other);
  ~CFormulaValueHolder() override;

  /// Reads the record from `node`, which is the `FormulaValueHolder` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `FormulaValueHolder` element to `node`; its own fields are written whatever their value. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  bool IsFormulaValueHolder() const override;

  CFormulaValueHolder& operator=(const CFormulaValueHolder& other);

  const wchar_t* GetName() const { return m_strName.c_str(); }
  void SetName(const wchar_t* name) { m_strName = name; }
  const wchar_t* GetFormula() const { return m_strFormula.c_str(); }
  void SetFormula(const wchar_t* formula) { m_strFormula = formula; }
  /// Internal key of the value that gives the number of decimal places; "PL.Nks2" by default.
  const wchar_t* GetRoundVHKey() const { return m_strRoundVHKey.c_str(); }
  void SetRoundVHKey(const wchar_t* key) { m_strRoundVHKey = key; }

  /// -1 by default.
  int GetInternalDecimalPlaces() const { return m_iInternalDecimalPlaces; }
  void SetInternalDecimalPlaces(int places) { m_iInternalDecimalPlaces = places; }
  bool GetResultIsEmptyIfVHEmpty() const { return m_bResultIsEmptyIfVHEmpty; }
  void SetResultIsEmptyIfVHEmpty(bool isEmpty) { m_bResultIsEmptyIfVHEmpty = isEmpty; }
  bool GetResultIsEmptyIfNull() const { return m_bResultIsEmptyIfNull; }
  void SetResultIsEmptyIfNull(bool isEmpty) { m_bResultIsEmptyIfNull = isEmpty; }
  bool GetResultIsBool() const { return m_bResultIsBool; }
  void SetResultIsBool(bool isBool) { m_bResultIsBool = isBool; }

  /// Enters the type of a key. A key that is in the table keeps its first type.
  void InsertKeyAndType(const wchar_t* key, ValueHolderType type);
  /// The type of a key, 1 (VHTypeText) for an unknown one.
  ValueHolderType GetTypeFromKey(const wchar_t* key) const;
  /// Empties the table of keys and types.
  void ClearKeyToType();

 private:
  std::wstring m_strName;
  std::wstring m_strFormula;
  std::wstring m_strRoundVHKey;
  int m_iInternalDecimalPlaces = -1;
  bool m_bResultIsEmptyIfVHEmpty = false;
  bool m_bResultIsEmptyIfNull = false;
  bool m_bResultIsBool = false;
  std::map<std::wstring, ValueHolderType> m_mapKeyToType;
};
