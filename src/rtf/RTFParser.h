#pragma once

#include "fonts/CIDMapping.h"
#include "platform/Export.h"
#include "rtf/RTFProperties.h"

#include <map>
#include <string>
#include <vector>

class CContextChangedHandler;
class CFontData;
class CPictureConvertHandler;
class CRTFColor;
class CRTFFont;
class CRTFListLevelEntry;
class CRTFListTableEntry;
class CRTFState;
class CRTFStyleSheet;

namespace zeb {
class CodePage;
struct RTFField;
struct RTFStore;
}  // namespace zeb

/// Reads a block of RTF bytes in one pass and hands it, run by run, to a CContextChangedHandler. It builds no
/// document of its own.
///
/// A parser reads once. Fonts, colours, styles and lists stay until it is destroyed, so that a handler can look
/// them up during and after the run. Nothing is thrown but by handlers: a failure, a lack of memory too, is a result
/// code, and the run ends at the first one. Any bytes may be given: no byte outside of the data is read, nesting is
/// bounded by memory alone and no operation recurses.
class ZEB_EXPORT CRTFParser {
 public:
  /// Where characters go.
  enum RDS : int {
    rdsNorm = 0,                // the text of the current run
    rdsSkip = 1,                // nowhere: the group is skipped
    rdsFontTable = 2,           // the level of a font table
    rdsFontEntry = 3,           // a font's name
    rdsStyleSheet = 4,          // the level of a style sheet
    rdsStyleEntry = 5,          // a style's name
    rdsColorTable = 6,          // a semicolon closes a colour
    rdsPicture = 7,             // the data of a picture
    rdsListTable = 8,           // the level of a list table
    rdsListLevel = 9,           // a level of a list
    rdsLevelText = 10,          // the text form of a level, dropped but for \u characters
    rdsLevelNumbers = 11,       // the places of numbers in it, dropped but for \u characters
    rdsListOverrideTable = 12,  // the level of a list override table
    rdsListText = 13,           // the text in front of a paragraph of a list
    rdsPn = 14,                 // an old list number, dropped
    rdsBookmarkStart = 15,      // a bookmark's name
    rdsBookmarkEnd = 16,        // a bookmark's name
    rdsPnText = 17,             // the text form of an old list number, dropped but for \u characters
    rdsPnTextBefore = 18,       // what stands before an old list number, dropped but for \u characters
    rdsPnTextAfter = 19,        // what stands behind an old list number, dropped but for \u characters
  };

  /// What the next bytes are.
  enum RIS : int {
    risNorm = 0,  // text, keywords and braces
    risBin = 1,   // counted raw bytes
    risHex = 2,   // the two hex digits of a byte
  };

  /// Results of RtfParse and of all that it calls.
  enum ResultCode : int {
    rtfOK = 0,
    rtfStackUnderflow = 1,  // a closing brace without a group
    rtfNoMemory = 2,        // no memory for the state of a group, or for anything else
    rtfUnmatchedBrace = 3,  // the data ends inside of a group
    rtfInvalidHex = 4,      // a hex byte with something else than a digit
    rtfBadTable = 5,        // a keyword that the reader cannot handle here
    rtfBadState = 6,        // an internal state that there is not
    rtfEndOfData = 7,       // the data ends inside of a keyword
  };

  /// What kind of thing a keyword is.
  enum KeywordKind : int {
    kwdChar = 0,  // a character
    kwdDest = 1,  // a destination
    kwdProp = 2,  // a property
    kwdSpec = 3,  // a special keyword
  };

  /// Destinations of keywords: see ChangeDest.
  enum IDEST : int {
    idestPict = 0,
    idestSkip = 1,  // every destination that is skipped whole
    idestFontTable = 2,
    idestFontEntry = 3,  // without keyword: each group of the font table
    idestStyleSheet = 4,
    idestStyleEntry = 5,  // without keyword: each group of the style sheet
    idestColorTable = 6,
    idestPn = 7,
    idestBookmarkStart = 8,
    idestBookmarkEnd = 9,
    idestPnText = 10,
    idestPnTextBefore = 11,
    idestPnTextAfter = 12,
    idestListTable = 13,
    idestListLevel = 14,
    idestLevelText = 15,
    idestLevelNumbers = 16,
    idestListOverrideTable = 17,
    idestListText = 18,
  };

