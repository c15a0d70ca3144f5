#include "fonts/TrueTypeReader.h"

#include "fonts/FontData.h"
#include "fonts/TrueTypeCMapReader.h"
#include "fonts/TrueTypeCollection.h"
#include "fonts/TrueTypeFile.h"
#include "fonts/TrueTypeFontMetrics.h"
#include "fonts/TrueTypeGlyphs.h"
#include "fonts/TrueTypeHMtx.h"
#include "fonts/TrueTypeTableReaders.h"
#include "fonts/TrueTypeTables.h"
#include "platform/SystemLanguage.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace zeb {

namespace {

constexpr const char* kNeededTables[] = {"cmap", "glyf", "head", "hhea", "hmtx",
                                         "loca", "maxp", "name", "post", "OS/2"};
/// What the subset copies as it stands.
constexpr const char* kCopiedTables[] = {"cvt ", "fpgm", "prep"};

/// The bytes of a table.
enum class Presence { Absent, There, OutsideOfFile };

Presence FindTable(const ByteReader& bytes, const CTrueTypeFile& file, const char* tag, ByteReader& table) {
  const CTrueTypeDirEnt* const entry = file.FindDirEnt(tag);
  if (entry == nullptr) return Presence::Absent;
  return bytes.Part(entry->GetOffset(), entry->GetLength(), table) ? Presence::There
                                                                   : Presence::OutsideOfFile;
}

/// Reads a table, if it is there, with a function that takes its bytes and the record.
template <class Table, class Reader>
bool ReadTable(const ByteReader& bytes, CTrueTypeFile& file, const char* tag,
               void (CTrueTypeFile::*store)(Table*), Reader read) {
  ByteReader in;
  const Presence presence = FindTable(bytes, file, tag, in);
  if (presence != Presence::There) return presence == Presence::Absent;
  auto table = std::make_unique<Table>();
  if (!read(in, *table)) return false;
  (file.*store)(table.release());
  return true;
}

/// Notes where a table lies.
template <class Table>
bool LocateTable(const ByteReader& bytes, CTrueTypeFile& file, const char* tag,
                 void (CTrueTypeFile::*store)(Table*)) {
  const CTrueTypeDirEnt* const entry = file.FindDirEnt(tag);
  return ReadTable<Table>(bytes, file, tag, store, [&](const ByteReader&, Table& table) {
    table.offset = entry->GetOffset();
    table.length = entry->GetLength();
    return true;
  });
}

bool Overlap(const CTrueTypeDirEnt& one, const CTrueTypeDirEnt& other) {
  return one.GetOffset() < std::uint64_t{other.GetOffset()} + other.GetLength() &&
         other.GetOffset() < std::uint64_t{one.GetOffset()} + one.GetLength();
}

}  // namespace

TrueTypeReader::TrueTypeReader(CTrueTypeFontMetrics& metrics, const TrueTypeRequest& request)
    : m_metrics(metrics),
      m_request(request),
      m_encoding(request.encoding != nullptr ? request.encoding : L""),
      m_usLanguage(SystemLanguage()) {}

TrueTypeReader::~TrueTypeReader() = default;

TrueTypeStatus TrueTypeReader::Read() {
  delete std::exchange(m_metrics.m_pTTFile, nullptr);
  if (!m_request.reuseData) m_metrics.InitFontInformation();
  ChooseEncodingTable();
  TrueTypeStatus status = FetchBytes();
  if (status != kTrueTypeDone) return status;
  m_metrics.SetFontEmbedding(m_request.unicode ? CFontMetrics::EmbedSubset : CFontMetrics::EmbedSingleByte);
  status = ReadTables();
  if (status != kTrueTypeDone) return status;
  status = FillMetrics();
  if (status != kTrueTypeDone) return status;
  KeepGlyphs();
  m_metrics.m_pTTFile = m_pFile.release();
  return kTrueTypeDone;
}

void TrueTypeReader::KeepGlyphs() const {
  const auto* const keeper = m_metrics.m_pFontData->m_pKeeper;
  if (keeper != nullptr && !Overlap(*m_pFile->FindDirEnt("glyf"), *m_pFile->FindDirEnt("loca"))) {
    m_pGlyphs->KeepBytes(*keeper);
  } else {
    // The font data may go or change while the parsed file stays. A subset changes glyphs while it looks for them.
    m_pGlyphs->MakeAll();
  }
}

void TrueTypeReader::ChooseEncodingTable() {
  const std::wstring_view current = m_metrics.GetEncoding();
  if (m_encoding == L"1250") {
    if (current != L"winansi1250") m_metrics.SetCP1250Encoding();
  } else if (current != L"winansi1252") {
    m_metrics.SetWinAnsiEncoding();
  }
}

