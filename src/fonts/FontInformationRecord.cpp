#include "fonts/FontInformation.h"

#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontData.h"
#include "fonts/FontErrors.h"
#include "fonts/FontPool.h"
#include "fonts/PostscriptFontMetrics.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "foundation/ErrorKeys.h"
#include "foundation/KXException.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLNode.h"

#include <memory>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

// The record of a font in the files of reports and layouts.

namespace {

using zeb::ElementName;
using zeb::RecordReader;
using zeb::RecordWriter;

constexpr ElementName kFontInformation = L"FontInformation";
constexpr ElementName kFontType = L"FontType";
constexpr ElementName kCharMetricsInfo = L"CharMetricsInfo";
constexpr ElementName kLigatures = L"Ligatures";
constexpr ElementName kWidths = L"Widths";
constexpr ElementName kFontDataLength = L"FontDataLength";
constexpr ElementName kFontData = L"FontData";

/// Codes whose widths a record is written with, and the entries of the table that is read into.
constexpr int kWrittenWidths = 256;
constexpr int kMostWidths = 65536;

/// A field of a record with the accessors of the value behind it.
template <class Object, class Value>
struct Field {
  ElementName Name;
  Value (Object::*Get)() const;
  void (Object::*Set)(Value);
};
template <class Object, class Value>
Field(ElementName, Value (Object::*)() const, void (Object::*)(Value)) -> Field<Object, Value>;

// The fields in the order of the file.
constexpr auto kScalars = std::tuple{
    Field{L"BaseFont", &CFontMetrics::GetBaseFont, &CFontMetrics::SetBaseFont},
    Field{L"Encoding", &CFontMetrics::GetEncoding, &CFontMetrics::SetEncoding},
    Field{L"Flags", &CFontMetrics::GetFlags, &CFontMetrics::SetFlags},
    Field{kFontType, &CFontMetrics::GetFontType, &CFontMetrics::SetFontType},
    Field{L"TTName", &CFontMetrics::GetTTName, &CFontMetrics::SetTTName},
    Field{L"EncodingScheme", &CFontMetrics::GetEncodingScheme, &CFontMetrics::SetEncodingScheme},
    Field{L"ItalicAngle", &CFontMetrics::GetItalicAngle, &CFontMetrics::SetItalicAngle},
    Field{L"IsFixedPitch", &CFontMetrics::GetFixedPitch, &CFontMetrics::SetFixedPitch},
    Field{L"BBoxLLX", &CFontMetrics::GetBBoxLLX, &CFontMetrics::SetBBoxLLX},
    Field{L"BBoxLLY", &CFontMetrics::GetBBoxLLY, &CFontMetrics::SetBBoxLLY},
    Field{L"BBoxURX", &CFontMetrics::GetBBoxURX, &CFontMetrics::SetBBoxURX},
    Field{L"BBoxURY", &CFontMetrics::GetBBoxURY, &CFontMetrics::SetBBoxURY},
    Field{L"UnderlinePosition", &CFontMetrics::GetUnderlinePosition, &CFontMetrics::SetUnderlinePosition},
    Field{L"UnderlineThickness", &CFontMetrics::GetUnderlineThickness, &CFontMetrics::SetUnderlineThickness},
    Field{L"CapHeight", &CFontMetrics::GetCapHeight, &CFontMetrics::SetCapHeight},
    Field{L"XHeight", &CFontMetrics::GetXHeight, &CFontMetrics::SetXHeight},
    Field{L"Ascender", &CFontMetrics::GetAscender, &CFontMetrics::SetAscender},
    Field{L"Descender", &CFontMetrics::GetDescender, &CFontMetrics::SetDescender},
    Field{L"StdVW", &CFontMetrics::GetStemVW, &CFontMetrics::SetStemVW},
    Field{L"StdHW", &CFontMetrics::GetStemHW, &CFontMetrics::SetStemHW},
};

constexpr auto kCharFields = std::tuple{
    Field{L"Code", &CFontCharMetricsInfo::GetCode, &CFontCharMetricsInfo::SetCode},
    Field{L"WX", &CFontCharMetricsInfo::GetWX, &CFontCharMetricsInfo::SetWX},
    Field{L"WY", &CFontCharMetricsInfo::GetWY, &CFontCharMetricsInfo::SetWY},
    Field{L"Name", &CFontCharMetricsInfo::GetName, &CFontCharMetricsInfo::SetName},
    Field{L"BBoxLLX", &CFontCharMetricsInfo::GetBBoxLLX, &CFontCharMetricsInfo::SetBBoxLLX},
    Field{L"BBoxLLY", &CFontCharMetricsInfo::GetBBoxLLY, &CFontCharMetricsInfo::SetBBoxLLY},
    Field{L"BBoxURX", &CFontCharMetricsInfo::GetBBoxURX, &CFontCharMetricsInfo::SetBBoxURX},
    Field{L"BBoxURY", &CFontCharMetricsInfo::GetBBoxURY, &CFontCharMetricsInfo::SetBBoxURY},
};

constexpr auto kLigatureFields = std::tuple{
    Field{L"Successor", &CFontLigature::GetSuccessor, &CFontLigature::SetSuccessor},
    Field{L"Ligature", &CFontLigature::GetLigature, &CFontLigature::SetLigature},
};

constexpr auto kCodeRange = std::tuple{
    Field{L"FirstChar", &CFontMetrics::GetFirstChar, &CFontMetrics::SetFirstChar},
    Field{L"LastChar", &CFontMetrics::GetLastChar, &CFontMetrics::SetLastChar},
};

constexpr auto kUnicodeFont =
    Field{L"UnicodeFont", &CFontMetrics::GetUnicodeFont, &CFontMetrics::SetUnicodeFont};
constexpr auto kBold = Field{L"Bold", &CFontMetrics::GetBold, &CFontMetrics::SetBold};
constexpr auto kItalic = Field{L"Italic", &CFontMetrics::GetItalic, &CFontMetrics::SetItalic};
constexpr auto kFontFamilyName =
    Field{L"FontFamilyName", &CFontMetrics::GetFontFamilyName, &CFontMetrics::SetFontFamilyName};

constexpr auto kStyle = std::tuple{kUnicodeFont, kBold, kItalic, kFontFamilyName};

template <class Object, class Value>
void Read(RecordReader& record, const Field<Object, Value>& field, Object& object) {
  if constexpr (std::is_same_v<Value, const wchar_t*>) {
    if (zebxmln::CXMLNode* element = record.Take(field.Name)) (object.*field.Set)(element->GetNodeText());
  } else if constexpr (std::is_enum_v<Value>) {
    int value = 0;
    if (record.Read(field.Name, value)) (object.*field.Set)(static_cast<Value>(value));
  } else {
    Value value = {};
    if (record.Read(field.Name, value)) (object.*field.Set)(value);
  }
}

template <class Object, class Value>
void Write(RecordWriter& record, const Field<Object, Value>& field, const Object& object) {
  if constexpr (std::is_enum_v<Value>) {
    record.Write(field.Name, static_cast<int>((object.*field.Get)()));
  } else {
    record.Write(field.Name, (object.*field.Get)());
  }
}

template <class Fields, class Object>
void ReadAll(RecordReader& record, const Fields& fields, Object& object) {
  std::apply([&](const auto&... field) { (Read(record, field, object), ...); }, fields);
}

template <class Fields, class Object>
void WriteAll(RecordWriter& record, const Fields& fields, const Object& object) {
  std::apply([&](const auto&... field) { (Write(record, field, object), ...); }, fields);
}

std::unique_ptr<CFontCharMetricsInfo> ReadCharacter(zebxmln::CXMLNode* element) {
  RecordReader record(element);
  auto info = std::make_unique<CFontCharMetricsInfo>();
  ReadAll(record, kCharFields, *info);
  while (zebxmln::CXMLNode* child = record.Take(kLigatures)) {
    RecordReader ligatureRecord(child);
    auto ligature = std::make_unique<CFontLigature>();
    ReadAll(ligatureRecord, kLigatureFields, *ligature);
    info->AddLigature(ligature.get());
    static_cast<void>(ligature.release());
  }
  return info;
}

void WriteCharacter(RecordWriter& parent, const CFontCharMetricsInfo& info) {
  RecordWriter record(parent.Add(kCharMetricsInfo));
  WriteAll(record, kCharFields, info);
  for (int i = 0; i < info.GetLigatureCount(); ++i) {
    const CFontLigature* ligature = info.GetLigatureAt(i);
    if (ligature == nullptr) continue;
    RecordWriter ligatureRecord(record.Add(kLigatures));
    WriteAll(ligatureRecord, kLigatureFields, *ligature);
  }
}

void ReadCharacters(RecordReader& record, CFontMetrics& metrics) {
  while (zebxmln::CXMLNode* element = record.Take(kCharMetricsInfo)) {
    std::unique_ptr<CFontCharMetricsInfo> info = ReadCharacter(element);
    metrics.AddFontCharMetricsInfo(info.get());
    static_cast<void>(info.release());
  }
}

void WriteCharacters(RecordWriter& record, const CFontMetrics& metrics) {
  for (int i = 0; i < metrics.GetFontCharMetricsCount(); ++i) {
    const CFontCharMetricsInfo* info = metrics.GetFontCharMetricsAt(i);
    if (info != nullptr) WriteCharacter(record, *info);
  }
}

void ReadWidths(RecordReader& record, CFontMetrics& metrics) {
  int code = 0;
  while (zebxmln::CXMLNode* element = record.Take(kWidths)) {
    if (code < kMostWidths) metrics.SetWidthAt(code++, StringToUShort(element->GetNodeText()));
  }
}

void WriteWidths(RecordWriter& record, const CFontMetrics& metrics) {
  if (metrics.GetUnicodeFont()) return;
  for (int code = 0; code < kWrittenWidths; ++code)
    record.Write(kWidths, static_cast<int>(metrics.GetWidthAt(code)));
}

/// Whether the record is that of a TrueType font: only the fourth child is looked at.
bool IsTrueType(zebxmln::CXMLNode* node) {
  RecordReader record(node);
  for (int i = 0; i < 3; ++i) record.Next();
  int type = CFontMetrics::FontTypeType1;
  return record.Read(kFontType, type) && type == CFontMetrics::FontTypeTrueType;
}

std::vector<CFontCharMetricsInfo*> CharactersOf(const CFontMetrics& metrics) {
  std::vector<CFontCharMetricsInfo*> characters;
  for (int i = 0; i < metrics.GetFontCharMetricsCount(); ++i)
    characters.push_back(metrics.GetFontCharMetricsAt(i));
  return characters;
}

void GiveToPool(const CFontMetrics& metrics) {
  const CFontData* const data = metrics.GetFontData();
  CFontPool::GetInstance().SetFontData(metrics.GetBaseFont(), metrics.GetFontFamilyName(), metrics.GetBold(),
                                       metrics.GetItalic(), data == nullptr ? nullptr : data->GetData(),
                                       data == nullptr ? 0 : data->GetLength(), metrics.GetLocalizedNames());
}

}  // namespace