  /// Special keywords.
  enum IPFN : int {
    ipfnBin = 0,       // raw bytes follow
    ipfnHex = 1,       // a byte as two hex digits follows
    ipfnSkipDest = 2,  // the group is skipped if its keyword is unknown
  };

  /// Properties of keywords. Each is the number of its row in the property table.
  enum IPROP : int {
    ipropBold = 0,
    ipropItalic = 1,
    ipropUnderline = 2,
    ipropSuperscript = 3,
    ipropSubscript = 4,
    ipropNoSuperSub = 5,
    ipropLeftIndent = 6,
    ipropRightIndent = 7,
    ipropFirstIndent = 8,
    ipropColumns = 9,
    ipropPageNumberX = 10,
    ipropPageNumberY = 11,
    ipropPaperWidth = 12,
    ipropPaperHeight = 13,
    ipropMarginLeft = 14,
    ipropMarginRight = 15,
    ipropMarginTop = 16,
    ipropMarginBottom = 17,
    ipropPageNumberStart = 18,
    ipropSectionBreak = 19,
    ipropPageNumberFormat = 20,
    ipropFacingPages = 21,
    ipropLandscape = 22,
    ipropJustification = 23,
    ipropPard = 24,
    ipropPnDecimal = 25,
    ipropPnBullet = 26,
    ipropPlain = 27,  // without keyword
    ipropSectd = 28,  // without keyword
    ipropDefaultFont = 29,
    ipropFontSize = 30,
    ipropCharSet = 31,
    ipropFontId = 32,
    ipropRtfVersion = 33,
    ipropUnicodeSkip = 34,
    ipropPar = 35,
    ipropUnicode = 36,
    ipropLine = 37,
    ipropStyle = 38,
    ipropForeColorIndex = 39,
    ipropBackColorIndex = 40,
    ipropRed = 41,
    ipropGreen = 42,
    ipropBlue = 43,
    ipropDefaultTab = 44,
    ipropTabStop = 45,
    ipropTabKind = 46,
    ipropInTable = 47,
    ipropRowDefaults = 48,
    ipropRowLeft = 49,
    ipropRowHeader = 50,
    ipropRowBorderTop = 51,
    ipropRowBorderBottom = 52,
    ipropRowBorderLeft = 53,
    ipropRowBorderRight = 54,
    ipropRowBorderHorizontal = 55,
    ipropRowBorderVertical = 56,
    ipropCellBorderTop = 57,
    ipropCellBorderBottom = 58,
    ipropCellBorderLeft = 59,
    ipropCellBorderRight = 60,
    ipropRow = 61,
    ipropCell = 62,
    ipropCellX = 63,
    ipropCellAlignTop = 64,
    ipropCellAlignCenter = 65,
    ipropCellAlignBottom = 66,
    ipropBorderSingle = 67,
    ipropBorderWidth = 68,
    ipropJpegBlip = 69,
    ipropEmfBlip = 70,
    ipropPngBlip = 71,
    ipropShpPict = 72,
    ipropNonShpPict = 73,
    ipropList = 74,
    ipropListSimple = 75,
    ipropListHybrid = 76,
    ipropLevelNfc = 77,
    ipropLevelNfcN = 78,
    ipropLevelJc = 79,
    ipropLevelNfcNAgain = 80,  // its keyword finds ipropLevelNfcN
    ipropLevelFollow = 81,
    ipropLevelStartAt = 82,
    ipropLevelSpace = 83,
    ipropLevelIndent = 84,
    ipropListName = 85,
    ipropListId = 86,
    ipropListOverride = 87,
    ipropListOverrideCount = 88,
    ipropLs = 89,
    ipropIlvl = 90,
    ipropListOverrideFormat = 91,
    ipropListOverrideStartAt = 92,
    ipropCharShading = 93,
    ipropCharForeColor = 94,
    ipropCharBackColor = 95,
    ipropShading = 96,
    ipropForeColor = 97,
    ipropBackColor = 98,
    ipropPicWidth = 99,
    ipropPicHeight = 100,
    ipropPicWidthGoal = 101,
    ipropPicHeightGoal = 102,
    ipropPicScaleX = 103,
    ipropPicScaleY = 104,
    ipropAnsiCodePage = 105,
  };

