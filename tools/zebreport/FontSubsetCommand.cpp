#include "Failure.h"
#include "FontCommands.h"
#include "TrueTypeSource.h"
#include "Utf8.h"
#include "ZEBReportDocument.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <vector>

namespace zebreport {

namespace {

namespace fs = std::filesystem;

constexpr wchar_t kLastCode = 0xFFFF;
constexpr wchar_t kFirstVisible = 0x20;
/// Of the characters that a font lacks, how many a warning names.
constexpr std::size_t kMostNamed = 20;

/// The text's characters, each once, in the order of their first use.
std::wstring Characters(const std::wstring& text) {
  std::wstring characters;
  for (const wchar_t character : text) {
    if (characters.find(character) == std::wstring::npos) characters += character;
  }
  return characters;
}

bool HasGlyph(const CFontMetrics& metrics, wchar_t character) {
  unsigned short glyph = 0;
  return character <= kLastCode && metrics.FindGlyphIndex(static_cast<unsigned short>(character), glyph);
}

std::wstring CodePoint(wchar_t character) {
  constexpr wchar_t kDigits[] = L"0123456789ABCDEF";
  std::wstring digits;
  for (auto rest = static_cast<unsigned long>(character); rest != 0 || digits.size() < 4; rest /= 16) {
    digits.insert(digits.begin(), kDigits[rest % 16]);
  }
  return L"U+" + digits + (character > kFirstVisible ? std::wstring(L" ") + character : L"");
}

void WarnOfMissing(const std::wstring& name, const std::wstring& missing) {
  if (missing.empty()) return;
  std::wstring list;
  for (const wchar_t character : missing.substr(0, kMostNamed)) {
    list += (list.empty() ? L"" : L", ") + CodePoint(character);
  }
  if (missing.size() > kMostNamed) {
    list += L" and " + std::to_wstring(missing.size() - kMostNamed) + L" more";
  }
  Warn(name + L": the font has no glyph for " + list +
       L"; a document shows the sign for a missing character there, so take another font for these.");
}

/// Makes the subset of these characters.
/// @return the characters that the font lacks
std::wstring Subset(CFontMetrics& metrics, const std::wstring& characters) {
  std::wstring missing;
  for (const wchar_t character : characters) {
    if (HasGlyph(metrics, character)) {
      metrics.MapChar(static_cast<unsigned short>(character));
    } else {
      missing += character;
    }
  }
  metrics.CreateSubsetFont();
  return missing;
}

void RequireOtherFile(const std::wstring& font, const std::wstring& out) {
  std::error_code error;
  if (fs::equivalent(ToPath(font), ToPath(out), error) && !error) {
    throw Failure(out + L": the subset would overwrite the font that it is made from; choose another name.");
  }
}

void WriteFont(const std::wstring& path, const CFontData& data) {
  std::ofstream file(ToPath(path), std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(data.GetData()), data.GetLength());
  file.close();
  if (!file) throw Failure(path + L": the subset cannot be written; check the folder.");
}

std::wstring Counted(std::size_t count, const wchar_t* what) {
  return std::to_wstring(count) + L" " + what + (count == 1 ? L"" : L"s");
}

std::wstring TakeOne(ArgumentReader& arguments, const wchar_t* option, const wchar_t* what) {
  const std::vector<std::wstring> values = arguments.TakeEach(option, what);
  if (values.size() == 1) return values.front();
  throw UsageFailure(std::wstring(L"font subset needs ") + option + L" with " + what +
                     L", once; see zebreport help.");
}

}  // namespace

int RunFontSubset(ArgumentReader& arguments, std::wstring& output) {
  const std::wstring characters = Characters(TakeOne(arguments, L"--text", L"a text"));
  const std::wstring out = TakeOne(arguments, L"-o", L"the path of the subset");
  const std::wstring name = arguments.TakeRest({L"font file or name of an installed font"}).front();
  RequireOtherFile(name, out);

  CFontInformation font(nullptr);
  ReadTrueType(name, font);
  CFontMetrics& metrics = *font.GetFontMetrics();
  if (metrics.GetSymbolFont()) {
    throw Failure(name + L": this is a symbol font, which documents hold whole; use the font file itself.");
  }
  const int wholeLength = metrics.GetFontData()->GetLength();
  const std::wstring missing = Subset(metrics, characters);
  const CFontData& subset = *metrics.GetFontData();
  WriteFont(out, subset);
  WarnOfMissing(name, missing);

  output += name + L": " + Counted(characters.size() - missing.size(), L"character") + L" in " + out + L", " +
            Counted(static_cast<std::size_t>(subset.GetLength()), L"byte") + L" of " +
            std::to_wstring(wholeLength) + L".\n";
  return 0;
}

}  // namespace zebreport
