#include "fonts/FontMetrics.h"

#include "fonts/EncodingTables.h"
#include "fonts/FontData.h"

#include <cstddef>
#include <string_view>

namespace {

// Flags of a PDF font descriptor.
constexpr int kFlagFixedPitch = 0x1;
constexpr int kFlagSymbolic = 0x4;
constexpr int kFlagNonSymbolic = 0x20;
constexpr int kFlagItalic = 0x40;
constexpr int kFlagSmallCaps = 0x20000;
constexpr int kFlagForceBold = 0x40000;

/// From this width of the vertical stems on a face counts as bold.
constexpr int kBoldStem = 136;

int FlagsOfName(std::wstring_view name) {
  int flags = 0;
  if (name.find(L"Caps") != std::wstring_view::npos || name.ends_with(L"SC")) flags |= kFlagSmallCaps;
  if (name.find(L"Bold") != std::wstring_view::npos) flags |= kFlagForceBold;
  return flags;
}

}  // namespace

CFontMetrics::CFontMetrics() {
  SetWinAnsiEncoding();
  m_pFontData = new CFontData(false);
}

CFontMetrics::CFontMetrics(const CFontMetrics& other) = default;

CFontMetrics::~CFontMetrics() {
  if (m_bFontDataOwner) delete m_pFontData;
  delete m_pSubsetData;
}

CFontMetrics& CFontMetrics::operator=(const CFontMetrics& other) = default;

CTrueTypeFile* CFontMetrics::GetTTFile() { return nullptr; }

void CFontMetrics::InitFontInformation() {
  m_strEncoding = L"winansi1252";
  m_iFlags = 0;
  m_FontType = FontTypeType1;
  m_fItalicAngle = 0;
  m_bFixedPitch = false;
  m_fBBoxLLX = -50;
  m_fBBoxLLY = -200;
  m_fBBoxURX = 1000;
  m_fBBoxURY = 900;
  m_iUnderlinePosition = -100;
  m_iUnderlineThickness = 50;
  m_iCapHeight = 700;
  m_iXHeight = 0;
  m_iAscender = 800;
  m_iDescender = -200;
  m_iStemVW = 0;
  m_iStemHW = 0;
}

void CFontMetrics::BuildFontDescriptorFlag() {
  // Fixed behaviour: flags that a reader has set before are lost, serif and script among them.
  m_iFlags = FlagsOfName(m_strBaseFont);
  if (m_bFixedPitch) m_iFlags |= kFlagFixedPitch;
  const bool nonSymbolic = m_strEncodingScheme == L"AdobeStandardEncoding" || m_strEncoding == L"winansi1252";
  m_iFlags |= nonSymbolic ? kFlagNonSymbolic : kFlagSymbolic;
  if (m_fItalicAngle < 0) m_iFlags |= kFlagItalic;
  if (m_iStemVW >= kBoldStem) m_iFlags |= kFlagForceBold;
}

void CFontMetrics::SetWinAnsiEncoding() { UseEncodingOf(1252); }

void CFontMetrics::SetCP1250Encoding() { UseEncodingOf(1250); }

void CFontMetrics::UseEncodingOf(int codePage) {
  const zeb::EncodingTable& rows = codePage == 1250 ? zeb::kCP1250Encoding : zeb::kWinAnsiEncoding;
  for (std::size_t code = 0; code < rows.size(); ++code) {
    m_rgusUnicodes[code] = rows[code].unicode;
    m_rgpCharNames[code] = rows[code].name;
  }
  m_OwnCharNames.clear();
}

bool CFontMetrics::GetBase14Font() const { return m_bBase14Font; }

void CFontMetrics::SetBase14Font(bool base14Font) {
  m_bBase14Font = base14Font;
  if (base14Font) m_FontEmbedding = EmbedNone;
}

bool CFontMetrics::GetCJKFont() const { return m_bCJKFont; }

void CFontMetrics::SetCJKFont(bool cjkFont) {
  m_bCJKFont = cjkFont;
  if (cjkFont) m_FontEmbedding = EmbedNone;
}

CFontMetrics::FontEmbedding CFontMetrics::GetFontEmbedding() const { return m_FontEmbedding; }

void CFontMetrics::SetFontEmbedding(FontEmbedding embedding) {
  // Fixed behaviour: a CJK font takes any embedding here, only a base-14 font does not.
  m_FontEmbedding = m_bBase14Font ? EmbedNone : embedding;
}

CFontData* CFontMetrics::GetFontData() const {
  return m_bUnicodeFont && m_pSubsetData != nullptr ? m_pSubsetData : m_pFontData;
}

void CFontMetrics::SetFontData(CFontData* data, bool owner) {
  // Fixed behaviour: what is replaced is deleted even if it was not owned; only the destructor looks at the flag.
  if (m_pFontData != data) delete m_pFontData;
  m_pFontData = data;
  m_bFontDataOwner = owner;
}

void CFontMetrics::AddLocalizedFontName(const wchar_t* name) {
  if (name != nullptr && *name != L'\0') m_rgstrLocalizedNames.emplace_back(name);
}

int CFontMetrics::FindLocalizedFontName(const wchar_t* name) const {
  if (name == nullptr || *name == L'\0') return -1;
  // The mark of a vertical font.
  if (*name == L'@') ++name;
  for (int index = 0; index < GetLocalizedFontNameCount(); ++index) {
    if (m_rgstrLocalizedNames[static_cast<std::size_t>(index)] == name) return index;
  }
  return -1;
}

const wchar_t* CFontMetrics::GetLocalizedFontNameAt(int index) const {
  return m_rgstrLocalizedNames[static_cast<std::size_t>(index)].c_str();
}

int CFontMetrics::GetLocalizedFontNameCount() const { return static_cast<int>(m_rgstrLocalizedNames.size()); }

const std::vector<std::wstring>& CFontMetrics::GetLocalizedNames() const { return m_rgstrLocalizedNames; }

void CFontMetrics::AnsiToUnicode(const char* source, wchar_t* target) {
  for (; *source != '\0'; ++source, ++target) {
    // Fixed behaviour: bytes are widened with their sign, not through a code page.
    const auto widened = static_cast<signed char>(*source);
    *target = static_cast<wchar_t>(static_cast<unsigned short>(widened));
  }
  *target = L'\0';
}
