#pragma once

#include "fonts/FontMetrics.h"
#include "platform/Export.h"

class CEncodingInformation;
class CFontInformation;
class CFonts;
class CIDManager;
class CPDFCharCollName;
class CPostscriptFontMetrics;
class CTrueTypeFontMetrics;

namespace zeb {
int BytesFromSystem(const CFontInformation& font);
}  // namespace zeb

namespace zebxmln {
class CXMLNode;
}

/// One entry of the font list: the metrics of a font with their readers of font files, and with their record in
/// report and layout files. The font program is not in those files but in the font pool.
///
/// The object owns its PostScript and its TrueType metrics; one of the two is current.
class ZEB_EXPORT CFontInformation {
 public:
  /// Makes PostScript metrics and makes them current.
  /// @param owner the list that the font belongs to or is meant for; may be null if nothing is asked of it
  explicit CFontInformation(CFonts* owner);
  /// Copies the four pointers: the copy shares its metrics with the source, and only one of the two may be destroyed.
  CFontInformation(const CFontInformation& other);
  /// Frees the metrics of both kinds.
  virtual ~CFontInformation();
  /// Reads a record `FontInformation`. A font program that the record does not hold comes from the font pool; that
  /// of a TrueType font, failing that, from the operating system.
  /// Errors: "FontPoolIncomplete" with the font's name if a TrueType font has no program anywhere; those of ReadTT.
  /// @throws zebxmln::CXMLException if a program comes from the operating system and the pool cannot write its file
  /// @return true
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& ids);
  /// Adds a record `FontInformation` to the node and hands the font program to the font pool. A base-14 or CJK font
  /// writes nothing.
  /// @throws zebxmln::CXMLException if the pool cannot write its file; the record stands under the node then
  /// @return true
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& ids);
  /// As the copy constructor. What this object held is not freed.
  CFontInformation& operator=(const CFontInformation& other);

  /// The current metrics; the object keeps them. A reader of the other kind of font may replace them.
  CFontMetrics* GetFontMetrics() const;

  /// The names of a character collection, from the encodings of the owner's handler; null if there are none.
  CPDFCharCollName* GetCharCollNameAt(CFontMetrics::CharColl collection) const;
  /// The encoding of this internal name, from the encodings of the owner's handler; null if there is none.
  CEncodingInformation* GetEncodingInformation(const wchar_t* internalName) const;

  /// Fills the PostScript metrics from an Adobe Font Metrics file and makes them current; they are made if there are
  /// none. A refused file may leave them partly filled.
  ///
  /// The records of characters are nobody's: the caller frees them when it is done with the metrics.
  ///
  /// Errors: "WrongParameter" without a path; "ReadFileFailure"; "WrongGlobalIndentifier" for a word that the reader
  /// does not know; "TooManyCharacterCodes" for more characters than announced; "NoCharMetrics";
  /// "NoMoreMemoryLeft", also for a file of 2 GiB or more.
  void ReadAFM(const wchar_t* path);
  /// Fills the PostScript metrics from a Windows PFM file and makes them current; they are made if there are none.
  /// A refused file may leave them partly filled.
  /// Errors: "WrongParameter" without a path; "ReadFileFailure"; "IncorrectPFMFile"; "NoMoreMemoryLeft", also for a
  /// file of 2 GiB or more.
  void ReadPFM(const wchar_t* path);
  /// Reads the font program of a PostScript font from a PFB or PFA file and makes the PostScript metrics current;
  /// they are made if there are none. The metrics themselves stay as they are: read them first. The program that they
  /// have is replaced, and deleted if they own it. An incorrect file leaves a part of the new program.
  /// Errors: "WrongParameter" without a path; "ReadFileFailure"; "IncorrectPFAPFBFile"; "NoMoreMemoryLeft", also for
  /// a file of 2 GiB or more.
  void ReadPFBPFA(const wchar_t* path);
  /// Fills the TrueType metrics from a font and makes them current; they are made if there are none. PostScript
  /// metrics are freed.
  ///
  /// Use a new object for each font: names, glyphs of codes and characters of an earlier reading stay in part.
  ///
  /// After a refusal the TrueType metrics are current all the same: reset (unless data was reused) and perhaps partly
  /// filled, with the bytes that were taken but without a parsed file. The PostScript metrics are gone.
  ///
  /// Errors: "WrongParameter", "ReadFileFailure", "TrueTypeCreationFailed", "NoMoreMemoryLeft",
  /// "IncorrectTrueTypeFile", "BitmapMACFontUnsupported", "FontEmbeddingNotAllowed", "UnknownException".
  /// @param faceName name of an installed font, at most 32 characters; where data is reused, the full name of the
  /// font in a collection; null if the font comes from elsewhere
  /// @param filePath path of a font file, which wins over a face name and over reused data; null if the font comes from
  /// elsewhere
  /// @param encoding null or "winansi1252" for WinAnsi, "1250" for code page 1250; anything else, the empty string too,
  /// takes the characters of WinAnsi but leaves the encoding scheme as it was
  /// @param unicode whether the font is used with two-byte glyph codes and embedded as a subset
  /// @param reuseData whether the font data is in the metrics already and only has to be parsed
  /// @param bold the wanted weight, 400 normal
  /// @param italic whether italic is wanted
  void ReadTT(const wchar_t* faceName, const wchar_t* filePath, const wchar_t* encoding, bool unicode,
              bool reuseData, int bold, bool italic);

 private:
  friend int zeb::BytesFromSystem(const CFontInformation& font);

  /// The PostScript metrics, made if there are none.
  CPostscriptFontMetrics& PostscriptMetrics();
  /// The TrueType metrics, made if there are none, which become current; PostScript metrics are freed.
  CTrueTypeFontMetrics& UseTrueTypeMetrics();
  /// Calls ReadTT for the font that the current metrics tell of.
  void ReadAgain(bool reuseData);
  /// The place of a program in its metrics.
  struct ProgramPlace {
    CFontData*& Data;  // owned if IsOwned
    bool& IsOwned;
  };

  ProgramPlace PlaceOfProgram();
  /// Puts a program in the place of that of the current metrics. What is the pool's stays the pool's.
  void ReplaceProgram(CFontData* data, bool owner);
  /// The program of the current metrics, to be changed. A new one takes the place of one that they do not own.
  CFontData& OwnProgram();
  /// Reads the program that old files hold.
  /// @param length the element of its length, null if the record has none
  /// @param content the element of its bytes, null if the record has none
  /// @return whether the record has one
  bool ReadProgram(const zebxmln::CXMLNode* length, zebxmln::CXMLNode* content);
  /// Puts the pool's program of the font in the place of its own.
  /// @return whether the pool has one
  bool TakeFromPool();
  /// Gets the program of a TrueType font from the operating system and hands it to the pool.
  void LoadFromSystem();

  CFontMetrics* m_pMetrics;                      // observer; one of the next two
  CPostscriptFontMetrics* m_pPostscriptMetrics;  // owned, shared by copies
  CTrueTypeFontMetrics* m_pTrueTypeMetrics;      // owned, shared by copies
  CFonts* m_pOwner;                              // observer
  bool m_bSystemProgram = false;                 // whether Load got a program that the pool did not take
};
