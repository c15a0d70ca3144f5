#pragma once

#include "fonts/FontMetrics.h"

#include <array>

namespace zeb {

/// A CMap that every PDF viewer has.
struct PredefinedCMap {
  CFontMetrics::CharColl collection;
  const wchar_t* name;
};

/// A character collection as a PDF CIDSystemInfo dictionary names it.
struct CharacterCollection {
  CFontMetrics::CharColl collection;
  const wchar_t* ordering;
  int supplement;
};

extern const std::array<PredefinedCMap, 53> kPredefinedCMaps;
extern const std::array<CharacterCollection, 5> kCharacterCollections;

}  // namespace zeb
