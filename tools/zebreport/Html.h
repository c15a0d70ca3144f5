#pragma once

#include "ZEBReportDocument.h"

#include <string>
#include <string_view>

namespace zebreport {

/// The text as it stands in an element or in an attribute in double quotes. Characters that HTML cannot hold become
/// U+FFFD.
std::wstring EscapedHtml(std::wstring_view text);

/// The text as a string of a style, in single quotes, for an attribute in double quotes.
std::wstring StyleString(std::wstring_view text);

/// Twips as points, at most 22 inches: `12pt`.
std::wstring StyleLength(int twips);

/// `#rrggbb`
std::wstring StyleColour(const CRTFColor& colour);

/// An element that shows the picture, or a labelled box where browsers do not know its format.
/// @param props size and scale of the picture
std::wstring HtmlPicture(const CFontData& picture, const CCharacterProperties& props);

}  // namespace zebreport
