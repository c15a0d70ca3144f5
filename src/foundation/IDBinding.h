#pragma once

#include "foundation/IDTables.h"

#include <cstdint>
#include <vector>

class CIDManager;

namespace zeb {

/// The model's view of a CIDManager while a file is read, which keeps a hostile file from making one object of two
/// classes or giving one object to two owners.
///
/// An identifier remembers the class that it was bound with: a pointer never comes back as another class than it went
/// in. An object remembers whether a list owns it. What the callers of the library bind with SetObjectWithID has no
/// class and matches every one.
class IDBinding {
 public:
  explicit IDBinding(CIDManager& ids);

  /// Binds an identifier with an object and its class.
  /// @return false if it is bound already; it then keeps its first object
  bool Bind(int id, void* object, ClassTag tag);

  /// What the identifier is bound to, with its class, for a caller that takes several classes.
  /// @return a null object if it is not bound
  BoundObject Find(int id) const;
  /// The object, if the identifier is bound and of that class (or of unknown class); null otherwise.
  void* Find(int id, ClassTag tag) const;
  bool IsBound(int id) const;

  /// Takes an object into an owner: a zone's list, a cell, a page.
  /// @return false if it has an owner already, and is not to be taken into a second one
  bool Own(void* object);
  bool IsOwned(void* object) const;

  /// Notes an object that was made because a relation named it. Noting it again changes nothing.
  void NoteNamedByRelation(void* object, ClassTag tag);
  /// The objects that relations named and that nothing owns, in the order of noting.
  std::vector<BoundObject> UnownedNamedByRelations() const;

  /// Adds to the bytes that records of the file claim without bringing them.
  /// @return the sum of the file
  std::int64_t AddClaimedBytes(std::int64_t count);

 private:
  IDTables& m_Tables;  // observer
};

}  // namespace zeb
