// The fonts of a font pool: what is there, one more, and whether each would serve a report.

#include "Commands.h"
#include "Failure.h"
#include "TextFormat.h"
#include "TextTable.h"
#include "Utf8.h"
#include "ZEBReportDocument.h"
#include "fonts/FontPoolFileName.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeTables.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/XMLFile.h"
#include "platform/File.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace zebreport {

namespace {

constexpr int kSomethingWrong = 1;
constexpr int kBoldWeight = 700;

/// What a file of the pool says.
struct PoolFont {
  std::wstring Name;
  std::wstring Family;
  int Bold = 400;
  bool Italic = false;
  std::vector<std::wstring> LocalizedNames;
  std::vector<unsigned char> Program;
};

PoolFont ReadRecord(zebxmln::CXMLNode* root) {
  PoolFont font;
  zeb::RecordReader record(root);
  record.StepOver(L"VersionNr");
  record.Read(L"FontFamilyName", font.Family);
  record.Read(L"FontName", font.Name);
  record.Read(L"Bold", font.Bold);
  record.Read(L"Italic", font.Italic);
  for (std::wstring name; record.Read(L"LocalizedFontNames", name);) font.LocalizedNames.push_back(name);
  zebxmln::CXMLNode* const data = record.Take(L"FontData");
  auto* const content =
      data == nullptr ? nullptr : dynamic_cast<zebxmln::CXMLBinNode*>(data->GetFirstChildNode());
  if (content == nullptr) return font;
  void* bytes = nullptr;
  int length = 0;
  content->GetBinaryData(&bytes, &length);
  const auto* const begin = static_cast<const unsigned char*>(bytes);
  font.Program.assign(begin, begin + length);
  return font;
}

/// @throws Failure
PoolFont ReadPoolFile(const std::wstring& path) {
  try {
    const zeb::XMLFile file = zeb::XMLFile::Load(path.c_str());
    if (std::wstring_view(file.Root()->GetNodeName()) != L"FontPoolData") {
      throw Failure(path + L": there is no font in it but a " + file.Root()->GetNodeName() + L".");
    }
    return ReadRecord(file.Root());
  } catch (const zebxmln::CXMLException& exception) {
    throw Failure(exception.GetErrorMessage());
  }
}

/// Sets the pool of the process up and gives the names of its files.
/// @throws Failure if there is no such folder
std::vector<std::wstring> OpenPool(const std::wstring& folder) {
  std::vector<std::wstring> files;
  const zeb::FileStatus status = zeb::ListFiles(folder, files);
  if (status != zeb::FileStatus::Ok) {
    throw Failure(L"the folder " + folder + L" cannot be read: " + zeb::DescribeFileStatus(status) + L".");
  }
  CFontPool::GetInstance().SetFontPoolPath(folder.c_str());
  std::erase_if(files, [](const std::wstring& name) { return !zeb::IsFontPoolFileName(name); });
  return files;
}

std::wstring PathOf(const std::wstring& file) { return CFontPool::GetInstance().GetFontPoolPath() + file; }

bool BeginsWith(const std::vector<unsigned char>& program, std::string_view bytes) {
  if (program.size() < bytes.size()) return false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (program[i] != static_cast<unsigned char>(bytes[i])) return false;
  }
  return true;
}

const wchar_t* KindOf(const std::vector<unsigned char>& program) {
  using namespace std::string_view_literals;
  if (program.empty()) return L"none";
  if (BeginsWith(program, "\0\1\0\0"sv) || BeginsWith(program, "true")) return L"TrueType";
  if (BeginsWith(program, "OTTO")) return L"OpenType";
  if (BeginsWith(program, "ttcf")) return L"collection";
  if (BeginsWith(program, "%!") || BeginsWith(program, "\x80\1"sv)) return L"Type 1";
  return L"unknown";
}

int List(const std::wstring& folder, std::wstring& output) {
  TextTable table({L"font", L"family", L"weight", L"italic", L"program", L"bytes", L"localized names"});
  int result = 0;
  for (const std::wstring& file : OpenPool(folder)) {
    try {
      const PoolFont font = ReadPoolFile(PathOf(file));
      table.AddRow({font.Name, font.Family, std::to_wstring(font.Bold), font.Italic ? L"yes" : L"no",
                    KindOf(font.Program), std::to_wstring(font.Program.size()), Joined(font.LocalizedNames)});
    } catch (const Failure&) {
      table.AddRow({file, L"-", L"-", L"-", L"-", L"-", L"cannot be read; see zebreport pool check"});
      result = kSomethingWrong;
    }
  }
  table.AppendTo(output, 0);
  return result;
}

