#include "fonts/FontData.h"
#include "fonts/FontMetrics.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeHMtx.h"

#include <algorithm>
#include <bitset>
#include <cstddef>
#include <map>
#include <set>
#include <utility>
#include <vector>

// Which glyphs a subset holds: the used ones and what their composites are made of. The layout of composite glyphs is
// that of the table `glyf` in the OpenType specification.

namespace {

constexpr int kGlyphHeaderLength = 10;

// Flags of a component.
constexpr unsigned int kArgumentsAreWords = 0x0001;
constexpr unsigned int kHasScale = 0x0008;
constexpr unsigned int kMoreComponents = 0x0020;
constexpr unsigned int kHasTwoScales = 0x0040;
constexpr unsigned int kHasTwoByTwo = 0x0080;

int LengthBehindNumber(unsigned int flags) {
  const int arguments = (flags & kArgumentsAreWords) != 0 ? 4 : 2;
  if ((flags & kHasScale) != 0) return arguments + 2;
  if ((flags & kHasTwoScales) != 0) return arguments + 4;
  if ((flags & kHasTwoByTwo) != 0) return arguments + 8;
  return arguments;
}

/// The glyphs in the bytes of a font.
class Outlines {
 public:
  Outlines(const CFontData& source, const CTrueTypeDirEnt& glyf, const CTrueTypeTabHMtx& hmtx)
      : m_Source(source),
        m_HMtx(hmtx),
        m_llBegin(glyf.GetOffset()),
        m_llEnd(std::min<long long>(m_llBegin + glyf.GetLength(), source.GetLength())) {}

  /// Where a glyph begins; -1 if there is no such place.
  long long PlaceOf(unsigned short glyph) const {
    if (glyph >= m_HMtx.GetEntryCount()) return -1;
    return m_llBegin + m_HMtx.GetEntryAt(glyph)->GetGlyphOffset();
  }
  /// Whether all of these bytes are in the table.
  bool Hold(long long pos, int count) const { return pos >= 0 && pos + count <= m_llEnd; }
  unsigned short NumberAt(long long pos) const { return m_Source.GetUShortAtPos(static_cast<int>(pos)); }
  bool IsComposite(unsigned short glyph) const {
    const long long place = PlaceOf(glyph);
    // Fixed behaviour: an empty glyph is told by the first bytes of the glyph that follows it.
    return Hold(place, 2) && static_cast<short>(NumberAt(place)) < 0;
  }

 private:
  const CFontData& m_Source;
  const CTrueTypeTabHMtx& m_HMtx;
  long long m_llBegin;
  long long m_llEnd;
};

/// The components of one composite glyph, in order. Ends at the end of the table too.
class ComponentWalk {
 public:
  ComponentWalk(const Outlines& outlines, unsigned short glyph) : m_Outlines(outlines), m_llPos(-1) {
    const long long place = outlines.PlaceOf(glyph);
    if (place >= 0) m_llPos = place + kGlyphHeaderLength;
  }

  bool AtComponent() const { return m_Outlines.Hold(m_llPos, 4); }
  /// Where the component's glyph number stands.
  int NumberPos() const { return static_cast<int>(m_llPos) + 2; }
  void Next() {
    const unsigned int flags = m_Outlines.NumberAt(m_llPos);
    m_llPos = (flags & kMoreComponents) != 0 ? m_llPos + 4 + LengthBehindNumber(flags) : -1;
  }

 private:
  const Outlines& m_Outlines;
  long long m_llPos;  // of the component's flags; -1 behind the last one
};

/// Which bytes of a font were looked at, one bit a byte, in pages that are made when they are needed.
class Marks {
 public:
  /// @return whether the byte was not marked before
  bool Mark(int pos) {
    std::bitset<kPage>& page = m_Pages[pos / kPage];
    const auto bit = static_cast<std::size_t>(pos % kPage);
    if (page.test(bit)) return false;
    page.set(bit);
    return true;
  }

 private:
  static constexpr int kPage = 4096;
  std::map<int, std::bitset<kPage>> m_Pages;
};

/// Puts the source program back into the state before the subset, on failures too.
class SourceGuard {
 public:
  SourceGuard(CFontMetrics& metrics, CFontData* source) : m_Metrics(metrics), m_pSource(source) {}
  ~SourceGuard() { m_Metrics.ResetMapIndex(m_pSource); }
  SourceGuard(const SourceGuard&) = delete;
  SourceGuard& operator=(const SourceGuard&) = delete;

 private:
  CFontMetrics& m_Metrics;
  CFontData* m_pSource;  // observer
};

}  // namespace

