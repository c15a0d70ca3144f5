#include "platform/InstalledFont.h"

#include "platform/File.h"
#include "platform/Unicode.h"

#include <fontconfig/fontconfig.h>

#include <cmath>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <tuple>

namespace zeb {

namespace {

struct ConfigDeleter {
  void operator()(FcConfig* config) const { FcConfigDestroy(config); }
};
using Config = std::unique_ptr<FcConfig, ConfigDeleter>;

/// The settings of the environment that lead to other fonts.
std::string EnvironmentOfFonts() {
  std::string settings;
  for (const char* variable : {"FONTCONFIG_FILE", "FONTCONFIG_PATH", "FONTCONFIG_SYSROOT", "HOME",
                               "XDG_CONFIG_HOME", "XDG_DATA_HOME"}) {
    const char* const value = std::getenv(variable);
    settings += value != nullptr ? value : "";
    settings += '\n';
  }
  return settings;
}

/// The system's fonts as they are now. The list is made once and again only if fonts or settings have changed. It is
/// our own: the configuration that the rest of the process may use is never touched.
FcConfig* CurrentConfig() {
  static Config s_Config;
  static std::string s_Environment;
  std::string environment = EnvironmentOfFonts();
  if (!s_Config || environment != s_Environment || FcConfigUptoDate(s_Config.get()) == FcFalse) {
    s_Config.reset(FcInitLoadConfigAndFonts());
    s_Environment = std::move(environment);
  }
  return s_Config.get();
}

const FcChar8* AsFcString(const std::string& text) { return reinterpret_cast<const FcChar8*>(text.c_str()); }

std::string_view TextOf(const FcPattern* face, const char* object) {
  FcChar8* text = nullptr;
  if (FcPatternGetString(face, object, 0, &text) != FcResultMatch) return {};
  return reinterpret_cast<const char*>(text);
}

/// A property that is a number or, in a font of variable style, a range of numbers, of which the nearest counts.
double DistanceOf(const FcPattern* face, const char* object, double wanted) {
  double value = 0;
  if (FcPatternGetDouble(face, object, 0, &value) == FcResultMatch) return std::abs(value - wanted);
  FcRange* range = nullptr;
  double begin = 0;
  double end = 0;
  if (FcPatternGetRange(face, object, 0, &range) != FcResultMatch ||
      FcRangeGetDouble(range, &begin, &end) == FcFalse) {
    return 0;
  }
  if (wanted < begin) return begin - wanted;
  return wanted > end ? wanted - end : 0;
}

bool HasName(const FcPattern* face, const char* object, const std::string& name) {
  FcChar8* text = nullptr;
  for (int index = 0; FcPatternGetString(face, object, index, &text) == FcResultMatch; ++index) {
    if (FcStrCmpIgnoreCase(text, AsFcString(name)) == 0) return true;
  }
  return false;
}

bool IsTrueTypeOrOpenType(const FcPattern* face) {
  const std::string_view format = TextOf(face, FC_FONTFORMAT);
  return format == "TrueType" || format == "CFF";
}

/// How far a face is from the wanted one, the weightiest difference first; the path decides between equals.
using Distance = std::tuple<double, bool, double, std::string_view>;

Distance DistanceFrom(const InstalledFontRequest& request, const FcPattern* face) {
  int slant = FC_SLANT_ROMAN;
  FcPatternGetInteger(face, FC_SLANT, 0, &slant);
  return {DistanceOf(face, FC_WIDTH, FC_WIDTH_NORMAL), (slant != FC_SLANT_ROMAN) != request.italic,
          DistanceOf(face, FC_WEIGHT, FcWeightFromOpenTypeDouble(request.weight)), TextOf(face, FC_FILE)};
}

/// The path of the file that holds the wanted face; empty if there is none.
std::string FindFontFile(const InstalledFontRequest& request) {
  std::string name = WideToUtf8(request.faceName);
  if (name.starts_with('@')) name.erase(0, 1);
  FcConfig* const config = CurrentConfig();
  const FcFontSet* const fonts = config != nullptr ? FcConfigGetFonts(config, FcSetSystem) : nullptr;
  if (fonts == nullptr) return {};
  std::optional<Distance> nearest;
  for (const FcPattern* face : std::span(fonts->fonts, static_cast<std::size_t>(fonts->nfont))) {
    if (!HasName(face, FC_FAMILY, name) && !HasName(face, FC_FULLNAME, name)) continue;
    if (!IsTrueTypeOrOpenType(face)) continue;
    const Distance distance = DistanceFrom(request, face);
    if (!nearest || distance < *nearest) nearest = distance;
  }
  return nearest ? std::string(std::get<std::string_view>(*nearest)) : std::string();
}

}  // namespace

struct InstalledFont::State {
  std::wstring Path;
  InputFile File;
};

InstalledFont::InstalledFont() : m_pState(std::make_unique<State>()) {}

InstalledFont::~InstalledFont() = default;

bool InstalledFont::Open(const InstalledFontRequest& request) {
  m_pState->Path = Utf8ToWide(FindFontFile(request));
  return !m_pState->Path.empty() && m_pState->File.Open(m_pState->Path) == FileStatus::Ok;
}

std::uint64_t InstalledFont::Size() const { return m_pState->File.Size(); }

std::shared_ptr<FileMapping> InstalledFont::Map(std::size_t zeros) const {
  return FileMapping::Open(m_pState->Path, zeros);
}

bool InstalledFont::Read(std::span<std::byte> bytes) {
  std::size_t count = 0;
  return m_pState->File.Read(bytes, count) == FileStatus::Ok && count == bytes.size();
}

}  // namespace zeb
