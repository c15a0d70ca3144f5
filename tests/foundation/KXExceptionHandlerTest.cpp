#include "foundation/KXExceptionHandler.h"

#include "foundation/KXException.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <type_traits>
#include <typeindex>

using zebtest::TempDir;
using zebtest::WriteFile;

namespace {

// A handler of its own for each test, beside the process's one.
class Handler : public CKXExceptionHandler {
 public:
  void AddNullEntry(const wchar_t* key) { m_rgpExceptions.emplace(key, nullptr); }
};

struct Thrown {
  std::type_index type = typeid(void);
  int number = 0;
  std::wstring message;
};

template <typename Act>
Thrown Catch(const Act& act) {
  try {
    act();
  } catch (const CKXException& exception) {
    return {typeid(exception), exception.GetErrorNr(), exception.GetErrorMessage()};
  }
  return {};
}

Thrown Catch(CKXExceptionHandler& handler, const wchar_t* key) {
  return Catch([&] { handler.ThrowException(key); });
}

Thrown Catch(CKXExceptionHandler& handler, const wchar_t* key, const wchar_t* text) {
  return Catch([&] { handler.ThrowException(key, text); });
}

void ExpectFallback(const Thrown& thrown) {
  EXPECT_EQ(thrown.type, std::type_index(typeid(CKXException)));
  EXPECT_EQ(thrown.number, -1);
  EXPECT_EQ(thrown.message, L"unbekannte Exception geworfen");
}

std::string Entry(const std::string& key, const std::string& number, const std::string& message) {
  return "<ErrorEntry><ErrorKey>" + key + "</ErrorKey><ErrorNr>" + number + "</ErrorNr><ErrorMessage>" +
         message + "</ErrorMessage></ErrorEntry>";
}

std::string Family(const std::string& name, const std::string& entries) {
  return "<ErrorFamily><ErrorFamilyName>" + name + "</ErrorFamilyName>" + entries + "</ErrorFamily>";
}

std::string Catalogue(const std::string& content) { return "<Messages>" + content + "</Messages>"; }

class KXExceptionHandlerTest : public testing::Test {
 protected:
  void Read(const std::string& content) {
    WriteFile(m_dir.File("catalogue.xml"), Catalogue(content));
    m_handler.ReadExceptions(m_dir.WideFile("catalogue.xml").c_str());
  }

  TempDir m_dir;
  Handler m_handler;
};

}  // namespace

TEST(KXExceptionHandler, IsOneObjectOfTheProcess) {
  EXPECT_EQ(&CKXExceptionHandler::GetInstance(), &CKXExceptionHandler::GetInstance());
  EXPECT_TRUE(std::has_virtual_destructor_v<CKXExceptionHandler>);
  EXPECT_FALSE(std::is_default_constructible_v<CKXExceptionHandler>);
}

TEST_F(KXExceptionHandlerTest, TheFamilyDecidesTheClass) {
  const auto expect = [this](const char* family, std::type_index type) {
    Handler handler;
    WriteFile(m_dir.File("family.xml"), Catalogue(Family(family, Entry("Key", "42", "Text"))));
    handler.ReadExceptions(m_dir.WideFile("family.xml").c_str());
    const Thrown thrown = Catch(handler, L"Key");
    EXPECT_EQ(thrown.type, type) << family;
    EXPECT_EQ(thrown.number, 42);
    EXPECT_EQ(thrown.message, L"Text");
  };
  expect("MemoryException", typeid(CKXMemoryException));
  expect("FileException", typeid(CKXFileException));
  expect("ReportDocumentException", typeid(CKXReportDocumentException));
  expect("PrintGeneratorException", typeid(CKXPrintGeneratorException));
  expect("PDFLibException", typeid(CKXPDFLibException));
  expect("LayouterException", typeid(CKXLayouterException));
  expect("DOMException", typeid(CKXDOMException));
  expect("XMLException", typeid(CKXXMLException));
  expect("ParserException", typeid(CKXParserException));
  expect("parserexception", typeid(CKXException));
  expect("PrinterException", typeid(CKXException));
  expect("", typeid(CKXException));
}

TEST_F(KXExceptionHandlerTest, AnUnknownKeyThrowsTheFallback) {
  m_handler.SetExceptionPathName(m_dir.WidePath().c_str());
  ExpectFallback(Catch(m_handler, L"Key"));
  Read(Family("FileException", Entry("Key", "1", "Text")));
  ExpectFallback(Catch(m_handler, L"key"));
}

TEST_F(KXExceptionHandlerTest, TheFallbackDropsTheAdditionalTextFixed) {
  m_handler.SetExceptionPathName(m_dir.WidePath().c_str());
  ExpectFallback(Catch(m_handler, L"Key", L"more"));
}

