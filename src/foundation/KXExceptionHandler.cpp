#include "foundation/KXExceptionHandler.h"

#include "foundation/KXException.h"
#include "foundation/RecordReader.h"
#include "foundation/XMLFile.h"
#include "foundation/XMLNode.h"

#include <array>
#include <memory>
#include <utility>

namespace {

constexpr const wchar_t* kCatalogueName = L"KXErrorMessages.xml";
constexpr const wchar_t* kUnknownException = L"unbekannte Exception geworfen";

struct Family {
  const wchar_t* name;
  void (*raise)(int errorNr, const wchar_t* errorMessage);
};

template <typename Exception>
[[noreturn]] void Raise(int errorNr, const wchar_t* errorMessage) {
  throw Exception(errorNr, errorMessage);
}

constexpr std::array kFamilies = {
    Family{L"MemoryException", &Raise<CKXMemoryException>},
    Family{L"FileException", &Raise<CKXFileException>},
    Family{L"ReportDocumentException", &Raise<CKXReportDocumentException>},
    Family{L"PrintGeneratorException", &Raise<CKXPrintGeneratorException>},
    Family{L"PDFLibException", &Raise<CKXPDFLibException>},
    Family{L"LayouterException", &Raise<CKXLayouterException>},
    Family{L"DOMException", &Raise<CKXDOMException>},
    Family{L"XMLException", &Raise<CKXXMLException>},
    Family{L"ParserException", &Raise<CKXParserException>},
};

}  // namespace

struct CKXExceptionHandler::ExceptionEntry {
  std::wstring family;
  int number = 0;
  std::wstring message;
};

CKXExceptionHandler& CKXExceptionHandler::GetInstance() {
  static CKXExceptionHandler instance;
  return instance;
}

CKXExceptionHandler::CKXExceptionHandler() = default;

CKXExceptionHandler::~CKXExceptionHandler() {
  for (const auto& [key, entry] : m_rgpExceptions) delete entry;
}

void CKXExceptionHandler::SetExceptionPathName(const wchar_t* path) {
  m_strExceptionPath = path;
  if (!m_strExceptionPath.ends_with(L'\\')) m_strExceptionPath += L'\\';
  m_bRead = false;
  ReadCatalogueOfPath();
}

const wchar_t* CKXExceptionHandler::GetExceptionNamePath() const { return m_strExceptionPath.c_str(); }

void CKXExceptionHandler::ReadExceptions(const wchar_t* fileName) {
  m_strFileName = fileName;
  try {
    ReadFamilies(zeb::XMLFile::Load(fileName).Root());
    m_bRead = true;
  } catch (const zebxmln::CXMLException&) {
    // Fixed behaviour: a catalogue that cannot be read is no failure of its own; every key then ends in the fallback.
  }
}

void CKXExceptionHandler::ThrowException(const wchar_t* key) { Throw(key, nullptr); }

void CKXExceptionHandler::ThrowException(const wchar_t* key, const wchar_t* additionalText) {
  Throw(key, additionalText);
}

void CKXExceptionHandler::ReadCatalogueOfPath() {
  ReadExceptions((m_strExceptionPath + kCatalogueName).c_str());
}

void CKXExceptionHandler::ReadFamilies(zebxmln::CXMLNode* root) {
  // Fixed behaviour: a field that an entry or a family lacks is that of the one before it.
  std::wstring key;
  ExceptionEntry current;
  zeb::RecordReader catalogue(root);
  catalogue.Read(L"VersionNr", m_iVersionNr);
  while (zebxmln::CXMLNode* const familyNode = catalogue.Take(L"ErrorFamily")) {
    zeb::RecordReader family(familyNode);
    family.Read(L"ErrorFamilyName", current.family);
    while (zebxmln::CXMLNode* const entryNode = family.Take(L"ErrorEntry")) {
      zeb::RecordReader entry(entryNode);
      entry.Read(L"ErrorKey", key);
      entry.Read(L"ErrorNr", current.number);
      entry.Read(L"ErrorMessage", current.message);
      AddEntry(key, current);
    }
  }
}

void CKXExceptionHandler::AddEntry(const std::wstring& key, const ExceptionEntry& entry) {
  // Fixed behaviour: the first entry of a key wins, within a file and across files.
  if (key.empty() || m_rgpExceptions.contains(key)) return;
  auto owned = std::make_unique<ExceptionEntry>(entry);
  m_rgpExceptions.emplace(key, owned.get());
  static_cast<void>(owned.release());
}

void CKXExceptionHandler::Throw(const wchar_t* key, const wchar_t* additionalText) {
  if (!m_bRead) ReadCatalogueOfPath();
  const auto found = m_rgpExceptions.find(key);
  if (found == m_rgpExceptions.end()) throw CKXException(-1, kUnknownException);
  const ExceptionEntry* const entry = found->second;
  if (entry == nullptr) return;
  std::wstring message = entry->message;
  if (additionalText != nullptr) message.append(L"\n").append(additionalText);
  for (const Family& family : kFamilies) {
    if (entry->family == family.name) family.raise(entry->number, message.c_str());
  }
  throw CKXException(entry->number, message.c_str());
}
