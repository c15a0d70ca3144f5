#include "rtf/RTFParser.h"

#include "rtf/RTFKeywordTable.h"
#include "rtf/RTFPropertyTable.h"
#include "rtf/RTFState.h"
#include "rtf/RTFStore.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <new>
#include <string_view>

/// The byte that two hex digits make up, as far as they have been read.
struct CRTFParser::HexByte {
  static constexpr int kDigits = 2;

  bool HasBegun() const { return m_iDigitsLeft < kDigits; }

  int m_iDigitsLeft = kDigits;
  unsigned m_uValue = 0;
};

namespace {

/// The values of hex digits, -1 for any other byte.
constexpr std::array<int, 256> kHexDigits = [] {
  std::array<int, 256> values{};
  values.fill(-1);
  for (const std::string_view digits : {"0123456789abcdef", "0123456789ABCDEF"}) {
    for (std::size_t value = 0; value < digits.size(); ++value) {
      values[static_cast<unsigned char>(digits[value])] = static_cast<int>(value);
    }
  }
  return values;
}();

/// The quote and the two digits behind a backslash.
constexpr std::ptrdiff_t kHexByteLength = 3;

/// The value of a quote and two hex digits, -1 if anything else stands there.
int WholeHexByteAt(const unsigned char* from, const unsigned char* end) {
  if (end - from < kHexByteLength || from[0] != '\'') return -1;
  const int high = kHexDigits[from[1]];
  const int low = kHexDigits[from[2]];
  return high < 0 || low < 0 ? -1 : high * 16 + low;
}

/// Whether a byte of text is text and nothing else.
constexpr std::array<bool, 256> kPlain = [] {
  std::array<bool, 256> plain{};
  plain.fill(true);
  for (const char ch : {'\0', '\n', '\r', '\\', '{', '}'}) plain[static_cast<unsigned char>(ch)] = false;
  return plain;
}();

unsigned char* EndOfPlainBytes(unsigned char* from, unsigned char* end) {
  return std::find_if(from, end, [](unsigned char ch) { return !kPlain[ch]; });
}

}  // namespace

CRTFParser::CRTFParser(unsigned char* data, int length, CContextChangedHandler* handler,
                       CPictureConvertHandler* pictureHandler)
    : m_pCur(data),
      m_Size(length),
      m_pEnd(data + std::max(length, 0)),
      m_cGroup(0),
      m_rds(rdsNorm),
      m_ris(risNorm),
      m_pStack(nullptr),
      m_cbBin(0),
      m_lParam(0),
      m_bSkipDestIfUnknown(false),
      m_pPropTable(new PropertyRow[zeb::kRTFPropertyTable.size()]),
      m_pKeywordTable(new KeywordRow[zeb::kRTFKeywordTable.size()]),
      m_KeywordCount(zeb::kRTFKeywordCount),
      m_pCurFont(nullptr),
      m_pCurStyle(nullptr),
      m_pCurColor(nullptr),
      m_pContextHandler(handler),
      m_HexHigh(0),
      m_HexLow(0),
      m_pPicture(nullptr),
      m_GB2312Read(false),
      m_BigFiveRead(false),
      m_pCurList(nullptr),
      m_pCurLevel(nullptr),
      m_pPictureHandler(pictureHandler),
      m_PictureRead(false),
      m_InShpPict(false),
      m_InNonShpPict(false),
      m_InRow(false),
      m_CellFont(0),
      m_CellFontSize(0),
      m_CellBold(0),
      m_CellItalic(0),
      m_CellSuper(0),
      m_CellSub(0),
      m_cSkip(0),
      m_pBegin(data),
      m_pStore(new zeb::RTFStore) {
  std::copy(zeb::kRTFPropertyTable.begin(), zeb::kRTFPropertyTable.end(), m_pPropTable);
  std::copy(zeb::kRTFKeywordTable.begin(), zeb::kRTFKeywordTable.end(), m_pKeywordTable);
}

CRTFParser::CRTFParser(const CRTFParser& other) = default;
// NOLINTNEXTLINE(bugprone-reserved-identifier): the compiler's own name, for the array among the members
CRTFParser& CRTFParser::operator=(const CRTFParser& other) = default;

CRTFParser::~CRTFParser() {
  while (m_pStack != nullptr) {
    CRTFState* next = m_pStack->Next;
    delete m_pStack;
    m_pStack = next;
  }
  FreeOutput();
  try {
    FreeDestinationTables();
  } catch (const std::bad_alloc&) {
    // It takes memory to find out what is in the tables twice. Without any, the entries stay behind; the process goes on.
  }
  delete m_pStore;
  delete[] m_pKeywordTable;
  delete[] m_pPropTable;
}

std::wstring CRTFParser::GetTextContent() const { return m_TextBuffer; }

