#include "foundation/IDBinding.h"

#include "foundation/IDManager.h"

namespace zeb {

IDBinding::IDBinding(CIDManager& ids) : m_Tables(*ids.m_pTables) {}

bool IDBinding::Bind(int id, void* object, ClassTag tag) { return m_Tables.Bind(id, {object, tag}); }

BoundObject IDBinding::Find(int id) const { return m_Tables.Find(id).value_or(BoundObject{}); }

void* IDBinding::Find(int id, ClassTag tag) const {
  const BoundObject bound = Find(id);
  return bound.Tag == tag || bound.Tag == kUnknownClass ? bound.Object : nullptr;
}

bool IDBinding::IsBound(int id) const { return m_Tables.Find(id).has_value(); }

bool IDBinding::Own(void* object) { return m_Tables.Own(object); }

bool IDBinding::IsOwned(void* object) const { return m_Tables.IsOwned(object); }

void IDBinding::NoteNamedByRelation(void* object, ClassTag tag) {
  m_Tables.AddNamedByRelation({object, tag});
}

std::vector<BoundObject> IDBinding::UnownedNamedByRelations() const {
  return m_Tables.UnownedNamedByRelations();
}

std::int64_t IDBinding::AddClaimedBytes(std::int64_t count) { return m_Tables.AddClaimedBytes(count); }

}  // namespace zeb
