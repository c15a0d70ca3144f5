#include "fonts/FontCharMetricsInfo.h"

CFontLigature::CFontLigature() = default;
CFontLigature::CFontLigature(const CFontLigature& other) = default;
CFontLigature::~CFontLigature() = default;
CFontLigature& CFontLigature::operator=(const CFontLigature& other) = default;

const wchar_t* CFontLigature::GetSuccessor() const { return m_strSuccessor.c_str(); }
void CFontLigature::SetSuccessor(const wchar_t* successor) { m_strSuccessor = successor; }
const wchar_t* CFontLigature::GetLigature() const { return m_strLigature.c_str(); }
void CFontLigature::SetLigature(const wchar_t* ligature) { m_strLigature = ligature; }

CFontCharMetricsInfo::CFontCharMetricsInfo()
    : m_iCode(0), m_iWX(0), m_iWY(0), m_fBBoxLLX(0), m_fBBoxLLY(0), m_fBBoxURX(0), m_fBBoxURY(0) {}

CFontCharMetricsInfo::CFontCharMetricsInfo(const CFontCharMetricsInfo& other) = default;

CFontCharMetricsInfo::~CFontCharMetricsInfo() {
  for (const CFontLigature* ligature : m_rgpLigatures) delete ligature;
}

CFontCharMetricsInfo& CFontCharMetricsInfo::operator=(const CFontCharMetricsInfo& other) = default;

int CFontCharMetricsInfo::GetCode() const { return m_iCode; }
void CFontCharMetricsInfo::SetCode(int code) { m_iCode = code; }
int CFontCharMetricsInfo::GetWX() const { return m_iWX; }
void CFontCharMetricsInfo::SetWX(int wx) { m_iWX = wx; }
int CFontCharMetricsInfo::GetWY() const { return m_iWY; }
void CFontCharMetricsInfo::SetWY(int wy) { m_iWY = wy; }
const wchar_t* CFontCharMetricsInfo::GetName() const { return m_strName.c_str(); }
void CFontCharMetricsInfo::SetName(const wchar_t* name) { m_strName = name; }
float CFontCharMetricsInfo::GetBBoxLLX() const { return m_fBBoxLLX; }
void CFontCharMetricsInfo::SetBBoxLLX(float value) { m_fBBoxLLX = value; }
float CFontCharMetricsInfo::GetBBoxLLY() const { return m_fBBoxLLY; }
void CFontCharMetricsInfo::SetBBoxLLY(float value) { m_fBBoxLLY = value; }
float CFontCharMetricsInfo::GetBBoxURX() const { return m_fBBoxURX; }
void CFontCharMetricsInfo::SetBBoxURX(float value) { m_fBBoxURX = value; }
float CFontCharMetricsInfo::GetBBoxURY() const { return m_fBBoxURY; }
void CFontCharMetricsInfo::SetBBoxURY(float value) { m_fBBoxURY = value; }

void CFontCharMetricsInfo::AddLigature(CFontLigature* ligature) { m_rgpLigatures.push_back(ligature); }
int CFontCharMetricsInfo::GetLigatureCount() const { return static_cast<int>(m_rgpLigatures.size()); }

CFontLigature* CFontCharMetricsInfo::GetLigatureAt(int index) const {
  return m_rgpLigatures[static_cast<std::size_t>(index)];
}
