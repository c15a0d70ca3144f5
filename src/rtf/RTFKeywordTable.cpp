#include "rtf/RTFKeywordTable.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zeb {

namespace {

using Parser = CRTFParser;

// clang-format off
constexpr std::array<CRTFParser::KeywordRow, kRTFKeywordCount> kRows = {{
    // Characters: what they stand for. The two rows without a name are never found by a keyword of a text.
    {"", 0, 0, Parser::kwdChar, 10},
    {"", 0, 0, Parser::kwdChar, 10},
    {"tab", 0, 0, Parser::kwdChar, 9},
    {"ldblquote", 0, 0, Parser::kwdChar, 34},
    {"rdblquote", 0, 0, Parser::kwdChar, 34},
    {"{", 0, 0, Parser::kwdChar, 123},
    {"}", 0, 0, Parser::kwdChar, 125},
    {"\\", 0, 0, Parser::kwdChar, 92},
    // Keywords with a syntax of their own.
    {"bin", 0, 0, Parser::kwdSpec, Parser::ipfnBin},
    {"'", 0, 0, Parser::kwdSpec, Parser::ipfnHex},
    {"*", 0, 0, Parser::kwdSpec, Parser::ipfnSkipDest},
    // Destinations.
    {"pict", 0, 0, Parser::kwdDest, Parser::idestPict},
    {"fonttbl", 0, 0, Parser::kwdDest, Parser::idestFontTable},
    {"stylesheet", 0, 0, Parser::kwdDest, Parser::idestStyleSheet},
    {"colortbl", 0, 0, Parser::kwdDest, Parser::idestColorTable},
    {"pn", 0, 0, Parser::kwdDest, Parser::idestPn},
    {"bkmkstart", 0, 0, Parser::kwdDest, Parser::idestBookmarkStart},
    {"bkmkend", 0, 0, Parser::kwdDest, Parser::idestBookmarkEnd},
    {"pntext", 0, 0, Parser::kwdDest, Parser::idestPnText},
    {"pntxtb", 0, 0, Parser::kwdDest, Parser::idestPnTextBefore},
    {"pntxta", 0, 0, Parser::kwdDest, Parser::idestPnTextAfter},
    {"listtable", 0, 0, Parser::kwdDest, Parser::idestListTable},
    {"listlevel", 0, 0, Parser::kwdDest, Parser::idestListLevel},
    {"leveltext", 0, 0, Parser::kwdDest, Parser::idestLevelText},
    {"levelnumbers", 0, 0, Parser::kwdDest, Parser::idestLevelNumbers},
    {"listoverridetable", 0, 0, Parser::kwdDest, Parser::idestListOverrideTable},
    {"listtext", 0, 0, Parser::kwdDest, Parser::idestListText},
    // Destinations that are skipped whole.
    {"author", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"buptim", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"comment", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"creatim", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"doccomm", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"footer", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"footerf", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"footerl", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"footerr", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"footnote", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"ftncn", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"ftnsep", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"ftnsepc", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"header", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"headerf", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"headerl", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"headerr", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"info", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"keywords", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"operator", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"printim", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"private1", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"revtim", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"rxe", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"subject", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"tc", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"title", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"txe", 0, 0, Parser::kwdDest, Parser::idestSkip},
    {"xe", 0, 0, Parser::kwdDest, Parser::idestSkip},
    // Properties.
    {"b", 1, 0, Parser::kwdProp, Parser::ipropBold},
    {"i", 1, 0, Parser::kwdProp, Parser::ipropItalic},
    {"ul", 1, 0, Parser::kwdProp, Parser::ipropUnderline},
    {"ulnone", 0, 1, Parser::kwdProp, Parser::ipropUnderline},
    {"super", 1, 0, Parser::kwdProp, Parser::ipropSuperscript},
    {"up", 1, 0, Parser::kwdProp, Parser::ipropSuperscript},
    {"sub", 1, 0, Parser::kwdProp, Parser::ipropSubscript},
    {"dn", 1, 0, Parser::kwdProp, Parser::ipropSubscript},
    {"nosupersub", 0, 0, Parser::kwdProp, Parser::ipropNoSuperSub},
    {"li", 0, 0, Parser::kwdProp, Parser::ipropLeftIndent},
    {"ri", 0, 0, Parser::kwdProp, Parser::ipropRightIndent},
    {"fi", 0, 0, Parser::kwdProp, Parser::ipropFirstIndent},
    {"cols", 1, 0, Parser::kwdProp, Parser::ipropColumns},
    {"pgnx", 0, 0, Parser::kwdProp, Parser::ipropPageNumberX},
    {"pgny", 0, 0, Parser::kwdProp, Parser::ipropPageNumberY},
    {"paperw", 12240, 0, Parser::kwdProp, Parser::ipropPaperWidth},
    {"paperh", 15480, 0, Parser::kwdProp, Parser::ipropPaperHeight},
    {"margl", 1800, 0, Parser::kwdProp, Parser::ipropMarginLeft},
    {"margr", 1800, 0, Parser::kwdProp, Parser::ipropMarginRight},
    {"margt", 1440, 0, Parser::kwdProp, Parser::ipropMarginTop},
    {"margb", 1440, 0, Parser::kwdProp, Parser::ipropMarginBottom},
    {"pgnstart", 1, 1, Parser::kwdProp, Parser::ipropPageNumberStart},
    {"sbknone", 0, 1, Parser::kwdProp, Parser::ipropSectionBreak},
    {"sbkcol", 1, 1, Parser::kwdProp, Parser::ipropSectionBreak},
    {"sbkeven", 2, 1, Parser::kwdProp, Parser::ipropSectionBreak},
    {"sbkodd", 3, 1, Parser::kwdProp, Parser::ipropSectionBreak},
    {"sbkpage", 4, 1, Parser::kwdProp, Parser::ipropSectionBreak},
    {"pgndec", 0, 1, Parser::kwdProp, Parser::ipropPageNumberFormat},
    {"pgnucrm", 1, 1, Parser::kwdProp, Parser::ipropPageNumberFormat},
    {"pgnlcrm", 2, 1, Parser::kwdProp, Parser::ipropPageNumberFormat},
    {"pgnucltr", 3, 1, Parser::kwdProp, Parser::ipropPageNumberFormat},
    {"pgnlcltr", 4, 1, Parser::kwdProp, Parser::ipropPageNumberFormat},
    {"facingp", 1, 1, Parser::kwdProp, Parser::ipropFacingPages},
    {"landscape", 1, 1, Parser::kwdProp, Parser::ipropLandscape},
    {"qc", 2, 1, Parser::kwdProp, Parser::ipropJustification},
    {"ql", 0, 1, Parser::kwdProp, Parser::ipropJustification},
    {"qr", 1, 1, Parser::kwdProp, Parser::ipropJustification},
    {"qj", 3, 1, Parser::kwdProp, Parser::ipropJustification},
    {"pard", 0, 0, Parser::kwdProp, Parser::ipropPard},
    {"pndec", 1, 0, Parser::kwdProp, Parser::ipropPnDecimal},
    {"pnlvlblt", 1, 0, Parser::kwdProp, Parser::ipropPnBullet},
    {"deff", 0, 0, Parser::kwdProp, Parser::ipropDefaultFont},
    {"fs", 22, 0, Parser::kwdProp, Parser::ipropFontSize},
    {"fcharset", 0, 0, Parser::kwdProp, Parser::ipropCharSet},
    {"f", 0, 0, Parser::kwdProp, Parser::ipropFontId},
    {"rtf", 0, 0, Parser::kwdProp, Parser::ipropRtfVersion},
    {"uc", 0, 0, Parser::kwdProp, Parser::ipropUnicodeSkip},
    {"par", 0, 0, Parser::kwdProp, Parser::ipropPar},
    {"u", 0, 0, Parser::kwdProp, Parser::ipropUnicode},
    {"line", 0, 0, Parser::kwdProp, Parser::ipropLine},
    {"s", 0, 0, Parser::kwdProp, Parser::ipropStyle},
    {"cf", 0, 0, Parser::kwdProp, Parser::ipropForeColorIndex},
    {"cb", 0, 0, Parser::kwdProp, Parser::ipropBackColorIndex},
    {"red", 0, 0, Parser::kwdProp, Parser::ipropRed},
    {"green", 0, 0, Parser::kwdProp, Parser::ipropGreen},
    {"blue", 0, 0, Parser::kwdProp, Parser::ipropBlue},
    {"deftab", 720, 1, Parser::kwdProp, Parser::ipropDefaultTab},
    {"tx", 0, 0, Parser::kwdProp, Parser::ipropTabStop},
    {"tqr", 1, 1, Parser::kwdProp, Parser::ipropTabKind},
    {"tqc", 2, 1, Parser::kwdProp, Parser::ipropTabKind},
    {"tqdec", 3, 1, Parser::kwdProp, Parser::ipropTabKind},
    {"intbl", 1, 1, Parser::kwdProp, Parser::ipropInTable},
    {"trowd", 0, 0, Parser::kwdProp, Parser::ipropRowDefaults},
    {"trleft", 0, 0, Parser::kwdProp, Parser::ipropRowLeft},
    {"trhdr", 1, 1, Parser::kwdProp, Parser::ipropRowHeader},
    {"trbrdrt", 1, 1, Parser::kwdProp, Parser::ipropRowBorderTop},
    {"trbrdrb", 1, 1, Parser::kwdProp, Parser::ipropRowBorderBottom},
    {"trbrdrl", 1, 1, Parser::kwdProp, Parser::ipropRowBorderLeft},
    {"trbrdrr", 1, 1, Parser::kwdProp, Parser::ipropRowBorderRight},
    {"trbrdrh", 1, 1, Parser::kwdProp, Parser::ipropRowBorderHorizontal},
    {"trbrdrv", 1, 1, Parser::kwdProp, Parser::ipropRowBorderVertical},
    {"clbrdrt", 1, 1, Parser::kwdProp, Parser::ipropCellBorderTop},
    {"clbrdrb", 1, 1, Parser::kwdProp, Parser::ipropCellBorderBottom},
    {"clbrdrl", 1, 1, Parser::kwdProp, Parser::ipropCellBorderLeft},
    {"clbrdrr", 1, 1, Parser::kwdProp, Parser::ipropCellBorderRight},
    {"row", 0, 0, Parser::kwdProp, Parser::ipropRow},
    {"cell", 0, 0, Parser::kwdProp, Parser::ipropCell},
    {"cellx", 0, 0, Parser::kwdProp, Parser::ipropCellX},
    {"clvertalt", 1, 0, Parser::kwdProp, Parser::ipropCellAlignTop},
    {"clvertalc", 1, 0, Parser::kwdProp, Parser::ipropCellAlignCenter},
    {"clvertalb", 1, 0, Parser::kwdProp, Parser::ipropCellAlignBottom},
    {"brdrs", 0, 0, Parser::kwdProp, Parser::ipropBorderSingle},
    {"brdrw", 0, 0, Parser::kwdProp, Parser::ipropBorderWidth},
    {"jpegblip", 1, 1, Parser::kwdProp, Parser::ipropJpegBlip},
    {"emfblip", 1, 1, Parser::kwdProp, Parser::ipropEmfBlip},
    {"pngblip", 1, 1, Parser::kwdProp, Parser::ipropPngBlip},
    {"shppict", 0, 0, Parser::kwdProp, Parser::ipropShpPict},
    {"nonshppict", 0, 0, Parser::kwdProp, Parser::ipropNonShpPict},
    {"list", 0, 0, Parser::kwdProp, Parser::ipropList},
    {"listsimple", 0, 0, Parser::kwdProp, Parser::ipropListSimple},
    {"listhybrid", 0, 0, Parser::kwdProp, Parser::ipropListHybrid},
    {"levelnfc", 0, 0, Parser::kwdProp, Parser::ipropLevelNfc},
    {"levelnfcn", 0, 0, Parser::kwdProp, Parser::ipropLevelNfcN},
    {"leveljc", 0, 0, Parser::kwdProp, Parser::ipropLevelJc},
    {"levelnfcn", 0, 0, Parser::kwdProp, Parser::ipropLevelNfcNAgain},
    {"levelfollow", 0, 0, Parser::kwdProp, Parser::ipropLevelFollow},
    {"levelstartat", 0, 0, Parser::kwdProp, Parser::ipropLevelStartAt},
    {"levelspace", 0, 0, Parser::kwdProp, Parser::ipropLevelSpace},
    {"levelindent", 0, 0, Parser::kwdProp, Parser::ipropLevelIndent},
    {"listname", 0, 0, Parser::kwdProp, Parser::ipropListName},
    {"listid", 0, 0, Parser::kwdProp, Parser::ipropListId},
    {"listoverride", 0, 0, Parser::kwdProp, Parser::ipropListOverride},
    {"listoverridecount", 0, 0, Parser::kwdProp, Parser::ipropListOverrideCount},
    {"ls", 0, 0, Parser::kwdProp, Parser::ipropLs},
    {"ilvl", 0, 0, Parser::kwdProp, Parser::ipropIlvl},
    {"listoverrideformat", 0, 0, Parser::kwdProp, Parser::ipropListOverrideFormat},
    {"listoverridestartat", 0, 0, Parser::kwdProp, Parser::ipropListOverrideStartAt},
    {"chshdng", 0, 0, Parser::kwdProp, Parser::ipropCharShading},
    {"chcfpat", 0, 0, Parser::kwdProp, Parser::ipropCharForeColor},
    {"chcbpat", 0, 0, Parser::kwdProp, Parser::ipropCharBackColor},
    {"shading", 0, 0, Parser::kwdProp, Parser::ipropShading},
    {"cfpat", 0, 0, Parser::kwdProp, Parser::ipropForeColor},
    {"cbpat", 0, 0, Parser::kwdProp, Parser::ipropBackColor},
    {"picw", 0, 0, Parser::kwdProp, Parser::ipropPicWidth},
    {"pich", 0, 0, Parser::kwdProp, Parser::ipropPicHeight},
    {"picwgoal", 0, 0, Parser::kwdProp, Parser::ipropPicWidthGoal},
    {"pichgoal", 0, 0, Parser::kwdProp, Parser::ipropPicHeightGoal},
    {"picscalex", 0, 0, Parser::kwdProp, Parser::ipropPicScaleX},
    {"picscaley", 0, 0, Parser::kwdProp, Parser::ipropPicScaleY},
    {"ansicpg", 0, 0, Parser::kwdProp, Parser::ipropAnsiCodePage},
}};
// clang-format on

// An index of the rows by hash, made by the compiler. Rows enter in the order of the table, and a keyword that is
// in already stays: a look-up finds the row that a walk from the first one would find.
constexpr std::size_t kSlots = 512;
constexpr std::size_t kTailLength = 8;

/// A row in the index, with what tells most keywords apart by one comparison.
struct Slot {
  std::uint64_t m_uTail = 0;
  std::uint16_t m_cLetters = 0;
  std::int16_t m_iRow = -1;  // -1 while the slot is free
};

using Index = std::array<Slot, kSlots>;

/// The last letters of a keyword as a number.
constexpr std::uint64_t TailOf(std::string_view keyword) {
  std::uint64_t tail = 0;
  for (const char letter : keyword) tail = tail << 8U | static_cast<unsigned char>(letter);
  return tail;
}

constexpr bool IsOf(const Slot& slot, std::uint64_t tail, std::string_view keyword) {
  if (slot.m_uTail != tail || slot.m_cLetters != keyword.size()) return false;
  if (keyword.size() <= kTailLength) return true;
  const std::size_t front = keyword.size() - kTailLength;
  const char* const known = kRows[static_cast<std::size_t>(slot.m_iRow)].Keyword;
  return keyword.substr(0, front) == std::string_view(known, front);
}

/// The place of a keyword's slot, or of the free one where it belongs.
constexpr std::size_t PlaceOf(const Index& index, std::string_view keyword) {
  const std::uint64_t tail = TailOf(keyword);
  std::size_t place = ((tail + keyword.size()) * 0x9E3779B97F4A7C15U >> 32U) % kSlots;
  while (index[place].m_iRow >= 0 && !IsOf(index[place], tail, keyword)) place = (place + 1) % kSlots;
  return place;
}

constexpr Index MakeIndex() {
  Index index{};
  for (std::size_t row = 0; row < kRows.size(); ++row) {
    const std::string_view keyword = kRows[row].Keyword;
    Slot& slot = index[PlaceOf(index, keyword)];
    if (slot.m_iRow >= 0) continue;
    slot.m_uTail = TailOf(keyword);
    slot.m_cLetters = static_cast<std::uint16_t>(keyword.size());
    slot.m_iRow = static_cast<std::int16_t>(row);
  }
  return index;
}

constexpr Index kIndex = MakeIndex();

}  // namespace

const std::array<CRTFParser::KeywordRow, kRTFKeywordCount> kRTFKeywordTable = kRows;

int FindRTFKeyword(std::string_view keyword) { return kIndex[PlaceOf(kIndex, keyword)].m_iRow; }

}  // namespace zeb
