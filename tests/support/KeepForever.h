#pragma once

#include <vector>

namespace zebtest {

/// Keeps an object to the end of the process. For a copy that shares what its source owns: only one of the two may be
/// destroyed, and the other one's own memory can then be freed by nobody.
template <class Object>
Object& KeepForever(Object* object) {
  // Never destroyed itself, so that what it keeps is still in reach when the leak checker looks.
  static auto* const kept = new std::vector<Object*>;
  kept->push_back(object);
  return *object;
}

}  // namespace zebtest
