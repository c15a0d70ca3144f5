#include "fonts/EncodingInformation.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLNode.h"

namespace {

constexpr int kCodes = 256;

constexpr zeb::ElementName kEncodingInformation = L"EncodingInformation";
constexpr zeb::ElementName kInternalName = L"InternalName";
constexpr zeb::ElementName kPDFName = L"PDFName";
constexpr zeb::ElementName kUnicodes = L"Unicodes";
constexpr zeb::ElementName kCharNames = L"CharNames";

}  // namespace

CEncodingInformation::CEncodingInformation(CEncodings* owner)
    : m_pUnicodes(new unsigned short[kCodes]()),
      m_pCharNames(nullptr),
      m_CharColl(static_cast<CFontMetrics::CharColl>(-1)),
      m_pOwner(owner),
      m_bStandardEncoding(false) {
  m_pCharNames = new std::wstring[kCodes];
}

CEncodingInformation::CEncodingInformation(const CEncodingInformation& other) = default;

CEncodingInformation::~CEncodingInformation() {
  delete[] m_pUnicodes;
  delete[] m_pCharNames;
}

CEncodingInformation& CEncodingInformation::operator=(const CEncodingInformation& other) = default;

bool CEncodingInformation::Load(zebxmln::CXMLNode* node, CIDManager& /*ids*/) {
  zeb::RecordReader record(node);
  record.Read(kInternalName, m_strInternalName);
  record.Read(kPDFName, m_strPDFName);
  for (int code = 0; record.Is(kUnicodes); ++code, record.Next()) {
    if (code < kCodes) SetUnicodeAt(code, StringToUShort(record.Current()->GetNodeText()));
  }
  for (int code = 0; record.Is(kCharNames); ++code, record.Next()) {
    if (code < kCodes) SetCharNameAt(code, record.Current()->GetNodeText());
  }
  return true;
}

bool CEncodingInformation::Save(zebxmln::CXMLNode* node, CIDManager& /*ids*/) {
  if (m_bStandardEncoding) return true;
  zeb::RecordWriter record(node, kEncodingInformation);
  record.Write(kInternalName, m_strInternalName);
  record.Write(kPDFName, m_strPDFName);
  for (int code = 0; code < kCodes; ++code) record.Write(kUnicodes, static_cast<int>(GetUnicodeAt(code)));
  for (int code = 0; code < kCodes; ++code) record.Write(kCharNames, GetCharNameAt(code));
  return true;
}

const wchar_t* CEncodingInformation::GetInternalName() const { return m_strInternalName.c_str(); }
void CEncodingInformation::SetInternalName(const wchar_t* name) { m_strInternalName = name; }
const wchar_t* CEncodingInformation::GetPDFName() const { return m_strPDFName.c_str(); }
void CEncodingInformation::SetPDFName(const wchar_t* name) { m_strPDFName = name; }
CFontMetrics::CharColl CEncodingInformation::GetCharColl() const { return m_CharColl; }
void CEncodingInformation::SetCharColl(CFontMetrics::CharColl collection) { m_CharColl = collection; }
bool CEncodingInformation::GetStandardEncoding() const { return m_bStandardEncoding; }

void CEncodingInformation::SetStandardEncoding(bool standardEncoding) {
  m_bStandardEncoding = standardEncoding;
}

unsigned short CEncodingInformation::GetUnicodeAt(int code) const { return m_pUnicodes[code]; }
void CEncodingInformation::SetUnicodeAt(int code, unsigned short unicode) { m_pUnicodes[code] = unicode; }
const wchar_t* CEncodingInformation::GetCharNameAt(int code) const { return m_pCharNames[code].c_str(); }
void CEncodingInformation::SetCharNameAt(int code, const wchar_t* name) { m_pCharNames[code] = name; }
