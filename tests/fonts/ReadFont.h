#pragma once

#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontInformation.h"
#include "fonts/FontMetrics.h"
#include "support/Files.h"
#include "support/RaisedKey.h"
#include "support/TempDir.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace zebtest {

/// Frees the character records of a font, which nobody owns. The font must not be used afterwards.
inline void FreeCharMetrics(const CFontMetrics& metrics) {
  for (int i = 0; i < metrics.GetFontCharMetricsCount(); ++i) delete metrics.GetFontCharMetricsAt(i);
}

/// Sets the file handle of metrics as a reader at work does.
class Busy : public CFontMetrics {
 public:
  static void Set(CFontMetrics& metrics, int handle) {
    int CFontMetrics::*const member = &Busy::m_iFileHandle;
    metrics.*member = handle;
  }
};

/// A font of a test that is read from files, with everything freed at its end.
class ReadFont {
 public:
  ReadFont() = default;
  ReadFont(const ReadFont&) = delete;
  ReadFont& operator=(const ReadFont&) = delete;
  ~ReadFont() { FreeCharMetrics(*m_font.GetFontMetrics()); }

  CFontInformation& Font() { return m_font; }
  CFontMetrics* operator->() { return m_font.GetFontMetrics(); }
  CFontMetrics& Metrics() { return *m_font.GetFontMetrics(); }
  const CFontCharMetricsInfo& Record(int index) { return *Metrics().GetFontCharMetricsAt(index); }
  const TempDir& Dir() const { return m_dir; }

  /// Reads an existing file. @return the key that this raises, empty if none
  std::wstring AFM(const std::filesystem::path& path) {
    return RaisedKey([&] { m_font.ReadAFM(WidePath(path).c_str()); });
  }
  std::wstring PFM(const std::filesystem::path& path) {
    return RaisedKey([&] { m_font.ReadPFM(WidePath(path).c_str()); });
  }
  std::wstring Program(const std::filesystem::path& path) {
    return RaisedKey([&] { m_font.ReadPFBPFA(WidePath(path).c_str()); });
  }

  /// Reads a file of these bytes. @return the key that this raises, empty if none
  std::wstring AFMText(std::string_view text) { return AFM(File("font.afm", text)); }
  std::wstring PFMBytes(std::string_view bytes) { return PFM(File("font.pfm", bytes)); }
  std::wstring ProgramBytes(std::string_view bytes) { return Program(File("font.pfb", bytes)); }

 private:
  std::filesystem::path File(const std::string& name, std::string_view bytes) const {
    WriteFile(m_dir.File(name), bytes);
    return m_dir.File(name);
  }

  TempDir m_dir;
  CFontInformation m_font{nullptr};
};

}  // namespace zebtest
