#include "fonts/Encodings.h"

#include "fonts/EncodingInformation.h"
#include "fonts/EncodingTables.h"
#include "fonts/PDFCharCollName.h"
#include "fonts/PredefinedCMaps.h"

#include <cwchar>
#include <memory>

namespace {

/// Whether this is the first call for the flag.
bool FirstTime(bool& done) {
  if (done) return false;
  done = true;
  return true;
}

std::unique_ptr<CEncodingInformation> MakeStandard(CEncodings* owner, const wchar_t* internalName,
                                                   const wchar_t* pdfName) {
  auto encoding = std::make_unique<CEncodingInformation>(owner);
  encoding->SetInternalName(internalName);
  encoding->SetPDFName(pdfName);
  encoding->SetStandardEncoding(true);
  return encoding;
}

void Fill(CEncodingInformation& encoding, const zeb::EncodingTable& table) {
  int code = 0;
  for (const zeb::EncodingRow& row : table) {
    encoding.SetUnicodeAt(code, row.unicode);
    encoding.SetCharNameAt(code, row.name);
    ++code;
  }
}

}  // namespace

CEncodings::CEncodings(CGlobalFontHandler* owner)
    : m_pOwner(owner),
      m_bWinAnsiAdded(false),
      m_bCP1250Added(false),
      m_bFontSpecificAdded(false),
      m_bCharCollNamesAdded(false),
      m_bCMapsAdded(false) {
  AddCMaps();
  AddCharCollNames();
  AddWinAnsiEncoding();
  AddFontSpecificEncoding();
}

CEncodings::CEncodings(const CEncodings& other) = default;

CEncodings::~CEncodings() {
  for (const CEncodingInformation* encoding : m_rgpEncodings) delete encoding;
  for (const CPDFCharCollName* name : m_rgpCharCollNames) delete name;
}

CEncodings& CEncodings::operator=(const CEncodings& other) = default;

void CEncodings::AddEncoding(CEncodingInformation* encoding) { m_rgpEncodings.push_back(encoding); }

void CEncodings::RemoveEncodingAt(int index) { m_rgpEncodings.erase(m_rgpEncodings.begin() + index); }

int CEncodings::GetEncodingCount() const { return static_cast<int>(m_rgpEncodings.size()); }

CEncodingInformation* CEncodings::GetEncodingAt(int index) {
  if (m_rgpEncodings.empty()) AddWinAnsiEncoding();
  return m_rgpEncodings[static_cast<std::size_t>(index)];
}

CEncodingInformation* CEncodings::FindEncoding(const wchar_t* internalName) {
  // Fixed behaviour: taking an entry out leaves its flag set, so a list that was emptied stays empty.
  if (m_rgpEncodings.empty()) AddWinAnsiEncoding();
  if (internalName == nullptr) return nullptr;
  for (CEncodingInformation* encoding : m_rgpEncodings) {
    if (std::wcscmp(encoding->GetInternalName(), internalName) == 0) return encoding;
  }
  return nullptr;
}

CPDFCharCollName* CEncodings::GetCharCollNameAt(CFontMetrics::CharColl collection) const {
  for (CPDFCharCollName* name : m_rgpCharCollNames) {
    if (name->GetCharColl() == collection) return name;
  }
  return nullptr;
}

void CEncodings::AddCMaps() {
  if (!FirstTime(m_bCMapsAdded)) return;
  for (const zeb::PredefinedCMap& cmap : zeb::kPredefinedCMaps) {
    auto encoding = MakeStandard(this, cmap.name, L"");
    encoding->SetCharColl(cmap.collection);
    AddEncoding(encoding.release());
  }
}

void CEncodings::AddCharCollNames() {
  if (!FirstTime(m_bCharCollNamesAdded)) return;
  for (const zeb::CharacterCollection& collection : zeb::kCharacterCollections) {
    auto name = std::make_unique<CPDFCharCollName>();
    name->SetCharColl(collection.collection);
    name->SetOrdering(collection.ordering);
    name->SetSupplement(collection.supplement);
    m_rgpCharCollNames.push_back(name.release());
  }
}

void CEncodings::AddWinAnsiEncoding() {
  if (!FirstTime(m_bWinAnsiAdded)) return;
  auto encoding = MakeStandard(this, L"winansi1252", L"WinAnsiEncoding");
  Fill(*encoding, zeb::kWinAnsiEncoding);
  AddEncoding(encoding.release());
}

void CEncodings::AddCP1250Encoding() {
  if (!FirstTime(m_bCP1250Added)) return;
  auto encoding = MakeStandard(this, L"winansi1250", L"");
  Fill(*encoding, zeb::kCP1250Encoding);
  AddEncoding(encoding.release());
}

void CEncodings::AddFontSpecificEncoding() {
  if (!FirstTime(m_bFontSpecificAdded)) return;
  auto encoding = MakeStandard(this, L"fontspecific", L"FontSpecific");
  for (int code = 0; code < 256; ++code) encoding->SetUnicodeAt(code, static_cast<unsigned short>(code));
  AddEncoding(encoding.release());
}
