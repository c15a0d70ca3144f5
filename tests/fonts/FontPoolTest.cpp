#include "fonts/FontPool.h"

#include "fonts/FontData.h"
#include "fonts/FontPoolEntry.h"
#include "foundation/XMLManager.h"
#include "support/Files.h"
#include "support/KeepForever.h"
#include "support/TempDir.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

namespace {

namespace fs = std::filesystem;
using zebtest::FailureOf;
using zebtest::ReadFile;
using zebtest::TempDir;
using zebtest::WriteFile;
using zebxmln::CXMLException;

static_assert(std::has_virtual_destructor_v<CFontPool>);

/// A pool beside that of the process.
class Pool : public CFontPool {
 public:
  Pool() = default;
  explicit Pool(const TempDir& folder) { SetFontPoolPath(folder.WidePath().c_str()); }

  using CFontPool::AddFontDataEntry;
  using CFontPool::ReadAvailableFonts;
  using CFontPool::ReadFontData;
  using CFontPool::WriteFontData;

  /// Stores a font of the normal style.
  void Store(const wchar_t* name, std::string program, const std::vector<std::wstring>& names = {}) {
    SetFontData(name, L"Family", 400, false, reinterpret_cast<unsigned char*>(program.data()),
                static_cast<int>(program.size()), names);
  }
};

std::string BytesOf(const CFontData* data) {
  if (data == nullptr) return "none";
  return {data->GetData(), data->GetData() + data->GetLength()};
}

std::string FileText(std::string_view children) {
  return "<?xml version=\"1.0\"?><FontPoolData>" + std::string(children) + "</FontPoolData>";
}

/// A file of a font "Sample" with the bytes "abc".
std::string SampleFile() {
  return FileText(
      "<VersionNr>1</VersionNr><FontFamilyName>Samples</FontFamilyName><FontName>Sample</FontName>"
      "<Bold>700</Bold><Italic>1</Italic><LocalizedFontNames>Muster</LocalizedFontNames>"
      "<FontData><BinaryData>YWJj</BinaryData></FontData>");
}

std::vector<std::string> NamesIn(const fs::path& folder) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder)) names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

TEST(FontPool, ThereIsOneInTheProcess) {
  EXPECT_EQ(&CFontPool::GetInstance(), &CFontPool::GetInstance());
  EXPECT_STREQ(CFontPool::GetInstance().GetFontPoolPath(), L"");
}

TEST(FontPool, ClosesThePathWithTheSeparatorOfTheSystem) {
  Pool pool;
  EXPECT_STREQ(pool.GetFontPoolPath(), L"");
  pool.SetFontPoolPath(L"/var/fonts");
  EXPECT_STREQ(pool.GetFontPoolPath(), L"/var/fonts/");
}

TEST(FontPool, TakesEitherSeparatorAsClosing) {
  Pool pool;
  pool.SetFontPoolPath(L"/var/fonts/");
  EXPECT_STREQ(pool.GetFontPoolPath(), L"/var/fonts/");
  pool.SetFontPoolPath(L"C:\\fonts\\");
  EXPECT_STREQ(pool.GetFontPoolPath(), L"C:\\fonts\\");
}

TEST(FontPool, APathThatEndsInABackslashIsAFolder) {
  const TempDir folder;
  Pool pool;
  pool.SetFontPoolPath((folder.WidePath() + L"\\").c_str());
  pool.Store(L"Sample", "abc");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"Sample.fd"});
}

TEST(FontPool, AnEmptyPathTurnsItOff) {
  const TempDir folder;
  Pool pool(folder);
  for (const wchar_t* path : {L"", static_cast<const wchar_t*>(nullptr)}) {
    pool.SetFontPoolPath(path);
    EXPECT_STREQ(pool.GetFontPoolPath(), L"");
    pool.Store(L"Sample", "abc");
    EXPECT_EQ(pool.GetFontData(L"Sample"), nullptr);
    pool.ReadAvailableFonts();
  }
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

TEST(FontPool, WithoutAPathNothingIsFoundOrStored) {
  Pool pool;
  EXPECT_EQ(pool.GetFontData(L"Sample"), nullptr);
  pool.Store(L"Sample", "abc", {L"Muster"});
  EXPECT_EQ(pool.GetFontData(L"Sample"), nullptr);
  EXPECT_EQ(pool.FindUniqueName(L"Muster"), nullptr);
}

TEST(FontPool, WithoutAPathWhatIsInMemoryIsFound) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"Sample", "abc");
  pool.SetFontPoolPath(L"");
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
}

