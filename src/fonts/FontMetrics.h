#pragma once

#include "platform/Export.h"

#include <array>
#include <map>
#include <string>
#include <vector>

class CFontCharMetricsInfo;
class CFontCompCharData;
class CFontData;
class CFontPairKerningData;
class CFontTrackKerningData;
class CTrueTypeDirEnt;
class CTrueTypeFile;
class CTrueTypeTabHMtx;
class CTrueTypeTabLoca;

/// Everything that is known of one font face: the numbers of a PDF font descriptor, a width for every
/// character code, the single-byte encoding of 256 entries, the embedded font program, and which glyphs a
/// document uses with their numbers in the subset. It draws nothing.
///
/// Metric values are in thousandths of the em unless said otherwise. Objects are large (the widths alone take
/// 128 KiB): make them on the heap and share them by pointer. The object owns its subset data, and the font
/// data while it was given ownership; it does not own the records of its four lists.
///
/// The kerning and composite records are stored by pointer only; a caller that wants them defines their
/// classes.
class ZEB_EXPORT CFontMetrics {
 public:
  /// The kind of font program.
  enum FontType : int {
    FontTypeType1 = 0,     ///< PostScript Type 1
    FontTypeOpenType = 1,  ///< OpenType with PostScript outlines
    FontTypeTrueType = 2,  ///< TrueType
    FontTypeCID = 3,       ///< predefined CJK font
  };
  /// Whether and how the font program goes into the PDF file.
  enum FontEmbedding : int {
    EmbedSingleByte = 0,  ///< embedded, used with single-byte codes
    EmbedSubset = 1,      ///< embedded as a subset, used with glyph codes; only here MapChar renumbers
    EmbedNone = 2,        ///< never embedded
  };
  /// Character collection of a CID font.
  enum CharColl : int {
    CharCollGB1 = 0,       ///< simplified Chinese
    CharCollCNS1 = 1,      ///< traditional Chinese
    CharCollJapan1 = 2,    ///< Japanese
    CharCollKorea1 = 3,    ///< Korean
    CharCollIdentity = 4,  ///< codes are glyph numbers
  };

  /// WinAnsi values, no widths, the glyphs 0, 1 and 2 used, and an empty font data object.
  CFontMetrics();
  /// Copies member by member and shares the pointers: the copy must not outlive its source, nor free what
  /// that owns, so only one of the two may be destroyed while it owns.
  CFontMetrics(const CFontMetrics& other);
  /// Frees the subset data, and the font data if it is owned.
  virtual ~CFontMetrics();
  /// As the copy constructor. What this object held is not freed.
  CFontMetrics& operator=(const CFontMetrics& other);

  /// The parsed file of a TrueType font; null for every other font. The object keeps it.
  virtual CTrueTypeFile* GetTTFile();

  /// Sets the values that a reader of font files starts from. The encoding's name becomes "winansi1252"; the other
  /// names, widths, maps and font data stay.
  void InitFontInformation();
  /// Works out the flags of the PDF font descriptor from the other values, replacing them as a whole.
  void BuildFontDescriptorFlag();
  /// Fills the 256 Unicode values and glyph names; the name of the encoding stays.
  void SetWinAnsiEncoding();
  void SetCP1250Encoding();

  /// The name of the face, as stored in files.
  const wchar_t* GetBaseFont() const;
  void SetBaseFont(const wchar_t* name);
  /// Name record 1 of a TrueType font.
  const wchar_t* GetFontFamilyName() const;
  void SetFontFamilyName(const wchar_t* name);
  /// The PostScript name of a TrueType font.
  const wchar_t* GetTTName() const;
  void SetTTName(const wchar_t* name);
  /// Internal name of the encoding, the key of CEncodings::FindEncoding. Default "winansi1252".
  const wchar_t* GetEncoding() const;
  void SetEncoding(const wchar_t* name);
  /// "AdobeStandardEncoding", "FontSpecific", "Identity-H" or the value in an AFM file.
  const wchar_t* GetEncodingScheme() const;
  void SetEncodingScheme(const wchar_t* name);
  /// Names of the linked styles; the library itself never sets them.
  const wchar_t* GetFontBoldName() const;
  void SetFontBoldName(const wchar_t* name);
  const wchar_t* GetFontItalicName() const;
  void SetFontItalicName(const wchar_t* name);
  const wchar_t* GetFontBoldItalicName() const;
  void SetFontBoldItalicName(const wchar_t* name);

