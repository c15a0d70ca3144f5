#include "formula/ReplaceVariableFormulaParser.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaNames.h"
#include "formula/ReplaceOperations.h"
#include "foundation/ErrorKeys.h"

#include <algorithm>
#include <utility>

CReplaceVariableFormulaParser::CReplaceVariableFormulaParser(bool ignoreGrossKlein)
    : CVariableFormulaParser(ignoreGrossKlein) {
  ReplaceOperationen();
}

CReplaceVariableFormulaParser::CReplaceVariableFormulaParser(const std::wstring& ausdruck,
                                                             bool ignoreGrossKlein)
    : CVariableFormulaParser(ausdruck, ignoreGrossKlein) {
  ReplaceOperationen();
}

CReplaceVariableFormulaParser::CReplaceVariableFormulaParser(const CVariableFormulaParser& other)
    : CVariableFormulaParser(other) {
  ReplaceOperationen();
}

CReplaceVariableFormulaParser::CReplaceVariableFormulaParser(const CReplaceVariableFormulaParser& other)
    : CVariableFormulaParser(other), m_Replace(other.m_Replace) {
  ReplaceOperationen();
}

CReplaceVariableFormulaParser::~CReplaceVariableFormulaParser() = default;

CReplaceVariableFormulaParser& CReplaceVariableFormulaParser::operator=(
    const CReplaceVariableFormulaParser& other) {
  if (this == &other) return *this;
  CVariableFormulaParser::operator=(other);
  m_Replace = other.m_Replace;
  m_bStripQuotes = other.m_bStripQuotes;
  m_bQuoteIfNeeded = other.m_bQuoteIfNeeded;
  m_bUnquoteIfPossible = other.m_bUnquoteIfPossible;
  m_Wildcards = other.m_Wildcards;
  return *this;
}

CReplaceVariableFormulaParser& CReplaceVariableFormulaParser::operator=(const CVariableFormulaParser& other) {
  CVariableFormulaParser::operator=(other);
  ReplaceOperationen();
  return *this;
}

CReplaceVariableFormulaParser& CReplaceVariableFormulaParser::operator=(const std::wstring& ausdruck) {
  CVariableFormulaParser::operator=(ausdruck);
  return *this;
}

CReplaceVariableFormulaParser& CReplaceVariableFormulaParser::operator=(const wchar_t* ausdruck) {
  CVariableFormulaParser::operator=(ausdruck);
  return *this;
}

bool CReplaceVariableFormulaParser::WerteAus(bool berechnen) {
  return CVariableFormulaParser::WerteAus(berechnen);
}

void CReplaceVariableFormulaParser::SetWithStringFunctions(bool withStringFunctions) {
  zeb::FormulaAccess::SwitchStringFunctions(*this, withStringFunctions, GetReplaceStringFunktionOperation());
}

void CReplaceVariableFormulaParser::SetIgnoreGrossKlein(bool ignoreGrossKlein) {
  if (ignoreGrossKlein != GetIgnoreGrossKlein())
    CVariableFormulaParser::SetIgnoreGrossKlein(ignoreGrossKlein);
}

void CReplaceVariableFormulaParser::AddReplace(std::wstring alt, std::wstring neu) {
  if (GetIgnoreGrossKlein()) alt = zeb::UpperCase(alt);
  StripQuote(alt);
  m_Replace.emplace(std::move(alt), std::move(neu));
}

void CReplaceVariableFormulaParser::AddWildcard(const wchar_t* wildcard) {
  m_Wildcards.emplace_back(wildcard);
}

bool CReplaceVariableFormulaParser::FindInWildcards(const wchar_t* name) {
  const std::wstring_view text = name;
  return std::any_of(m_Wildcards.begin(), m_Wildcards.end(),
                     [text](const std::wstring& wildcard) { return text.starts_with(wildcard); });
}

void CReplaceVariableFormulaParser::ResetReplace() { m_Replace.clear(); }

bool CReplaceVariableFormulaParser::Replace(bool stripQuotes, bool quoteIfNeeded, bool unquoteIfPossible) {
  m_bStripQuotes = stripQuotes;
  m_bQuoteIfNeeded = quoteIfNeeded;
  m_bUnquoteIfPossible = unquoteIfPossible;
  std::wstring before = m_Ausdruck;
  bool good = false;
  try {
    good = WerteAus(false);
  } catch (...) {
    m_Ausdruck = std::move(before);
    throw;
  }
  if (!good) m_Ausdruck = std::move(before);
  return good;
}

const wchar_t* CReplaceVariableFormulaParser::GetAusdruck() const { return m_Ausdruck.c_str(); }

bool CReplaceVariableFormulaParser::LookupReplace(std::wstring name) {
  if (GetIgnoreGrossKlein()) name = zeb::UpperCase(name);
  StripQuote(name);
  return m_Replace.find(name) != m_Replace.end() || FindInWildcards(name.c_str());
}

void CReplaceVariableFormulaParser::ReplaceAt(int pos, int laenge, int& neueLaenge) {
  if (pos < 0 || laenge < 0 || pos > GetLength() || laenge > GetLength() - pos) {
    zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  }
  std::wstring name = Mid(pos, laenge);
  const bool wasQuoted = HasQuote(name);
  if (wasQuoted) StripQuote(name);
  if (GetIgnoreGrossKlein()) name = zeb::UpperCase(name);
  const auto found = m_Replace.find(name);
  if (found == m_Replace.end() && !FindInWildcards(name.c_str())) {
    zeb::ThrowFormulaError(zeb::ErrorKeys::InternalParserError);
  }
  const std::wstring neu = QuotedAsAsked(found != m_Replace.end() ? found->second : name, wasQuoted);
  m_Ausdruck.replace(static_cast<std::size_t>(pos), static_cast<std::size_t>(laenge), neu);
  neueLaenge = static_cast<int>(neu.size());
}

std::wstring CReplaceVariableFormulaParser::QuotedAsAsked(std::wstring neu, bool wasQuoted) const {
  const bool isQuoted = HasQuote(neu);
  const bool keepsQuoting = !m_bStripQuotes && !m_bQuoteIfNeeded && !m_bUnquoteIfPossible;
  if (isQuoted && !keepsQuoting) neu = neu.substr(1, neu.size() - 2);
  if (m_bStripQuotes) return neu;

  bool wrap = wasQuoted && !isQuoted;
  if (!keepsQuoting) {
    int errorPosition = 0;
    const bool valid = IsValidVariablenName(neu, errorPosition);
    const bool quotedAnywhere = wasQuoted || isQuoted;
    wrap = (m_bQuoteIfNeeded && !valid) ||
           (m_bQuoteIfNeeded && !m_bUnquoteIfPossible && valid && quotedAnywhere) ||
           (!m_bQuoteIfNeeded && m_bUnquoteIfPossible && !valid && quotedAnywhere);
  }
  return wrap ? gccVariablenKennzeichenAnfang + neu + gccVariablenKennzeichenEnde : neu;
}

void CReplaceVariableFormulaParser::ReplaceOperationen() {
  ReplaceOperation(GetVariableOperation(), GetReplaceVariableOperation());
  if (m_WithStringFunctions)
    ReplaceOperation(GetStringFunktionOperation(), GetReplaceStringFunktionOperation());
}
