#pragma once

#include "TrueTypeSource.h"
#include "ZEBReportDocument.h"

#include <string>
#include <vector>

namespace zebreport {

/// A font in memory, from a file or installed, with what nobody owns freed at its end.
class OpenedFont {
 public:
  /// A file is opened by its kind: `.afm`, `.pfm`, `.pfb` and `.pfa` files belong together if they have the same name in
  /// one folder; any other file is a TrueType font. What is no file is the name of an installed font.
  /// @throws Failure
  OpenedFont(const std::wstring& fileOrName, const FontStyle& style);
  OpenedFont(const OpenedFont&) = delete;
  OpenedFont& operator=(const OpenedFont&) = delete;
  ~OpenedFont();

  CFontMetrics& Metrics() const { return *m_font.GetFontMetrics(); }

  /// The files that were read; none for an installed font.
  const std::vector<std::wstring>& Files() const { return m_files; }

  /// The glyph of a character: its number in a TrueType font, its code in another one.
  /// @return false if the font does not have the character
  bool FindGlyph(unsigned short character, unsigned short& glyph) const;
  /// The characters that have a glyph, in ascending order.
  std::vector<unsigned short> Characters() const;

 private:
  OpenedFont() = default;

  void ReadPostScript(const std::wstring& file);
  void ReadMetricsAndProgram(const std::wstring& file);
  bool ReadFirst(const std::wstring& stem, const std::vector<std::wstring>& endings,
                 void (CFontInformation::*read)(const wchar_t*));

  CFontInformation m_font{nullptr};
  std::vector<std::wstring> m_files;
};

}  // namespace zebreport