bool CFontInformation::Load(zebxmln::CXMLNode* node, CIDManager& /*ids*/) {
  if (m_pTrueTypeMetrics == nullptr && IsTrueType(node)) UseTrueTypeMetrics();
  m_bSystemProgram = false;
  RecordReader record(node);
  CFontMetrics& metrics = *m_pMetrics;
  ReadAll(record, kScalars, metrics);
  ReadCharacters(record, metrics);
  ReadAll(record, kCodeRange, metrics);
  ReadWidths(record, metrics);
  const zebxmln::CXMLNode* const length = record.Take(kFontDataLength);
  const bool hasProgram = ReadProgram(length, record.Take(kFontData));
  ReadAll(record, kStyle, metrics);
  if (!hasProgram && !TakeFromPool() && metrics.GetFontType() == CFontMetrics::FontTypeTrueType) {
    LoadFromSystem();
  }
  if (m_pMetrics->GetFontType() == CFontMetrics::FontTypeTrueType) ReadAgain(true);
  return true;
}

CFontInformation::ProgramPlace CFontInformation::PlaceOfProgram() {
  if (m_pMetrics == m_pTrueTypeMetrics) {
    return {m_pTrueTypeMetrics->m_pFontData, m_pTrueTypeMetrics->m_bFontDataOwner};
  }
  return {m_pPostscriptMetrics->m_pFontData, m_pPostscriptMetrics->m_bFontDataOwner};
}

