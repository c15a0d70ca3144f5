#pragma once

#include "fonts/AFMKeys.h"
#include "fonts/FontMetrics.h"
#include "platform/Export.h"

#include <cstddef>

class CFontCharMetricsInfo;
class CFontInformation;

namespace zeb {
class TextCursor;
}

/// Metrics of a PostScript font, filled from AFM or PFM files, with the font program from PFB or PFA files.
/// The readers are reached through CFontInformation.
class ZEB_EXPORT CPostscriptFontMetrics : public CFontMetrics {
 public:
  CPostscriptFontMetrics();
  CPostscriptFontMetrics(const CPostscriptFontMetrics& other);
  ~CPostscriptFontMetrics() override;
  CPostscriptFontMetrics& operator=(const CPostscriptFontMetrics& other);

 private:
  friend class CFontInformation;

  // The reader of AFM files. A token that lies behind the end of the file is empty.
  void ReadAFMFile(const wchar_t* path);
  void ReadGlobalMetrics();
  bool ReadGlobalNumber(int key);
  void ReadGlobalText(int key);
  void MakeRecords(int count);
  CFontCharMetricsInfo* NextRecord(std::size_t& next) const;
  void ReadCharMetrics();
  void ReadCharValue(int key, CFontCharMetricsInfo& record);
  void ReadLigature(CFontCharMetricsInfo& record);
  void SkipSections();
  void TakeWidthsOfNames();
  bool ReadToken();
  bool ReadRestOfLine();
  int ReadInt();
  float ReadFloat();
  /// The key of the next token: -1 for an unknown word, -2 at the end of the file.
  int ReadKey();

  void ReadPFMFile(const wchar_t* path);
  void ReadPFBPFAFile(const wchar_t* path);

  wchar_t m_rgwcToken[1024];
  wchar_t m_rgwcLine[1024];
  AFMKeys m_AFMKeys;
  zeb::TextCursor* m_pCursor;  // observer; the file while a reader works
};
