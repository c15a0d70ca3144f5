#include "model/FormulaValueHolder.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/KeyToType.h"

namespace {

constexpr zeb::ElementName kFormulaData = L"FormulaData";
constexpr zeb::ElementName kRoundVHKey = L"RoundVHKey";
constexpr zeb::ElementName kFormulaOptions = L"FormulaOptions";
constexpr zeb::ElementName kInternalDecimalPlaces = L"InternalDecimalPlaces";
constexpr zeb::ElementName kResultIsEmptyIfVHEmpty = L"ResultIsEmptyIfVHEmpty";
constexpr zeb::ElementName kResultIsEmptyIfNull = L"ResultIsEmptyIfNull";
constexpr zeb::ElementName kResultIsBool = L"ResultIsBool";

}  // namespace

CFormulaValueHolder::CFormulaValueHolder() : m_strRoundVHKey(L"PL.Nks2") {}
CFormulaValueHolder::CFormulaValueHolder(const CFormulaValueHolder& other) = default;
CFormulaValueHolder::~CFormulaValueHolder() = default;
CFormulaValueHolder& CFormulaValueHolder::operator=(const CFormulaValueHolder& other) = default;

bool CFormulaValueHolder::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  if (reader.AtEnd()) return true;
  // Fixed behaviour: the first child is taken as the record of the base, whatever its name.
  CValueHolder::Load(reader.Current(), idManager);
  reader.Next();
  if (auto* const data = reader.Take(kFormulaData)) {
    zeb::RecordReader fields(data);
    fields.Read(zeb::Elements::Name, m_strName);
    fields.Read(zeb::Elements::Formula, m_strFormula);
    fields.Read(kRoundVHKey, m_strRoundVHKey);
    zeb::ReadKeyToType(fields, m_mapKeyToType);
  }
  if (auto* const options = reader.Take(kFormulaOptions)) {
    zeb::RecordReader fields(options);
    fields.Read(kInternalDecimalPlaces, m_iInternalDecimalPlaces);
    fields.Read(kResultIsEmptyIfVHEmpty, m_bResultIsEmptyIfVHEmpty);
    fields.Read(kResultIsEmptyIfNull, m_bResultIsEmptyIfNull);
    fields.Read(kResultIsBool, m_bResultIsBool);
  }
  return true;
}

bool CFormulaValueHolder::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::FormulaValueHolder);
  CValueHolder::Save(writer.Node(), idManager);
  zeb::RecordWriter data(writer.Node(), kFormulaData);
  data.Write(zeb::Elements::Name, m_strName);
  data.Write(zeb::Elements::Formula, m_strFormula);
  data.Write(kRoundVHKey, m_strRoundVHKey);
  zeb::WriteKeyToType(data, m_mapKeyToType);
  zeb::RecordWriter options(writer.Node(), kFormulaOptions);
  options.Write(kInternalDecimalPlaces, m_iInternalDecimalPlaces);
  options.Write(kResultIsEmptyIfVHEmpty, m_bResultIsEmptyIfVHEmpty);
  options.Write(kResultIsEmptyIfNull, m_bResultIsEmptyIfNull);
  options.Write(kResultIsBool, m_bResultIsBool);
  return true;
}

bool CFormulaValueHolder::IsFormulaValueHolder() const { return true; }

void CFormulaValueHolder::InsertKeyAndType(const wchar_t* key, ValueHolderType type) {
  m_mapKeyToType.emplace(key, type);
}

CFormulaValueHolder::ValueHolderType CFormulaValueHolder::GetTypeFromKey(const wchar_t* key) const {
  const auto found = m_mapKeyToType.find(key);
  return found == m_mapKeyToType.end() ? VHTypeText : found->second;
}

void CFormulaValueHolder::ClearKeyToType() { m_mapKeyToType.clear(); }