TEST_F(KXExceptionHandlerTest, AdditionalTextFollowsTheMessageOnALineOfItsOwn) {
  Read(Family("FileException", Entry("FontPoolIncomplete", "7", "Missing:")));
  const Thrown thrown = Catch(m_handler, L"FontPoolIncomplete", L"Arial");
  EXPECT_EQ(thrown.type, std::type_index(typeid(CKXFileException)));
  EXPECT_EQ(thrown.number, 7);
  EXPECT_EQ(thrown.message, L"Missing:\nArial");
  EXPECT_EQ(Catch(m_handler, L"FontPoolIncomplete", L"").message, L"Missing:\n");
}

TEST_F(KXExceptionHandlerTest, LongMessagesAreCut) {
  Read(Family("FileException", Entry("Key", "7", std::string(5000, 'x'))));
  EXPECT_EQ(Catch(m_handler, L"Key", L"more").message, std::wstring(4095, L'x'));
}

TEST_F(KXExceptionHandlerTest, ANullEntryThrowsNothing) {
  Read(Family("FileException", Entry("Key", "1", "Text")));
  m_handler.AddNullEntry(L"Nothing");
  EXPECT_EQ(Catch(m_handler, L"Nothing").type, std::type_index(typeid(void)));
  EXPECT_EQ(Catch(m_handler, L"Nothing", L"more").type, std::type_index(typeid(void)));
}

TEST_F(KXExceptionHandlerTest, ThePathEndsInABackslash) {
  const std::wstring path = m_dir.WidePath();
  m_handler.SetExceptionPathName(path.c_str());
  EXPECT_EQ(m_handler.GetExceptionNamePath(), path + L'\\');
  m_handler.SetExceptionPathName((path + L'\\').c_str());
  EXPECT_EQ(m_handler.GetExceptionNamePath(), path + L'\\');
  EXPECT_STREQ(Handler().GetExceptionNamePath(), L"");
  m_handler.SetExceptionPathName(L"");
  EXPECT_STREQ(m_handler.GetExceptionNamePath(), L"\\");
}

TEST_F(KXExceptionHandlerTest, SettingThePathReadsTheCatalogueAtOnce) {
  const std::filesystem::path file = m_dir.File("KXErrorMessages.xml");
  WriteFile(file, Catalogue(Family("FileException", Entry("Key", "3", "Text"))));
  m_handler.SetExceptionPathName(m_dir.WidePath().c_str());
  std::filesystem::remove(file);
  EXPECT_EQ(Catch(m_handler, L"Key").number, 3);
}

TEST_F(KXExceptionHandlerTest, AMissingCatalogueIsLookedForAtEveryThrow) {
  m_handler.SetExceptionPathName(m_dir.WidePath().c_str());
  ExpectFallback(Catch(m_handler, L"Key"));
  WriteFile(m_dir.File("KXErrorMessages.xml"), "<Messages><ErrorFamily>");
  ExpectFallback(Catch(m_handler, L"Key"));
  WriteFile(m_dir.File("KXErrorMessages.xml"), Catalogue(Family("FileException", Entry("Key", "3", "Text"))));
  EXPECT_EQ(Catch(m_handler, L"Key").number, 3);
}

TEST_F(KXExceptionHandlerTest, WithoutAPathTheCatalogueIsInTheCurrentFolder) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(m_dir.Path());
  WriteFile("KXErrorMessages.xml", Catalogue(Family("FileException", Entry("Key", "3", "Text"))));
  const Thrown thrown = Catch(m_handler, L"Key");
  std::filesystem::current_path(before);
  EXPECT_EQ(thrown.number, 3);
}

TEST_F(KXExceptionHandlerTest, AfterAReadingNoThrowReadsAgain) {
  m_handler.SetExceptionPathName(m_dir.WidePath().c_str());
  Read(Family("FileException", Entry("Key", "3", "Text")));
  WriteFile(m_dir.File("KXErrorMessages.xml"),
            Catalogue(Family("FileException", Entry("Late", "4", "Text"))));
  ExpectFallback(Catch(m_handler, L"Late"));
}

TEST_F(KXExceptionHandlerTest, SettingThePathAgainReadsAgainAndKeepsWhatIsKnown) {
  Read(Family("FileException", Entry("Key", "3", "First")));
  WriteFile(m_dir.File("KXErrorMessages.xml"),
            Catalogue(Family("MemoryException", Entry("Key", "4", "Second") + Entry("New", "5", "Third"))));
  m_handler.SetExceptionPathName(m_dir.WidePath().c_str());
  EXPECT_EQ(Catch(m_handler, L"Key").message, L"First");
  EXPECT_EQ(Catch(m_handler, L"New").message, L"Third");
}