TEST(FontPool, WritesAllFieldsInTheirOrder) {
  const TempDir folder;
  Pool pool(folder);
  std::string program("\0\xFF", 2);
  pool.SetFontData(L"Sample Bold", L"Samples & more", 700, true,
                   reinterpret_cast<unsigned char*>(program.data()), 2, {L"Muster", L"", L"Muster"});
  EXPECT_EQ(ReadFile(folder.File("Sample Bold.fd")),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<FontPoolData>\n"
            "  <VersionNr>1</VersionNr>\n"
            "  <FontFamilyName>Samples &amp; more</FontFamilyName>\n"
            "  <FontName>Sample Bold</FontName>\n"
            "  <Bold>700</Bold>\n"
            "  <Italic>1</Italic>\n"
            "  <LocalizedFontNames>Muster</LocalizedFontNames>\n"
            "  <LocalizedFontNames/>\n"
            "  <LocalizedFontNames>Muster</LocalizedFontNames>\n"
            "  <FontData>\n"
            "    <BinaryData>AP8=</BinaryData>\n"
            "  </FontData>\n"
            "</FontPoolData>\n");
}

TEST(FontPool, StyleIsWrittenWithItsDefaultsToo) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"Sample", "abc");
  const zebtest::DocumentPointer document = zebtest::LoadFile(folder.File("Sample.fd"));
  zebxmln::CXMLNode** children = document->GetRootNode()->GetChildNodes();
  EXPECT_STREQ(children[3]->GetNodeName(), L"Bold");
  EXPECT_STREQ(children[3]->GetNodeText(), L"400");
  EXPECT_STREQ(children[4]->GetNodeName(), L"Italic");
  EXPECT_STREQ(children[4]->GetNodeText(), L"0");
  EXPECT_STREQ(children[5]->GetNodeName(), L"FontData");
  EXPECT_EQ(children[6], nullptr);
}

TEST(FontPool, AnotherPoolReadsWhatOneWrote) {
  const TempDir folder;
  Pool(folder).Store(L"\x6E38\x660E\x671D", std::string(200000, '\xA5'), {L"Yu Mincho"});
  Pool pool(folder);
  EXPECT_EQ(pool.FindUniqueName(L"Yu Mincho"), nullptr) << "only what is in memory is searched";
  EXPECT_EQ(BytesOf(pool.GetFontData(L"\x6E38\x660E\x671D")), std::string(200000, '\xA5'));
  EXPECT_STREQ(pool.FindUniqueName(L"Yu Mincho"), L"\x6E38\x660E\x671D");
}

TEST(FontPool, ReadsAllLocalizedNamesOfAFile) {
  const TempDir folder;
  Pool(folder).Store(L"Sample", "abc", {L"Eins", L"", L"Drei"});
  Pool pool(folder);
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
  EXPECT_STREQ(pool.FindUniqueName(L"Eins"), L"Sample");
  EXPECT_STREQ(pool.FindUniqueName(L"Drei"), L"Sample");
}

TEST(FontPool, ReadsAFileOnceAndKeepsIt) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), SampleFile());
  Pool pool(folder);
  CFontData* const data = pool.GetFontData(L"Sample");
  EXPECT_EQ(BytesOf(data), "abc");
  fs::remove(folder.File("Sample.fd"));
  EXPECT_EQ(pool.GetFontData(L"Sample"), data);
  pool.SetFontPoolPath(L"/nowhere");
  EXPECT_EQ(pool.GetFontData(L"Sample"), data);
}

TEST(FontPool, NamesAreCaseSensitive) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), SampleFile());
  Pool pool(folder);
  EXPECT_NE(pool.GetFontData(L"Sample"), nullptr);
  EXPECT_EQ(pool.GetFontData(L"SAMPLE"), nullptr);
}

