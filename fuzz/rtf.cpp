// RTF texts: any bytes end with a code of the table, whoever listens. Every record can be read during its call, and the
// tables of fonts, colours and styles until the parser goes.

#include "fonts/FontData.h"
#include "rtf/ContextChangedHandler.h"
#include "rtf/PictureConvertHandler.h"
#include "rtf/RTFColor.h"
#include "rtf/RTFContext.h"
#include "rtf/RTFFont.h"
#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStyleSheet.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <string>
#include <vector>

namespace {

/// Reads all that a record leads to.
class Reader : public CContextChangedHandler {
 public:
  void OnContextChanged(const wchar_t* text, CRTFContext* context) override {
    m_uSum += std::wcslen(text);
    if (context->Font != nullptr) m_uSum += std::wcslen(context->Font->GetFontFaceName());
    for (const CRTFColor* color : {context->ForeColor, context->BackColor}) {
      if (color != nullptr) m_uSum += color->GetRed();
    }
    if (context->List != nullptr) m_uSum += static_cast<std::size_t>(context->List->GetListId());
    if (context->Level != nullptr) m_uSum += std::wcslen(context->Level->GetListText());
    if (context->Picture != nullptr && context->Picture->GetLength() > 0) {
      m_uSum += context->Picture->GetData()[context->Picture->GetLength() - 1];
    }
    ReadState(*context->State);
  }

  void OnBookmark(std::wstring name, bool start) override { m_uSum += name.size() + (start ? 1 : 0); }

 private:
  void ReadState(const CRTFState& state) {
    const CDocumentProperties& document = state.DocProps;
    if (document.CurrentRow != nullptr) m_uSum += document.CurrentRow->Cells.size();
    if (document.CurrentCell != nullptr) m_uSum += static_cast<std::size_t>(document.CurrentCell->RightEdge);
    if (!document.Rows.empty()) m_uSum += document.Rows.back()->Cells.size();
    if (state.ParProps.TabCount > 100) std::abort();
  }

  std::size_t m_uSum = 0;
};

/// Converts some pictures, and claims nonsense for others.
class Converter : public CPictureConvertHandler {
 public:
  bool ConvertPicture(int format, const void* data, int length, int, void* out, int* outLength) override {
    const std::size_t count = static_cast<std::size_t>(std::clamp(length, 0, *outLength));
    if (count > 0) std::memcpy(out, data, count);
    *outLength = length % 3 == 0 ? -1 : length;
    return format == 5;
  }
};

int Parse(std::vector<unsigned char>& bytes, CContextChangedHandler* handler,
          CPictureConvertHandler* converter) {
  CRTFParser parser(bytes.data(), static_cast<int>(bytes.size()), handler, converter);
  const int result = parser.RtfParse();
  for (int id = -1; id < 3; ++id) {
    if (const CRTFFont* font = parser.GetFontAtID(id)) static_cast<void>(font->GetFontCharSet());
    if (const CRTFColor* color = parser.GetColorAtID(id)) static_cast<void>(color->GetBlue());
    if (const CRTFStyleSheet* style = parser.GetStyleSheetAtID(id))
      static_cast<void>(style->GetStyleSheetName());
  }
  return result;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::vector<unsigned char> bytes(data, data + size);
  Reader reader;
  Converter converter;
  const int result = Parse(bytes, &reader, &converter);
  if (result < CRTFParser::rtfOK || result > CRTFParser::rtfEndOfData) std::abort();
  // Who listens changes nothing.
  if (Parse(bytes, nullptr, nullptr) != result) std::abort();
  return 0;
}
