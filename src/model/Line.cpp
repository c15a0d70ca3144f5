#include "model/Line.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/ObjectReference.h"

namespace {

constexpr zeb::ElementName kExtendToReportZoneEnd = L"ExtendToReportZoneEnd";
constexpr zeb::ElementName kExtendToLayoutFooter = L"ExtendToLayoutFooter";

}  // namespace

CLine::CLine() = default;
CLine::CLine(const CLine& other) = default;
CLine::~CLine() = default;
CLine& CLine::operator=(const CLine& other) = default;

bool CLine::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::LineID, idManager, this);
  if (auto* const placeable = reader.Take(zeb::Elements::Placeable)) CPlaceable::Load(placeable, idManager);
  reader.Read(kExtendToReportZoneEnd, m_bExtendToReportZoneEnd);
  reader.Read(kExtendToLayoutFooter, m_bExtendToLayoutFooter);
  return true;
}

bool CLine::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::Line);
  zeb::WriteID(writer, zeb::Elements::LineID, idManager, this);
  CPlaceable::Save(writer.Node(), idManager);
  writer.WriteUnless(kExtendToReportZoneEnd, m_bExtendToReportZoneEnd, false);
  writer.WriteUnless(kExtendToLayoutFooter, m_bExtendToLayoutFooter, false);
  return true;
}
