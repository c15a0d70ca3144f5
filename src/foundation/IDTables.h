#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace zeb {

/// The class of a bound object, as a number of the model's own choice.
using ClassTag = int;

/// The class of an object that was bound without one. It matches every class.
inline constexpr ClassTag kUnknownClass = 0;

/// An object that an identifier names, with the class that it was bound with.
struct BoundObject {
  void* Object = nullptr;  // observer
  ClassTag Tag = kUnknownClass;
};

/// What is behind a CIDManager: hash tables, and what a reading notes about the objects that it makes.
class IDTables {
 public:
  int IDFromObject(void* object);
  /// Binds an identifier unless it is bound already.
  /// @return whether it was free
  bool Bind(int id, const BoundObject& bound);
  /// @return null if the identifier is not bound
  const BoundObject* Find(int id) const;

  /// Notes that an object has an owner.
  /// @return false if it had one before
  bool Own(void* object);
  bool IsOwned(void* object) const;
  /// Notes that only a relation has named the object so far.
  void AddNamedByRelation(const BoundObject& object);
  std::vector<BoundObject> UnownedNamedByRelations() const;

  /// Adds to the bytes that records of the file claim without bringing them.
  /// @return the sum
  std::int64_t AddClaimedBytes(std::int64_t count);

  void Reset();

 private:
  /// Spreads pointers and the small or spaced numbers of files evenly.
  struct Hash {
    std::size_t operator()(std::uint64_t key) const;
    std::size_t operator()(const void* object) const;
    std::size_t operator()(int id) const;
  };

  std::unordered_map<void*, int, Hash> m_rgiIDs;
  std::unordered_map<int, BoundObject, Hash> m_rgObjects;
  std::unordered_map<void*, bool, Hash>
      m_rgbOwned;                                // of every object that was noted: whether it has an owner
  std::vector<BoundObject> m_rgNamedByRelation;  // in the order of noting
  std::int64_t m_iClaimedBytes = 0;
  int m_iNextID = 0;
};

}  // namespace zeb
