#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontInformation.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLNode.h"

#include <memory>
#include <tuple>
#include <type_traits>

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

}  // namespace

bool CFontInformation::Load(zebxmln::CXMLNode* node, CIDManager& /*ids*/) {
  RecordReader record(node);
  CFontMetrics& metrics = *m_pMetrics;
  ReadAll(record, kScalars, metrics);
  ReadCharacters(record, metrics);
  ReadAll(record, kCodeRange, metrics);
  ReadWidths(record, metrics);
  Read(record, kUnicodeFont, metrics);
  Read(record, kBold, metrics);
  Read(record, kItalic, metrics);
  Read(record, kFontFamilyName, metrics);
  return true;
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
  return true;
}