TEST(FontPool, FixedASecondFontOfANameChangesNothing) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"Sample", "abc", {L"Muster"});
  const std::string file = ReadFile(folder.File("Sample.fd"));
  CFontData* const data = pool.GetFontData(L"Sample");
  pool.Store(L"Sample", "other", {L"Anders"});
  EXPECT_EQ(pool.GetFontData(L"Sample"), data);
  EXPECT_EQ(BytesOf(data), "abc");
  EXPECT_EQ(ReadFile(folder.File("Sample.fd")), file);
  EXPECT_EQ(pool.FindUniqueName(L"Anders"), nullptr);
}

TEST(FontPool, FixedAFileThatIsThereIsNotOverwritten) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), SampleFile());
  Pool pool(folder);
  pool.Store(L"Sample", "other");
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
  EXPECT_EQ(ReadFile(folder.File("Sample.fd")), SampleFile());
}

TEST(FontPool, AFileThatCannotBeReadIsOverwritten) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), "<FontPoolData><Font");
  Pool pool(folder);
  pool.Store(L"Sample", "abc");
  EXPECT_EQ(BytesOf(Pool(folder).GetFontData(L"Sample")), "abc");
}

TEST(FontPool, AFontWithoutAProgramIsStoredAsSuch) {
  const TempDir folder;
  Pool pool(folder);
  pool.SetFontData(L"Sample", L"", 400, false, nullptr, 0, {});
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "");
  EXPECT_EQ(BytesOf(Pool(folder).GetFontData(L"Sample")), "");
}

TEST(FontPool, NullNamesCountAsEmpty) {
  const TempDir folder;
  Pool pool(folder);
  unsigned char byte = 'a';
  pool.SetFontData(nullptr, nullptr, 400, false, &byte, 1, {});
  EXPECT_EQ(BytesOf(pool.GetFontData(nullptr)), "a");
  EXPECT_EQ(BytesOf(pool.GetFontData(L"")), "a");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{".fd"});
}

TEST(FontPool, ForgetsItsFontsAndLeavesTheFiles) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"Sample", "abc", {L"Muster"});
  pool.DeleteFontPool();
  EXPECT_EQ(pool.FindUniqueName(L"Muster"), nullptr);
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
  EXPECT_STREQ(pool.FindUniqueName(L"Muster"), L"Sample");
}

// Names

TEST(FontPool, FindsTheUniqueNameOfALocalizedOne) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"B", "b", {L"Eins", L"Zwei"});
  pool.Store(L"A", "a", {L"Drei", L"Zwei"});
  EXPECT_STREQ(pool.FindUniqueName(L"Eins"), L"B");
  EXPECT_STREQ(pool.FindUniqueName(L"Zwei"), L"A") << "entries go by in the order of their names";
  EXPECT_STREQ(pool.FindUniqueName(L"dREI"), L"A");
  EXPECT_EQ(pool.FindUniqueName(L"Vier"), nullptr);
}

TEST(FontPool, ANullOrEmptyNameHasNoUniqueName) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"A", "a", {L""});
  EXPECT_EQ(pool.FindUniqueName(nullptr), nullptr);
  EXPECT_EQ(pool.FindUniqueName(L""), nullptr);
}

TEST(FontPool, TheMarkOfAVerticalFontDoesNotCount) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"A", "a", {L"Eins"});
  EXPECT_STREQ(pool.FindUniqueName(L"@Eins"), L"A");
  EXPECT_EQ(pool.FindUniqueName(L"@@Eins"), nullptr);
}

TEST(FontPool, FixedTheMarkAloneStandsForAnEmptyLocalizedName) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"A", "a", {L"Eins"});
  EXPECT_EQ(pool.FindUniqueName(L"@"), nullptr);
  pool.Store(L"B", "b", {L""});
  EXPECT_STREQ(pool.FindUniqueName(L"@"), L"B");
}

TEST(FontPool, FixedTheUniqueNameItselfIsNotCompared) {
  const TempDir folder;
  Pool pool(folder);
  pool.Store(L"A", "a", {L"Eins"});
  EXPECT_EQ(pool.FindUniqueName(L"A"), nullptr);
}

