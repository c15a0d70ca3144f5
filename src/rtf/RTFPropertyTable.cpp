#include "rtf/RTFPropertyTable.h"

#include <cstddef>

namespace zeb {

namespace {

/// A field of a class of properties. One of the pointers is set, or none.
template <class T>
struct Member {
  constexpr Member() = default;
  constexpr Member(unsigned char T::*member) : m_pByte(member) {}
  constexpr Member(signed char T::*member) : m_pSignedByte(member) {}
  constexpr Member(int T::*member) : m_pInt(member) {}

  unsigned char T::*m_pByte = nullptr;
  signed char T::*m_pSignedByte = nullptr;
  int T::*m_pInt = nullptr;
};

// The fields of the property objects, by their places in the classes.
enum CharacterField : int {
  kBold,
  kUnderline,
  kItalic,
  kSuperscript,
  kSubscript,
  kFontSize,
  kCellFontId,
  kUnicodeSkip,
  kJpegBlip,
  kEmfBlip,
  kPngBlip,
  kCharShading,
  kCharForeColor,
  kCharBackColor,
  kPicWidth,
  kPicHeight,
  kPicWidthGoal,
  kPicHeightGoal,
  kPicScaleX,
  kPicScaleY,
  kPnText,
};

enum ParagraphField : int {
  kLeftIndent,
  kRightIndent,
  kFirstIndent,
  kJustification,
  kTabs,
  kTabCount,
  kTabKind,
  kInTable,
  kShading,
  kForeColor,
  kBackColor,
  kPnBullet,
  kPnDecimal,
};

enum SectionField : int {
  kColumns,
  kSectionBreak,
  kPageNumberX,
  kPageNumberY,
  kPageNumberFormat,
};

enum DocumentField : int {
  kPaperWidth,
  kPaperHeight,
  kMarginLeft,
  kMarginTop,
  kMarginRight,
  kMarginBottom,
  kPageNumberStart,
  kFacingPages,
  kLandscape,
  kDefaultFont,
  kRtfVersion,
  kDefaultTab,
  kRowLeft,
  kRowHeader,
  kRows,
  kCurrentRow,
  kCurrentCell,
  kRowBorderSide,
  kCellBorderSide,
  kRowIndex,
  kCellIndex,
  kAnsiCodePage,
};

enum FontField : int {
  kFontId,
  kCharSet,
  kForeColorIndex,
  kBackColorIndex,
};

constexpr std::array<Member<CCharacterProperties>, 21> kCharacterFields = {{
    {&CCharacterProperties::Bold},          {&CCharacterProperties::Underline},
    {&CCharacterProperties::Italic},        {&CCharacterProperties::Superscript},
    {&CCharacterProperties::Subscript},     {&CCharacterProperties::FontSize},
    {&CCharacterProperties::CellFontId},    {&CCharacterProperties::UnicodeSkip},
    {&CCharacterProperties::JpegBlip},      {&CCharacterProperties::EmfBlip},
    {&CCharacterProperties::PngBlip},       {&CCharacterProperties::CharShading},
    {&CCharacterProperties::CharForeColor}, {&CCharacterProperties::CharBackColor},
    {&CCharacterProperties::PicWidth},      {&CCharacterProperties::PicHeight},
    {&CCharacterProperties::PicWidthGoal},  {&CCharacterProperties::PicHeightGoal},
    {&CCharacterProperties::PicScaleX},     {&CCharacterProperties::PicScaleY},
    {&CCharacterProperties::PnText},
}};

constexpr std::array<Member<CParagraphProperties>, 13> kParagraphFields = {{
    {&CParagraphProperties::LeftIndent},
    {&CParagraphProperties::RightIndent},
    {&CParagraphProperties::FirstIndent},
    {&CParagraphProperties::Justification},
    {},  // kTabs
    {&CParagraphProperties::TabCount},
    {&CParagraphProperties::TabKind},
    {&CParagraphProperties::InTable},
    {&CParagraphProperties::Shading},
    {&CParagraphProperties::ForeColor},
    {&CParagraphProperties::BackColor},
    {&CParagraphProperties::PnBullet},
    {&CParagraphProperties::PnDecimal},
}};

constexpr std::array<Member<CSectionProperties>, 5> kSectionFields = {{
    {&CSectionProperties::Columns},
    {&CSectionProperties::SectionBreak},
    {&CSectionProperties::PageNumberX},
    {&CSectionProperties::PageNumberY},
    {&CSectionProperties::PageNumberFormat},
}};

constexpr std::array<Member<CDocumentProperties>, 22> kDocumentFields = {{
    {&CDocumentProperties::PaperWidth},
    {&CDocumentProperties::PaperHeight},
    {&CDocumentProperties::MarginLeft},
    {&CDocumentProperties::MarginTop},
    {&CDocumentProperties::MarginRight},
    {&CDocumentProperties::MarginBottom},
    {&CDocumentProperties::PageNumberStart},
    {&CDocumentProperties::FacingPages},
    {&CDocumentProperties::Landscape},
    {&CDocumentProperties::DefaultFont},
    {&CDocumentProperties::RtfVersion},
    {&CDocumentProperties::DefaultTab},
    {&CDocumentProperties::RowLeft},
    {&CDocumentProperties::RowHeader},
    {},  // kRows
    {},  // kCurrentRow
    {},  // kCurrentCell
    {&CDocumentProperties::RowBorderSide},
    {&CDocumentProperties::CellBorderSide},
    {&CDocumentProperties::RowIndex},
    {&CDocumentProperties::CellIndex},
    {&CDocumentProperties::AnsiCodePage},
}};

constexpr std::array<Member<CFontProperties>, 4> kFontFields = {{
    {&CFontProperties::FontId},
    {&CFontProperties::CharSet},
    {&CFontProperties::ForeColorIndex},
    {&CFontProperties::BackColorIndex},
}};

template <class T, std::size_t N>
RTFField FieldAt(T& properties, const std::array<Member<T>, N>& members, int number) {
  RTFField field;
  if (number < 0 || static_cast<std::size_t>(number) >= N) return field;
  const Member<T>& member = members[static_cast<std::size_t>(number)];
  if (member.m_pByte != nullptr) field.m_pByte = &(properties.*member.m_pByte);
  if (member.m_pSignedByte != nullptr) field.m_pSignedByte = &(properties.*member.m_pSignedByte);
  if (member.m_pInt != nullptr) field.m_pInt = &(properties.*member.m_pInt);
  return field;
}

}  // namespace

// clang-format off
const std::array<CRTFParser::PropertyRow, 106> kRTFPropertyTable = {{
    {kByte, kCharacter, kBold},               // ipropBold
    {kByte, kCharacter, kItalic},             // ipropItalic
    {kByte, kCharacter, kUnderline},          // ipropUnderline
    {kByte, kCharacter, kSuperscript},        // ipropSuperscript
    {kByte, kCharacter, kSubscript},          // ipropSubscript
    {kSpecial, kCharacter, 0},                // ipropNoSuperSub
    {kInt, kParagraph, kLeftIndent},          // ipropLeftIndent
    {kInt, kParagraph, kRightIndent},         // ipropRightIndent
    {kInt, kParagraph, kFirstIndent},         // ipropFirstIndent
    {kInt, kSection, kColumns},               // ipropColumns
    {kInt, kSection, kPageNumberX},           // ipropPageNumberX
    {kInt, kSection, kPageNumberY},           // ipropPageNumberY
    {kInt, kDocument, kPaperWidth},           // ipropPaperWidth
    {kInt, kDocument, kPaperHeight},          // ipropPaperHeight
    {kInt, kDocument, kMarginLeft},           // ipropMarginLeft
    {kInt, kDocument, kMarginRight},          // ipropMarginRight
    {kInt, kDocument, kMarginTop},            // ipropMarginTop
    {kInt, kDocument, kMarginBottom},         // ipropMarginBottom
    {kInt, kDocument, kPageNumberStart},      // ipropPageNumberStart
    {kByte, kSection, kSectionBreak},         // ipropSectionBreak
    {kByte, kSection, kPageNumberFormat},     // ipropPageNumberFormat
    {kByte, kDocument, kFacingPages},         // ipropFacingPages
    {kByte, kDocument, kLandscape},           // ipropLandscape
    {kByte, kParagraph, kJustification},      // ipropJustification
    {kSpecial, kCharacter, 0},                // ipropPard
    {kByte, kParagraph, kPnDecimal},          // ipropPnDecimal
    {kByte, kParagraph, kPnBullet},           // ipropPnBullet
    {kSpecial, kCharacter, 0},                // ipropPlain
    {kSpecial, kCharacter, 0},                // ipropSectd
    {kInt, kDocument, kDefaultFont},          // ipropDefaultFont
    {kByte, kCharacter, kFontSize},           // ipropFontSize
    {kInt, kFont, kCharSet},                  // ipropCharSet
    {kInt, kFont, kFontId},                   // ipropFontId
    {kByte, kDocument, kRtfVersion},          // ipropRtfVersion
    {kByte, kCharacter, kUnicodeSkip},        // ipropUnicodeSkip
    {kSpecial, kCharacter, 0},                // ipropPar
    {kSpecial, kCharacter, 0},                // ipropUnicode
    {kSpecial, kCharacter, 0},                // ipropLine
    {kSpecial, kCharacter, 0},                // ipropStyle
    {kInt, kFont, kForeColorIndex},           // ipropForeColorIndex
    {kInt, kFont, kBackColorIndex},           // ipropBackColorIndex
    {kSpecial, kCharacter, 0},                // ipropRed
    {kSpecial, kCharacter, 0},                // ipropGreen
    {kSpecial, kCharacter, 0},                // ipropBlue
    {kInt, kDocument, kDefaultTab},           // ipropDefaultTab
    {kSpecial, kCharacter, 0},                // ipropTabStop
    {kInt, kParagraph, kTabKind},             // ipropTabKind
    {kSpecial, kCharacter, 0},                // ipropInTable
    {kSpecial, kCharacter, 0},                // ipropRowDefaults
    {kInt, kDocument, kRowLeft},              // ipropRowLeft
    {kInt, kDocument, kRowHeader},            // ipropRowHeader
    {kSpecial, kCharacter, 0},                // ipropRowBorderTop
    {kSpecial, kCharacter, 0},                // ipropRowBorderBottom
    {kSpecial, kCharacter, 0},                // ipropRowBorderLeft
    {kSpecial, kCharacter, 0},                // ipropRowBorderRight
    {kSpecial, kCharacter, 0},                // ipropRowBorderHorizontal
    {kSpecial, kCharacter, 0},                // ipropRowBorderVertical
    {kSpecial, kCharacter, 0},                // ipropCellBorderTop
    {kSpecial, kCharacter, 0},                // ipropCellBorderBottom
    {kSpecial, kCharacter, 0},                // ipropCellBorderLeft
    {kSpecial, kCharacter, 0},                // ipropCellBorderRight
    {kSpecial, kCharacter, 0},                // ipropRow
    {kSpecial, kCharacter, 0},                // ipropCell
    {kSpecial, kCharacter, 0},                // ipropCellX
    {kSpecial, kCharacter, 0},                // ipropCellAlignTop
    {kSpecial, kCharacter, 0},                // ipropCellAlignCenter
    {kSpecial, kCharacter, 0},                // ipropCellAlignBottom
    {kSpecial, kCharacter, 0},                // ipropBorderSingle
    {kSpecial, kCharacter, 0},                // ipropBorderWidth
    {kByte, kCharacter, kJpegBlip},           // ipropJpegBlip
    {kByte, kCharacter, kEmfBlip},            // ipropEmfBlip
    {kByte, kCharacter, kPngBlip},            // ipropPngBlip
    {kSpecial, kCharacter, 0},                // ipropShpPict
    {kSpecial, kCharacter, 0},                // ipropNonShpPict
    {kSpecial, kCharacter, 0},                // ipropList
    {kSpecial, kCharacter, 0},                // ipropListSimple
    {kSpecial, kCharacter, 0},                // ipropListHybrid
    {kSpecial, kCharacter, 0},                // ipropLevelNfc
    {kSpecial, kCharacter, 0},                // ipropLevelNfcN
    {kSpecial, kCharacter, 0},                // ipropLevelJc
    {kSpecial, kCharacter, 0},                // ipropLevelNfcNAgain
    {kSpecial, kCharacter, 0},                // ipropLevelFollow
    {kSpecial, kCharacter, 0},                // ipropLevelStartAt
    {kSpecial, kCharacter, 0},                // ipropLevelSpace
    {kSpecial, kCharacter, 0},                // ipropLevelIndent
    {kSpecial, kCharacter, 0},                // ipropListName
    {kSpecial, kCharacter, 0},                // ipropListId
    {kSpecial, kCharacter, 0},                // ipropListOverride
    {kSpecial, kCharacter, 0},                // ipropListOverrideCount
    {kSpecial, kCharacter, 0},                // ipropLs
    {kSpecial, kCharacter, 0},                // ipropIlvl
    {kSpecial, kCharacter, 0},                // ipropListOverrideFormat
    {kSpecial, kCharacter, 0},                // ipropListOverrideStartAt
    {kByte, kCharacter, kCharShading},        // ipropCharShading
    {kByte, kCharacter, kCharForeColor},      // ipropCharForeColor
    {kByte, kCharacter, kCharBackColor},      // ipropCharBackColor
    {kByte, kParagraph, kShading},            // ipropShading
    {kByte, kParagraph, kForeColor},          // ipropForeColor
    {kByte, kParagraph, kBackColor},          // ipropBackColor
    {kInt, kCharacter, kPicWidth},            // ipropPicWidth
    {kInt, kCharacter, kPicHeight},           // ipropPicHeight
    {kInt, kCharacter, kPicWidthGoal},        // ipropPicWidthGoal
    {kInt, kCharacter, kPicHeightGoal},       // ipropPicHeightGoal
    {kInt, kCharacter, kPicScaleX},           // ipropPicScaleX
    {kInt, kCharacter, kPicScaleY},           // ipropPicScaleY
    {kInt, kDocument, kAnsiCodePage},         // ipropAnsiCodePage
}};
// clang-format on

RTFField RTFFieldOf(CCharacterProperties& properties, int field) {
  return FieldAt(properties, kCharacterFields, field);
}

RTFField RTFFieldOf(CParagraphProperties& properties, int field) {
  return FieldAt(properties, kParagraphFields, field);
}

RTFField RTFFieldOf(CSectionProperties& properties, int field) {
  return FieldAt(properties, kSectionFields, field);
}

RTFField RTFFieldOf(CDocumentProperties& properties, int field) {
  return FieldAt(properties, kDocumentFields, field);
}

RTFField RTFFieldOf(CFontProperties& properties, int field) {
  return FieldAt(properties, kFontFields, field);
}

}  // namespace zeb
