#pragma once

namespace zeb {

/// How the reading of a TrueType font ended.
enum TrueTypeStatus : int {
  kTrueTypeDone = 1,
  kTrueTypeBadArguments = -1,
  kTrueTypeUnreadableFile = -2,
  kTrueTypeNotThere = -3,  ///< no such installed font, or the font lacks a table
  kTrueTypeNoMemory = -4,
  kTrueTypeIncorrect =
      -5,  ///< not a TrueType or OpenType font, or one that lies about offsets, counts or lengths
  kTrueTypeBitmapFont = -6,
  kTrueTypeEmbeddingForbidden = -7,
};

}  // namespace zeb
