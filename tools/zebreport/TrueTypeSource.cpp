#include "TrueTypeSource.h"

#include "Failure.h"
#include "Utf8.h"
#include "ZEBReportDocument.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace zebreport {

namespace {

namespace fs = std::filesystem;

/// A failure of the readers of fonts: its number in every catalogue, its key, and what a user can do.
struct Refusal {
  int number;
  const wchar_t* key;
  const wchar_t* advice;
};

constexpr Refusal kRefusals[] = {
    {1001, L"NoMoreMemoryLeft", L"close other programs or take a smaller font"},
    {1002, L"ReadFileFailure", L"check that it is a font file and that you may read it"},
    {4001, L"IncorrectTrueTypeFile", L"take another copy of the font"},
    {4007, L"TrueTypeCreationFailed",
     L"check its name, and take a font with TrueType outlines and all tables that Windows fonts have"},
    {4008, L"BitmapMACFontUnsupported", L"take a font with outlines"},
    {4009, L"FontEmbeddingNotAllowed", L"take a font whose maker permits embedding"},
    {5001, L"WrongParameter", L"name a font with at most 32 characters"},
};

Failure FontFailure(const std::wstring& name, const CKXException& exception) {
  const auto* const refusal =
      std::find_if(std::begin(kRefusals), std::end(kRefusals),
                   [&](const Refusal& candidate) { return candidate.number == exception.GetErrorNr(); });
  if (refusal == std::end(kRefusals)) return LibraryFailure(name, exception);
  std::wstring message = exception.GetErrorMessage();
  while (message.ends_with(L'.')) message.pop_back();
  return Failure(name + L": " + message + L" (" + refusal->key + L", error " +
                 std::to_wstring(refusal->number) + L"); " + refusal->advice + L".");
}

bool IsCollection(const fs::path& path) {
  char tag[4] = {};
  std::ifstream file(path, std::ios::binary);
  return file.read(tag, sizeof tag) && std::string_view(tag, sizeof tag) == "ttcf";
}

/// Whether the user meant a file, there or not.
bool LooksLikePath(const std::wstring& name) {
  if (name.find_first_of(L"/\\") != std::wstring::npos) return true;
  std::wstring end = name.size() < 4 ? L"" : name.substr(name.size() - 4);
  std::transform(end.begin(), end.end(), end.begin(),
                 [](wchar_t letter) { return letter >= L'A' && letter <= L'Z' ? letter + 32 : letter; });
  return end == L".ttf" || end == L".ttc" || end == L".otf";
}

void RequireSingleFont(const std::wstring& name) {
  std::error_code error;
  if (fs::is_directory(ToPath(name), error)) throw Failure(name + L": this is a folder; name a font file.");
  if (IsCollection(ToPath(name))) {
    throw Failure(name + L": this is a collection of fonts; name one of its fonts instead, as the machine " +
                  L"knows it when the collection is installed.");
  }
}

}  // namespace

void ReadTrueType(const std::wstring& name, CFontInformation& font, const FontStyle& style) {
  std::error_code error;
  const bool isFile = fs::exists(ToPath(name), error);
  if (isFile) {
    RequireSingleFont(name);
  } else if (LooksLikePath(name)) {
    throw Failure(name + L": the file cannot be opened; check its name.");
  }
  try {
    font.ReadTT(isFile ? nullptr : name.c_str(), isFile ? name.c_str() : nullptr, nullptr, true, false,
                style.weight, style.italic);
  } catch (const CKXException& exception) {
    throw FontFailure(isFile ? name : L"installed font " + name, exception);
  }
}

}  // namespace zebreport
