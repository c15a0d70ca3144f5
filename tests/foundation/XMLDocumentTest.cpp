#include "foundation/XMLDocument.h"

#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

using zebtest::DocumentPointer;
using zebtest::FailureOf;
using zebtest::LoadText;
using zebtest::NewDocument;
using zebtest::ReadFile;
using zebtest::SavedText;
using zebtest::TempDir;
using zebtest::WriteFile;
using zebtest::XMLFailure;
using zebxmln::CXMLException;
using zebxmln::CXMLNode;

constexpr const char* kDeclaration = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

/// What stands between the tags of a root element with the text.
std::string WrittenText(const std::wstring& text) {
  const DocumentPointer document = NewDocument();
  document->CreateRootNode(L"R")->SetNodeText(text.c_str());
  const std::string saved = SavedText(*document);
  const std::string start = std::string(kDeclaration) + "<R>";
  const std::string end = "</R>\n";
  EXPECT_TRUE(saved.starts_with(start) && saved.ends_with(end)) << saved;
  return saved.substr(start.size(), saved.size() - start.size() - end.size());
}

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
  return names;
}

TEST(XMLDocument, IndentsByTwoSpacesWithLineFeeds) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  CXMLNode* inner = root->AddChildNode(L"A", 0);
  inner->AddChildNode(L"B", 0)->SetNodeText(L"text");
  inner->AddChildNode(L"C", 0);
  root->AddChildNode(L"D", 0)->SetNodeText(L" ");
  EXPECT_EQ(SavedText(*document), std::string(kDeclaration) +
                                      "<R>\n"
                                      "  <A>\n"
                                      "    <B>text</B>\n"
                                      "    <C/>\n"
                                      "  </A>\n"
                                      "  <D> </D>\n"
                                      "</R>\n");
}

TEST(XMLDocument, WritesAnEmptyRootInOneTag) {
  const DocumentPointer document = NewDocument();
  document->CreateRootNode(L"R");
  EXPECT_EQ(SavedText(*document), std::string(kDeclaration) + "<R/>\n");
}

TEST(XMLDocument, EscapesWhatXmlGivesAMeaningTo) {
  EXPECT_EQ(WrittenText(L"a&b<c>d\"e'f]]>"), "a&amp;b&lt;c&gt;d\"e'f]]&gt;");
  EXPECT_EQ(WrittenText(L"&"), "&amp;");
}

TEST(XMLDocument, WritesCarriageReturnsAsReferences) {
  EXPECT_EQ(WrittenText(L"a\r\nb\rc\td\n"), "a&#13;\nb&#13;c\td\n");
}

TEST(XMLDocument, WritesWhatXmlCannotHoldAsReplacementCharacters) {
  constexpr const char* kReplacement = "\xEF\xBF\xBD";
  for (int code = 1; code < 0x20; ++code) {
    if (code == '\t' || code == '\n' || code == '\r') continue;
    EXPECT_EQ(WrittenText(std::wstring(1, static_cast<wchar_t>(code))), kReplacement) << code;
  }
  EXPECT_EQ(WrittenText(L"a\xFFFE"
                        L"b\xFFFF"
                        L"c"),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD"
            "c");
  EXPECT_EQ(WrittenText(L"\xFFFD\xFFFC"), "\xEF\xBF\xBD\xEF\xBF\xBC");
  EXPECT_EQ(WrittenText(L"\x7F\x85\x9F"), "\x7F\xC2\x85\xC2\x9F");
}

