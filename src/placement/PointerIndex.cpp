#include "placement/PointerIndex.h"

#include <algorithm>
#include <cstddef>

namespace zeb {
namespace {

constexpr std::size_t kSearchedOneByOne = 16;

}  // namespace

int FindPointer(const std::vector<CPlaceable*>& list, const PointerIndex& index, const CPlaceable* object) {
  if (!index.empty()) {
    const auto place = index.find(object);
    if (place != index.end()) return place->second;
  }
  const auto rest = list.begin() + static_cast<std::ptrdiff_t>(index.size());
  const auto found = std::find(rest, list.end(), object);
  return found == list.end() ? -1 : static_cast<int>(found - list.begin());
}

void ExtendPointerIndex(const std::vector<CPlaceable*>& list, PointerIndex& index) {
  if (list.size() - index.size() <= kSearchedOneByOne) return;
  index.reserve(list.size());
  for (std::size_t place = index.size(); place < list.size(); ++place) {
    index.emplace(list[place], static_cast<int>(place));
  }
}

}  // namespace zeb