  FontType GetFontType() const;
  void SetFontType(FontType type);
  /// PDF font descriptor flags.
  int GetFlags() const;
  void SetFlags(int flags);
  /// Degrees; negative leans right.
  float GetItalicAngle() const;
  void SetItalicAngle(float angle);
  bool GetFixedPitch() const;
  void SetFixedPitch(bool fixedPitch);
  /// The font's bounding box: lower left x and y, upper right x and y.
  float GetBBoxLLX() const;
  void SetBBoxLLX(float value);
  float GetBBoxLLY() const;
  void SetBBoxLLY(float value);
  float GetBBoxURX() const;
  void SetBBoxURX(float value);
  float GetBBoxURY() const;
  void SetBBoxURY(float value);
  int GetUnderlinePosition() const;
  void SetUnderlinePosition(int value);
  int GetUnderlineThickness() const;
  void SetUnderlineThickness(int value);
  int GetCapHeight() const;
  void SetCapHeight(int value);
  int GetXHeight() const;
  void SetXHeight(int value);
  int GetAscender() const;
  void SetAscender(int value);
  int GetDescender() const;
  void SetDescender(int value);
  /// Widths of the dominant vertical and horizontal stems.
  int GetStemVW() const;
  void SetStemVW(int value);
  int GetStemHW() const;
  void SetStemHW(int value);
  /// The range of codes that the PDF file's widths cover.
  int GetFirstChar() const;
  void SetFirstChar(int code);
  int GetLastChar() const;
  void SetLastChar(int code);
  /// The requested weight, 400 normal.
  int GetBold() const;
  void SetBold(int weight);
  /// Whether italic was requested.
  bool GetItalic() const;
  void SetItalic(bool italic);
  /// Whether the face really is bold or italic; false asks the PDF writer to imitate the style.
  bool GetBoldFont() const;
  void SetBoldFont(bool bold);
  bool GetItalicFont() const;
  void SetItalicFont(bool italic);
  /// The codes lie in the page 0xF000, as in a Windows symbol font.
  bool GetSymbolFont() const;
  void SetSymbolFont(bool symbolFont);
  /// The font is used with two-byte glyph codes.
  bool GetUnicodeFont() const;
  void SetUnicodeFont(bool unicodeFont);
  /// Only of meaning for CID and identity fonts; no valid collection until it is set.
  CharColl GetCharColl() const;
  void SetCharColl(CharColl collection);

  /// A font that every PDF viewer has; true also sets the embedding to EmbedNone.
  bool GetBase14Font() const;
  void SetBase14Font(bool base14Font);
  /// A predefined CJK font; true also sets the embedding to EmbedNone.
  bool GetCJKFont() const;
  void SetCJKFont(bool cjkFont);
  FontEmbedding GetFontEmbedding() const;
  /// A base-14 font takes EmbedNone whatever is asked.
  void SetFontEmbedding(FontEmbedding embedding);

  /// The Unicode value and the Adobe glyph name of a single-byte code.
  /// @param code 0 to 255, not checked
  unsigned short GetUnicodeAt(int code) const;
  void SetUnicodeAt(int code, unsigned short unicode);
  const wchar_t* GetCharNameAt(int code) const;
  void SetCharNameAt(int code, const wchar_t* name);

  /// The width of a code; in a symbol font a code below 0xF000 is looked up 0xF000 higher.
  /// @param index 0 to 65535, not checked
  unsigned short GetWidthAt(int index) const;
  /// Stores the width at the index as given, in a symbol font too.
  void SetWidthAt(int index, unsigned short width);
  /// The advance of the glyph with this number in the subset, 0 if there is none or the font is no TrueType
  /// font.
  unsigned short GetWidthOfUsedGlyph(unsigned short newIndex);
  /// The height of the bounding box at a font size, in the unit of the size.
  float GetEffectiveFontHeight(float size) const;
  /// Font units to thousandths of the em, rounded half away from zero; -1 if the units per em are not known.
  int ConvertTTToPDF(int value) const;

  /// The font program: the subset if there is one and the font is a Unicode font, else the whole program.
  CFontData* GetFontData() const;
  /// Replaces the font program. The current one is deleted whether it is owned or not, unless it is `data` itself.
  /// @param owner whether the destructor deletes `data`
  void SetFontData(CFontData* data, bool owner);

