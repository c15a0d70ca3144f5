#include "foundation/IDTables.h"

#include <utility>

namespace zeb {

int IDTables::IDFromObject(void* object) {
  const auto [entry, isNew] = m_rgIDs.Insert({.Key = object, .ID = m_iNextID});
  if (isNew) ++m_iNextID;
  return entry->ID;
}

bool IDTables::Bind(int id, const BoundObject& bound) {
  return m_rgBindings.Insert({.Object = bound.Object, .Key = id, .Tag = bound.Tag}).second;
}

std::optional<BoundObject> IDTables::Find(int id) const {
  const Binding* binding = m_rgBindings.Find(id);
  if (binding == nullptr) return std::nullopt;
  return BoundObject{binding->Object, binding->Tag};
}

bool IDTables::Own(void* object) {
  const auto [entry, isNew] = m_rgNoted.Insert({.Key = object, .IsOwned = true});
  return isNew || !std::exchange(entry->IsOwned, true);
}

bool IDTables::IsOwned(void* object) const {
  const NotedObject* noted = m_rgNoted.Find(object);
  return noted != nullptr && noted->IsOwned;
}

void IDTables::AddNamedByRelation(const BoundObject& object) {
  if (m_rgNoted.Insert({.Key = object.Object}).second) m_rgNamedByRelation.push_back(object);
}

std::vector<BoundObject> IDTables::UnownedNamedByRelations() const {
  std::vector<BoundObject> unowned;
  for (const BoundObject& object : m_rgNamedByRelation) {
    if (!IsOwned(object.Object)) unowned.push_back(object);
  }
  return unowned;
}

std::int64_t IDTables::AddClaimedBytes(std::int64_t count) { return m_iClaimedBytes += count; }

void IDTables::Reset() {
  m_rgIDs.Clear();
  m_rgBindings.Clear();
  m_rgNoted.Clear();
  m_rgNamedByRelation.clear();
  m_iClaimedBytes = 0;
}

}  // namespace zeb
