#include "rtf/RTFParser.h"

#include "rtf/RTFKeywordTable.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace {

// Further digits of a parameter are read and dropped.
constexpr int kMaxDigits = 19;

bool IsLetter(unsigned char ch) { return (ch >= 'a' && ch <= 'z') || (ch >= 'A' && ch <= 'Z'); }
bool IsDigit(unsigned char ch) { return ch >= '0' && ch <= '9'; }

int FindKeyword(const unsigned char* letters, std::size_t length) {
  return zeb::FindRTFKeyword({reinterpret_cast<const char*>(letters), length});
}

}  // namespace

int CRTFParser::ParseRtfKeyword() {
  // The keyword is looked up where it stands.
  const unsigned char* const keyword = m_pCur;
  m_pCur = std::find_if_not(m_pCur, m_pEnd, IsLetter);
  const std::size_t length = static_cast<std::size_t>(m_pCur - keyword);
  unsigned char ch = GetChar();
  if (length == 0) return ch != 0 ? ApplyKeyword(FindKeyword(keyword, 1), 0, false) : rtfEndOfData;
  // Fixed behaviour: the sign is read and has no effect, since a negative parameter is negated twice.
  if (ch == '-') {
    ch = GetChar();
    if (ch == 0) return rtfEndOfData;
  }
  int param = 0;
  const bool hasParam = IsDigit(ch);
  if (hasParam) ch = ReadParameter(ch, param);
  // Fixed behaviour: all blanks behind a keyword belong to it, not just the first.
  if (ch != ' ') UnGetChar();
  do {
    ch = GetChar();
  } while (ch == ' ');
  UnGetChar();
  return ApplyKeyword(FindKeyword(keyword, length), param, hasParam);
}

unsigned char CRTFParser::ReadParameter(unsigned char ch, int& param) {
  constexpr long long kMax = std::numeric_limits<int>::max();
  long long value = 0;
  for (int digits = 0; IsDigit(ch); ch = GetChar()) {
    if (digits++ < kMaxDigits) value = std::min(value * 10 + (ch - '0'), kMax);
  }
  param = static_cast<int>(value);
  m_lParam = param;
  return ch;
}

int CRTFParser::TranslateKeyword(char* keyword, int param, char hasParam) {
  return ApplyKeyword(zeb::FindRTFKeyword(keyword), param, hasParam != 0);
}

int CRTFParser::ApplyKeyword(int found, int param, bool hasParam) {
  const bool skipIfUnknown = m_bSkipDestIfUnknown;
  m_bSkipDestIfUnknown = false;
  if (found < 0) {
    if (skipIfUnknown) m_rds = rdsSkip;
    return rtfOK;
  }
  const KeywordRow& row = m_pKeywordTable[found];
  switch (row.Kind) {
    case kwdChar:
      return ParseChar(static_cast<unsigned char>(row.Index));
    case kwdDest:
      return ChangeDest(static_cast<IDEST>(row.Index));
    case kwdProp:
      return ApplyPropChange(static_cast<IPROP>(row.Index),
                             hasParam && row.PassDefault == 0 ? param : row.Default);
    case kwdSpec:
      return ParseSpecialKeyword(static_cast<IPFN>(row.Index));
    default:
      return rtfBadTable;
  }
}

int CRTFParser::ParseSpecialKeyword(IPFN keyword) {
  // Raw bytes of a skipped group are stepped over as well: a brace among them is none.
  if (m_rds == rdsSkip && keyword != ipfnBin) return rtfOK;
  switch (keyword) {
    case ipfnBin:
      m_ris = risBin;
      m_cbBin = m_lParam;
      return rtfOK;
    case ipfnHex:
      m_ris = risHex;
      return rtfOK;
    case ipfnSkipDest:
      m_bSkipDestIfUnknown = true;
      return rtfOK;
  }
  return rtfBadTable;
}