  /// Tells the code of a glyph. A code that has a glyph keeps it.
  void AddUnicodeToGlyphIndex(unsigned short code, unsigned short glyph);
  /// The glyph of a code; in a symbol font a code below 0xF000 is looked up 0xF000 higher.
  /// @return whether there is one; `glyph` stays as it is if not
  bool FindGlyphIndex(unsigned short code, unsigned short& glyph) const;
  /// The number of a glyph in the subset.
  /// @return whether the glyph is used; `newIndex` stays as it is if not
  bool FindUsedGlyphIndex(unsigned short glyph, unsigned short& newIndex) const;
  /// Notes that a character is used.
  /// @return the code itself; with EmbedSubset the number of its glyph in the subset, 0 without a glyph
  unsigned short MapChar(unsigned short code);
  /// How many glyphs are numbered so far, the glyphs 0, 1 and 2 included. Components that only a subset brings in are
  /// not counted.
  unsigned short GetUsedGlyphsCount() const;
  /// Fills a PDF CIDToGIDMap: the glyph of every code i below length / 2, big-endian. Nothing happens if the
  /// font is no TrueType font.
  /// @param length of the buffer in bytes
  void ConvertAllCodesToGlyphIDs(unsigned char* buffer, int length);
  /// Builds the subset font program from the used glyphs; afterwards GetFontData gives it for a Unicode font.
  /// Nothing happens if the font is no TrueType font.
  ///
  /// Call it once, when the document is finished: a glyph that MapChar meets first after a subset may get the number
  /// of a component in it. While it runs, the font data is changed in place; at its end it is as it was.
  /// Error: "NoMoreMemoryLeft"; there is no subset then.
  void CreateSubsetFont();
  /// Restores the component numbers that subsetting has changed in the source program.
  void ResetMapIndex(CFontData* source);

  /// Records of an AFM file or a saved font. The lists store pointers and own nothing.
  void AddFontCharMetricsInfo(CFontCharMetricsInfo* info);
  /// @param index 0 up to the count less one, not checked; here and below
  CFontCharMetricsInfo* GetFontCharMetricsAt(int index) const;
  int GetFontCharMetricsCount() const;
  void AddFontCompCharData(CFontCompCharData* data);
  CFontCompCharData* GetFontCompCharDataAt(int index) const;
  int GetFontCompCharDataCount() const;
  void AddFontPairKerningData(CFontPairKerningData* data);
  CFontPairKerningData* GetFontPairKerningDataAt(int index) const;
  int GetFontPairKerningDataCount() const;
  void AddFontTrackKerningData(CFontTrackKerningData* data);
  CFontTrackKerningData* GetFontTrackKerningDataAt(int index) const;
  int GetFontTrackKerningDataCount() const;

  /// Adds a name of the face in the system's language. Null and empty names are ignored.
  void AddLocalizedFontName(const wchar_t* name);
  /// The index of the name, case-sensitively and without one leading `@`; -1 if there is none.
  int FindLocalizedFontName(const wchar_t* name) const;
  const wchar_t* GetLocalizedFontNameAt(int index) const;
  int GetLocalizedFontNameCount() const;
  const std::vector<std::wstring>& GetLocalizedNames() const;

  /// Widens byte by byte with sign extension to 16 bits, without a code page: 0x80 becomes 0xFF80.
  /// @param target room for the characters of `source` and a terminator
  static void AnsiToUnicode(const char* source, wchar_t* target);

 protected:
  // The steps of CreateSubsetFont. `source` is the font that is being subset, `entry` the directory entry of
  // the table in question.
  void ScanGlyphs(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx);
  void GetIncludedGlyphs(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx,
                         unsigned short glyph, std::vector<unsigned short>& list);
  void RemapComposite(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx,
                      unsigned short glyph);
  void CreateTTDirectory();
  void CreateHead(CFontData* source, CTrueTypeDirEnt* entry);
  void CreateHhea(CFontData* source, CTrueTypeDirEnt* entry);
  void CreateHmtx(CFontData* source, CTrueTypeDirEnt* entry, CTrueTypeTabHMtx* hmtx);
  void CreateMaxp(CFontData* source, CTrueTypeDirEnt* entry);
  void CreateCvt(CFontData* source, CTrueTypeDirEnt* entry);
  void CreateFpgm(CFontData* source, CTrueTypeDirEnt* entry);
  void CreatePrep(CFontData* source, CTrueTypeDirEnt* entry);
  void CreateLoca(CFontData* source, CTrueTypeDirEnt* entry);
  void CreateGlyf(CFontData* source, CTrueTypeDirEnt* entry, CTrueTypeTabHMtx* hmtx, CTrueTypeTabLoca* loca);