  /// A row of the keyword table.
  struct KeywordRow {
    const char* Keyword;  // static text
    int Default;          // value of a keyword without parameter
    int PassDefault;      // not 0: the default counts even if there is a parameter
    int Kind;             // a KeywordKind
    int Index;            // character, IDEST, IPROP or IPFN, by kind
  };

  /// A row of the property table.
  struct PropertyRow {
    int Action;  // 0 special, 1 stores a byte, 2 stores an int
    int Area;    // 0 character, 1 paragraph, 2 section, 3 document, 4 font properties
    int Field;   // the field's place in that object, from 0
  };

  /// @param data is not copied: it must live until RtfParse has returned
  /// @param length of the data in bytes; below 0 counts as 0
  /// @param handler takes the runs; may be null, then the whole text gathers in GetTextContent
  /// @param pictureHandler converts pictures; may be null
  CRTFParser(unsigned char* data, int length, CContextChangedHandler* handler,
             CPictureConvertHandler* pictureHandler);
  /// Copies member by member: the copy shares all that the source owns, so only one of the two may be destroyed.
  CRTFParser(const CRTFParser& other);
  /// As the copy constructor. What this object owned is not freed.
  CRTFParser& operator=(const CRTFParser& other);
  virtual ~CRTFParser();

  /// Reads the data from its first byte to its end or to the first failure.
  /// @return a ResultCode
  int RtfParse();
  /// The font, colour or style of a number; null if the document has none. Owned by the parser.
  CRTFFont* GetFontAtID(int id) const;
  CRTFColor* GetColorAtID(int id) const;
  CRTFStyleSheet* GetStyleSheetAtID(int id) const;
  /// A copy of the text that no run has taken yet.
  std::wstring GetTextContent() const;

 protected:
  /// The next byte. 0 at the end of the data, which a zero byte in the data means as well.
  unsigned char GetChar() { return m_pCur < m_pEnd ? *m_pCur++ : static_cast<unsigned char>(0); }
  /// Goes back by one byte, but never in front of the data.
  void UnGetChar() {
    // Fixed behaviour: goes back behind the data's end as well, where GetChar did not move.
    if (m_pCur > m_pBegin) --m_pCur;
  }
  /// Takes a character of the keyword table or a raw byte.
  int ParseChar(unsigned char ch);
  /// Reads what follows a backslash.
  int ParseRtfKeyword();
  /// Does what a keyword asks for. An unknown keyword does nothing, or starts a skipped group.
  /// @param hasParam whether `param` was given
  int TranslateKeyword(char* keyword, int param, char hasParam);
  /// Sets the destination, and makes the font, style, colour or level that it builds. Does nothing in a skipped
  /// group, and where a destination belongs into another one and stands elsewhere.
  int ChangeDest(IDEST dest);
  /// Stores the value as the property's row tells. A change of formatting closes the run in front of it, but not in
  /// a table, where a cell is one run. Does nothing in a skipped group.
  int ApplyPropChange(IPROP prop, int value);
  /// Does nothing in a skipped group, but for raw bytes, so that they are stepped over.
  int ParseSpecialKeyword(IPFN keyword);
  /// Does what a property without a field of its own asks for.
  /// @return rtfBadTable for a property that stores a value, and for one that may not stand here; rtfNoMemory for a
  ///   paragraph reset in a group so deep that it shares its saved state, if there is no memory for one of its own
  int ParseSpecialProperty(IPROP prop, int value);
  /// Whether a property is one of those whose change closes a run (outside of tables). Also true of `\s`, which closes
  /// none by itself.
  bool PropCanChangeContext(IPROP prop);
  /// An opening brace: saves the formatting.
  int PushRtfState();
  /// A closing brace: hands on the run in front of it, finishes what the group was building and restores the
  /// formatting.
  int PopRtfState();
  /// Finishes what a closing group was building.
  int EndGroupAction(RDS dest);
  /// Closes the current run of text and hands it to the handler.
  void ContextHasChanged(bool paragraphEnd, bool lineBreak, bool tableEnd);
  /// Decodes a plain byte by the code page of the current font.
  void ParseMultiByteCharacter(unsigned char byte);
  /// Decodes one or two hex bytes by the code page of the current font, then zeroes both bytes.
  /// @param bytes room for two bytes
  void ParseMultiByteCharacter(char* bytes, int count);
  /// Sends a decoded character to what the destination is building. In text, PrintUnicodeChar takes it.
  int ParseUnicodeChar(wchar_t ch);
  /// Appends a byte-sized character, widened by its value, to the buffer of the destination. Also takes the line feed of
  /// `\par` in a table. In font, style and colour entries the character goes into the text. What goes into the text of a
  /// table notes the current formatting for the cell.
  int PrintChar(unsigned char ch);
  /// Appends a character to the buffer of the destination. A zero character is dropped.
  int PrintUnicodeChar(wchar_t ch);
  /// Reads the hex digits of a picture.
  void ReadPictureData();
  /// Read the CMap files of a character collection into `m_CMaps`. Error: "ReadFileFailure".
  void ReadBigFiveMapping();
  void ReadGB2312Mapping();

