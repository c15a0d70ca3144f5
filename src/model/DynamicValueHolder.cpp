#include "model/DynamicValueHolder.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"

CDynamicValueHolder::CDynamicValueHolder() = default;
CDynamicValueHolder::CDynamicValueHolder(const CDynamicValueHolder& other) = default;
CDynamicValueHolder::~CDynamicValueHolder() = default;
CDynamicValueHolder& CDynamicValueHolder::operator=(const CDynamicValueHolder& other) = default;

bool CDynamicValueHolder::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  if (reader.AtEnd()) return true;
  // Fixed behaviour: the first child is taken as the record of the base, whatever its name.
  CValueHolder::Load(reader.Current(), idManager);
  reader.Next();
  reader.Read(zeb::Elements::Name, m_strName);
  return true;
}

bool CDynamicValueHolder::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::DynValueHolder);
  CValueHolder::Save(writer.Node(), idManager);
  writer.Write(zeb::Elements::Name, m_strName);
  return true;
}

bool CDynamicValueHolder::IsDynamicValueHolder() const { return true; }
