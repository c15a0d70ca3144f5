#include "fonts/FontRecords.h"

#include "fonts/BuiltInFonts.h"
#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/FontCharMetricsInfo.h"
#include "fonts/FontData.h"
#include "fonts/FontErrors.h"
#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "foundation/ErrorKeys.h"

#include <memory>

namespace zeb {

namespace {

constexpr ElementName kEncodingInformation = L"EncodingInformation";

// Fixed behaviour: a record whose name is in the list already is appended all the same; the first of a name is found.
void ReadEncodings(RecordReader& reader, CEncodings& encodings, CIDManager& ids) {
  int count = 0;
  while (zebxmln::CXMLNode* record = reader.Take(kEncodingInformation)) {
    if (count++ >= kMostEncodingsOfFile) continue;
    auto encoding = std::make_unique<CEncodingInformation>(&encodings);
    encoding->Load(record, ids);
    encodings.AddEncoding(encoding.get());
    static_cast<void>(encoding.release());
  }
}

void FreeCharactersOf(const CFontInformation& font) {
  const CFontMetrics& metrics = *font.GetFontMetrics();
  for (int i = 0; i < metrics.GetFontCharMetricsCount(); ++i) delete metrics.GetFontCharMetricsAt(i);
}

/// A font that is dropped takes the records of its characters along, which nobody else knows.
struct FontWithCharacters {
  void operator()(CFontInformation* font) const {
    FreeCharactersOf(*font);
    delete font;
  }
};

void ReadFonts(RecordReader& reader, CFonts& fonts, CIDManager& ids) {
  int count = 0;
  long long systemBytes = 0;
  while (zebxmln::CXMLNode* record = reader.Take(kFontInformation)) {
    if (count++ >= kMostFontsOfFile) continue;
    std::unique_ptr<CFontInformation, FontWithCharacters> font(new CFontInformation(&fonts));
    font->Load(record, ids);
    systemBytes += BytesFromSystem(*font);
    if (systemBytes > kMostSystemBytesOfFile) ThrowFontError(ErrorKeys::NoMoreMemoryLeft);
    fonts.AddFont(font.get());
    static_cast<void>(font.release());
  }
}

}  // namespace

int BytesFromSystem(const CFontInformation& font) {
  const CFontData* const program = font.GetFontMetrics()->GetFontData();
  if (!font.m_bSystemProgram || program == nullptr || program->m_pKeeper != nullptr) return 0;
  return program->GetLength();
}

void ReadFontRecords(RecordReader& reader, CGlobalFontHandler& handler, CIDManager& ids) {
  ReadFonts(reader, *handler.GetFonts(), ids);
  ReadEncodings(reader, *handler.GetEncodings(), ids);
}

void WriteFontRecords(zebxmln::CXMLNode* node, CGlobalFontHandler& handler, CIDManager& ids) {
  // A built-in font that nobody has asked for would only be made in order to write nothing.
  const CFonts& fonts = *handler.GetFonts();
  for (const CFonts::Entry& entry : fonts.m_Fonts) {
    if (CFontInformation* font = fonts.MadeFontOf(entry)) font->Save(node, ids);
  }
  CEncodings& encodings = *handler.GetEncodings();
  for (int i = 0; i < encodings.GetEncodingCount(); ++i) {
    if (CEncodingInformation* encoding = encodings.GetEncodingAt(i)) encoding->Save(node, ids);
  }
}

void FreeCharacters(const CGlobalFontHandler& handler) {
  // The built-in fonts stand first; they have no such records.
  const CFonts& fonts = *handler.GetFonts();
  for (int i = static_cast<int>(BuiltInFonts::kCount); i < fonts.GetFontCount(); ++i) {
    FreeCharactersOf(*fonts.GetFontAt(i));
  }
}

}  // namespace zeb
