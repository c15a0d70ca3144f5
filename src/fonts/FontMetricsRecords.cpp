#include "fonts/FontMetrics.h"

namespace {

template <typename Record>
Record* RecordAt(const std::vector<Record*>& records, int index) {
  return records[static_cast<std::size_t>(index)];
}

template <typename Record>
int Count(const std::vector<Record*>& records) {
  return static_cast<int>(records.size());
}

}  // namespace

void CFontMetrics::AddFontCharMetricsInfo(CFontCharMetricsInfo* info) { m_rgpCharMetrics.push_back(info); }

CFontCharMetricsInfo* CFontMetrics::GetFontCharMetricsAt(int index) const {
  return RecordAt(m_rgpCharMetrics, index);
}

int CFontMetrics::GetFontCharMetricsCount() const { return Count(m_rgpCharMetrics); }

void CFontMetrics::AddFontCompCharData(CFontCompCharData* data) { m_rgpCompChars.push_back(data); }

CFontCompCharData* CFontMetrics::GetFontCompCharDataAt(int index) const {
  return RecordAt(m_rgpCompChars, index);
}

int CFontMetrics::GetFontCompCharDataCount() const { return Count(m_rgpCompChars); }

void CFontMetrics::AddFontPairKerningData(CFontPairKerningData* data) { m_rgpPairKerning.push_back(data); }

CFontPairKerningData* CFontMetrics::GetFontPairKerningDataAt(int index) const {
  return RecordAt(m_rgpPairKerning, index);
}

int CFontMetrics::GetFontPairKerningDataCount() const { return Count(m_rgpPairKerning); }

void CFontMetrics::AddFontTrackKerningData(CFontTrackKerningData* data) { m_rgpTrackKerning.push_back(data); }

CFontTrackKerningData* CFontMetrics::GetFontTrackKerningDataAt(int index) const {
  return RecordAt(m_rgpTrackKerning, index);
}

int CFontMetrics::GetFontTrackKerningDataCount() const { return Count(m_rgpTrackKerning); }
