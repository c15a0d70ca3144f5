#pragma once

#include "fonts/ByteReader.h"
#include "fonts/TrueTypeStatus.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>

class CFontData;
class CTrueTypeCMap4;
class CTrueTypeFile;
class CTrueTypeFontMetrics;

namespace zeb {

class FileMapping;
class TrueTypeGlyphs;

/// What is asked of a reading; see CFontInformation::ReadTT.
struct TrueTypeRequest {
  const wchar_t* faceName = nullptr;
  const wchar_t* filePath = nullptr;
  const wchar_t* encoding = nullptr;
  bool unicode = false;
  bool reuseData = false;
  int bold = 400;
  bool italic = false;
};

/// Fills the metrics of a TrueType font from a file, an installed font or the font data that they have already.
///
/// Every table is held against the bytes of the file before it is read, and every count against the bytes of its
/// table, so that no byte outside of the file is touched and nothing larger than a small multiple of the file is
/// allocated, whatever the file says. A file that lies ends the reading with kTrueTypeIncorrect. The metrics get the
/// parsed file only when all of it was read.
class TrueTypeReader {
 public:
  TrueTypeReader(CTrueTypeFontMetrics& metrics, const TrueTypeRequest& request);
  ~TrueTypeReader();

  TrueTypeStatus Read();

 private:
  // Where the bytes come from.
  void ChooseEncodingTable();
  TrueTypeStatus FetchBytes();
  TrueTypeStatus FetchFile();
  TrueTypeStatus FetchInstalledFont();
  TrueTypeStatus FindFontInData();
  CFontData& MakeFontData();
  std::span<std::byte> MakeRoomForFont(int size);
  bool TakeMapping(std::shared_ptr<FileMapping> mapping);

  // Tables.
  TrueTypeStatus ReadTables();
  bool ReadPlainTables();
  bool ReadGlyphTables();
  bool ReadOutlineTables();
  bool CheckCopiedTables() const;
  void KeepGlyphs() const;

  // Metrics.
  TrueTypeStatus FillMetrics();
  void FillNames();
  void FillStyle();
  void FillHeights();
  void ChooseEncoding(const CTrueTypeCMap4& map);
  void FillWidths(const CTrueTypeCMap4& map);
  void FillWidthsOfBytes(const CTrueTypeCMap4& map);
  void FillWidthsOfSegments(const CTrueTypeCMap4& map);
  unsigned short WidthOf(int glyph);
  void SetWidth(int code, int glyph);

  CTrueTypeFontMetrics& m_metrics;
  TrueTypeRequest m_request;
  std::wstring m_encoding;  // a copy: the one that is given may be that of the metrics
  std::uint16_t m_usLanguage;
  ByteReader m_bytes;
  std::uint32_t m_uFontOffset = 0;
  std::unique_ptr<CTrueTypeFile> m_pFile;
  unsigned short m_usAdvance = 0;       // of the glyph that was asked for last, in font units
  unsigned short m_usWidth = 0;         // the same as a width of the metrics
  TrueTypeGlyphs* m_pGlyphs = nullptr;  // observer, the file's
};

}  // namespace zeb
