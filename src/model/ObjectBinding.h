#pragma once

#include "foundation/IDBinding.h"
#include "foundation/ReadingTrace.h"
#include "model/Placeable.h"

#include <memory>
#include <type_traits>
#include <typeinfo>

class CPlaceableRelation;
class CReportDocument;
class CReportZone;

// How the model's readers get objects from identifiers, and bind objects to them. Nothing else in the model casts an
// identifier's object, so a file can neither make one object of two classes nor give one object to two owners.
namespace zeb {

/// What an identifier is bound to. All placed objects are bound as CPlaceable and are told apart by run-time casts.
enum ObjectTag : ClassTag {
  kPlaceableTag = 1,
  kRelationTag,
  kZoneTag,
  kDocumentTag,
};

template <class T>
constexpr ClassTag TagOf() {
  if constexpr (std::is_base_of_v<CPlaceable, T>) {
    return kPlaceableTag;
  } else if constexpr (std::is_same_v<T, CPlaceableRelation>) {
    return kRelationTag;
  } else if constexpr (std::is_same_v<T, CReportZone>) {
    return kZoneTag;
  } else {
    static_assert(std::is_same_v<T, CReportDocument>);
    return kDocumentTag;
  }
}

/// Binds the identifier to the object unless it is bound already: what a record does with its own identifier.
template <class T>
void BindObject(IDBinding& binding, int id, T* object) {
  if constexpr (std::is_base_of_v<CPlaceable, T>) {
    binding.Bind(id, static_cast<CPlaceable*>(object), kPlaceableTag);
  } else {
    binding.Bind(id, object, TagOf<T>());
  }
}

/// The identifier's object if it is of class T or derived from it; null if it is unknown or of another class.
template <class T>
T* FindObject(const IDBinding& binding, int id) {
  const BoundObject bound = binding.Find(id);
  if (bound.Object == nullptr) return nullptr;
  // What a caller has bound has no class: it is what the caller says it is.
  if (bound.Tag == kUnknownClass) return static_cast<T*>(bound.Object);
  if (bound.Tag != TagOf<T>()) return nullptr;
  if constexpr (std::is_base_of_v<CPlaceable, T>) {
    return dynamic_cast<T*>(static_cast<CPlaceable*>(bound.Object));
  } else {
    return static_cast<T*>(bound.Object);
  }
}

/// The identifier's object if it is exactly of class T, which is what lists and records ask: a text is no field.
template <class T>
T* FindExactObject(const IDBinding& binding, int id) {
  T* object = FindObject<T>(binding, id);
  if (object == nullptr || binding.Find(id).Tag == kUnknownClass) return object;
  return typeid(*object) == typeid(T) ? object : nullptr;
}

/// Binds the identifier that a record has for its own.
template <class T>
void BindRecord(IDBinding& binding, int id, T* object) {
  BindObject(binding, id, object);
  if (ReadingTrace* trace = ReadingTrace::Active()) trace->NoteRecord(id);
}

/// Tells who listens to the reading that the element which was read last names no known object of its class. A relation
/// needs no record: files are saved with ties that have none.
template <class T>
void NoteUnknown(const IDBinding& binding, int id) {
  ReadingTrace* trace = ReadingTrace::Active();
  if (trace == nullptr) return;
  if (binding.IsBound(id)) {
    trace->NoteWrongReference(id);
  } else if (!std::is_same_v<T, CPlaceableRelation>) {
    trace->NoteReference(id);
  }
}

/// The object for a reference in a list: the known one, or a new one. A new one is bound to the identifier unless that
/// names an object of another class.
template <class T>
T* FindOrMakeObject(IDBinding& binding, int id) {
  if (T* known = FindExactObject<T>(binding, id)) return known;
  NoteUnknown<T>(binding, id);
  auto made = std::make_unique<T>();
  BindObject(binding, id, made.get());
  return made.release();
}

/// As FindOrMakeObject, for a list that owns its objects.
/// @return null if the known object has an owner already
template <class T>
T* TakeObject(IDBinding& binding, int id) {
  T* object = FindOrMakeObject<T>(binding, id);
  if (binding.Own(object)) return object;
  if (ReadingTrace* trace = ReadingTrace::Active()) trace->NoteSecondReference(id);
  return nullptr;
}

}  // namespace zeb
