#include "foundation/IDTables.h"

#include <bit>
#include <utility>

namespace zeb {

std::size_t IDTables::Hash::operator()(std::uint64_t key) const {
  // The finalizer of MurmurHash3: every bit of the key moves every bit of the result.
  key ^= key >> 33;
  key *= 0xFF51AFD7ED558CCDULL;
  key ^= key >> 33;
  key *= 0xC4CEB9FE1A85EC53ULL;
  key ^= key >> 33;
  return static_cast<std::size_t>(key);
}

std::size_t IDTables::Hash::operator()(const void* object) const {
  return operator()(static_cast<std::uint64_t>(std::bit_cast<std::uintptr_t>(object)));
}

std::size_t IDTables::Hash::operator()(int id) const {
  return operator()(static_cast<std::uint64_t>(static_cast<std::uint32_t>(id)));
}

int IDTables::IDFromObject(void* object) {
  const auto [entry, isNew] = m_rgiIDs.try_emplace(object, m_iNextID);
  if (isNew) ++m_iNextID;
  return entry->second;
}

bool IDTables::Bind(int id, const BoundObject& bound) { return m_rgObjects.try_emplace(id, bound).second; }

const BoundObject* IDTables::Find(int id) const {
  const auto entry = m_rgObjects.find(id);
  return entry == m_rgObjects.end() ? nullptr : &entry->second;
}

bool IDTables::Own(void* object) {
  const auto [entry, isNew] = m_rgbOwned.try_emplace(object, true);
  if (isNew) return true;
  return !std::exchange(entry->second, true);
}

bool IDTables::IsOwned(void* object) const {
  const auto entry = m_rgbOwned.find(object);
  return entry != m_rgbOwned.end() && entry->second;
}

void IDTables::AddNamedByRelation(const BoundObject& object) {
  if (m_rgbOwned.try_emplace(object.Object, false).second) m_rgNamedByRelation.push_back(object);
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
  m_rgiIDs.clear();
  m_rgObjects.clear();
  m_rgbOwned.clear();
  m_rgNamedByRelation.clear();
  m_iClaimedBytes = 0;
}

}  // namespace zeb
