#include "foundation/ProtocolData.h"

#include "foundation/LogEntry.h"
#include "foundation/RecordWriter.h"
#include "foundation/ValueConversion.h"
#include "foundation/XMLFile.h"
#include "foundation/XMLNode.h"

#include <array>
#include <cstddef>
#include <memory>

namespace {

constexpr const wchar_t* kName = L"ProtocolData";

void WriteLogEntry(zeb::RecordWriter& record, const CLogEntry& entry) {
  zebxmln::CXMLNode* const node = record.Add(L"LogEntry");
  std::array<wchar_t, 16> level{};
  IntToString(entry.GetLevel(), level.data());
  node->SetNodeAttribute(L"Level", level.data());
  node->SetNodeText(entry.GetText());
}

}  // namespace

CProtocolData::CProtocolData() : m_strErrorMessage(L"Keine Fehler aufgetreten") {}

CProtocolData::CProtocolData(const CProtocolData& other) = default;

CProtocolData::~CProtocolData() {
  for (const CLogEntry* entry : m_rgpLogEntries) delete entry;
}

// Fixed behaviour: the entries held before are neither freed nor copied, so that copies share pointers.
CProtocolData& CProtocolData::operator=(const CProtocolData& other) = default;

void CProtocolData::AddLogEntry(int level, const wchar_t* text) {
  auto entry = std::make_unique<CLogEntry>(level, text);
  m_rgpLogEntries.push_back(entry.get());
  static_cast<void>(entry.release());
}

int CProtocolData::GetLogEntryCount() const { return static_cast<int>(m_rgpLogEntries.size()); }

CLogEntry* CProtocolData::GetLogEntryAt(int index) const {
  return m_rgpLogEntries[static_cast<std::size_t>(index)];
}

void CProtocolData::SetError(int errorNr, const wchar_t* errorMessage) {
  m_iErrorNr = errorNr;
  m_strErrorMessage = errorMessage;
}

int CProtocolData::GetErrorNr() const { return m_iErrorNr; }

const wchar_t* CProtocolData::GetErrorMessage() const { return m_strErrorMessage.c_str(); }

void CProtocolData::SaveProtocolData(const wchar_t* fileName) {
  try {
    zeb::XMLFile file = zeb::XMLFile::Create(kName, kName);
    zeb::RecordWriter record(file.Root());
    record.Write(L"VersionNr", m_iVersionNr);
    record.Write(L"ErrorNr", m_iErrorNr);
    record.Write(L"ErrorMessage", m_strErrorMessage);
    for (const CLogEntry* entry : m_rgpLogEntries) {
      if (entry != nullptr) WriteLogEntry(record, *entry);
    }
    file.Save(fileName);
  } catch (const zebxmln::CXMLException& exception) {
    zeb::ThrowAsKXException(exception);
  }
}