// Files

TEST(FontPool, FixedTheVersionOfAFileBecomesThePools) {
  const TempDir folder;
  WriteFile(folder.File("Old.fd"), FileText("<VersionNr>7</VersionNr><FontName>Old</FontName>"));
  Pool pool(folder);
  pool.GetFontData(L"Old");
  pool.Store(L"New", "abc");
  EXPECT_NE(ReadFile(folder.File("New.fd")).find("<VersionNr>7</VersionNr>"), std::string::npos);
}

TEST(FontPool, FixedTheVersionOfAFileCountsThoughItsFontIsKnown) {
  const TempDir folder;
  WriteFile(folder.File("Other.fd"), FileText("<VersionNr>7</VersionNr><FontName>Sample</FontName>"));
  Pool pool(folder);
  pool.Store(L"Sample", "abc");
  EXPECT_EQ(pool.GetFontData(L"Other"), nullptr);
  pool.Store(L"New", "abc");
  EXPECT_NE(ReadFile(folder.File("New.fd")).find("<VersionNr>7</VersionNr>"), std::string::npos);
}

TEST(FontPool, AFileWithoutVersionLeavesThePools) {
  const TempDir folder;
  WriteFile(folder.File("Old.fd"), FileText("<FontName>Old</FontName><VersionNr>7</VersionNr>"));
  Pool pool(folder);
  pool.GetFontData(L"Old");
  pool.Store(L"New", "abc");
  EXPECT_NE(ReadFile(folder.File("New.fd")).find("<VersionNr>1</VersionNr>"), std::string::npos);
}

TEST(FontPool, FieldsMayBeAbsent) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"),
            FileText("<FontName>Sample</FontName><FontData><BinaryData>YWJj</BinaryData></FontData>"));
  Pool pool(folder);
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
}

TEST(FontPool, AFieldOutOfItsPlaceEndsTheMatching) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"),
            FileText("<FontName>Sample</FontName><FontFamilyName>Samples</FontFamilyName>"
                     "<FontData><BinaryData>YWJj</BinaryData></FontData>"));
  Pool pool(folder);
  EXPECT_EQ(pool.GetFontData(L"Sample"), nullptr);
}

TEST(FontPool, TheNameOfTheRootIsNotAsked) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"),
            "<Other><FontName>Sample</FontName><FontData><BinaryData>YWJj"
            "</BinaryData></FontData></Other>");
  EXPECT_EQ(BytesOf(Pool(folder).GetFontData(L"Sample")), "abc");
}

TEST(FontPool, AFileCountsUnderTheNameInIt) {
  const TempDir folder;
  WriteFile(folder.File("Other.fd"), SampleFile());
  Pool pool(folder);
  EXPECT_EQ(pool.GetFontData(L"Other"), nullptr);
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
}

TEST(FontPool, AMissingOrDamagedFileIsNoFont) {
  const TempDir folder;
  WriteFile(folder.File("Empty.fd"), "");
  WriteFile(folder.File("Binary.fd"), std::string("\0\1\2\xFF", 4));
  WriteFile(folder.File("Encoding.fd"), "<?xml version=\"1.0\" encoding=\"none\"?><a/>");
  const std::string whole = SampleFile();
  WriteFile(folder.File("Sample.fd"), whole.substr(0, whole.size() - 1));
  fs::create_directory(folder.File("Folder.fd"));
  Pool pool(folder);
  for (const wchar_t* name : {L"Missing", L"Empty", L"Binary", L"Encoding", L"Sample", L"Folder"}) {
    EXPECT_EQ(pool.GetFontData(name), nullptr) << name;
  }
}

TEST(FontPool, ContentThatIsNoBase64GivesNoBytes) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"),
            FileText("<FontName>Sample</FontName><FontData><BinaryData>#</BinaryData></FontData>"));
  EXPECT_EQ(BytesOf(Pool(folder).GetFontData(L"Sample")), "");
}

TEST(FontPool, AnElementWithoutBinaryContentIsNoProgram) {
  for (const char* data : {"<FontData/>", "<FontData>YWJj</FontData>", "<FontData><Other/></FontData>", ""}) {
    const TempDir folder;
    WriteFile(folder.File("Sample.fd"), FileText("<FontName>Sample</FontName>" + std::string(data)));
    EXPECT_EQ(Pool(folder).GetFontData(L"Sample"), nullptr) << data;
  }
}

