#pragma once

#include "OpenedFont.h"

#include <string>

namespace zebreport {

/// The names, metrics, encoding, embedding right and characters of a font, one line each.
void WriteFont(const OpenedFont& font, std::wstring& output);

/// A row for each character of a text: its code, glyph, name, width and number in a subset.
void WriteGlyphs(const OpenedFont& font, const std::wstring& text, std::wstring& output);

}  // namespace zebreport
