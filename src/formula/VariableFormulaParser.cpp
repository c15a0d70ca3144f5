#include "formula/VariableFormulaParser.h"

#include "formula/FormulaCharacters.h"
#include "formula/FormulaNames.h"
#include "formula/VariableOperation.h"

#include <utility>

namespace {

bool IsInBrackets(std::wstring_view text) {
  return text.size() >= 3 && text.front() == gccVariablenKennzeichenAnfang &&
         text.back() == gccVariablenKennzeichenEnde;
}

}  // namespace

CVariableFormulaParser::CVariableFormulaParser(bool ignoreGrossKlein)
    : m_pVariablen(new NumberMap), m_pStringVariablen(new StringMap), m_IgnoreGrossKlein(ignoreGrossKlein) {
  m_Operationen.Append(GetVariableOperation());
}

CVariableFormulaParser::CVariableFormulaParser(const std::wstring& ausdruck, bool ignoreGrossKlein)
    : CFormulaParser(ausdruck),
      m_pVariablen(new NumberMap),
      m_pStringVariablen(new StringMap),
      m_IgnoreGrossKlein(ignoreGrossKlein) {
  m_Operationen.Append(GetVariableOperation());
}

CVariableFormulaParser::CVariableFormulaParser(const CVariableFormulaParser& other)
    : CFormulaParser(other),
      m_pVariablen(new NumberMap),
      m_pStringVariablen(new StringMap),
      m_IgnoreGrossKlein(false) {
  CVariableFormulaParser::operator=(other);
}

CVariableFormulaParser::~CVariableFormulaParser() {
  delete m_pVariablen;
  delete m_pStringVariablen;
}

CVariableFormulaParser& CVariableFormulaParser::operator=(const CVariableFormulaParser& other) {
  if (this == &other) return *this;
  m_pVariablen->insert(other.m_pVariablen->begin(), other.m_pVariablen->end());
  m_pStringVariablen->insert(other.m_pStringVariablen->begin(), other.m_pStringVariablen->end());
  m_GescannteVariablen = other.m_GescannteVariablen;
  m_ScanVariable = other.m_ScanVariable;
  m_QuotedVariable = other.m_QuotedVariable;
  m_IgnoreGrossKlein = other.m_IgnoreGrossKlein;
  m_WithStringFunctions = other.m_WithStringFunctions;
  CFormulaParser::operator=(other);
  return *this;
}

CVariableFormulaParser& CVariableFormulaParser::operator=(const std::wstring& ausdruck) {
  CFormulaParser::operator=(ausdruck);
  return *this;
}

CVariableFormulaParser& CVariableFormulaParser::operator=(const wchar_t* ausdruck) {
  CFormulaParser::operator=(ausdruck);
  return *this;
}

void CVariableFormulaParser::SetIgnoreGrossKlein(bool ignoreGrossKlein) {
  m_IgnoreGrossKlein = ignoreGrossKlein;
}

bool CVariableFormulaParser::GetIgnoreGrossKlein() const { return m_IgnoreGrossKlein; }

void CVariableFormulaParser::AddVariable(std::wstring name, double wert) {
  if (m_IgnoreGrossKlein) name = zeb::UpperCase(name);
  m_pVariablen->try_emplace(std::move(name), wert);
}

void CVariableFormulaParser::AddStringVariable(std::wstring name, std::wstring wert) {
  if (m_IgnoreGrossKlein) name = zeb::UpperCase(name);
  m_pStringVariablen->emplace(std::move(name), std::move(wert));
}

void CVariableFormulaParser::EnableQuotedVariable(bool enable) { m_QuotedVariable = enable; }

bool CVariableFormulaParser::IsQuotedVariableEnabled() const { return m_QuotedVariable; }

bool CVariableFormulaParser::ScanVariable() {
  // The parser computes again behind the scan, also where an exception of another family passes through.
  struct Scan {
    explicit Scan(bool& scanning) : m_bScanning(scanning) { m_bScanning = true; }
    ~Scan() { m_bScanning = false; }
    Scan(const Scan&) = delete;
    Scan& operator=(const Scan&) = delete;
    bool& m_bScanning;
  };
  const Scan scan(m_ScanVariable);
  m_GescannteVariablen.clear();
  return WerteAus(false);
}

const std::vector<std::wstring>& CVariableFormulaParser::GetVariable() const { return m_GescannteVariablen; }

void CVariableFormulaParser::Reset() {
  m_pVariablen->clear();
  m_pStringVariablen->clear();
  m_GescannteVariablen.clear();
  m_ScanVariable = false;
  m_IgnoreGrossKlein = false;
  m_QuotedVariable = false;
  CFormulaParser::Reset();
}

bool CVariableFormulaParser::IsValidVariablenName(std::wstring name, int& fehlerPos) {
  if (!HasQuote(name)) {
    if (name.empty()) return false;
    for (std::size_t i = 0; i < name.size(); ++i) {
      const wchar_t c = name[i];
      if (zeb::IsLetter(c) || c == L'#' || c == L'_' || (i > 0 && zeb::IsDigit(c))) continue;
      fehlerPos = static_cast<int>(i);
      return false;
    }
  }
  CVariableFormulaParser parser(name, false);
  parser.EnableQuotedVariable(false);
  parser.SetIgnoreGrossKlein(true);
  const bool good = parser.ScanVariable();
  fehlerPos = parser.GetErrPos();
  return good;
}

bool CVariableFormulaParser::HasQuote(const std::wstring& text) { return IsInBrackets(text); }

void CVariableFormulaParser::StripQuote(std::wstring& text) const {
  if (m_QuotedVariable && IsInBrackets(text)) text = text.substr(1, text.size() - 2);
}

bool CVariableFormulaParser::GetScanVariable() { return m_ScanVariable; }

// NOLINTBEGIN(performance-unnecessary-value-param): the signatures are fixed.
bool CVariableFormulaParser::LookupVariable(std::wstring name, double& wert) const {
  return FindVariable(name, wert);
}

bool CVariableFormulaParser::LookupStringVariable(std::wstring name, std::wstring& wert) const {
  return FindStringVariable(name, wert);
}
// NOLINTEND(performance-unnecessary-value-param)

void CVariableFormulaParser::AddGescannteVariable(std::wstring name) {
  StripQuote(name);
  m_GescannteVariablen.push_back(std::move(name));
}

void CVariableFormulaParser::AddGescannteStringVariable(std::wstring name) {
  AddGescannteVariable(std::move(name));
}

std::wstring_view CVariableFormulaParser::KeyOf(std::wstring_view name, std::wstring& buffer) const {
  if (m_QuotedVariable && IsInBrackets(name)) name = name.substr(1, name.size() - 2);
  if (!m_IgnoreGrossKlein) return name;
  buffer = zeb::UpperCase(name);
  return buffer;
}

bool CVariableFormulaParser::FindVariable(std::wstring_view name, double& wert) const {
  std::wstring buffer;
  const auto found = m_pVariablen->find(KeyOf(name, buffer));
  if (found == m_pVariablen->end()) return false;
  wert = found->second;
  return true;
}

bool CVariableFormulaParser::FindStringVariable(std::wstring_view name, std::wstring& wert) const {
  std::wstring buffer;
  const auto found = m_pStringVariablen->find(KeyOf(name, buffer));
  if (found == m_pStringVariablen->end()) return false;
  wert = found->second;
  return true;
}
