#include "fonts/TrueTypeGlyphNames.h"

#include "fonts/FontMetrics.h"
#include "fonts/MacGlyphNames.h"

#include <algorithm>
#include <array>
#include <span>

namespace zeb {

namespace {

constexpr std::size_t kStandardNames = kMacGlyphNames.size();

/// One Pascal string.
bool ReadString(ByteReader& in, std::span<const std::byte>& bytes) {
  std::uint8_t length = 0;
  return in.ReadU8(length) && in.ReadSpan(length, bytes);
}

/// Widens a string as all names of this kind are.
void MakeName(std::span<const std::byte> bytes, wchar_t* name) {
  std::array<char, 256> ansi = {};
  std::transform(bytes.begin(), bytes.end(), ansi.begin(),
                 [](std::byte byte) { return static_cast<char>(std::to_integer<unsigned char>(byte)); });
  CFontMetrics::AnsiToUnicode(ansi.data(), name);
}

}  // namespace

bool TrueTypeGlyphNames::SetOwn(ByteReader in) {
  std::uint16_t count = 0;
  if (!in.ReadU16BE(count) || !in.Part(in.Offset(), std::size_t{2} * count, m_Indexes)) return false;
  std::size_t ownNames = 0;
  ByteReader indexes = m_Indexes;
  for (std::uint16_t index = 0; indexes.ReadU16BE(index);) {
    if (index >= kStandardNames) ++ownNames;
  }
  // One string for each of these indexes. Glyphs may share a name, so there can be fewer.
  const std::size_t start = in.Offset() + m_Indexes.Size();
  if (!in.Seek(start)) return false;
  std::span<const std::byte> bytes;
  for (std::size_t name = 0; name < ownNames && !in.AtEnd(); ++name) {
    if (!ReadString(in, bytes)) return false;
  }
  return in.Part(start, in.Offset() - start, m_Strings);
}

void TrueTypeGlyphNames::MakeText() {
  if (m_pText != nullptr) return;
  // Each string takes its length byte and its bytes, and becomes its characters and a terminator.
  m_pText.reset(new wchar_t[m_Strings.Size() + 1]);
  wchar_t* end = m_pText.get();
  ByteReader in = m_Strings;
  for (std::span<const std::byte> bytes; ReadString(in, bytes); end += bytes.size() + 1) {
    MakeName(bytes, end);
    m_rgpOwnNames.push_back(end);
  }
}

std::uint16_t TrueTypeGlyphNames::IndexOf(int glyph) const {
  ByteReader in = m_Indexes;
  std::uint16_t index = 0;
  return in.Seek(std::size_t{2} * static_cast<std::size_t>(glyph)) && in.ReadU16BE(index) ? index
                                                                                          : std::uint16_t{0};
}

const wchar_t* TrueTypeGlyphNames::NameOf(int glyph) {
  const auto number = static_cast<std::size_t>(glyph);
  if (m_bStandard) return number < kStandardNames ? kMacGlyphNames[number] : L"";
  if (number >= m_Indexes.Size() / 2) return L"";
  const std::size_t index = IndexOf(glyph);
  if (index < kStandardNames) return kMacGlyphNames[index];
  MakeText();
  return index - kStandardNames < m_rgpOwnNames.size() ? m_rgpOwnNames[index - kStandardNames] : L"";
}

}  // namespace zeb
