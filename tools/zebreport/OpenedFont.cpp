#include "OpenedFont.h"

#include "Failure.h"
#include "Utf8.h"

#include <filesystem>
#include <set>
#include <string_view>

namespace zebreport {

namespace {

constexpr int kSingleByteCodes = 256;

/// Whether a font of single bytes has a glyph for a code. Where its metrics list the glyphs, a code without one has the
/// width of the space.
bool HasGlyph(const CFontMetrics& metrics, int code) {
  if (metrics.GetFontCharMetricsCount() == 0) return metrics.GetWidthAt(code) != 0;
  const std::wstring_view name = metrics.GetCharNameAt(code);
  for (int i = 0; i < metrics.GetFontCharMetricsCount(); ++i) {
    if (name == metrics.GetFontCharMetricsAt(i)->GetName()) return true;
  }
  return false;
}

std::wstring EndingOf(const std::wstring& file) {
  std::wstring ending = ToPath(file).extension().wstring();
  for (wchar_t& character : ending) {
    if (character >= L'A' && character <= L'Z') character = static_cast<wchar_t>(character - L'A' + L'a');
  }
  return ending;
}

bool IsFile(const std::wstring& path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(ToPath(path), ignored);
}

bool IsPostScript(const std::wstring& ending) {
  return ending == L".afm" || ending == L".pfm" || ending == L".pfb" || ending == L".pfa";
}

}  // namespace

// The other constructor has made the object by then, so that a refused font is freed by the destructor too.
OpenedFont::OpenedFont(const std::wstring& fileOrName, const FontStyle& style) : OpenedFont() {
  if (IsPostScript(EndingOf(fileOrName))) {
    ReadPostScript(fileOrName);
  } else {
    ReadTrueType(fileOrName, m_font, style);
    if (IsFile(fileOrName)) m_files.push_back(fileOrName);
  }
}

OpenedFont::~OpenedFont() {
  CFontMetrics& metrics = Metrics();
  for (int i = 0; i < metrics.GetFontCharMetricsCount(); ++i) delete metrics.GetFontCharMetricsAt(i);
}

bool OpenedFont::ReadFirst(const std::wstring& stem, const std::vector<std::wstring>& endings,
                           void (CFontInformation::*read)(const wchar_t*)) {
  for (const std::wstring& ending : endings) {
    const std::wstring file = stem + ending;
    if (!IsFile(file)) continue;
    m_files.push_back(file);
    (m_font.*read)(file.c_str());
    return true;
  }
  return false;
}

void OpenedFont::ReadPostScript(const std::wstring& file) {
  if (!IsFile(file)) throw Failure(file + L": the file cannot be opened; check its name.");
  try {
    ReadMetricsAndProgram(file);
  } catch (const CKXException& exception) {
    throw LibraryFailure(m_files.back(), exception);
  }
}

void OpenedFont::ReadMetricsAndProgram(const std::wstring& file) {
  const std::wstring ending = EndingOf(file);
  const std::wstring stem = file.substr(0, file.size() - ending.size());
  // The metrics come first. The named file decides, the others only complete it.
  if (ending == L".afm" || ending == L".pfm") {
    m_files.push_back(file);
    ending == L".afm" ? m_font.ReadAFM(file.c_str()) : m_font.ReadPFM(file.c_str());
    ReadFirst(stem, {L".pfb", L".PFB", L".pfa", L".PFA"}, &CFontInformation::ReadPFBPFA);
    return;
  }
  if (!ReadFirst(stem, {L".afm", L".AFM"}, &CFontInformation::ReadAFM) &&
      !ReadFirst(stem, {L".pfm", L".PFM"}, &CFontInformation::ReadPFM)) {
    throw Failure(file +
                  L": no file of metrics lies beside it; put the .afm or .pfm file of the same name there.");
  }
  m_files.push_back(file);
  m_font.ReadPFBPFA(file.c_str());
}

bool OpenedFont::FindGlyph(unsigned short character, unsigned short& glyph) const {
  CFontMetrics& metrics = Metrics();
  if (metrics.GetTTFile() != nullptr) return metrics.FindGlyphIndex(character, glyph);
  for (int code = 0; code < kSingleByteCodes; ++code) {
    if (metrics.GetUnicodeAt(code) != character || !HasGlyph(metrics, code)) continue;
    glyph = static_cast<unsigned short>(code);
    return true;
  }
  return false;
}

std::vector<unsigned short> OpenedFont::Characters() const {
  std::set<unsigned short> characters;
  CFontMetrics& metrics = Metrics();
  if (metrics.GetTTFile() != nullptr) {
    unsigned short glyph = 0;
    for (int code = metrics.GetFirstChar(); code <= metrics.GetLastChar(); ++code) {
      const auto character = static_cast<unsigned short>(code);
      if (metrics.FindGlyphIndex(character, glyph)) characters.insert(character);
    }
  } else {
    for (int code = 0; code < kSingleByteCodes; ++code) {
      if (metrics.GetUnicodeAt(code) != 0 && HasGlyph(metrics, code))
        characters.insert(metrics.GetUnicodeAt(code));
    }
  }
  return {characters.begin(), characters.end()};
}

}  // namespace zebreport
