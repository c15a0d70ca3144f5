#include "fonts/FontPool.h"

#include "fonts/FontData.h"
#include "fonts/FontPoolEntry.h"
#include "fonts/FontPoolFileName.h"
#include "fonts/NameComparison.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/XMLFile.h"
#include "foundation/XMLNode.h"
#include "platform/File.h"

#include <memory>
#include <string_view>
#include <utility>

namespace {

constexpr zeb::ElementName kRoot = L"FontPoolData";
constexpr zeb::ElementName kVersionNr = L"VersionNr";
constexpr zeb::ElementName kFontFamilyName = L"FontFamilyName";
constexpr zeb::ElementName kFontName = L"FontName";
constexpr zeb::ElementName kBold = L"Bold";
constexpr zeb::ElementName kItalic = L"Italic";
constexpr zeb::ElementName kLocalizedFontNames = L"LocalizedFontNames";
constexpr zeb::ElementName kFontData = L"FontData";

using EntryPointer = std::unique_ptr<CFontPoolEntry>;

std::unique_ptr<CFontData> MakeFontData(void* bytes, int length) {
  auto data = std::make_unique<CFontData>(false);
  data->AddFontMemData(bytes, length);
  return data;
}

/// Null if the element has no binary content at all.
std::unique_ptr<CFontData> ReadProgram(zebxmln::CXMLNode& element) {
  auto* const content = dynamic_cast<zebxmln::CXMLBinNode*>(element.GetFirstChildNode());
  if (content == nullptr) return nullptr;
  void* bytes = nullptr;
  int length = 0;
  content->GetBinaryData(&bytes, &length);
  return MakeFontData(bytes, length);
}

EntryPointer ReadEntry(zeb::RecordReader& reader) {
  auto entry = std::make_unique<CFontPoolEntry>();
  std::wstring text;
  if (reader.Read(kFontFamilyName, text)) entry->SetFontFamilyName(text.c_str());
  if (reader.Read(kFontName, text)) entry->SetFontName(text.c_str());
  if (int bold = 0; reader.Read(kBold, bold)) entry->SetBold(bold);
  if (bool italic = false; reader.Read(kItalic, italic)) entry->SetItalic(italic);
  while (reader.Read(kLocalizedFontNames, text)) entry->AddLocalizedFontName(text.c_str());
  if (zebxmln::CXMLNode* data = reader.Take(kFontData)) entry->SetFontData(ReadProgram(*data).release());
  return entry;
}

bool HasLocalizedName(const CFontPoolEntry& entry, std::wstring_view name) {
  for (int index = 0; index < entry.GetLocalizedFontNameCount(); ++index) {
    if (zeb::AreEqualIgnoringCase(entry.GetLocalizedFontNameAt(index), name)) return true;
  }
  return false;
}

}  // namespace

CFontPool::CFontPool() = default;
CFontPool::CFontPool(const CFontPool& other) = default;
CFontPool::~CFontPool() { DeleteFontPool(); }
CFontPool& CFontPool::operator=(const CFontPool& other) = default;

CFontPool& CFontPool::GetInstance() {
  static CFontPool s_Pool;
  return s_Pool;
}

void CFontPool::SetFontPoolPath(const wchar_t* path) {
  std::wstring folder = path == nullptr ? L"" : path;
  if (!folder.empty() && !zeb::IsPathSeparator(folder.back())) folder += zeb::kPathSeparator;
  m_strFontPoolPath = std::move(folder);
}

const wchar_t* CFontPool::GetFontPoolPath() const { return m_strFontPoolPath.c_str(); }

std::wstring CFontPool::PathOf(const std::wstring& fontName) const {
  return m_strFontPoolPath + zeb::FontPoolFileName(fontName);
}

CFontData* CFontPool::GetFontData(const wchar_t* fontName) {
  const std::wstring name = fontName == nullptr ? L"" : fontName;
  auto found = m_Entries.find(name);
  if (found == m_Entries.end() && !m_strFontPoolPath.empty()) {
    ReadFontData(PathOf(name).c_str());
    // The file counts under the name that it states, whatever its own name is.
    found = m_Entries.find(name);
  }
  return found == m_Entries.end() ? nullptr : found->second->GetFontData();
}