TEST(XMLDocument, JoinsSurrogatePairsAndReplacesLoneSurrogates) {
  EXPECT_EQ(WrittenText({wchar_t{0xD83D}, wchar_t{0xDE00}}), "\xF0\x9F\x98\x80");
  EXPECT_EQ(WrittenText({L'a', wchar_t{0xD83D}, L'b'}),
            "a\xEF\xBF\xBD"
            "b");
  EXPECT_EQ(WrittenText({wchar_t{0xDE00}, wchar_t{0xD83D}}), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(WrittenText({wchar_t{0xD83D}, wchar_t{0xD83D}, wchar_t{0xDE00}}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
  EXPECT_EQ(WrittenText(L"\U0001F600"), "\xF0\x9F\x98\x80");
  EXPECT_EQ(WrittenText({wchar_t{0xD83D}}), "\xEF\xBF\xBD");
}

TEST(XMLDocument, ATextSurvivesSavingAndLoading) {
  for (const std::wstring& text : {std::wstring(L"  blanks  "), std::wstring(L"\r\n\r \t\n"),
                                   std::wstring(L"<a>&amp;\"'\u20AC\U0001F600\U0010FFFF")}) {
    const DocumentPointer document = NewDocument();
    document->CreateRootNode(L"R")->SetNodeText(text.c_str());
    EXPECT_EQ(LoadText(SavedText(*document))->GetRootNode()->GetNodeText(), text);
  }
}

TEST(XMLDocument, TextsThatWereAskedForAreWrittenAsTheyWereRead) {
  const std::string text =
      std::string(kDeclaration) + "<R>\n  <A>\xC3\xA4 &amp;&#13;</A>\n  <B>\xF0\x9F\x98\x80</B>\n</R>\n";
  const DocumentPointer document = LoadText(text);
  for (CXMLNode** child = document->GetRootNode()->GetChildNodes(); *child != nullptr; ++child)
    (*child)->GetNodeText();
  EXPECT_EQ(SavedText(*document), text);
}

TEST(XMLDocument, WritesFilesLongerThanItsBuffer) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  const std::wstring text(300000, L'x');
  std::string expected = std::string(kDeclaration) + "<R>\n";
  for (int i = 0; i < 5; ++i) {
    root->AddChildNode(L"A", 0)->SetNodeText(text.c_str());
    expected += "  <A>" + std::string(300000, 'x') + "</A>\n";
  }
  EXPECT_EQ(SavedText(*document), expected + "</R>\n");
}

TEST(XMLDocument, CreateRootNodeReplacesTheRoot) {
  const DocumentPointer document = LoadText("<R><A/></R>");
  document->CreateRootNode(L"S");
  EXPECT_EQ(SavedText(*document), std::string(kDeclaration) + "<S/>\n");
}

TEST(XMLDocument, CannotBeWrittenWithoutARoot) {
  const TempDir folder;
  const DocumentPointer document = NewDocument();
  const XMLFailure failure =
      FailureOf([&] { document->SaveDocumentToFile(folder.WideFile("a.xml").c_str(), true); });
  EXPECT_EQ(failure.Code, CXMLException::CannotWrite);
  EXPECT_EQ(failure.Message, L"The file '" + folder.WideFile("a.xml") +
                                 L"' cannot be written: the document has no root element.");
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

/// Saving over a file `target.xml` with the content "old".
class XMLDocumentSave : public testing::Test {
 protected:
  XMLDocumentSave() : m_pDocument(LoadText("<New/>")) { WriteFile(Target(), "old"); }

  fs::path Target() const { return m_Folder.File("target.xml"); }
  XMLFailure Save(const fs::path& path) {
    return FailureOf([&] { m_pDocument->SaveDocumentToFile(zebtest::WidePath(path).c_str(), true); });
  }
  XMLFailure Save() { return Save(Target()); }
  /// The old file is as it was, and nothing stands beside it.
  void ExpectNothingChanged() {
    EXPECT_EQ(ReadFile(Target()), "old");
    EXPECT_EQ(NamesIn(Target().parent_path()), (std::vector<std::string>{"target.xml"}));
  }

  const std::string m_strNew = std::string(kDeclaration) + "<New/>\n";
  TempDir m_Folder;
  DocumentPointer m_pDocument;
};

TEST_F(XMLDocumentSave, ReplacesAFileAndLeavesNothingElse) {
  EXPECT_EQ(Save().Code, 0);
  EXPECT_EQ(ReadFile(Target()), m_strNew);
  EXPECT_EQ(NamesIn(m_Folder.Path()), (std::vector<std::string>{"target.xml"}));
}

TEST_F(XMLDocumentSave, IgnoresItsFlag) {
  m_pDocument->SaveDocumentToFile(m_Folder.WideFile("target.xml").c_str(), false);
  EXPECT_EQ(ReadFile(Target()), m_strNew);
}

TEST_F(XMLDocumentSave, KeepsThePermissionsOfTheOldFile) {
  fs::permissions(Target(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read);
  EXPECT_EQ(Save().Code, 0);
  EXPECT_EQ(fs::status(Target()).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::others_read);
}

TEST_F(XMLDocumentSave, RefusesAReadOnlyTargetForRootToo) {
  fs::permissions(Target(), fs::perms::owner_read | fs::perms::group_read);
  const XMLFailure failure = Save();
  EXPECT_EQ(failure.Code, CXMLException::TargetReadOnly);
  EXPECT_EQ(failure.Message,
            L"The file '" + zebtest::WidePath(Target()) + L"' cannot be written: it is read-only.");
  ExpectNothingChanged();
}

TEST_F(XMLDocumentSave, ASymbolicLinkStaysOne) {
  fs::create_symlink("target.xml", m_Folder.File("link.xml"));
  EXPECT_EQ(Save(m_Folder.File("link.xml")).Code, 0);
  EXPECT_TRUE(fs::is_symlink(m_Folder.File("link.xml")));
  EXPECT_EQ(ReadFile(Target()), m_strNew);
}

TEST_F(XMLDocumentSave, FailsWhereNoFileCanBe) {
  const XMLFailure failure = Save(m_Folder.File("missing") / "a.xml");
  EXPECT_EQ(failure.Code, CXMLException::CannotWrite);
  EXPECT_EQ(failure.Message, L"The file '" + zebtest::WidePath(m_Folder.File("missing") / "a.xml") +
                                 L"' cannot be written: it does not exist.");
  EXPECT_EQ(Save(m_Folder.Path()).Code, CXMLException::CannotWrite);
  EXPECT_EQ(Save("").Code, CXMLException::CannotWrite);
  EXPECT_EQ(FailureOf([&] { m_pDocument->SaveDocumentToFile(nullptr, true); }).Code,
            CXMLException::CannotWrite);
  ExpectNothingChanged();
}

TEST_F(XMLDocumentSave, FailsInAFolderThatCannotBeWritten) {
  if (geteuid() == 0) {
    // Root may write into any folder but for those of the kernel.
    EXPECT_EQ(Save("/proc/zeb-target.xml").Code, CXMLException::CannotWrite);
    return;
  }
  fs::permissions(m_Folder.Path(), fs::perms::owner_read | fs::perms::owner_exec);
  EXPECT_EQ(Save().Code, CXMLException::CannotWrite);
  ExpectNothingChanged();
  fs::permissions(m_Folder.Path(), fs::perms::owner_all);
}

/// A limit on the size of files for a scope: what a full disk looks like to a process.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) : m_pOldHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &m_Old);
    const rlimit limit = {bytes, m_Old.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &m_Old);
    std::signal(SIGXFSZ, m_pOldHandler);
  }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  void (*m_pOldHandler)(int);
  rlimit m_Old = {};
};

TEST_F(XMLDocumentSave, ADiskThatIsFullLeavesTheOldFile) {
  CXMLNode* root = m_pDocument->GetRootNode();
  const std::wstring text(1000, L'x');
  for (int i = 0; i < 1000; ++i) root->AddChildNode(L"A", 0)->SetNodeText(text.c_str());
  for (const rlim_t bytes : {rlim_t{0}, rlim_t{10}, rlim_t{65536}, rlim_t{500000}}) {
    XMLFailure failure;
    {
      const FileSizeLimit limit(bytes);
      failure = Save();
    }
    EXPECT_EQ(failure.Code, CXMLException::CannotWrite);
    EXPECT_EQ(failure.Message,
              L"The file '" + zebtest::WidePath(Target()) + L"' cannot be written: there is no space left.");
    ExpectNothingChanged();
  }
}

TEST_F(XMLDocumentSave, MayReplaceTheFileThatItWasReadFrom) {
  WriteFile(Target(), "<R><A>1</A></R>");
  m_pDocument = zebtest::LoadFile(Target());
  EXPECT_EQ(Save().Code, 0);
  EXPECT_EQ(ReadFile(Target()), std::string(kDeclaration) + "<R>\n  <A>1</A>\n</R>\n");
}

}  // namespace