void CFontInformation::ReplaceProgram(CFontData* data, bool owner) {
  // The metrics would free it.
  if (const ProgramPlace place = PlaceOfProgram(); !place.IsOwned) place.Data = nullptr;
  m_pMetrics->SetFontData(data, owner);
}

CFontData& CFontInformation::OwnProgram() {
  const ProgramPlace place = PlaceOfProgram();
  if (place.Data != nullptr && place.IsOwned) return *place.Data;
  auto* const program = new CFontData(false);
  ReplaceProgram(program, true);
  return *program;
}

// FontDataLength has no use but to empty what there was.
bool CFontInformation::ReadProgram(const zebxmln::CXMLNode* length, zebxmln::CXMLNode* content) {
  if (length != nullptr) ReplaceProgram(new CFontData(false), true);
  if (content == nullptr) return false;
  if (auto* const program = dynamic_cast<zebxmln::CXMLBinNode*>(content->GetFirstChildNode())) {
    void* bytes = nullptr;
    int count = 0;
    program->GetBinaryData(&bytes, &count);
    OwnProgram().AddFontMemData(bytes, count);
  }
  // Fixed behaviour: the element alone counts, whatever it holds.
  return true;
}

bool CFontInformation::TakeFromPool() {
  CFontData* const data = CFontPool::GetInstance().GetFontData(m_pMetrics->GetBaseFont());
  if (data != nullptr) ReplaceProgram(data, false);
  return data != nullptr;
}

