#include "fonts/TrueTypeFile.h"

#include "fonts/TrueTypeCMap.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTables.h"

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

template <class Table>
void Replace(Table*& current, Table* table) {
  if (current != table) delete current;
  current = table;
}

}  // namespace

CTrueTypeDirEnt::CTrueTypeDirEnt(const char* tag, unsigned int checkSum, unsigned int offset,
                                 unsigned int length)
    : m_rgcTag{}, m_uCheckSum(checkSum), m_uOffset(offset), m_uLength(length) {
  for (std::size_t i = 0; i < 4 && tag[i] != '\0'; ++i) m_rgcTag[i] = tag[i];
}

const char* CTrueTypeDirEnt::GetTag() const { return m_rgcTag; }
unsigned int CTrueTypeDirEnt::GetCheckSum() const { return m_uCheckSum; }
unsigned int CTrueTypeDirEnt::GetOffset() const { return m_uOffset; }
unsigned int CTrueTypeDirEnt::GetLength() const { return m_uLength; }

CTrueTypeFile::CTrueTypeFile() = default;

CTrueTypeFile::CTrueTypeFile(const CTrueTypeFile& other) = default;

CTrueTypeFile::~CTrueTypeFile() {
  for (const CTrueTypeDirEnt* entry : m_rgpDirEnts) delete entry;
  delete m_pTabCMap;
  delete m_pTabHead;
  delete m_pTabHhea;
  delete m_pTabHMtx;
  delete m_pTabMaxp;
  delete m_pTabName;
  delete m_pTabPost;
  delete m_pTabOS2;
  delete m_pTabCFF;
  delete m_pTabLoca;
  delete m_pTabGlyf;
  delete m_pTabPCLT;
}

CTrueTypeFile& CTrueTypeFile::operator=(const CTrueTypeFile& other) = default;

void CTrueTypeFile::AddDirEnt(CTrueTypeDirEnt* entry) { m_rgpDirEnts.push_back(entry); }

CTrueTypeDirEnt* CTrueTypeFile::GetDirEntAt(int index) const {
  return m_rgpDirEnts[static_cast<std::size_t>(index)];
}

int CTrueTypeFile::GetDirEntCount() const { return static_cast<int>(m_rgpDirEnts.size()); }

CTrueTypeDirEnt* CTrueTypeFile::FindDirEnt(const char* tag) const {
  const auto found =
      std::find_if(m_rgpDirEnts.begin(), m_rgpDirEnts.end(),
                   [&](const CTrueTypeDirEnt* entry) { return std::string_view(entry->GetTag()) == tag; });
  return found != m_rgpDirEnts.end() ? *found : nullptr;
}

CTrueTypeTabCMap* CTrueTypeFile::GetTabCMap() const { return m_pTabCMap; }
void CTrueTypeFile::SetTabCMap(CTrueTypeTabCMap* table) { Replace(m_pTabCMap, table); }
CTrueTypeTabHead* CTrueTypeFile::GetTabHead() const { return m_pTabHead; }
void CTrueTypeFile::SetTabHead(CTrueTypeTabHead* table) { Replace(m_pTabHead, table); }
CTrueTypeTabHhea* CTrueTypeFile::GetTabHhea() const { return m_pTabHhea; }
void CTrueTypeFile::SetTabHhea(CTrueTypeTabHhea* table) { Replace(m_pTabHhea, table); }
CTrueTypeTabHMtx* CTrueTypeFile::GetTabHMtx() const { return m_pTabHMtx; }
void CTrueTypeFile::SetTabHMtx(CTrueTypeTabHMtx* table) { Replace(m_pTabHMtx, table); }
CTrueTypeTabMaxp* CTrueTypeFile::GetTabMaxp() const { return m_pTabMaxp; }
void CTrueTypeFile::SetTabMaxp(CTrueTypeTabMaxp* table) { Replace(m_pTabMaxp, table); }
CTrueTypeTabName* CTrueTypeFile::GetTabName() const { return m_pTabName; }
void CTrueTypeFile::SetTabName(CTrueTypeTabName* table) { Replace(m_pTabName, table); }
CTrueTypeTabPost* CTrueTypeFile::GetTabPost() const { return m_pTabPost; }
void CTrueTypeFile::SetTabPost(CTrueTypeTabPost* table) { Replace(m_pTabPost, table); }
CTrueTypeTabOS2* CTrueTypeFile::GetTabOS2() const { return m_pTabOS2; }
void CTrueTypeFile::SetTabOS2(CTrueTypeTabOS2* table) { Replace(m_pTabOS2, table); }
CTrueTypeTabCFF* CTrueTypeFile::GetTabCFF() const { return m_pTabCFF; }
void CTrueTypeFile::SetTabCFF(CTrueTypeTabCFF* table) { Replace(m_pTabCFF, table); }
CTrueTypeTabLoca* CTrueTypeFile::GetTabLoca() const { return m_pTabLoca; }
void CTrueTypeFile::SetTabLoca(CTrueTypeTabLoca* table) { Replace(m_pTabLoca, table); }
CTrueTypeTabGlyf* CTrueTypeFile::GetTabGlyf() const { return m_pTabGlyf; }
void CTrueTypeFile::SetTabGlyf(CTrueTypeTabGlyf* table) { Replace(m_pTabGlyf, table); }
CTrueTypeTabPCLT* CTrueTypeFile::GetTabPCLT() const { return m_pTabPCLT; }
void CTrueTypeFile::SetTabPCLT(CTrueTypeTabPCLT* table) { Replace(m_pTabPCLT, table); }
