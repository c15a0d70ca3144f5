#pragma once

#include "fonts/BuiltInFontTables.h"

#include <array>
#include <cstddef>

class CFontInformation;
class CFonts;

namespace zeb {

/// The built-in fonts of a font list: the standard fonts, then the CJK fonts.
///
/// Each is made when it is first asked for, since it is large and a report uses few: the list of every document and
/// every layout would cost milliseconds and megabytes otherwise. The objects belong to the font list.
class BuiltInFonts {
 public:
  static constexpr std::size_t kCount = kStandardFontCount + kCJKFontCount;

  /// @param owner what the fonts get as their list
  explicit BuiltInFonts(CFonts* owner) : m_pOwner(owner) {}

  /// The name under which a font is made.
  static const wchar_t* NameAt(std::size_t index);
  /// The font, which is made if it was not yet.
  CFontInformation* At(std::size_t index);
  /// The font, null if it was not made yet.
  CFontInformation* MadeAt(std::size_t index) const { return m_Made[index]; }

 private:
  CFonts* m_pOwner;                                // observer
  std::array<CFontInformation*, kCount> m_Made{};  // observers
};

}  // namespace zeb
