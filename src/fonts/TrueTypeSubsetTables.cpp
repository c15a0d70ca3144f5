#include "fonts/FontData.h"
#include "fonts/FontMetrics.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTables.h"

#include <algorithm>
#include <climits>
#include <vector>

// The tables of a subset. The names of fields are those of the OpenType specification.

namespace {

/// A slot of the directory: check sum, offset, length.
constexpr int kSlotLength = 12;
/// Bytes behind `glyf` that belong to no table.
constexpr int kBytesBehindGlyf = 12;

constexpr int kCheckSumAdjustmentInHead = 8;
constexpr int kIndexToLocFormatInHead = 50;
constexpr int kNumGlyphsInMaxp = 4;

void EnterTable(CFontData& subset, int slot, int pos, int length) {
  subset.WriteUIntAtPos(slot, subset.GetLongCheckSum(pos, length));
  subset.WriteUIntAtPos(slot + 4, static_cast<unsigned int>(pos));
  subset.WriteUIntAtPos(slot + 8, static_cast<unsigned int>(length));
}

/// Bytes of a range that are in the data.
int BytesThere(const CFontData& source, long long offset, long long length) {
  return static_cast<int>(std::clamp<long long>(source.GetLength() - offset, 0, length));
}

/// Bytes of a table; none if the font lacks it.
int LengthOf(const CFontData& source, const CTrueTypeDirEnt* entry) {
  return entry == nullptr ? 0 : BytesThere(source, entry->GetOffset(), entry->GetLength());
}

/// Appends a table of the source.
/// @return where it begins in the subset
int CopyTable(CFontData& source, const CTrueTypeDirEnt* entry, CFontData& subset) {
  subset.CreatePad4();
  const int pos = subset.Tell();
  const int length = LengthOf(source, entry);
  if (length > 0) source.CopyBytesAtPos(static_cast<int>(entry->GetOffset()), length, &subset);
  return pos;
}

void CopyUnchanged(CFontData& source, const CTrueTypeDirEnt* entry, CFontData& subset, int slot) {
  const int pos = CopyTable(source, entry, subset);
  EnterTable(subset, slot, pos, LengthOf(source, entry));
}

unsigned int OffsetOf(const CTrueTypeTabHMtx& hmtx, const CTrueTypeTabLoca& loca, int glyph) {
  return glyph < hmtx.GetEntryCount() ? hmtx.GetGlyphOffsetAt(glyph) : loca.endOffset;
}

/// The bytes of a glyph in the source.
struct GlyphBytes {
  int offset = 0;
  int length = 0;
};

/// A glyph that the font lacks has no bytes.
GlyphBytes FindGlyph(const CFontData& source, const CTrueTypeDirEnt& glyf, const CTrueTypeTabHMtx& hmtx,
                     const CTrueTypeTabLoca& loca, int glyph) {
  if (glyph >= hmtx.GetEntryCount()) return {};
  const long long offset = static_cast<long long>(glyf.GetOffset()) + OffsetOf(hmtx, loca, glyph);
  const long long end = static_cast<long long>(glyf.GetOffset()) + OffsetOf(hmtx, loca, glyph + 1);
  const int length = BytesThere(source, offset, std::max(end - offset, 0LL));
  return {length > 0 ? static_cast<int>(offset) : 0, length};
}

}  // namespace

void CFontMetrics::CreateTTDirectory() {
  static constexpr const char* kTags[SlotCount] = {"cvt ", "fpgm", "glyf", "head", "hhea",
                                                   "hmtx", "loca", "maxp", "prep"};
  m_pSubsetData->WriteUInt(0x00010000);
  m_pSubsetData->WriteUShort(SlotCount);
  // Fixed behaviour: the three fields for a binary search are not those of the file format (128, 3 and 16).
  const int searchRange = m_pSubsetData->CalcMaxPow2(SlotCount) << 4;
  m_pSubsetData->WriteUShort(static_cast<unsigned short>(searchRange));
  m_pSubsetData->WriteUShort(static_cast<unsigned short>(m_pSubsetData->Log2(SlotCount)));
  m_pSubsetData->WriteUShort(static_cast<unsigned short>(SlotCount * 16 - searchRange));
  for (int slot = 0; slot < SlotCount; ++slot) {
    for (int i = 0; i < 4; ++i) m_pSubsetData->WriteByte(static_cast<unsigned char>(kTags[slot][i]));
    m_rgiDirectorySlots[slot] = m_pSubsetData->Tell();
    m_pSubsetData->Skip(kSlotLength);
  }
}

void CFontMetrics::CreateHead(CFontData* source, CTrueTypeDirEnt* entry) {
  const int pos = CopyTable(*source, entry, *m_pSubsetData);
  m_iCheckSumAdjustmentPos = pos + kCheckSumAdjustmentInHead;
  m_pSubsetData->WriteUIntAtPos(m_iCheckSumAdjustmentPos, 0);
  m_pSubsetData->WriteUShortAtPos(pos + kIndexToLocFormatInHead, 1);
  EnterTable(*m_pSubsetData, m_rgiDirectorySlots[SlotHead], pos, LengthOf(*source, entry));
}