TEST_F(KXExceptionHandlerTest, TheFirstEntryOfAKeyWinsFixed) {
  Read(Family("FileException", Entry("Key", "1", "First") + Entry("Key", "2", "Second")) +
       Family("MemoryException", Entry("Key", "3", "Third")));
  Read(Family("MemoryException", Entry("Key", "4", "Fourth")));
  const Thrown thrown = Catch(m_handler, L"Key");
  EXPECT_EQ(thrown.type, std::type_index(typeid(CKXFileException)));
  EXPECT_EQ(thrown.number, 1);
  EXPECT_EQ(thrown.message, L"First");
}

TEST_F(KXExceptionHandlerTest, TheVersionStandsFirst) {
  Read("<VersionNr>2</VersionNr>" + Family("FileException", Entry("Key", "1", "Text")));
  EXPECT_EQ(Catch(m_handler, L"Key").number, 1);
}

TEST_F(KXExceptionHandlerTest, AnotherElementEndsTheFamilies) {
  Read(Family("FileException", Entry("One", "1", "Text")) + "<VersionNr>1</VersionNr>" +
       Family("FileException", Entry("Two", "2", "Text")));
  EXPECT_EQ(Catch(m_handler, L"One").number, 1);
  ExpectFallback(Catch(m_handler, L"Two"));
}

TEST_F(KXExceptionHandlerTest, AnotherElementEndsAFamily) {
  Read(Family("FileException", Entry("One", "1", "Text") + "<Note/>" + Entry("Two", "2", "Text")) +
       Family("MemoryException", Entry("Three", "3", "Text")));
  EXPECT_EQ(Catch(m_handler, L"One").number, 1);
  ExpectFallback(Catch(m_handler, L"Two"));
  EXPECT_EQ(Catch(m_handler, L"Three").number, 3);
}

TEST_F(KXExceptionHandlerTest, AFieldOutOfItsPlaceIsNotReadFixed) {
  const std::string swapped =
      "<ErrorEntry><ErrorKey>Two</ErrorKey><ErrorMessage>Other</ErrorMessage><ErrorNr>2</ErrorNr></"
      "ErrorEntry>";
  Read(Family("FileException", Entry("One", "1", "Text") + swapped));
  const Thrown thrown = Catch(m_handler, L"Two");
  EXPECT_EQ(thrown.number, 1);
  EXPECT_EQ(thrown.message, L"Other");
}

TEST_F(KXExceptionHandlerTest, AMissingFieldIsThatOfTheEntryBeforeFixed) {
  Read(Family("FileException",
              Entry("One", "1", "Text") + "<ErrorEntry><ErrorKey>Two</ErrorKey></ErrorEntry>") +
       "<ErrorFamily><ErrorEntry><ErrorKey>Three</ErrorKey><ErrorNr>3</ErrorNr></ErrorEntry></ErrorFamily>");
  EXPECT_EQ(Catch(m_handler, L"Two").number, 1);
  EXPECT_EQ(Catch(m_handler, L"Two").message, L"Text");
  const Thrown three = Catch(m_handler, L"Three");
  EXPECT_EQ(three.type, std::type_index(typeid(CKXFileException)));
  EXPECT_EQ(three.number, 3);
  EXPECT_EQ(three.message, L"Text");
}

TEST_F(KXExceptionHandlerTest, AnEntryWithoutKeyIsSkipped) {
  Read(Family("FileException", "<ErrorEntry><ErrorNr>1</ErrorNr></ErrorEntry>" + Entry("", "2", "Text") +
                                   "<ErrorEntry/>" + Entry("Key", "3", "Other")));
  ExpectFallback(Catch(m_handler, L""));
  EXPECT_EQ(Catch(m_handler, L"Key").number, 3);
}

TEST_F(KXExceptionHandlerTest, AFirstFamilyWithoutNameGivesTheBaseClass) {
  Read("<ErrorFamily>" + Entry("Key", "3", "Text") + "</ErrorFamily>");
  const Thrown thrown = Catch(m_handler, L"Key");
  EXPECT_EQ(thrown.type, std::type_index(typeid(CKXException)));
  EXPECT_EQ(thrown.number, 3);
}

TEST_F(KXExceptionHandlerTest, ANumberThatIsNoneIsZero) {
  Read(Family("FileException", Entry("Key", "many", "Text")));
  EXPECT_EQ(Catch(m_handler, L"Key").number, 0);
}
