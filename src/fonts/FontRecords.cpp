#include "fonts/FontRecords.h"

#include "fonts/EncodingInformation.h"
#include "fonts/Encodings.h"
#include "fonts/GlobalFontHandler.h"

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

}  // namespace

void ReadFontRecords(RecordReader& reader, CGlobalFontHandler& handler, CIDManager& ids) {
  while (reader.Is(kFontInformation)) reader.Next();
  ReadEncodings(reader, *handler.GetEncodings(), ids);
}

void WriteFontRecords(zebxmln::CXMLNode* node, CGlobalFontHandler& handler, CIDManager& ids) {
  CEncodings& encodings = *handler.GetEncodings();
  for (int i = 0; i < encodings.GetEncodingCount(); ++i) {
    if (CEncodingInformation* encoding = encodings.GetEncodingAt(i)) encoding->Save(node, ids);
  }
}

}  // namespace zeb
