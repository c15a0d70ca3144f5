#include "formula/FormulaParser.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaWalk.h"
#include "formula/Operation.h"
#include "formula/StringOperations.h"
#include "formula/UsualOperations.h"
#include "foundation/ErrorKeys.h"
#include "foundation/KXException.h"
#include "foundation/Rounding.h"

#include <algorithm>
#include <cctype>
#include <clocale>
#include <cmath>

const wchar_t gccVariablenKennzeichenAnfang = L'[';
const wchar_t gccVariablenKennzeichenEnde = L']';
const wchar_t gccConstStringKennzeichen = L'"';
const double E = std::exp(1.0);

namespace {

double InitialPi() { return 2.0 * std::asin(1.0); }

/// The sharp s as a signed Latin-1 byte.
constexpr int kSharpS = -33;

int Wrapped(int c) { return c < 0 ? c + 256 : c; }

bool IsGermanLetter(int c) { return c == kSharpS || CFormulaParser::IstUmlaut(c); }

/// Whether the standard library may be asked about a value.
bool IsByte(int c) { return c >= 0 && c <= 255; }

}  // namespace

CFormulaParser::CFormulaParser() : m_Winkelmas(InitialPi() / 200), m_PI(InitialPi()) { CreateOperationen(); }

CFormulaParser::CFormulaParser(const std::wstring& ausdruck)
    : m_Ausdruck(ausdruck), m_Winkelmas(InitialPi() / 200), m_PI(InitialPi()) {
  CreateOperationen();
}

CFormulaParser::CFormulaParser(const CFormulaParser& other)
    : m_Winkelmas(InitialPi() / 200), m_PI(InitialPi()) {
  CFormulaParser::operator=(other);
}

CFormulaParser::~CFormulaParser() = default;

CFormulaParser& CFormulaParser::operator=(const CFormulaParser& other) {
  if (this == &other) return *this;
  m_Wert = other.m_Wert;
  m_ErrorCode = other.m_ErrorCode;
  m_Winkelmas = other.m_Winkelmas;
  m_PI = other.m_PI;
  m_Berechnen = other.m_Berechnen;
  m_Pos = other.m_Pos;
  m_Funktionen = other.m_Funktionen;
  m_FunktionenEx = other.m_FunktionenEx;
  m_Ausdruck = other.m_Ausdruck;
  m_KommentarGeschweifteKlammer = other.m_KommentarGeschweifteKlammer;
  m_KommentarHochkomma = other.m_KommentarHochkomma;
  m_Operationen = other.m_Operationen;
  return *this;
}

CFormulaParser& CFormulaParser::operator=(const std::wstring& ausdruck) {
  m_Ausdruck = ausdruck;
  return *this;
}

CFormulaParser& CFormulaParser::operator=(const wchar_t* ausdruck) {
  m_Ausdruck = ausdruck == nullptr ? L"" : ausdruck;
  return *this;
}

bool CFormulaParser::WerteAus(bool berechnen) {
  m_Berechnen = berechnen;
  m_Pos = 0;
  m_Wert = 0.0;
  m_Schachtelung = 0;
  if (m_Operationen.empty()) return true;
  try {
    m_Wert = m_Ausdruck.empty() ? 0.0 : EvalText();
    m_ErrorCode = 0;
    if (m_Pos < GetLength()) zeb::ThrowFormulaError(zeb::ErrorKeys::ArithmeticOperatorExpected);
  } catch (const CKXParserException& exception) {
    m_ErrorCode = exception.GetErrorNr();
    m_ErrorMessage = exception.GetErrorMessage();
    return false;
  }
  return true;
}

double CFormulaParser::EvalText() {
  zeb::WalkedLanguage language;
  if (zeb::FormulaWalk::Knows(m_Operationen, language)) return zeb::FormulaWalk(*this, language).Expression();
  return GetFirstOperation()->Eval(m_Pos, this);
}

