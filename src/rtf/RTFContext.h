#pragma once

#include "platform/Export.h"

class CFontData;
class CRTFColor;
class CRTFFont;
class CRTFListLevelEntry;
class CRTFListTableEntry;
class CRTFState;

/// What goes with a run of text to CContextChangedHandler. Record, state and picture live only during the call.
/// Font, colours, list and level stay valid as long as the parser.
class ZEB_EXPORT CRTFContext {
 public:
  /// A copy of the formatting at the moment of the call. It is read only: in a table of more than 64 rows, what a
  /// handler changes in the list of rows may show in later records.
  CRTFState* State = nullptr;  // observer
  /// Null if the document's font table has no such font.
  CRTFFont* Font = nullptr;  // observer
  /// Set by no one.
  void* Reserved = nullptr;  // observer
  /// Null if the document's colour table has no such colour. Index 0, which writers leave empty to say "automatic",
  /// arrives as the first colour, mostly black, for the background too.
  CRTFColor* ForeColor = nullptr;  // observer
  CRTFColor* BackColor = nullptr;  // observer
  /// 1 if the run ends a paragraph, or a cell of a table.
  unsigned char ParagraphEnd = 0;
  /// 1 if a line break without a paragraph's end follows the run.
  unsigned char LineBreak = 0;
  /// 1 if a table ends.
  unsigned char TableEnd = 0;
  /// The bytes of a picture that stands behind the text of the run, else null.
  CFontData* Picture = nullptr;  // observer
  /// List and level in force, null if there is none. They stay in force behind the list, to the end of their group. Where
  /// `\ilvl` stands in front of `\ls`, the level is that of the list before.
  CRTFListTableEntry* List = nullptr;   // observer
  CRTFListLevelEntry* Level = nullptr;  // observer
};
