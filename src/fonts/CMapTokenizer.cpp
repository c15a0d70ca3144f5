#include "fonts/CMapTokenizer.h"

#include <array>

namespace zeb {

namespace {

constexpr std::size_t kMaxTokenLength = 255;
/// Fixed behaviour: this byte ends the data wherever it stands, inside strings and comments too.
constexpr unsigned char kEndOfData = 255;

enum class ByteClass : unsigned char { Regular, Whitespace, Delimiter };

constexpr std::array<ByteClass, 256> MakeByteClasses() {
  std::array<ByteClass, 256> classes{};
  for (const char byte : {'\0', '\t', '\n', '\f', '\r', ' '})
    classes[static_cast<unsigned char>(byte)] = ByteClass::Whitespace;
  for (const char byte : {'%', '(', ')', '/', '<', '>', '[', ']', '{', '}'}) {
    classes[static_cast<unsigned char>(byte)] = ByteClass::Delimiter;
  }
  return classes;
}

constexpr std::array<ByteClass, 256> kByteClasses = MakeByteClasses();

void Keep(std::string& token, unsigned char byte) {
  if (token.size() < kMaxTokenLength) token.push_back(static_cast<char>(byte));
}

}  // namespace

bool CMapTokenizer::NextToken(std::string& token) {
  token.clear();
  unsigned char first = 0;
  if (!FirstByte(first)) return false;
  Keep(token, first);
  switch (first) {
    case '(':
      ReadString(token);
      break;
    case '<':
      ReadHexString(token);
      break;
    case '[':
    case ']':
      break;
    default:
      ReadWord(token);
  }
  return true;
}

bool CMapTokenizer::NextByte(unsigned char& byte) {
  if (!m_Text.Next(byte)) return false;
  if (byte != kEndOfData) return true;
  m_Text.MoveToEnd();
  return false;
}

bool CMapTokenizer::FirstByte(unsigned char& byte) {
  while (NextByte(byte)) {
    if (byte == '%') {
      PassComment();
    } else if (kByteClasses[byte] != ByteClass::Whitespace) {
      return true;
    }
  }
  return false;
}

void CMapTokenizer::PassComment() {
  unsigned char byte = 0;
  while (NextByte(byte) && byte != '\n' && byte != '\r') {
  }
}

void CMapTokenizer::ReadString(std::string& token) {
  // Fixed behaviour: brackets inside are not counted, and one backslash before `)` is enough, itself escaped or not.
  unsigned char before = 0;
  unsigned char byte = 0;
  while (NextByte(byte)) {
    Keep(token, byte);
    if (byte == ')' && before != '\\') return;
    before = byte;
  }
}

void CMapTokenizer::ReadHexString(std::string& token) {
  unsigned char byte = 0;
  while (NextByte(byte)) {
    Keep(token, byte);
    if (byte == '>') return;
  }
}

void CMapTokenizer::ReadWord(std::string& token) {
  unsigned char byte = 0;
  while (NextByte(byte)) {
    if (kByteClasses[byte] != ByteClass::Regular) {
      m_Text.StepBack();
      return;
    }
    Keep(token, byte);
  }
}

}  // namespace zeb
