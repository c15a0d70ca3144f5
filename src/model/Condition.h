#pragma once

#include "platform/Export.h"

#include <map>
#include <string>

namespace zebxmln {
class CXMLNode;
}
class CIDManager;

/// The formula that decides whether a placed object shows, with the type of each internal key in it.
class ZEB_EXPORT CCondition {
 public:
  /// Kind of a key's value, carried as an integer.
  enum ConditionVHType : int {
    ConditionVHTypeText = 1,     ///< the default
    ConditionVHTypeNumber = 2,   ///< a number
    ConditionVHTypeDate = 3,     ///< a date
    ConditionVHTypeGraphic = 8,  ///< a picture
  };

  CCondition();
  CCondition(const CCondition& other);
  virtual ~CCondition();

  /// Reads the fields that stand under `node`, which is the `Condition` element. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Writes the fields under `node`, which the caller has made. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CCondition& operator=(const CCondition& other);

  const wchar_t* GetFormula() const { return m_strFormula.c_str(); }
  void SetFormula(const wchar_t* formula) { m_strFormula = formula; }

  /// The table of keys and their types, in key order.
  std::map<std::wstring, ConditionVHType>& GetKeyToTypeMap() { return m_mapKeyToType; }
  const std::map<std::wstring, ConditionVHType>& GetKeyToTypeMap() const { return m_mapKeyToType; }

  /// Enters the type of a key. A key that is in the table keeps its first type.
  void InsertKeyAndType(const wchar_t* key, ConditionVHType type);
  /// The type of a key, 1 (ConditionVHTypeText) for an unknown one.
  ConditionVHType GetTypeFromKey(const wchar_t* key) const;
  /// Empties the table of keys and types.
  void ClearKeyToType();

 private:
  std::wstring m_strFormula;
  std::map<std::wstring, ConditionVHType> m_mapKeyToType;
};
