#include "model/SumValueHolder.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"

namespace {

constexpr zeb::ElementName kSumKey = L"SumKey";
constexpr zeb::ElementName kResetSumAfterPageEnd = L"ResetSumAfterPageEnd";
constexpr zeb::ElementName kCumulative = L"Cumulative";

}  // namespace

CSumValueHolder::CSumValueHolder() = default;
CSumValueHolder::CSumValueHolder(const CSumValueHolder& other) = default;
CSumValueHolder::~CSumValueHolder() = default;
CSumValueHolder& CSumValueHolder::operator=(const CSumValueHolder& other) = default;

bool CSumValueHolder::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  if (reader.AtEnd()) return true;
  // Fixed behaviour: the first child is taken as the record of the base, whatever its name.
  CValueHolder::Load(reader.Current(), idManager);
  reader.Next();
  reader.Read(zeb::Elements::Name, m_strName);
  reader.Read(kSumKey, m_strSumKey);
  reader.Read(kResetSumAfterPageEnd, m_bResetSumAfterPageEnd);
  reader.Read(kCumulative, m_bCumulative);
  return true;
}

bool CSumValueHolder::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::SumValueHolder);
  CValueHolder::Save(writer.Node(), idManager);
  writer.Write(zeb::Elements::Name, m_strName);
  writer.WriteUnlessEmpty(kSumKey, m_strSumKey);
  writer.WriteUnless(kResetSumAfterPageEnd, m_bResetSumAfterPageEnd, false);
  writer.WriteUnless(kCumulative, m_bCumulative, false);
  return true;
}

bool CSumValueHolder::IsSumValueHolder() const { return true; }
