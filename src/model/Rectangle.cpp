#include "model/Rectangle.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/ObjectReference.h"

CRectangle::CRectangle() = default;
CRectangle::CRectangle(const CRectangle& other) = default;
CRectangle::~CRectangle() = default;
CRectangle& CRectangle::operator=(const CRectangle& other) = default;

bool CRectangle::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::RectID, idManager, this);
  if (auto* const placeable = reader.Take(zeb::Elements::Placeable)) CPlaceable::Load(placeable, idManager);
  return true;
}

bool CRectangle::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::Rectangle);
  zeb::WriteID(writer, zeb::Elements::RectID, idManager, this);
  CPlaceable::Save(writer.Node(), idManager);
  return true;
}