const wchar_t* CFormulaParser::GetErrorMessage() const { return m_ErrorMessage.c_str(); }

void CFormulaParser::SetWithStringFunctions(bool withStringFunctions) {
  zeb::FormulaAccess::SwitchStringFunctions(*this, withStringFunctions, GetStringFunktionOperation());
}

double CFormulaParser::GetWert() const { return m_Wert; }
int CFormulaParser::GetErrorCode() const { return m_ErrorCode; }
int CFormulaParser::GetErrPos() const { return m_ErrorCode != 0 ? m_Pos : 0; }
bool CFormulaParser::GetBerechnen() const { return m_Berechnen; }
void CFormulaParser::SetBerechnen(bool berechnen) { m_Berechnen = berechnen; }
double CFormulaParser::GetPI() const { return m_PI; }

void CFormulaParser::SetPI(double pi) {
  const double halfCircle = m_PI / m_Winkelmas;
  Winkelmas unit = Neugrad;
  if (RundeDouble(halfCircle - 180, 1, 1, true) == 0.0) {
    unit = Altgrad;
  } else if (RundeDouble(halfCircle - m_PI, 1, 1, true) == 0.0) {
    unit = Bogenmass;
  }
  m_PI = pi;
  SetWinkelmas(unit);
}

double CFormulaParser::GetWinkelmas() const { return m_Winkelmas; }

void CFormulaParser::SetWinkelmas(Winkelmas winkelmas) {
  switch (winkelmas) {
    case Altgrad:
      m_Winkelmas = m_PI / 180;
      break;
    case Bogenmass:
      m_Winkelmas = 1.0;
      break;
    case Neugrad:
      m_Winkelmas = m_PI / 200;
      break;
  }
}

int CFormulaParser::GetFunktionen() const { return m_Funktionen; }
void CFormulaParser::SetFunktionen(int funktionen) { m_Funktionen = funktionen; }
int CFormulaParser::GetFunktionenEx() const { return m_FunktionenEx; }
void CFormulaParser::SetFunktionenEx(int funktionen) { m_FunktionenEx = funktionen; }
void CFormulaParser::EnableKommentarGeschweifteKlammer(bool enable) {
  m_KommentarGeschweifteKlammer = enable;
}
void CFormulaParser::EnableKommentarHochkomma(bool enable) { m_KommentarHochkomma = enable; }

bool CFormulaParser::IstKommentarEnde(wchar_t c) const {
  return (c == L'}' && m_KommentarGeschweifteKlammer) || (c == L'\'' && m_KommentarHochkomma);
}

void CFormulaParser::EatWhite() {
  bool inBraces = false;
  bool inQuotes = false;
  for (const int length = GetLength(); m_Pos < length; ++m_Pos) {
    const wchar_t c = m_Ausdruck[static_cast<std::size_t>(m_Pos)];
    if (c == L'\'' && m_KommentarHochkomma) {
      if (!inBraces) inQuotes = !inQuotes;
    } else if (c == L'{' && m_KommentarGeschweifteKlammer) {
      if (inBraces) zeb::ThrowFormulaError(zeb::ErrorKeys::NestedComment);
      inBraces = !inQuotes;
    } else if (c == L'}' && m_KommentarGeschweifteKlammer) {
      if (!inBraces && !inQuotes) zeb::ThrowFormulaError(zeb::ErrorKeys::CommentBeginMissing);
      inBraces = false;
    } else if (!inBraces && !inQuotes && !zeb::IsBlank(c)) {
      return;
    }
  }
  if (inBraces) zeb::ThrowFormulaError(zeb::ErrorKeys::CommentEndMissing);
  if (inQuotes) zeb::ThrowFormulaError(zeb::ErrorKeys::CommentEndMissing2);
}

wchar_t CFormulaParser::GetAt(int index) const { return m_Ausdruck[static_cast<std::size_t>(index)]; }

int CFormulaParser::GetLength() const { return static_cast<int>(m_Ausdruck.size()); }