void CFontPool::SetFontData(const wchar_t* fontName, const wchar_t* familyName, int bold, bool italic,
                            unsigned char* data, int length,
                            const std::vector<std::wstring>& localizedNames) {
  if (m_strFontPoolPath.empty() || GetFontData(fontName) != nullptr) return;
  const std::wstring name = fontName == nullptr ? L"" : fontName;
  auto entry = std::make_unique<CFontPoolEntry>();
  entry->SetFontName(name.c_str());
  entry->SetFontFamilyName(familyName == nullptr ? L"" : familyName);
  entry->SetBold(bold);
  entry->SetItalic(italic);
  for (const std::wstring& localizedName : localizedNames) {
    entry->AddLocalizedFontName(localizedName.c_str());
  }
  entry->SetFontData(MakeFontData(data, length).release());
  CFontPoolEntry* const written = entry.get();
  AddFontDataEntry(name.c_str(), written);
  if (Holds(*written)) static_cast<void>(entry.release());
  WriteFontData(PathOf(name).c_str(), written);
}

const wchar_t* CFontPool::FindUniqueName(const wchar_t* name) const {
  if (name == nullptr || *name == L'\0') return nullptr;
  // Fixed behaviour: the mark alone is no empty name, so an empty localized name answers it.
  const std::wstring_view wanted = zeb::WithoutVerticalMark(name);
  for (const auto& [fontName, entry] : m_Entries) {
    if (HasLocalizedName(*entry, wanted)) return entry->GetFontName();
  }
  return nullptr;
}

void CFontPool::DeleteFontPool() {
  for (const auto& [fontName, entry] : m_Entries) delete entry;
  m_Entries.clear();
}

void CFontPool::ReadAvailableFonts() {
  if (m_strFontPoolPath.empty()) return;
  std::vector<std::wstring> names;
  zeb::ListFiles(m_strFontPoolPath, names);
  for (const std::wstring& name : names) {
    if (zeb::IsFontPoolFileName(name)) ReadFontData((m_strFontPoolPath + name).c_str());
  }
}

void CFontPool::ReadFontData(const wchar_t* file) {
  try {
    const zeb::XMLFile document = zeb::XMLFile::Load(file);
    zeb::RecordReader reader(document.Root());
    // Fixed behaviour: the number of any file that is read becomes the pool's own.
    reader.Read(kVersionNr, m_iVersionNr);
    EntryPointer entry = ReadEntry(reader);
    AddFontDataEntry(entry->GetFontName(), entry.get());
    if (Holds(*entry)) static_cast<void>(entry.release());
  } catch (const zebxmln::CXMLException&) {
    // A file that is missing or damaged is one that the pool does not have.
    return;
  }
}

void CFontPool::WriteFontData(const wchar_t* file, CFontPoolEntry* entry) {
  zeb::XMLFile document = zeb::XMLFile::Create(kRoot.data(), kRoot.data());
  zeb::RecordWriter writer(document.Root());
  writer.Write(kVersionNr, m_iVersionNr);
  writer.Write(kFontFamilyName, entry->GetFontFamilyName());
  writer.Write(kFontName, entry->GetFontName());
  writer.Write(kBold, entry->GetBold());
  writer.Write(kItalic, entry->GetItalic());
  for (int index = 0; index < entry->GetLocalizedFontNameCount(); ++index) {
    writer.Write(kLocalizedFontNames, entry->GetLocalizedFontNameAt(index));
  }
  const CFontData* const data = entry->GetFontData();
  zebxmln::CXMLBinNode* const content = writer.Add(kFontData)->CreateBinNode();
  if (data != nullptr) content->SetBinaryData(data->GetData(), data->GetLength());
  document.Save(file);
}

void CFontPool::AddFontDataEntry(const wchar_t* fontName, CFontPoolEntry* entry) {
  m_Entries.try_emplace(fontName, entry);
}

bool CFontPool::Holds(const CFontPoolEntry& entry) const {
  const auto found = m_Entries.find(entry.GetFontName());
  return found != m_Entries.end() && found->second == &entry;
}
