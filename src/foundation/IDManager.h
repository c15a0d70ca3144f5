#pragma once

#include "platform/Export.h"

#include <memory>

namespace zeb {
class IDBinding;
class IDTables;
}  // namespace zeb

/// The object and identifier tables of one file operation: turns references between objects into small integers
/// on saving and back on loading. Both directions are independent of each other. Owns none of the objects.
/// A copy has tables and a counter of its own, and the same objects.
class ZEB_EXPORT CIDManager {
 public:
  CIDManager();
  CIDManager(const CIDManager& other);
  virtual ~CIDManager();
  CIDManager& operator=(const CIDManager& other);

  /// The identifier of an object; an object that is not known yet gets the next one, from 0 upwards. Null counts as
  /// an object like any other.
  int GetIDFromObject(void* object);
  /// GetIDFromObject as text, into the caller's buffer (64 characters hold any number).
  void GetIDStringFromObject(void* object, wchar_t* buffer);
  /// The object that is bound to the identifier, null if there is none.
  void* GetObjectFromID(int id);
  /// Binds the identifier. One that is bound already keeps its object, even if that is null.
  void SetObjectWithID(int id, void* object);
  /// Empties both directions. The counter of new identifiers goes on where it stands.
  void Reset();

 private:
  friend class zeb::IDBinding;

  std::unique_ptr<zeb::IDTables> m_pTables;  // owned
};