std::wstring CFormulaParser::Left(int n) const { return Mid(0, n); }

std::wstring CFormulaParser::Mid(int from) const { return Mid(from, GetLength()); }

std::wstring CFormulaParser::Mid(int from, int n) const {
  const int start = std::clamp(from, 0, GetLength());
  return m_Ausdruck.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(std::max(n, 0)));
}

void CFormulaParser::Reset() {
  m_Wert = 0.0;
  m_ErrorCode = 0;
  m_Pos = 0;
  m_Berechnen = true;
  m_Winkelmas = m_PI / 200;
  m_Funktionen = -1;
  m_FunktionenEx = 0;
  m_Ausdruck.clear();
  m_KommentarGeschweifteKlammer = true;
  m_KommentarHochkomma = true;
}

int CFormulaParser::FindFinalGleich(std::wstring text) {
  std::size_t found = text.find(L'=');
  while (found != std::wstring::npos) {
    const bool partOfComparison = found > 0 && (text[found - 1] == L'<' || text[found - 1] == L'>');
    const bool doubled = found + 1 < text.size() && text[found + 1] == L'=';
    if (!partOfComparison && !doubled) return static_cast<int>(found);
    found = text.find(L'=', found + (partOfComparison ? 1 : 2));
  }
  return -1;
}

const std::wstring& CFormulaParser::GetWinsysDez() {
  static std::wstring decimalPoint;
  decimalPoint.assign(1, static_cast<wchar_t>(static_cast<unsigned char>(*std::localeconv()->decimal_point)));
  return decimalPoint;
}

// Fixed behaviour: the wrap at the top comes first, so that an umlaut's signed byte is never met by what follows.
bool CFormulaParser::Isalnum(int c) {
  const int code = Wrapped(c);
  return IsGermanLetter(code) || (IsByte(code) && std::isalnum(code) != 0);
}

bool CFormulaParser::Isalpha(int c) {
  const int code = Wrapped(c);
  return IsGermanLetter(code) || (IsByte(code) && std::isalpha(code) != 0);
}

bool CFormulaParser::Isdigit(int c) {
  const int code = Wrapped(c);
  return !IsGermanLetter(code) && IsByte(code) && std::isdigit(code) != 0;
}

bool CFormulaParser::Isspace(int c) {
  const int code = Wrapped(c);
  return !IsGermanLetter(code) && IsByte(code) && std::isspace(code) != 0;
}

bool CFormulaParser::IstUmlaut(int c) {
  return c == -4 || c == -36 || c == -10 || c == -42 || c == -28 || c == -60;
}

void CFormulaParser::CreateOperationen() {
  for (Operation* const operation : zeb::GetUsualOperations().plain) m_Operationen.Append(operation);
}

Operation* CFormulaParser::GetFirstOperation() { return m_Operationen.empty() ? nullptr : m_Operationen[0]; }

Operation* CFormulaParser::GetNextOperation(Operation* operation) {
  const std::size_t next = m_Operationen.Find(operation) + 1;
  return next < m_Operationen.size() ? m_Operationen[next] : nullptr;
}

void CFormulaParser::InsertOperationBefore(Operation* neu, Operation* vor) {
  const std::size_t index = m_Operationen.Find(vor);
  if (index < m_Operationen.size()) m_Operationen.Insert(index, neu);
}

void CFormulaParser::ReplaceOperation(Operation* alt, Operation* neu) {
  std::size_t index = m_Operationen.Find(alt);
  if (index == m_Operationen.size()) return;
  m_Operationen.Insert(index, neu);
  while ((index = m_Operationen.Find(alt)) < m_Operationen.size()) m_Operationen.Remove(index);
}

void CFormulaParser::DeleteOperation(Operation* operation) {
  const std::size_t index = m_Operationen.Find(operation);
  if (index < m_Operationen.size()) m_Operationen.Remove(index);
}