void CFontMetrics::CreateSubsetFont() {
  CTrueTypeFile* file = GetTTFile();
  if (m_FontType != FontTypeTrueType || file == nullptr || m_pFontData == nullptr) return;
  delete m_pSubsetData;
  m_pSubsetData = nullptr;
  m_pFontData->ResetFontPos();
  m_CompositePatches.clear();
  if (file->FindDirEnt("glyf") == nullptr || file->GetTabHMtx() == nullptr) return;

  CFontData* source = m_pFontData;
  const SourceGuard guard(*this, source);
  m_pSubsetData = new CFontData(true);
  try {
    BuildSubset(source, *file);
  } catch (...) {
    // Half a subset is none.
    delete std::exchange(m_pSubsetData, nullptr);
    throw;
  }
}

void CFontMetrics::BuildSubset(CFontData* source, CTrueTypeFile& file) {
  CTrueTypeDirEnt* const glyf = file.FindDirEnt("glyf");
  CTrueTypeTabHMtx* const hmtx = file.GetTabHMtx();
  source->Seek(static_cast<int>(glyf->GetOffset()));
  ScanGlyphs(source, glyf, hmtx);
  CreateTTDirectory();
  CreateHead(source, file.FindDirEnt("head"));
  CreateHhea(source, file.FindDirEnt("hhea"));
  CreateHmtx(source, file.FindDirEnt("hmtx"), hmtx);
  CreateMaxp(source, file.FindDirEnt("maxp"));
  CreateCvt(source, file.FindDirEnt("cvt "));
  CreateFpgm(source, file.FindDirEnt("fpgm"));
  CreatePrep(source, file.FindDirEnt("prep"));
  CreateLoca(source, file.FindDirEnt("loca"));
  CreateGlyf(source, glyf, hmtx, file.GetTabLoca());
  m_pSubsetData->CreatePad4();
  m_pSubsetData->CreateCheckSumAdjustment(m_iCheckSumAdjustmentPos);
}

void CFontMetrics::ScanGlyphs(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx) {
  const Outlines outlines(*source, *glyfEntry, *hmtx);
  std::set<unsigned short> composites;
  // A chain of components that was walked once has nothing new to tell, however many glyphs lead into it. Nor has a
  // glyph of an earlier level: what it is made of is in the subset.
  Marks walked;
  std::vector<unsigned short> level;
  for (const auto& [glyph, newIndex] : m_GlyphToNewIndex) level.push_back(glyph);
  int number = static_cast<int>(m_GlyphToNewIndex.size());
  while (!level.empty()) {
    std::map<unsigned short, unsigned short> pending;
    for (const unsigned short glyph : level) {
      if (!outlines.IsComposite(glyph)) continue;
      composites.insert(glyph);
      for (ComponentWalk walk(outlines, glyph); walk.AtComponent(); walk.Next()) {
        const unsigned short component = source->GetUShortAtPos(walk.NumberPos());
        if (component >= hmtx->GetEntryCount() || !walked.Mark(walk.NumberPos())) break;
        if (m_GlyphToNewIndex.count(component) != 0) continue;
        if (pending.emplace(component, static_cast<unsigned short>(number)).second) ++number;
      }
    }
    m_GlyphToNewIndex.insert(pending.begin(), pending.end());
    level.clear();
    for (const auto& [glyph, newIndex] : pending) level.push_back(glyph);
  }

  for (const unsigned short glyph : composites) RemapComposite(source, glyfEntry, hmtx, glyph);
}

void CFontMetrics::GetIncludedGlyphs(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx,
                                     unsigned short glyph, std::vector<unsigned short>& list) {
  list.assign(1, glyph);
  const Outlines outlines(*source, *glyfEntry, *hmtx);
  for (ComponentWalk walk(outlines, glyph); walk.AtComponent(); walk.Next()) {
    const unsigned short component = source->GetUShortAtPos(walk.NumberPos());
    if (component >= hmtx->GetEntryCount()) break;
    list.push_back(component);
  }
}

void CFontMetrics::RemapComposite(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx,
                                  unsigned short glyph) {
  const Outlines outlines(*source, *glyfEntry, *hmtx);
  for (ComponentWalk walk(outlines, glyph); walk.AtComponent(); walk.Next()) {
    const int pos = walk.NumberPos();
    // From a place on that is renumbered already, an earlier walk has done the rest.
    const auto patched = m_CompositePatches.lower_bound(static_cast<unsigned int>(pos - 1));
    if (patched != m_CompositePatches.end() && patched->first <= static_cast<unsigned int>(pos + 1)) return;
    const unsigned short component = source->GetUShortAtPos(pos);
    unsigned short newIndex = 0;
    if (!FindUsedGlyphIndex(component, newIndex)) return;
    source->WriteUShortAtPos(pos, newIndex);
    m_CompositePatches.emplace_hint(patched, static_cast<unsigned int>(pos), component);
  }
}

void CFontMetrics::ResetMapIndex(CFontData* source) {
  for (const auto& [pos, component] : m_CompositePatches) {
    source->WriteUShortAtPos(static_cast<int>(pos), component);
  }
  m_CompositePatches.clear();
}
