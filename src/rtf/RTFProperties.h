#pragma once

#include "platform/Export.h"
#include "rtf/RTFTableRow.h"

#include <array>
#include <memory>
#include <vector>

// The formatting of rich text: plain records, copied by value. A parser keeps one of each as the current values,
// saves them at every opening brace and hands copies to the caller with every run of text.
//
// Lengths are twips, font sizes half points. A byte that stands for a truth value is set if it is not 0.

/// One tab stop.
class ZEB_EXPORT CRTFTabStop {
 public:
  int Position = 0;
  /// 0 left, 1 right, 2 centre, 3 decimal.
  int Kind = 0;

  bool operator==(const CRTFTabStop&) const = default;
};

/// The 100 tab stops of a paragraph, all zero at the start. A copy shares the block with its source until one of
/// both is written to: a reference for writing is good until its object is copied.
class ZEB_EXPORT CRTFTabStops {
 public:
  static constexpr int kCount = 100;

  /// @param index 0 to 99
  const CRTFTabStop& operator[](int index) const;
  /// @param index 0 to 99
  CRTFTabStop& operator[](int index);

  const CRTFTabStop* begin() const;
  const CRTFTabStop* end() const;
  int size() const { return kCount; }

  bool operator==(const CRTFTabStops& other) const;

 private:
  using Block = std::array<CRTFTabStop, kCount>;

  const Block& Stops() const;

  std::shared_ptr<Block> m_pStops;  // shared by copies, null while all stops are zero
};

/// Formatting of characters, and what is known of a picture.
class ZEB_EXPORT CCharacterProperties {
 public:
  unsigned char Bold = 0;
  unsigned char Underline = 0;
  unsigned char Italic = 0;
  unsigned char Superscript = 0;
  unsigned char Subscript = 0;
  /// Half points. Only the low byte is ever written.
  int FontSize = 24;
  /// The font id of a run in a table; filled in context records only.
  int CellFontId = 0;
  /// How many bytes stand for a `\u` character in readers that do not know it; 0 counts as 1.
  unsigned char UnicodeSkip = 0;
  unsigned char JpegBlip = 0;
  unsigned char EmfBlip = 0;
  unsigned char PngBlip = 0;
  signed char CharShading = 0;
  /// Colour indices above 0 go before those of the paragraph and of the font properties.
  signed char CharForeColor = 0;
  signed char CharBackColor = 0;
  int PicWidth = 0;
  int PicHeight = 0;
  int PicWidthGoal = 0;
  int PicHeightGoal = 0;
  /// Per cent.
  int PicScaleX = 0;
  int PicScaleY = 0;
  /// 1 inside of the text form of an old list number.
  unsigned char PnText = 0;

  bool operator==(const CCharacterProperties&) const = default;
};

/// Formatting of paragraphs.
class ZEB_EXPORT CParagraphProperties {
 public:
  int LeftIndent = 0;
  int RightIndent = 0;
  int FirstIndent = 0;
  /// 0 left, 1 right, 2 centre, 3 justified.
  unsigned char Justification = 0;
  /// The first `TabCount` of these are tab stops.
  CRTFTabStops Tabs;
  int TabCount = 0;
  /// Kind of the next tab stop: 0 left, 1 right, 2 centre, 3 decimal.
  int TabKind = 0;
  unsigned char InTable = 0;
  signed char Shading = 0;
  /// Colour indices above 0 go before those of the font properties.
  signed char ForeColor = 0;
  signed char BackColor = 0;
  unsigned char PnBullet = 0;
  unsigned char PnDecimal = 0;

  bool operator==(const CParagraphProperties&) const = default;
};

/// Formatting of sections.
class ZEB_EXPORT CSectionProperties {
 public:
  int Columns = 0;
  /// 0 none, 1 column, 2 even page, 3 odd page, 4 page.
  unsigned char SectionBreak = 0;
  int PageNumberX = 0;
  int PageNumberY = 0;
  /// 0 decimal, 1 upper case Roman, 2 lower case Roman, 3 upper case letters, 4 lower case letters.
  unsigned char PageNumberFormat = 0;

  bool operator==(const CSectionProperties&) const = default;
};

/// Font and colours, by their numbers in the tables of the document.
class ZEB_EXPORT CFontProperties {
 public:
  int FontId = 0;
  int CharSet = 0;
  int ForeColorIndex = 0;
  int BackColorIndex = 0;

  bool operator==(const CFontProperties&) const = default;
};

/// Formatting of the document, and the table that is being read.
class ZEB_EXPORT CDocumentProperties {
 public:
  int PaperWidth = 0;
  int PaperHeight = 0;
  int MarginLeft = 0;
  int MarginTop = 0;
  int MarginRight = 0;
  int MarginBottom = 0;
  int PageNumberStart = 0;
  unsigned char FacingPages = 0;
  unsigned char Landscape = 0;
  /// Font id, -1 for none.
  int DefaultFont = -1;
  unsigned char RtfVersion = 0;
  int DefaultTab = 720;
  int RowLeft = 0;
  int RowHeader = 0;
  std::vector<CRTFTableRow*> Rows;       // observers, owned by the parser
  CRTFTableRow* CurrentRow = nullptr;    // observer, owned by the parser
  CRTFTableCell* CurrentCell = nullptr;  // observer, owned by the parser
  /// Where the next border width goes: 1 top, 2 bottom, 3 left, 4 right.
  int RowBorderSide = 0;
  int CellBorderSide = 0;
  /// Where the text is in the table, -1 for none.
  int RowIndex = -1;
  int CellIndex = -1;
  int AnsiCodePage = 0;

  bool operator==(const CDocumentProperties&) const = default;
};