TrueTypeStatus TrueTypeReader::ReadTables() {
  m_pFile = ReadDirectory(m_bytes, m_uFontOffset);
  if (!m_pFile) return kTrueTypeIncorrect;
  if (m_pFile->FindDirEnt("bhed") != nullptr) return kTrueTypeBitmapFont;
  if (!ReadPlainTables() || !ReadGlyphTables() || !ReadOutlineTables() || !CheckCopiedTables()) {
    return kTrueTypeIncorrect;
  }
  if (const CTrueTypeTabCFF* const cff = m_pFile->GetTabCFF()) {
    m_metrics.SetFontType(CFontMetrics::FontTypeOpenType);
    m_metrics.m_uCFFOffset = cff->offset;
    m_metrics.m_uCFFLength = cff->length;
  }
  const bool complete = std::all_of(std::begin(kNeededTables), std::end(kNeededTables),
                                    [&](const char* tag) { return m_pFile->FindDirEnt(tag) != nullptr; });
  return complete ? kTrueTypeDone : kTrueTypeNotThere;
}

bool TrueTypeReader::ReadPlainTables() {
  CTrueTypeFile& file = *m_pFile;
  const auto readNames = [&](ByteReader in, CTrueTypeTabName& table) {
    return ReadName(in, m_usLanguage, table);
  };
  return ReadTable<CTrueTypeTabHead>(m_bytes, file, "head", &CTrueTypeFile::SetTabHead, ReadHead) &&
         ReadTable<CTrueTypeTabCMap>(m_bytes, file, "cmap", &CTrueTypeFile::SetTabCMap,
                                     TrueTypeCMapReader::Read) &&
         ReadTable<CTrueTypeTabHhea>(m_bytes, file, "hhea", &CTrueTypeFile::SetTabHhea, ReadHhea) &&
         ReadTable<CTrueTypeTabMaxp>(m_bytes, file, "maxp", &CTrueTypeFile::SetTabMaxp, ReadMaxp) &&
         ReadTable<CTrueTypeTabName>(m_bytes, file, "name", &CTrueTypeFile::SetTabName, readNames) &&
         ReadTable<CTrueTypeTabOS2>(m_bytes, file, "OS/2", &CTrueTypeFile::SetTabOS2, ReadOS2) &&
         ReadTable<CTrueTypeTabPCLT>(m_bytes, file, "PCLT", &CTrueTypeFile::SetTabPCLT, ReadPCLT) &&
         LocateTable(m_bytes, file, "CFF ", &CTrueTypeFile::SetTabCFF) &&
         LocateTable(m_bytes, file, "glyf", &CTrueTypeFile::SetTabGlyf);
}

bool TrueTypeReader::ReadGlyphTables() {
  CTrueTypeFile& file = *m_pFile;
  ByteReader in;
  const Presence presence = FindTable(m_bytes, file, "hmtx", in);
  if (presence == Presence::OutsideOfFile) return false;
  // A font without one of these is refused anyhow, since it is incomplete.
  if (presence == Presence::Absent || file.GetTabHhea() == nullptr || file.GetTabMaxp() == nullptr)
    return true;
  const int metricsCount = file.GetTabHhea()->numberOfHMetrics;
  const int count = TrueTypeGlyphs::CountIn(in, metricsCount, file.GetTabMaxp()->numGlyphs);
  if (count == 0) return false;
  file.SetTabHMtx(new CTrueTypeTabHMtx(count));
  m_pGlyphs = file.GetTabHMtx()->m_pGlyphs;
  m_pGlyphs->SetMetrics(in, metricsCount);
  return ReadTable<CTrueTypeTabPost>(
      m_bytes, file, "post", &CTrueTypeFile::SetTabPost,
      [&](ByteReader post, CTrueTypeTabPost& table) { return ReadPost(post, table, m_pGlyphs->Names()); });
}

bool TrueTypeReader::ReadOutlineTables() {
  CTrueTypeFile& file = *m_pFile;
  const CTrueTypeTabGlyf* const glyf = file.GetTabGlyf();
  if (file.GetTabHead() == nullptr || file.GetTabHMtx() == nullptr || glyf == nullptr) return true;
  const bool located = ReadTable<CTrueTypeTabLoca>(
      m_bytes, file, "loca", &CTrueTypeFile::SetTabLoca, [&](ByteReader in, CTrueTypeTabLoca& table) {
        const bool longOffsets = file.GetTabHead()->indexToLocFormat == 1;
        if (!m_pGlyphs->SetLocations(in, longOffsets, file.GetTabMaxp()->numGlyphs, glyf->length))
          return false;
        table.endOffset = m_pGlyphs->EndOffset();
        return true;
      });
  if (!located) return false;
  ByteReader behind;
  if (!m_bytes.Part(glyf->offset, m_bytes.Size() - glyf->offset, behind)) return false;
  m_pGlyphs->SetHeaders(behind);
  return true;
}

bool TrueTypeReader::CheckCopiedTables() const {
  return std::all_of(std::begin(kCopiedTables), std::end(kCopiedTables), [&](const char* tag) {
    ByteReader table;
    return FindTable(m_bytes, *m_pFile, tag, table) != Presence::OutsideOfFile;
  });
}

}  // namespace zeb