int CRTFParser::RtfParse() {
  m_pStore->m_bInHandler = false;
  try {
    return ParseData();
  } catch (const std::bad_alloc&) {
    // What a handler throws is its caller's to know.
    if (m_pStore->m_bInHandler) throw;
    return rtfNoMemory;
  }
}

int CRTFParser::ParseData() {
  char pending[2] = {0, 0};  // a hex byte that waits for a second one
  HexByte hex;
  for (;;) {
    const unsigned char ch = GetChar();
    if (ch == 0) {
      FlushPending(pending);
      if (m_cGroup < 0) return rtfStackUnderflow;
      return m_cGroup == 0 ? rtfOK : rtfUnmatchedBrace;
    }
    if (m_cGroup < 0) return rtfStackUnderflow;
    const int result = ParseByte(ch, hex, pending);
    if (result != rtfOK) return result;
  }
}

int CRTFParser::ParseByte(unsigned char ch, HexByte& hex, char* pending) {
  if (m_ris == risBin) {
    FlushPending(pending);
    return ParseChar(ch);
  }
  switch (ch) {
    case '\n':
    case '\r':
      return rtfOK;
    case '\\':
      if (!hex.HasBegun() && ParseHexBytes(pending)) return rtfOK;
      if (pending[0] != 0 && !NextIsHexByte()) FlushPending(pending);
      return ParseRtfKeyword();
    case '{':
      FlushPending(pending);
      return PushRtfState();
    case '}':
      FlushPending(pending);
      return PopRtfState();
    default:
      break;
  }
  if (m_ris == risHex) return ParseHexDigit(ch, hex, pending);
  if (m_ris != risNorm) return rtfBadState;
  FlushPending(pending);
  ParsePlainBytes(ch);
  return rtfOK;
}

bool CRTFParser::NextIsHexByte() {
  // Fixed behaviour: behind the last byte this goes back to the backslash, which is then read as its own keyword.
  const unsigned char next = GetChar();
  UnGetChar();
  return next == '\'';
}

void CRTFParser::FlushPending(char* pending) {
  if (pending[0] != 0) ParseMultiByteCharacter(pending, 1);
}

int CRTFParser::ParseHexDigit(unsigned char ch, HexByte& hex, char* pending) {
  const int digit = kHexDigits[ch];
  if (digit < 0) return rtfInvalidHex;
  hex.m_uValue = hex.m_uValue * 16 + static_cast<unsigned>(digit);
  if (--hex.m_iDigitsLeft > 0) return rtfOK;

  const char byte = static_cast<char>(hex.m_uValue);
  hex = HexByte();
  m_ris = risNorm;
  TakeHexByte(byte, pending);
  return rtfOK;
}

bool CRTFParser::ParseHexBytes(char* pending) {
  int byte = WholeHexByteAt(m_pCur, m_pEnd);
  if (byte < 0 || m_rds == rdsSkip) return false;
  m_bSkipDestIfUnknown = false;
  m_ris = risNorm;
  for (;;) {
    m_pCur += kHexByteLength;
    TakeHexByte(static_cast<char>(byte), pending);
    if (m_pCur == m_pEnd || *m_pCur != '\\') return true;
    byte = WholeHexByteAt(m_pCur + 1, m_pEnd);
    if (byte < 0) return true;
    ++m_pCur;
  }
}

void CRTFParser::TakeHexByte(char byte, char* pending) {
  if (m_cSkip > 0) {
    --m_cSkip;
  } else if (pending[0] == 0) {
    pending[0] = byte;
  } else {
    pending[1] = byte;
    ParseMultiByteCharacter(pending, 2);
  }
}

void CRTFParser::ParsePlainBytes(unsigned char ch) {
  if (m_cSkip > 0) {
    --m_cSkip;
  } else if (m_rds == rdsSkip) {
    m_pCur = EndOfPlainBytes(m_pCur, m_pEnd);
  } else if (m_rds == rdsNorm) {
    AppendPlainText(ch);
  } else {
    ParseMultiByteCharacter(ch);
  }
}

void CRTFParser::AppendPlainText(unsigned char ch) {
  // All bytes up to the next brace, backslash or line end go one way: through the code page into the text.
  const wchar_t* const characters = PlainByteCharacters();
  unsigned char* const from = m_pCur;
  m_pCur = EndOfPlainBytes(from, m_pEnd);
  const std::size_t length = m_TextBuffer.size();
  m_TextBuffer.resize(length + 1 + static_cast<std::size_t>(m_pCur - from));
  m_TextBuffer[length] = characters[ch];
  std::transform(from, m_pCur, m_TextBuffer.begin() + static_cast<std::ptrdiff_t>(length) + 1,
                 [characters](unsigned char byte) { return characters[byte]; });
}
