#pragma once

#include "foundation/EntryTable.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace zeb {

/// The class of a bound object, as a number of the model's own choice.
using ClassTag = std::int16_t;

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
  /// @return nothing if the identifier is not bound
  std::optional<BoundObject> Find(int id) const;

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
  /// An object and its identifier.
  struct NumberedObject {
    const void* Key = nullptr;  // observer
    int ID = 0;
    bool IsUsed = false;
  };
  /// An identifier and what it is bound to.
  struct Binding {
    void* Object = nullptr;  // observer
    int Key = 0;
    ClassTag Tag = kUnknownClass;
    bool IsUsed = false;
  };
  /// An object that was noted.
  struct NotedObject {
    const void* Key = nullptr;  // observer
    bool IsOwned = false;
    bool IsUsed = false;
  };

  EntryTable<NumberedObject> m_rgIDs;
  EntryTable<Binding> m_rgBindings;
  EntryTable<NotedObject> m_rgNoted;
  std::vector<BoundObject> m_rgNamedByRelation;  // in the order of noting
  std::int64_t m_iClaimedBytes = 0;
  int m_iNextID = 0;
};

}  // namespace zeb