  /// Directory slots of the subset, in the order of its directory.
  enum SubsetSlot : int {
    SlotCvt = 0,   ///< "cvt "
    SlotFpgm = 1,  ///< "fpgm"
    SlotGlyf = 2,  ///< "glyf"
    SlotHead = 3,  ///< "head"
    SlotHhea = 4,  ///< "hhea"
    SlotHmtx = 5,  ///< "hmtx"
    SlotLoca = 6,  ///< "loca"
    SlotMaxp = 7,  ///< "maxp"
    SlotPrep = 8,  ///< "prep"
    SlotCount = 9,
  };

  /// The glyphs of 256 codes. Most fonts have characters in few parts of the code space.
  struct GlyphPage {
    std::array<unsigned short, 256> glyphs = {};
    std::array<bool, 256> known = {};
  };

  int m_iFileHandle = -1;             // open while a reader works, else -1
  unsigned short m_usUnitsPerEm = 0;  // 0: not known
  std::wstring m_strBaseFont;
  std::wstring m_strEncoding = L"winansi1252";
  int m_iFlags = 0;
  FontType m_FontType = FontTypeTrueType;
  std::wstring m_strEncodingScheme;
  float m_fItalicAngle = 0;
  bool m_bFixedPitch = false;
  float m_fBBoxLLX = 0;
  float m_fBBoxLLY = 0;
  float m_fBBoxURX = 0;
  float m_fBBoxURY = 0;
  int m_iUnderlinePosition = 0;
  int m_iUnderlineThickness = 0;
  int m_iCapHeight = 0;
  int m_iXHeight = 0;
  int m_iAscender = 0;
  int m_iDescender = 0;
  int m_iStemVW = 0;
  int m_iStemHW = 0;
  std::vector<CFontCharMetricsInfo*> m_rgpCharMetrics;    // observers
  std::vector<CFontTrackKerningData*> m_rgpTrackKerning;  // observers
  std::vector<CFontPairKerningData*> m_rgpPairKerning;    // observers
  std::vector<CFontCompCharData*> m_rgpCompChars;         // observers
  int m_iFirstChar = 0;
  int m_iLastChar = 256;
  unsigned short m_rgusWidths[65536] = {};
  CFontData* m_pFontData = nullptr;  // owned if m_bFontDataOwner, shared by copies
  bool m_bBase14Font = false;
  bool m_bCJKFont = false;
  std::wstring m_strTTName;
  unsigned short m_rgusUnicodes[256] = {};
  std::array<const wchar_t*, 256> m_rgpCharNames = {};  // of an encoding; observers
  std::map<int, std::wstring> m_OwnCharNames;           // by code; those that were set singly
  bool m_bUnicodeFont = false;
  CharColl m_CharColl = static_cast<CharColl>(-1);
  CFontData* m_pSubsetData = nullptr;                     // owned, shared by copies
  std::array<unsigned short, 256> m_rgusGlyphPages = {};  // numbers of pages, from 1; 0 if there is none
  std::vector<GlyphPage> m_GlyphPages;
  std::map<unsigned short, unsigned short> m_GlyphToNewIndex = {{0, 0}, {1, 1}, {2, 2}};
  std::map<unsigned short, unsigned short> m_NewIndexToGlyph = {{0, 0}, {1, 1}, {2, 2}};
  unsigned short m_usNextNewIndex = 3;
  int m_rgiDirectorySlots[SlotCount] = {};  // positions behind the tag, in the subset
  int m_iCheckSumAdjustmentPos = 0;
  int m_iLocaPos = 0;
  FontEmbedding m_FontEmbedding = EmbedSingleByte;
  std::wstring m_strFontBoldName;
  std::wstring m_strFontItalicName;
  std::wstring m_strFontBoldItalicName;
  bool m_bFontDataOwner = true;
  int m_iBold = 400;
  bool m_bItalic = false;
  std::wstring m_strFontFamilyName;
  std::vector<std::wstring> m_rgstrLocalizedNames;
  bool m_bSymbolFont = false;
  std::map<unsigned int, unsigned short> m_CompositePatches;  // position in the source to the old value
  bool m_bBoldFont = true;
  bool m_bItalicFont = true;

 private:
  /// Takes the meaning of all codes from the table of a code page.
  /// @param codePage 1250, or anything else for 1252
  void UseEncodingOf(int codePage);
  /// All steps of CreateSubsetFont.
  void BuildSubset(CFontData* source, CTrueTypeFile& file);
};
