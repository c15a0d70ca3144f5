#pragma once

#include "fonts/FontInformation.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "support/Files.h"
#include "support/RaisedKey.h"
#include "support/TempDir.h"
#include "support/TrueTypeBuilder.h"
#include "support/WidePath.h"

#include <string>
#include <vector>

namespace zebtest {

/// How a font is asked for.
struct Asked {
  const wchar_t* encoding = nullptr;
  bool unicode = false;
  int bold = 400;
  bool italic = false;
};

/// A font that was read from a file, or the key of the failure.
class TrueTypeFont {
 public:
  TrueTypeFont() : m_information(nullptr) {}
  explicit TrueTypeFont(const std::vector<unsigned char>& bytes, const Asked& asked = {}) : TrueTypeFont() {
    Read(bytes, asked);
  }
  explicit TrueTypeFont(const TrueTypeBuilder& font, const Asked& asked = {})
      : TrueTypeFont(font.Build(), asked) {}

  void Read(const std::vector<unsigned char>& bytes, const Asked& asked = {}) {
    const TempDir folder;
    WriteBytes(folder.File("font.ttf"), bytes);
    ReadFile(folder.WideFile("font.ttf"), asked);
  }
  void ReadFile(const std::wstring& path, const Asked& asked = {}) {
    m_failure = RaisedKey([&] {
      m_information.ReadTT(nullptr, path.c_str(), asked.encoding, asked.unicode, false, asked.bold,
                           asked.italic);
    });
  }
  void ReadFace(const std::wstring& name, const Asked& asked = {}) {
    m_failure = RaisedKey([&] {
      m_information.ReadTT(name.c_str(), nullptr, asked.encoding, asked.unicode, false, asked.bold,
                           asked.italic);
    });
  }
  void ReadAgain(const wchar_t* name, const Asked& asked = {}) {
    m_failure = RaisedKey([&] {
      m_information.ReadTT(name, nullptr, asked.encoding, asked.unicode, true, asked.bold, asked.italic);
    });
  }

  /// The key of the failure of the last reading, empty if there was none.
  const std::wstring& Failure() const { return m_failure; }
  CFontInformation& Information() { return m_information; }
  CFontMetrics& Metrics() const { return *m_information.GetFontMetrics(); }
  CTrueTypeFile& File() const { return *Metrics().GetTTFile(); }

 private:
  CFontInformation m_information;
  std::wstring m_failure;
};

}  // namespace zebtest
