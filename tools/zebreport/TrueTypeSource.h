#pragma once

#include <string>

class CFontInformation;

namespace zebreport {

/// Which style is wanted; it chooses among the faces of an installed family.
struct FontStyle {
  int weight = 400;  ///< 400 normal, 700 bold
  bool italic = false;
};

/// Reads a TrueType font for the use with two-byte codes.
/// @param name path of a font file; where no file has that path, the name of an installed font, which is how the fonts
///     of a collection are reached
/// @throws Failure if there is no such font or it is refused, with the library's key and message
void ReadTrueType(const std::wstring& name, CFontInformation& font, const FontStyle& style = {});

}  // namespace zebreport
