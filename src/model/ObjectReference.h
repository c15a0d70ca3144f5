#pragma once

#include "foundation/IDManager.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ObjectBinding.h"

// How a record names its own object, and how it refers to others.
namespace zeb {

/// Reads the identifier that opens a record, and binds the object to it unless it is known already.
template <class T>
void ReadOwnID(RecordReader& reader, ElementName name, CIDManager& idManager, T* object) {
  int id = 0;
  if (!reader.Read(name, id)) return;
  IDBinding binding(idManager);
  BindRecord(binding, id, object);
}

/// Writes the identifier of an object.
template <class T>
void WriteID(RecordWriter& writer, ElementName name, CIDManager& idManager, T* object) {
  if constexpr (std::is_base_of_v<CPlaceable, T>) {
    writer.Write(name, idManager.GetIDFromObject(static_cast<CPlaceable*>(object)));
  } else {
    writer.Write(name, idManager.GetIDFromObject(object));
  }
}

/// The object that a relation names. An unknown identifier makes a new object, binds it and notes that a relation
/// named it, so that it finds an owner if no list ever takes it.
/// @return null if the identifier names an object of another class
template <class T>
T* ReferToObject(IDBinding& binding, int id) {
  static_assert(std::is_base_of_v<CPlaceable, T>);
  if (T* known = FindObject<T>(binding, id)) return known;
  NoteUnknown<T>(binding, id);
  if (binding.IsBound(id)) return nullptr;
  auto made = std::make_unique<T>();
  BindObject(binding, id, made.get());
  binding.NoteNamedByRelation(static_cast<CPlaceable*>(made.get()), kPlaceableTag);
  return made.release();
}

}  // namespace zeb