// An entry that came without its program stays, but the file gets what is known by now.
TEST(FontPool, AFontWithoutAProgramInMemoryIsWrittenAndNotReplaced) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), FileText("<FontName>Sample</FontName>"));
  Pool pool(folder);
  pool.Store(L"Sample", "abc");
  EXPECT_EQ(pool.GetFontData(L"Sample"), nullptr);
  EXPECT_EQ(BytesOf(Pool(folder).GetFontData(L"Sample")), "abc");
}

// An attack: a file under a name that is not its own is read again at every question.
TEST(FontPool, RepeatedReadingKeepsNothing) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), SampleFile());
  WriteFile(folder.File("Other.fd"), SampleFile());
  Pool pool(folder);
  CFontData* const data = pool.GetFontData(L"Sample");
  for (int i = 0; i < 50; ++i) EXPECT_EQ(pool.GetFontData(L"Other"), nullptr);
  EXPECT_EQ(pool.GetFontData(L"Sample"), data);
}

TEST(FontPool, ReadsAllFilesOfTheFolder) {
  const TempDir folder;
  Pool(folder).Store(L"One", "1", {L"Eins"});
  Pool(folder).Store(L"Two", "2", {L"Zwei"});
  fs::rename(folder.File("Two.fd"), folder.File("two.FD"));
  WriteFile(folder.File("Broken.fd"), "<");
  WriteFile(folder.File("Three.fdx"), FileText("<LocalizedFontNames>Drei</LocalizedFontNames>"));
  WriteFile(folder.File("fd"), FileText("<LocalizedFontNames>Vier</LocalizedFontNames>"));
  fs::create_directory(folder.File("Folder.fd"));
  Pool pool(folder);
  pool.ReadAvailableFonts();
  EXPECT_STREQ(pool.FindUniqueName(L"Eins"), L"One");
  EXPECT_STREQ(pool.FindUniqueName(L"Zwei"), L"Two");
  EXPECT_EQ(pool.FindUniqueName(L"Drei"), nullptr);
  EXPECT_EQ(pool.FindUniqueName(L"Vier"), nullptr);
}

TEST(FontPool, AMissingFolderHasNoFonts) {
  const TempDir folder;
  Pool pool;
  pool.SetFontPoolPath(folder.WideFile("missing").c_str());
  pool.ReadAvailableFonts();
  EXPECT_EQ(pool.GetFontData(L"Sample"), nullptr);
}

TEST(FontPool, AFailureToWriteReachesTheCallerAndTheFontStays) {
  const TempDir folder;
  Pool pool;
  pool.SetFontPoolPath(folder.WideFile("missing").c_str());
  EXPECT_EQ(FailureOf([&] { pool.Store(L"Sample", "abc"); }).Code, CXMLException::CannotWrite);
  EXPECT_EQ(BytesOf(pool.GetFontData(L"Sample")), "abc");
}

TEST(FontPool, AReadOnlyFileIsLeftAlone) {
  const TempDir folder;
  WriteFile(folder.File("Sample.fd"), "<");
  fs::permissions(folder.File("Sample.fd"), fs::perms::owner_read);
  Pool pool(folder);
  EXPECT_EQ(FailureOf([&] { pool.Store(L"Sample", "abc"); }).Code, CXMLException::TargetReadOnly);
  EXPECT_EQ(ReadFile(folder.File("Sample.fd")), "<");
}

// Attacks: names that lead out of the folder.