void CFontMetrics::CreateHhea(CFontData* source, CTrueTypeDirEnt* entry) {
  const int pos = CopyTable(*source, entry, *m_pSubsetData);
  const int length = LengthOf(*source, entry);
  // numberOfHMetrics is the last field.
  m_pSubsetData->WriteUShortAtPos(pos + length - 2, static_cast<unsigned short>(m_GlyphToNewIndex.size()));
  EnterTable(*m_pSubsetData, m_rgiDirectorySlots[SlotHhea], pos, length);
}

void CFontMetrics::CreateHmtx(CFontData* /*source*/, CTrueTypeDirEnt* /*entry*/, CTrueTypeTabHMtx* hmtx) {
  const int length = static_cast<int>(m_GlyphToNewIndex.size()) * 4;
  m_pSubsetData->CreatePad4();
  const int pos = m_pSubsetData->Tell();
  for (const auto& [glyph, newIndex] : m_GlyphToNewIndex) {
    if (glyph >= hmtx->GetEntryCount()) continue;
    const CTrueTypeHMtxEntry* metric = hmtx->GetEntryAt(glyph);
    m_pSubsetData->WriteUShortAtPos(pos + newIndex * 4, metric->GetAdvanceWidth());
    m_pSubsetData->WriteUShortAtPos(pos + newIndex * 4 + 2,
                                    static_cast<unsigned short>(metric->GetLeftSideBearing()));
  }
  EnterTable(*m_pSubsetData, m_rgiDirectorySlots[SlotHmtx], pos, length);
  m_pSubsetData->Seek(pos + length);
}

void CFontMetrics::CreateMaxp(CFontData* source, CTrueTypeDirEnt* entry) {
  const int pos = CopyTable(*source, entry, *m_pSubsetData);
  m_pSubsetData->WriteUShortAtPos(pos + kNumGlyphsInMaxp,
                                  static_cast<unsigned short>(m_GlyphToNewIndex.size()));
  EnterTable(*m_pSubsetData, m_rgiDirectorySlots[SlotMaxp], pos, LengthOf(*source, entry));
}

void CFontMetrics::CreateCvt(CFontData* source, CTrueTypeDirEnt* entry) {
  CopyUnchanged(*source, entry, *m_pSubsetData, m_rgiDirectorySlots[SlotCvt]);
}

void CFontMetrics::CreateFpgm(CFontData* source, CTrueTypeDirEnt* entry) {
  CopyUnchanged(*source, entry, *m_pSubsetData, m_rgiDirectorySlots[SlotFpgm]);
}

void CFontMetrics::CreatePrep(CFontData* source, CTrueTypeDirEnt* entry) {
  CopyUnchanged(*source, entry, *m_pSubsetData, m_rgiDirectorySlots[SlotPrep]);
}

void CFontMetrics::CreateLoca(CFontData* /*source*/, CTrueTypeDirEnt* /*entry*/) {
  const int length = static_cast<int>(m_GlyphToNewIndex.size()) * 4 + 4;
  m_pSubsetData->CreatePad4();
  m_iLocaPos = m_pSubsetData->Tell();
  m_pSubsetData->Seek(m_iLocaPos + length);
}

void CFontMetrics::CreateGlyf(CFontData* source, CTrueTypeDirEnt* entry, CTrueTypeTabHMtx* hmtx,
                              CTrueTypeTabLoca* loca) {
  const int count = static_cast<int>(m_GlyphToNewIndex.size());
  // Where two glyphs have one number, the greater glyph has the place; a number without a glyph shows glyph 0.
  std::vector<unsigned short> glyphs(m_GlyphToNewIndex.size());
  for (const auto& [glyph, newIndex] : m_GlyphToNewIndex) {
    if (newIndex < count) glyphs[newIndex] = glyph;
  }

  std::vector<GlyphBytes> places;
  places.reserve(glyphs.size());
  long long room = kBytesBehindGlyf;
  for (const unsigned short glyph : glyphs) {
    places.push_back(FindGlyph(*source, *entry, *hmtx, *loca, glyph));
    room += places.back().length;
  }

  m_pSubsetData->CreatePad4();
  const int start = m_pSubsetData->Tell();
  // Room for all at once, so that the content moves once.
  if (room <= INT_MAX - start) m_pSubsetData->ReAllocFontDataPos(start, static_cast<int>(room));
  int greatestEnd = 0;
  int locaPos = m_iLocaPos;
  for (const GlyphBytes& place : places) {
    const int pos = m_pSubsetData->Tell() - start;
    source->CopyBytesAtPos(place.offset, place.length, m_pSubsetData);
    m_pSubsetData->WriteUIntAtPos(locaPos, static_cast<unsigned int>(pos));
    locaPos += 4;
    greatestEnd = std::max(greatestEnd, pos + place.length);
  }
  EnterTable(*m_pSubsetData, m_rgiDirectorySlots[SlotGlyf], start, m_pSubsetData->Tell() - start);
  // Fixed behaviour: twelve bytes follow that no table holds.
  m_pSubsetData->Skip(kBytesBehindGlyf);
  m_pSubsetData->WriteUIntAtPos(m_iLocaPos + 4 * count, static_cast<unsigned int>(greatestEnd));
  EnterTable(*m_pSubsetData, m_rgiDirectorySlots[SlotLoca], m_iLocaPos, 4 * count + 4);
}
