#include "FileCheck.h"

#include "LoadedReport.h"
#include "ZEBReportDocument.h"
#include "fonts/FontPool.h"
#include "foundation/ReadingTrace.h"
#include "foundation/XMLFile.h"

#include <algorithm>
#include <iterator>
#include <string_view>

// This file knows how the readings of the library can be listened to, which is no part of its interface.

namespace zebreport {

namespace {

/// A pool of a single file, apart from the pool of the process.
class PoolOfFile : public CFontPool {
 public:
  void Read(const wchar_t* file) { ReadFontData(file); }
};

void LoadReportFile(const std::wstring& file) { LoadedReport().LoadReportFile(file); }

void LoadLayoutFile(const std::wstring& file) { LoadedReport().LoadLayoutFile(file); }

void LoadTypeFile(const std::wstring& file) { CReportType().LoadReportType(file.c_str()); }

void LoadDescriptionFile(const std::wstring& file) {
  CReportDescriptions().LoadReportDescriptions(file.c_str());
}

void LoadPoolFile(const std::wstring& file) { PoolOfFile().Read(file.c_str()); }

void LoadCatalogue(const std::wstring& file) {
  CKXExceptionHandler::GetInstance().ReadExceptions(file.c_str());
}

/// A kind of file: its root element, an element below the root that no other kind has, and how it is loaded.
struct FileKind {
  std::wstring_view Root;
  std::wstring_view Child;
  void (*Load)(const std::wstring& file);  // null if the library only writes it
};

constexpr FileKind kKinds[] = {
    {L"ReportRootElement", L"ReportDocument", LoadReportFile},
    {L"ReportLayout", L"ReportLayoutID", LoadLayoutFile},
    {L"ReportTypeRootElement", L"ReportTypeZone", LoadTypeFile},
    {L"ReportDescriptionRootElement", L"ReportDescription", LoadDescriptionFile},
    {L"FontPoolData", L"FontData", LoadPoolFile},
    {L"KXErrorMessages", L"ErrorFamily", LoadCatalogue},
    {L"ValueHolderData", L"", nullptr},
    {L"ProtocolData", L"", nullptr},
};

bool HasChild(zebxmln::CXMLNode& root, std::wstring_view name) {
  for (zebxmln::CXMLNode** child = root.GetChildNodes(); *child != nullptr; ++child) {
    if ((*child)->GetNodeName() == name) return true;
  }
  return false;
}

Failure FailureOf(const std::wstring& file, const zebxmln::CXMLException& exception) {
  return LibraryFailure(file, CKXXMLException(exception.GetErrorCode(), exception.GetErrorMessage()));
}

zeb::XMLFile LoadDocument(const std::wstring& file) {
  try {
    return zeb::XMLFile::Load(file.c_str());
  } catch (const zebxmln::CXMLException& exception) {
    throw FailureOf(file, exception);
  }
}

/// The kind that the root's name says. No loading asks for that name, so what is in a root of another name counts too.
const FileKind& KindOf(const std::wstring& file) {
  const zeb::XMLFile document = LoadDocument(file);
  zebxmln::CXMLNode& root = *document.Root();
  const std::wstring_view name = root.GetNodeName();
  for (const FileKind& kind : kKinds) {
    if (kind.Root == name) return kind;
  }
  for (const FileKind& kind : kKinds) {
    if (!kind.Child.empty() && HasChild(root, kind.Child)) return kind;
  }
  throw Failure(file + L": its root element " + root.GetNodeName() +
                L" is none of this system; name a report, layout, report type, description, font pool or "
                L"error catalogue file.");
}

/// Names that catalogue files have in one generation only, each at its place.
constexpr std::wstring_view kNamesOfOneGeneration[] = {
    L"InternalReportTypeZoneName",
    L"ExternalReportTypeZoneName",
    L"ExternalReportTypeZoneDescription",
    L"ReportTypeZoneAvailableValueHolder",
    L"AvailableValueHolderType",
    L"InternalName",
    L"EquivalentInternalName",
    L"ExternalName",
    L"ExternalDescription",
    L"FooterZone",
    L"VH",
    L"Key",
    L"Name",
    L"Desc",
    L"Type",
    L"ReportProductFamily",
    L"ProductFamily",
    L"ReportDescriptionSubDirectory",
    L"ReportDescriptionFileName",
    L"FileName",
};

/// Names can be good ones of another generation: a catalogue that is loaded and saved keeps its number but not its names.
void ExplainGeneration(const FileKind& kind, std::vector<zeb::ReadingFinding>& findings) {
  if (kind.Load != LoadTypeFile && kind.Load != LoadDescriptionFile) return;
  for (zeb::ReadingFinding& finding : findings) {
    const std::wstring name = finding.Path.substr(finding.Path.rfind(L'/') + 1);
    const auto found = std::find(std::begin(kNamesOfOneGeneration), std::end(kNamesOfOneGeneration),
                                 name.substr(0, name.find(L'[')));
    if (finding.Fault == zeb::ReadingFault::UnknownName && found != std::end(kNamesOfOneGeneration)) {
      finding.Text += L"; files of another VersionNr have that name, so mend the VersionNr or the name";
    }
  }
}

}  // namespace

CheckedFile CheckFile(const std::wstring& file) {
  const FileKind& kind = KindOf(file);
  if (kind.Load == nullptr) return {};
  CheckedFile checked;
  const zeb::ReadingTrace trace;
  try {
    kind.Load(file);
  } catch (const zebxmln::CXMLException& exception) {
    checked.failure = FailureOf(file, exception);
  } catch (const CKXException& exception) {
    checked.failure = LibraryFailure(file, exception);
  }
  checked.findings = trace.Findings();
  ExplainGeneration(kind, checked.findings);
  return checked;
}

bool LoadsWhole(const std::function<void()>& load) {
  const zeb::ReadingTrace trace;
  load();
  return trace.Findings().empty();
}

}  // namespace zebreport