TEST(FontPool, NoNameLeadsOutOfTheFolder) {
  const TempDir folder;
  fs::create_directory(folder.File("pool"));
  fs::create_directory(folder.File("pool/sub"));
  Pool pool;
  pool.SetFontPoolPath(folder.WideFile("pool").c_str());
  const std::vector<std::wstring> names = {L"../up", L"..\\up", L"/tmp/zebtest-up", L"sub/down", L"..",
                                           L".",     L"a%b",    L"sub\\down"};
  for (const std::wstring& name : names) pool.Store(name.c_str(), "abc");
  const std::vector<std::string> expected = {
      "%2Ftmp%2Fzebtest-up.fd", "..%2Fup.fd",    "..%5Cup.fd", "...fd", "..fd", "a%b.fd", "sub",
      "sub%2Fdown.fd",          "sub%5Cdown.fd",
  };
  EXPECT_EQ(NamesIn(folder.File("pool")), expected);
  EXPECT_TRUE(fs::is_empty(folder.File("pool/sub")));
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"pool"});
  Pool again;
  again.SetFontPoolPath(folder.WideFile("pool").c_str());
  for (const std::wstring& name : names) EXPECT_EQ(BytesOf(again.GetFontData(name.c_str())), "abc");
}

TEST(FontPool, NoNameReadsOutsideOfTheFolder) {
  const TempDir folder;
  fs::create_directory(folder.File("pool"));
  WriteFile(folder.File("up.fd"), FileText("<FontName>../up</FontName><FontData><BinaryData>YWJj</BinaryData>"
                                           "</FontData>"));
  Pool pool;
  pool.SetFontPoolPath(folder.WideFile("pool").c_str());
  EXPECT_EQ(pool.GetFontData(L"../up"), nullptr);
  EXPECT_EQ(pool.GetFontData(L"..\\up"), nullptr);
}

TEST(FontPool, ANameThatIsTooLongForAFileStaysInMemory) {
  const TempDir folder;
  Pool pool(folder);
  const std::wstring name(5000, L'n');
  EXPECT_EQ(pool.GetFontData(name.c_str()), nullptr);
  EXPECT_EQ(FailureOf([&] { pool.Store(name.c_str(), "abc"); }).Code, CXMLException::CannotWrite);
  EXPECT_EQ(BytesOf(pool.GetFontData(name.c_str())), "abc");
  EXPECT_TRUE(fs::is_empty(folder.Path()));
}

// Ownership

TEST(FontPool, AnEntryOfAKnownNameStaysTheCallers) {
  Pool pool;
  auto* const first = new CFontPoolEntry;
  first->SetFontName(L"One");
  first->AddLocalizedFontName(L"Eins");
  pool.AddFontDataEntry(L"One", first);
  const auto second = std::make_unique<CFontPoolEntry>();
  second->SetFontName(L"Two");
  second->AddLocalizedFontName(L"Zwei");
  pool.AddFontDataEntry(L"One", second.get());
  EXPECT_STREQ(pool.FindUniqueName(L"Eins"), L"One");
  EXPECT_EQ(pool.FindUniqueName(L"Zwei"), nullptr);
}

TEST(FontPool, WritesAnEntryWithoutProgram) {
  const TempDir folder;
  CFontPoolEntry entry;
  entry.SetFontName(L"Sample");
  Pool(folder).WriteFontData(folder.WideFile("Sample.fd").c_str(), &entry);
  EXPECT_EQ(BytesOf(Pool(folder).GetFontData(L"Sample")), "");
}

TEST(FontPool, FixedACopySharesTheEntries) {
  const TempDir folder;
  WriteFile(folder.File("Old.fd"), FileText("<VersionNr>7</VersionNr><FontName>Old</FontName>"));
  Pool source(folder);
  source.GetFontData(L"Old");
  source.Store(L"Sample", "abc");
  Pool& copy = zebtest::KeepForever(new Pool(source));
  Pool& assigned = zebtest::KeepForever(new Pool);
  assigned = source;
  EXPECT_STREQ(copy.GetFontPoolPath(), source.GetFontPoolPath());
  EXPECT_EQ(copy.GetFontData(L"Sample"), source.GetFontData(L"Sample"));
  EXPECT_EQ(assigned.GetFontData(L"Sample"), source.GetFontData(L"Sample"));
  copy.Store(L"Copied", "abc");
  assigned.Store(L"Assigned", "abc");
  for (const char* file : {"Copied.fd", "Assigned.fd"}) {
    EXPECT_NE(ReadFile(folder.File(file)).find("<VersionNr>7</VersionNr>"), std::string::npos) << file;
  }
}

}  // namespace