int Add(const std::wstring& folder, const std::wstring& fontFile, std::wstring& output) {
  OpenPool(folder);
  CFontInformation font(nullptr);
  try {
    font.ReadTT(nullptr, fontFile.c_str(), nullptr, true, false, 400, false);
  } catch (const CKXException& exception) {
    throw LibraryFailure(fontFile, exception);
  }
  CFontMetrics& metrics = *font.GetFontMetrics();
  const std::wstring name = metrics.GetBaseFont();
  if (name.empty()) {
    throw Failure(fontFile +
                  L": the font has no full English name, by which a pool knows it; "
                  L"give it one with a font editor or take another font.");
  }
  const std::wstring path = PathOf(zeb::FontPoolFileName(name));
  CFontPool& pool = CFontPool::GetInstance();
  if (pool.GetFontData(name.c_str()) != nullptr) {
    throw Failure(path + L": the pool has " + Quoted(name) +
                  L" already and never replaces a font; remove the file first.");
  }
  constexpr unsigned kItalicFace = 1;
  constexpr unsigned kBoldFace = 32;
  const unsigned style = metrics.GetTTFile()->GetTabOS2()->fsSelection;
  const CFontData& program = *metrics.GetFontData();
  try {
    pool.SetFontData(name.c_str(), metrics.GetFontFamilyName(), (style & kBoldFace) != 0 ? kBoldWeight : 400,
                     (style & kItalicFace) != 0, program.GetData(), program.GetLength(),
                     metrics.GetLocalizedNames());
  } catch (const zebxmln::CXMLException& exception) {
    throw LibraryFailure(path, CKXXMLException(exception.GetErrorCode(), exception.GetErrorMessage()));
  }
  output += path + L": " + Quoted(name) + L" is in the pool.\n";
  return 0;
}

/// Takes the font out of the pool as a report does whose record has only the name.
/// @throws CKXException
void LoadAsReport(const PoolFont& font) {
  zeb::XMLFile file = zeb::XMLFile::Create(L"FontInformation", L"FontInformation");
  zeb::RecordWriter record(file.Root());
  record.Write(L"BaseFont", font.Name);
  record.Write(L"Encoding", L"cid");
  record.Write(L"Flags", 0);
  record.Write(L"FontType", static_cast<int>(CFontMetrics::FontTypeTrueType));
  record.Write(L"UnicodeFont", true);
  CIDManager ids;
  CFontInformation(nullptr).Load(file.Root(), ids);
}

/// What is wrong with a file of the pool, without the point at its end; empty if nothing is.
std::wstring FaultOf(const std::wstring& file) {
  const PoolFont font = ReadPoolFile(PathOf(file));
  if (font.Name.empty()) return L"the font has no name";
  const std::wstring expected = zeb::FontPoolFileName(font.Name);
  if (file != expected) {
    return L"the font in it is " + Quoted(font.Name) + L", which is sought in " + expected;
  }
  const std::wstring kind = KindOf(font.Program);
  if (kind == L"none") return L"there is no font program in it";
  if (kind == L"unknown") return L"the font program is of no known kind";
  if (kind == L"Type 1") return {};
  try {
    LoadAsReport(font);
  } catch (const CKXException& exception) {
    std::wstring reason = exception.GetErrorMessage();
    while (reason.ends_with(L'.')) reason.pop_back();
    return L"a report cannot use the font program: " + reason;
  }
  return {};
}

int Check(const std::wstring& folder, std::wstring& output) {
  int result = 0;
  for (const std::wstring& file : OpenPool(folder)) {
    try {
      const std::wstring fault = FaultOf(file);
      if (fault.empty()) continue;
      output += PathOf(file) + L": " + fault + L".\n";
    } catch (const Failure& failure) {
      output += FromUtf8(failure.what()) + L"\n";
    }
    result = kSomethingWrong;
  }
  return result;
}

}  // namespace

int RunPool(ArgumentReader& arguments, std::wstring& output) {
  const std::vector<std::wstring> words =
      arguments.TakeRestAndMore({L"word list, add or check", L"pool folder"});
  const std::wstring& action = words[0];
  const std::size_t count = action == L"add" ? 3 : 2;
  if (action != L"list" && action != L"add" && action != L"check") {
    throw UsageFailure(L"a pool knows list, add and check, not " + action + L"; see zebreport help.");
  }
  if (words.size() != count) {
    throw UsageFailure(L"zebreport pool " + action +
                       (count == 3 ? L" takes a folder and one font file" : L" takes a folder") +
                       L"; see zebreport help.");
  }
  if (action == L"add") return Add(words[1], words[2], output);
  return action == L"list" ? List(words[1], output) : Check(words[1], output);
}

}  // namespace zebreport