  unsigned char* m_pCur;  // observer
  int m_Size;             // bytes
  unsigned char* m_pEnd;  // observer
  int m_cGroup;           // open groups
  RDS m_rds;
  int m_ris;  // a RIS
  CCharacterProperties m_CharProps;
  CParagraphProperties m_ParProps;
  CSectionProperties m_SecProps;
  CDocumentProperties m_DocProps;
  CFontProperties m_FontProps;
  CRTFState* m_pStack;        // owned, shared by copies
  int m_cbBin;                // raw bytes still to come
  int m_lParam;               // the last number of a keyword, without its sign
  bool m_bSkipDestIfUnknown;  // a \* has just been read
  PropertyRow* m_pPropTable;  // owned, shared by copies
  // Keywords are looked up in the built-in table of the same order: renaming a row has no effect.
  KeywordRow* m_pKeywordTable;  // owned, shared by copies
  int m_KeywordCount;
  std::map<int, CRTFFont*> m_Fonts;              // owned, shared by copies
  CRTFFont* m_pCurFont;                          // observer
  std::map<int, CRTFStyleSheet*> m_StyleSheets;  // owned, shared by copies
  CRTFStyleSheet* m_pCurStyle;                   // observer
  std::map<int, CRTFColor*> m_Colors;            // owned, shared by copies
  CRTFColor* m_pCurColor;                        // observer
  std::wstring m_NameBuffer;                     // names of fonts and styles, texts of lists
  std::wstring m_TextBuffer;                     // the current run
  std::wstring m_BookmarkBuffer;
  std::wstring m_PnBefore;
  std::wstring m_PnAfter;
  CContextChangedHandler* m_pContextHandler;  // observer
  CIDMapping m_CMaps[4];  // GB 2312 to CIDs, these to Unicode; Big Five to CIDs, these to Unicode
  unsigned char m_HexHigh;
  unsigned char m_HexLow;
  CFontData* m_pPicture;  // owned, shared by copies
  bool m_GB2312Read;
  bool m_BigFiveRead;
  std::vector<CRTFListTableEntry*> m_Lists;          // owned, shared by copies
  std::vector<CRTFListTableEntry*> m_ListOverrides;  // owned, shared by copies
  CRTFListTableEntry* m_pCurList;                    // observer
  CRTFListLevelEntry* m_pCurLevel;                   // observer
  CPictureConvertHandler* m_pPictureHandler;         // observer
  bool m_PictureRead;
  bool m_InShpPict;
  bool m_InNonShpPict;
  bool m_InRow;
  // The formatting of the current cell: font id, half points, truth values.
  unsigned short m_CellFont;
  unsigned short m_CellFontSize;
  unsigned char m_CellBold;
  unsigned char m_CellItalic;
  unsigned char m_CellSuper;
  unsigned char m_CellSub;
  int m_cSkip;  // bytes still to skip behind a \u character

