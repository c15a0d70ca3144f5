#include "fonts/ByteReader.h"
#include "fonts/FontData.h"
#include "fonts/FontErrors.h"
#include "fonts/FontFile.h"
#include "fonts/PostscriptFontMetrics.h"
#include "fonts/TextCursor.h"
#include "foundation/ErrorKeys.h"

#include <algorithm>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

// The readers of Type 1 font programs: PFB, segments with a binary header each, and PFA, lines of text.
//
// The file is in memory. A stated length counts as far as the bytes are there, and every step moves on in the file, so
// both readers end at its end. Encrypted parts are carried as they are.

namespace {

constexpr std::uint8_t kMarker = 128;

enum SegmentType : std::uint8_t { Text = 1, Binary = 2, End = 3 };

constexpr std::string_view kEexec = "currentfile eexec";

/// Reads the segments of a PFB file.
class PFBReader {
 public:
  PFBReader(std::span<unsigned char> content, CFontData& data)
      : m_Content(content), m_Reader(std::as_bytes(content)), m_Data(data) {}

  void Read() {
    std::uint8_t marker = 0;
    std::uint8_t type = 0;
    while (m_Reader.ReadU8(marker) && m_Reader.ReadU8(type)) {
      // Fixed behaviour: a pair that is no header of a wanted segment is passed over without a length, so that the
      // bytes of a second binary segment are searched for headers.
      if (marker != kMarker) continue;
      if (type == End) return;
      if (type == Text && !m_bHasText) {
        m_bHasText = true;
        m_Data.SetLength1(AddSegment());
      } else if (type == Binary && !m_bHasBinary) {
        m_bHasBinary = true;
        m_Data.SetLength2(AddSegment());
      } else if (type == Text && m_bHasBinary) {
        m_Data.SetLength3(AddSegment());
      }
    }
  }

 private:
  /// @return how many bytes of the stated length there are
  int AddSegment() {
    std::uint32_t stated = 0;
    std::span<const std::byte> bytes;
    if (!m_Reader.ReadU32LE(stated)) return 0;
    const std::size_t begin = m_Reader.Offset();
    const std::size_t length = std::min<std::size_t>(stated, m_Reader.Left());
    if (!m_Reader.Skip(length)) return 0;
    m_Data.AddFontMemData(m_Content.subspan(begin, length).data(), static_cast<int>(length));
    return static_cast<int>(length);
  }

  std::span<unsigned char> m_Content;
  zeb::ByteReader m_Reader;
  CFontData& m_Data;
  bool m_bHasText = false;
  bool m_bHasBinary = false;
};

bool IsBlank(unsigned char character) { return character == ' ' || character == '\t'; }

/// Whitespace, the end of a line included.
bool IsSpace(char16_t character) { return character == ' ' || (character >= '\t' && character <= '\r'); }

bool IsDigit(char16_t character) { return character >= '0' && character <= '9'; }

char16_t ToUpper(char16_t character) {
  return character >= 'a' && character <= 'z' ? static_cast<char16_t>(character - 'a' + 'A') : character;
}

bool IsHexOrSpace(char16_t upper) {
  return IsDigit(upper) || (upper >= 'A' && upper <= 'F') || IsSpace(upper);
}

/// Fixed behaviour: what is no digit counts as a letter, whitespace too.
int HexValue(char16_t upper) { return IsDigit(upper) ? upper - '0' : upper - '7'; }

/// Reads the lines of a PFA file.
class PFAReader {
 public:
  PFAReader(std::span<const unsigned char> content, CFontData& data)
      : m_Cursor(std::as_bytes(content)), m_Data(data) {}

  void Read() {
    while (ReadLine()) {
      if (IsLineOfZeros()) m_Part = Part::Trailer;
      TakeLine();
      if (m_Part != Part::Hex && StartsEncryptedPart()) m_Part = Part::Hex;
    }
  }

 private:
  enum class Part { ClearText, Hex, Trailer };

  /// Reads a line with its end, which becomes a single line feed, and without leading blanks.
  /// @return false if the file ends first: what is left has no line end and is dropped
  bool ReadLine() {
    m_Line.clear();
    unsigned char character = 0;
    while (m_Cursor.Next(character)) {
      if (character == '\r' || character == '\n') {
        unsigned char next = 0;
        if (character == '\r' && m_Cursor.Peek(next) && next == '\n') static_cast<void>(m_Cursor.Next(next));
        m_Line += u'\n';
        return true;
      }
      if (!m_Line.empty() || !IsBlank(character)) m_Line += static_cast<char16_t>(character);
    }
    return false;
  }

  bool IsLineOfZeros() const {
    return m_Line.find_first_not_of(u'0') == m_Line.size() - 1 && m_Line.size() > 1;
  }

  bool StartsEncryptedPart() const {
    return m_Line.size() >= kEexec.size() && std::equal(kEexec.begin(), kEexec.end(), m_Line.begin());
  }

  void TakeLine() {
    if (m_Part == Part::Hex) DecodeLine();
    const int count = static_cast<int>(m_Line.size());
    Append();
    if (m_Part == Part::ClearText) m_Data.AddToLength1(count);
    if (m_Part == Part::Hex) m_Data.AddToLength2(count);
    if (m_Part == Part::Trailer) m_Data.AddToLength3(count);
  }

  /// Turns the hexadecimal pairs of the line into their bytes, one to a character.
  void DecodeLine() {
    std::u16string bytes;
    for (std::size_t at = 0; m_Line[at] != u'\n'; at += 2) {
      const char16_t high = ToUpper(m_Line[at]);
      const char16_t low = ToUpper(m_Line[at + 1]);
      if (!IsHexOrSpace(high) || !IsHexOrSpace(low)) {
        zeb::ThrowFontError(zeb::ErrorKeys::IncorrectPFAPFBFile);
      }
      bytes += static_cast<char16_t>((HexValue(high) * 16 + HexValue(low)) & 0xFF);
      // Fixed behaviour: the line feed is whitespace too, so a digit that is left over makes a pair with it.
      if (low == u'\n') break;
    }
    m_Line = bytes;
  }

  /// Fixed behaviour: the characters take 16 bits each, little-endian, and as many bytes of them are appended as there
  /// are characters: the first half of the line, with a zero behind each byte.
  void Append() {
    std::vector<unsigned char> bytes(m_Line.size());
    for (std::size_t at = 0; at < bytes.size(); at += 2)
      bytes[at] = static_cast<unsigned char>(m_Line[at / 2]);
    m_Data.AddFontMemData(bytes.data(), static_cast<int>(bytes.size()));
  }

  zeb::TextCursor m_Cursor;
  CFontData& m_Data;
  std::u16string m_Line;
  Part m_Part = Part::ClearText;
};

}  // namespace

void CPostscriptFontMetrics::ReadPFBPFAFile(const wchar_t* path) {
  std::vector<unsigned char> content = zeb::ReadFontFile(path, m_iFileHandle);
  auto* const program = new CFontData(false);
  // A program of the pool stays the pool's: SetFontData would delete it.
  if (!m_bFontDataOwner) m_pFontData = nullptr;
  SetFontData(program, true);
  CFontData& data = *m_pFontData;
  if (!content.empty() && content.front() == kMarker) {
    PFBReader(content, data).Read();
  } else {
    PFAReader(content, data).Read();
  }
}
