#include "model/CopyValueHolder.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"

namespace {

constexpr zeb::ElementName kRefZoneID = L"RefZoneID";
constexpr zeb::ElementName kRefVHID = L"RefVHID";

}  // namespace

CCopyValueHolder::CCopyValueHolder() = default;
CCopyValueHolder::CCopyValueHolder(const CCopyValueHolder& other) = default;
CCopyValueHolder::~CCopyValueHolder() = default;
CCopyValueHolder& CCopyValueHolder::operator=(const CCopyValueHolder& other) = default;

bool CCopyValueHolder::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  if (reader.AtEnd()) return true;
  // Fixed behaviour: the first child is taken as the record of the base, whatever its name.
  CValueHolder::Load(reader.Current(), idManager);
  reader.Next();
  reader.Read(kRefZoneID, m_strRefZoneID);
  reader.Read(kRefVHID, m_strRefVHID);
  return true;
}

bool CCopyValueHolder::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::CopyValueHolder);
  CValueHolder::Save(writer.Node(), idManager);
  writer.Write(kRefZoneID, m_strRefZoneID);
  writer.Write(kRefVHID, m_strRefVHID);
  return true;
}

bool CCopyValueHolder::IsCopyValueHolder() const { return true; }
