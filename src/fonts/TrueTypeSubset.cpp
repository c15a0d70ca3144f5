#include "fonts/FontData.h"
#include "fonts/FontMetrics.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeHMtx.h"

#include <map>
#include <set>
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

/// Where a glyph begins in the font; -1 if there is no such place.
long long PlaceOf(unsigned short glyph, const CTrueTypeDirEnt& glyf, const CTrueTypeTabHMtx& hmtx) {
  if (glyph >= hmtx.GetEntryCount()) return -1;
  return static_cast<long long>(glyf.GetOffset()) + hmtx.GetEntryAt(glyph)->GetGlyphOffset();
}

bool Holds(const CFontData& source, long long pos, int count) {
  return pos >= 0 && pos + count <= source.GetLength();
}

/// The components of one composite glyph, in order. Ends at the end of the data too.
class ComponentWalk {
 public:
  ComponentWalk(const CFontData& source, long long glyphPlace)
      : m_Source(source), m_llPos(glyphPlace < 0 ? -1 : glyphPlace + kGlyphHeaderLength) {}

  bool AtComponent() const { return Holds(m_Source, m_llPos, 4); }
  /// Where the component's glyph number stands.
  int NumberPos() const { return static_cast<int>(m_llPos) + 2; }
  void Next() {
    const unsigned int flags = m_Source.GetUShortAtPos(static_cast<int>(m_llPos));
    m_llPos = (flags & kMoreComponents) != 0 ? m_llPos + 4 + LengthBehindNumber(flags) : -1;
  }

 private:
  const CFontData& m_Source;
  long long m_llPos;  // of the component's flags; -1 behind the last one
};

bool IsComposite(const CFontData& source, long long glyphPlace) {
  // Fixed behaviour: an empty glyph is told by the first bytes of what follows it.
  return Holds(source, glyphPlace, 2) && source.GetShortAtPos(static_cast<int>(glyphPlace)) < 0;
}

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
  CTrueTypeDirEnt* glyf = file->FindDirEnt("glyf");
  CTrueTypeTabHMtx* hmtx = file->GetTabHMtx();
  if (glyf == nullptr || hmtx == nullptr) return;

  CFontData* source = m_pFontData;
  const SourceGuard guard(*this, source);
  m_pSubsetData = new CFontData(true);
  source->Seek(static_cast<int>(glyf->GetOffset()));
  ScanGlyphs(source, glyf, hmtx);
  CreateTTDirectory();
  CreateHead(source, file->FindDirEnt("head"));
  CreateHhea(source, file->FindDirEnt("hhea"));
  CreateHmtx(source, file->FindDirEnt("hmtx"), hmtx);
  CreateMaxp(source, file->FindDirEnt("maxp"));
  CreateCvt(source, file->FindDirEnt("cvt "));
  CreateFpgm(source, file->FindDirEnt("fpgm"));
  CreatePrep(source, file->FindDirEnt("prep"));
  CreateLoca(source, file->FindDirEnt("loca"));
  CreateGlyf(source, glyf, hmtx, file->GetTabLoca());
  m_pSubsetData->CreatePad4();
  m_pSubsetData->CreateCheckSumAdjustment(m_iCheckSumAdjustmentPos);
}

void CFontMetrics::ScanGlyphs(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx) {
  std::set<unsigned short> composites;
  // A chain of components that was walked once has nothing new to tell, however many glyphs lead into it. Nor has a
  // glyph of an earlier level: what it is made of is in the subset.
  std::set<int> walked;
  std::vector<unsigned short> level;
  for (const auto& [glyph, newIndex] : m_GlyphToNewIndex) level.push_back(glyph);
  int number = static_cast<int>(m_GlyphToNewIndex.size());
  while (!level.empty()) {
    std::map<unsigned short, unsigned short> pending;
    for (const unsigned short glyph : level) {
      const long long place = PlaceOf(glyph, *glyfEntry, *hmtx);
      if (!IsComposite(*source, place)) continue;
      composites.insert(glyph);
      for (ComponentWalk walk(*source, place); walk.AtComponent(); walk.Next()) {
        const unsigned short component = source->GetUShortAtPos(walk.NumberPos());
        if (component >= hmtx->GetEntryCount() || !walked.insert(walk.NumberPos()).second) break;
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
  for (ComponentWalk walk(*source, PlaceOf(glyph, *glyfEntry, *hmtx)); walk.AtComponent(); walk.Next()) {
    const unsigned short component = source->GetUShortAtPos(walk.NumberPos());
    if (component >= hmtx->GetEntryCount()) break;
    list.push_back(component);
  }
}

void CFontMetrics::RemapComposite(CFontData* source, CTrueTypeDirEnt* glyfEntry, CTrueTypeTabHMtx* hmtx,
                                  unsigned short glyph) {
  for (ComponentWalk walk(*source, PlaceOf(glyph, *glyfEntry, *hmtx)); walk.AtComponent(); walk.Next()) {
    const int pos = walk.NumberPos();
    // From a place on that is renumbered already, an earlier walk has done the rest.
    const auto patched = m_CompositePatches.lower_bound(static_cast<unsigned int>(pos - 1));
    if (patched != m_CompositePatches.end() && patched->first <= static_cast<unsigned int>(pos + 1)) return;
    const unsigned short component = source->GetUShortAtPos(pos);
    unsigned short newIndex = 0;
    if (!FindUsedGlyphIndex(component, newIndex)) return;
    source->WriteUShortAtPos(pos, newIndex);
    m_CompositePatches.emplace(static_cast<unsigned int>(pos), component);
  }
}

void CFontMetrics::ResetMapIndex(CFontData* source) {
  for (const auto& [pos, component] : m_CompositePatches) {
    source->WriteUShortAtPos(static_cast<int>(pos), component);
  }
  m_CompositePatches.clear();
}
