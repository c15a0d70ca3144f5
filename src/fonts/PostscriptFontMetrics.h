#pragma once

#include "fonts/AFMKeys.h"
#include "fonts/FontMetrics.h"
#include "platform/Export.h"

class CFontInformation;

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

  void ReadAFMFile(const wchar_t* path);
  void ReadGlobalMetrics();
  void ReadCharMetrics();
  bool ReadToken();
  bool ReadRestOfLine();
  void ReadPFMFile(const wchar_t* path);
  void ReadPFBPFAFile(const wchar_t* path);

  wchar_t m_rgwcToken[1024];
  wchar_t m_rgwcLine[1024];
  AFMKeys m_AFMKeys;
};