 private:
  // The loop and its keywords.
  struct HexByte;
  /// RtfParse without its answer to a lack of memory.
  int ParseData();
  /// @param pending two bytes: a hex byte that waits for a second one, zero if there is none
  int ParseByte(unsigned char ch, HexByte& hex, char* pending);
  int ParseHexDigit(unsigned char ch, HexByte& hex, char* pending);
  /// Behind a backslash: reads hex bytes that follow each other, as long as nothing stands between their characters.
  /// @return whether there was one
  bool ParseHexBytes(char* pending);
  void TakeHexByte(char byte, char* pending);
  void FlushPending(char* pending);
  bool NextIsHexByte();
  void ParsePlainBytes(unsigned char ch);
  void AppendPlainText(unsigned char ch);
  unsigned char ReadParameter(unsigned char ch, int& param);
  /// Does what a row of the keyword table asks for; below 0 is that of no known keyword.
  int ApplyKeyword(int found, int param, bool hasParam);

  // Properties.
  zeb::RTFField FieldOf(const PropertyRow& row);
  void CloseRunOutsideTable();
  int EndSuperAndSubscript();
  int ResetParagraph();
  int ParseStyleProperty(int value);
  int ParseColorProperty(IPROP prop, int value);

  // Groups.
  void SaveState(CRTFState& state);
  bool IsSaved(const CRTFState& state);
  void RestoreState(const CRTFState& state);
  /// The saved state of the innermost group, which that group has for itself from now on; null without memory.
  CRTFState* StateOfTopGroup();
  void LeaveTopGroup();

  // Tables of the document: what a group builds, from its beginning to its end, and the keywords of lists.
  // The destination has been set when a group's object is made.
  void BeginFontEntry();
  void BeginStyleEntry();
  void BeginColorTable();
  void BeginListLevel();
  void EndFontEntry();
  void EndStyleEntry();
  /// A semicolon in a colour table.
  void EndColor();
  void EndColorTable();
  void EndListTable();
  void EndListLevel();
  void EndLevelText();
  void EndLevelNumbers();
  void EndListOverrideTable();
  void EndListText();
  void BeginList();
  void SetCurrentListId(int listId);
  int ParseListProperty(IPROP prop, int value);
  void ParseListTableProperty(IPROP prop, int value);
  void ParseListLevelProperty(IPROP prop, int value);
  void ParseListOverrideProperty(IPROP prop, int value);
  int ParseListReference(IPROP prop, int value);
  void FreeLists();
  /// Frees all of the above in the destructor.
  void FreeDestinationTables();

  // Characters.
  /// In raw bytes, one less is to come.
  void CountRawByte();
  /// The formatting of a run in a table is that of its latest byte-sized character.
  void NoteCellFormatting();
  int ParseUnicodeProperty(int value);
  /// The code page of the current font's character set.
  const zeb::CodePage& CurrentCodePage();
  /// What each plain byte stands for in the current font: 256 characters.
  const wchar_t* PlainByteCharacters();

  // Output.
  int ParseParagraphEnd();
  int ParseTabStop(int value);
  int ParseTableProperty(IPROP prop, int value);
  int ParsePictureProperty(IPROP prop);
  /// Takes the first character of a picture's data back and reads the picture, if it is one to be read.
  void ParsePictureByte();
  void EndBookmarkStart();
  void EndBookmarkEnd();
  void HandOnBookmark(bool start);
  void FillState(CRTFState& state);
  void DescribeRow(IPROP prop, int value);
  void NewRow();
  void NewCell();
  void FillCells();
  void EndCell();
  void EndRow();
  void AlignCell(int align);
  void SetBorderWidth(int width);
  /// Empties the table of `m_DocProps`.
  void FreeTableData();
  void ReadPictureDigits(std::vector<unsigned char>& bytes);
  /// Reads digits two by two, as far as no line end or mark stands among them.
  void ReadDigitPairs(std::vector<unsigned char>& bytes);
  /// Hands the picture to the caller for conversion.
  /// @return whether the picture has been replaced
  bool ConvertPicture(int format);
  void FreePicture();
  /// Frees pictures, rows and cells in the destructor.
  void FreeOutput();

  unsigned char* m_pBegin;  // observer
  zeb::RTFStore* m_pStore;  // owned, shared by copies
};
