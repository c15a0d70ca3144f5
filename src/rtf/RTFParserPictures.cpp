#include "fonts/FontData.h"
#include "foundation/KXException.h"
#include "rtf/PictureConvertHandler.h"
#include "rtf/RTFParser.h"
#include "rtf/RTFStore.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <new>
#include <vector>

// Pictures: which ones are read, their hex digits, and their conversion by the caller.

namespace {

constexpr int kConvertedRoom = 2097152;
/// A store grows by this many bytes. Small pictures take a smaller one, so that thousands of them cost little.
constexpr std::size_t kStoreChunk = 65535;

enum PictureFormat : int { formatAsIs = 0, formatPng = 2, formatEmf = 5 };

constexpr unsigned char ToUpper(unsigned char ch) {
  return ch >= 'a' && ch <= 'z' ? static_cast<unsigned char>(ch - ('a' - 'A')) : ch;
}

/// Fixed behaviour: digits are not checked; any other character than 0 to 9 counts as a letter behind 9.
constexpr unsigned DigitValue(unsigned char upperCased) {
  const bool isDigit = upperCased >= '0' && upperCased <= '9';
  return static_cast<unsigned>(upperCased) - static_cast<unsigned>(isDigit ? '0' : '7');
}

/// What stands between the digits of a picture, and what ends them.
constexpr unsigned kNoDigit = 0x100;

/// The lowest byte of each character's value as a digit, or kNoDigit.
constexpr std::array<std::uint16_t, 256> kDigits = [] {
  std::array<std::uint16_t, 256> digits{};
  for (std::size_t ch = 0; ch < digits.size(); ++ch) {
    digits[ch] = static_cast<unsigned char>(DigitValue(ToUpper(static_cast<unsigned char>(ch))));
  }
  for (const char ch : {'\0', '\n', '\r', '\\', '{', '}'}) digits[static_cast<unsigned char>(ch)] = kNoDigit;
  return digits;
}();

/// A new store, owned by the caller.
CFontData* MakeStore(unsigned char* bytes, std::size_t count) {
  const std::size_t chunk = std::clamp<std::size_t>(count, 1, kStoreChunk);
  try {
    auto store = std::make_unique<CFontData>(static_cast<int>(chunk), false);
    store->AddFontMemData(bytes, static_cast<int>(std::min<std::size_t>(count, INT_MAX)));
    return store.release();
  } catch (const CKXException&) {
    // A store fails for lack of memory alone.
    throw std::bad_alloc();
  }
}

}  // namespace

int CRTFParser::ParsePictureProperty(IPROP prop) {
  m_InShpPict = prop == ipropShpPict;
  m_InNonShpPict = !m_InShpPict;
  return rtfOK;
}

void CRTFParser::ParsePictureByte() {
  if (m_InShpPict) {
    UnGetChar();
    ReadPictureData();
    m_PictureRead = true;
    m_InShpPict = false;
  } else if (m_InNonShpPict) {
    if (!m_PictureRead) {
      UnGetChar();
      ReadPictureData();
    }
    m_PictureRead = false;
    m_InNonShpPict = false;
  }
}

void CRTFParser::ReadPictureDigits(std::vector<unsigned char>& bytes) {
  m_HexHigh = 0;
  m_HexLow = 0;
  bool highRead = false;
  for (;;) {
    if (!highRead) ReadDigitPairs(bytes);
    const unsigned char* const before = m_pCur;
    const unsigned char ch = GetChar();
    if (ch == 0 || ch == '\\' || ch == '{' || ch == '}') {
      // The byte that ends the picture is for the loop of RtfParse. Behind the last byte there is none.
      if (m_pCur != before) UnGetChar();
      return;
    }
    if (ch == '\n' || ch == '\r') continue;
    if (highRead) {
      m_HexLow = ToUpper(ch);
      bytes.push_back(static_cast<unsigned char>(DigitValue(m_HexHigh) * 16 + DigitValue(m_HexLow)));
    } else {
      m_HexHigh = ToUpper(ch);
    }
    highRead = !highRead;
  }
}

void CRTFParser::ReadDigitPairs(std::vector<unsigned char>& bytes) {
  // NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): read only as far as it was filled
  std::array<unsigned char, 512> read;
  std::size_t count = 0;
  do {
    for (count = 0; count < read.size() && m_pEnd - m_pCur >= 2; ++count) {
      const unsigned high = kDigits[m_pCur[0]];
      const unsigned low = kDigits[m_pCur[1]];
      if (((high | low) & kNoDigit) != 0) break;
      m_pCur += 2;
      read[count] = static_cast<unsigned char>(high * 16 + low);
    }
    if (count > 0) {
      m_HexHigh = ToUpper(m_pCur[-2]);
      m_HexLow = ToUpper(m_pCur[-1]);
    }
    bytes.insert(bytes.end(), read.begin(), read.begin() + count);
  } while (count == read.size());
}

void CRTFParser::ReadPictureData() {
  std::vector<unsigned char> bytes;
  ReadPictureDigits(bytes);
  FreePicture();
  m_pPicture = MakeStore(bytes.data(), bytes.size());

  int format = formatAsIs;
  if (m_CharProps.PngBlip != 0) format = formatPng;
  if (m_CharProps.EmfBlip != 0) format = formatEmf;
  if (format == formatAsIs || ConvertPicture(format)) ContextHasChanged(false, false, false);
}

bool CRTFParser::ConvertPicture(int format) {
  if (m_pPictureHandler == nullptr) return false;
  const auto converted = std::make_unique_for_overwrite<unsigned char[]>(kConvertedRoom);
  int length = kConvertedRoom;
  m_pStore->m_bInHandler = true;
  const bool isConverted = m_pPictureHandler->ConvertPicture(
      format, m_pPicture->GetData(), m_pPicture->GetLength(), 0, converted.get(), &length);
  m_pStore->m_bInHandler = false;
  if (!isConverted) return false;
  // What the converter claims beyond the room is not there.
  length = std::clamp(length, 0, kConvertedRoom);
  CFontData* const store = MakeStore(converted.get(), static_cast<std::size_t>(length));
  FreePicture();
  m_pPicture = store;
  return true;
}

void CRTFParser::FreePicture() {
  delete m_pPicture;
  m_pPicture = nullptr;
}
