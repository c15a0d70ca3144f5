#pragma once

#include <string>

namespace zebreport {

/// Writes what the reader says of a rich text file, one line per event: the text, what ended, and every value of the
/// record that is not the one at the start.
/// @throws Failure as ReadRtf; the same goes for the others
void DumpRtf(const std::wstring& file, std::wstring& output);

/// Writes the text alone: a line per paragraph, a line per row of a table with tabs between its cells. Paragraphs of one
/// cell stand on lines of their own.
void ShowRtfText(const std::wstring& file, std::wstring& output);

/// Writes an HTML page that looks like the document. It needs no other file: pictures that browsers show are inside.
void ShowRtfPage(const std::wstring& file, std::wstring& output);

}  // namespace zebreport