void CFontInformation::ReadAgain(bool reuseData) {
  // The metrics that hold the name may be replaced while it is in use. It is needed for data that is there as well:
  // in the bytes of a collection it finds the font.
  const std::wstring name = m_pMetrics->GetBaseFont();
  const bool unicode = m_pMetrics->GetUnicodeFont();
  const int bold = m_pMetrics->GetBold();
  const bool italic = m_pMetrics->GetItalic();
  // A record whose type stands out of its place was read into PostScript metrics, which end here. Its characters
  // move on, since nobody could free them any more.
  const std::vector<CFontCharMetricsInfo*> characters =
      m_pMetrics == m_pTrueTypeMetrics ? std::vector<CFontCharMetricsInfo*>() : CharactersOf(*m_pMetrics);
  CTrueTypeFontMetrics& metrics = UseTrueTypeMetrics();
  for (CFontCharMetricsInfo* info : characters) metrics.AddFontCharMetricsInfo(info);
  ReadTT(name.c_str(), nullptr, nullptr, unicode, reuseData, bold, italic);
}

void CFontInformation::LoadFromSystem() {
  const std::wstring name = m_pMetrics->GetBaseFont();
  try {
    ReadAgain(false);
    GiveToPool(*m_pMetrics);
    m_bSystemProgram = !TakeFromPool();
  } catch (const CKXException&) {
    zeb::ThrowFontError(zeb::ErrorKeys::FontPoolIncomplete, name.c_str());
  }
}

bool CFontInformation::Save(zebxmln::CXMLNode* node, CIDManager& /*ids*/) {
  const CFontMetrics& metrics = *m_pMetrics;
  if (metrics.GetBase14Font() || metrics.GetCJKFont()) return true;
  RecordWriter record(node, kFontInformation);
  WriteAll(record, kScalars, metrics);
  WriteCharacters(record, metrics);
  WriteAll(record, kCodeRange, metrics);
  WriteWidths(record, metrics);
  Write(record, kUnicodeFont, metrics);
  record.WriteUnless(kBold.Name, metrics.GetBold(), 0);
  record.WriteUnless(kItalic.Name, metrics.GetItalic(), false);
  Write(record, kFontFamilyName, metrics);
  // Fixed behaviour: of a font that is used with glyph codes and has a subset, the pool gets the subset.
  GiveToPool(metrics);
  return true;
}
