#include "foundation/XMLManager.h"

#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace {

using zebtest::DocumentPointer;
using zebtest::FailureOf;
using zebtest::FailureOfText;
using zebtest::LoadFile;
using zebtest::LoadText;
using zebtest::TempDir;
using zebtest::XMLFailure;
using zebxmln::CXMLException;
using zebxmln::CXMLManager;

TEST(XMLManager, IsOne) { EXPECT_EQ(&CXMLManager::GetInstance(), &CXMLManager::GetInstance()); }

TEST(XMLManager, IgnoresAllArgumentsButThePath) {
  const TempDir folder;
  zebtest::WriteFile(folder.File("a.xml"), "<R/>");
  const std::wstring path = folder.WideFile("a.xml");
  const DocumentPointer document(
      CXMLManager::GetInstance().LoadDocument(path.c_str(), false, true, L"x", true, true));
  EXPECT_STREQ(document->GetRootNode()->GetNodeName(), L"R");
}

TEST(XMLManager, MakesAnEmptyDocumentWhoseNameIsNotTheRoots) {
  const DocumentPointer document(CXMLManager::GetInstance().CreateDocument(L"Name", nullptr));
  EXPECT_EQ(document->GetRootNode(), nullptr);
  EXPECT_STREQ(document->CreateRootNode(L"Root")->GetNodeName(), L"Root");
  EXPECT_STREQ(document->GetRootNode()->GetNodeName(), L"Root");
}

TEST(XMLManager, OpensAPathWithBackslashes) {
  const TempDir folder;
  std::filesystem::create_directory(folder.File("sub"));
  zebtest::WriteFile(folder.File("sub") / "\xC3\xA4.xml", "<R/>");
  const std::wstring path = folder.WidePath() + L"\\sub\\\u00E4.xml";
  const DocumentPointer document(
      CXMLManager::GetInstance().LoadDocument(path.c_str(), true, false, nullptr, false, false));
  EXPECT_NE(document->GetRootNode(), nullptr);
}

TEST(XMLManager, SaysThatAFileIsMissing) {
  const TempDir folder;
  const XMLFailure failure = FailureOf([&] { LoadFile(folder.File("missing.xml")); });
  EXPECT_EQ(failure.Code, CXMLException::CannotOpen);
  EXPECT_EQ(failure.Message,
            L"The file '" + folder.WideFile("missing.xml") + L"' cannot be opened: it does not exist.");
}

TEST(XMLManager, OpensNoFolderAndNoEmptyPath) {
  const TempDir folder;
  const XMLFailure failure = FailureOf([&] { LoadFile(folder.Path()); });
  EXPECT_EQ(failure.Code, CXMLException::CannotOpen);
  EXPECT_EQ(failure.Message,
            L"The file '" + folder.WidePath() + L"' cannot be opened: it is not a regular file.");
  EXPECT_EQ(FailureOf([] { LoadFile(""); }).Code, CXMLException::CannotOpen);
  EXPECT_EQ(FailureOf([] {
              CXMLManager::GetInstance().LoadDocument(nullptr, true, false, nullptr, false, false);
            }).Code,
            CXMLException::CannotOpen);
}

TEST(XMLManager, SaysWhereAFileIsNotWellFormed) {
  const TempDir folder;
  zebtest::WriteFile(folder.File("bad.xml"), "<R>\n  <A>\n  </B>\n</R>\n");
  const XMLFailure failure = FailureOf([&] { LoadFile(folder.File("bad.xml")); });
  EXPECT_EQ(failure.Code, CXMLException::NotWellFormed);
  EXPECT_EQ(failure.Message, L"The file '" + folder.WideFile("bad.xml") +
                                 L"' is not well-formed at line 3, column 5: mismatched tag.");
}

/// What is not well-formed, and the place of the defect.
struct Malformed {
  std::string_view Text;
  std::wstring_view Place;
};

std::ostream& operator<<(std::ostream& out, const Malformed& malformed) { return out << malformed.Text; }

class XMLManagerMalformed : public testing::TestWithParam<Malformed> {};

TEST_P(XMLManagerMalformed, IsRefusedWithItsPlace) {
  const XMLFailure failure = FailureOfText(GetParam().Text);
  EXPECT_EQ(failure.Code, CXMLException::NotWellFormed);
  EXPECT_NE(failure.Message.find(GetParam().Place), std::wstring::npos)
      << testing::PrintToString(failure.Message);
}

INSTANTIATE_TEST_SUITE_P(
    All, XMLManagerMalformed,
    testing::Values(
        Malformed{"", L"line 1, column 1: no element found"},
        Malformed{" \n ", L"line 2, column 2: no element found"},
        Malformed{"text", L"line 1, column 1: syntax error"},
        Malformed{"<R>", L"line 1, column 4: no element found"},
        Malformed{"<R><A></R>", L"line 1, column 9: mismatched tag"},
        Malformed{"<R/>\n<S/>", L"line 2, column 1: junk after document element"},
        Malformed{"<R/>text", L"line 1, column 5: junk after document element"},
        Malformed{"<R>\r\n\r\n  \xC3\xA4&</R>", L"line 3, column 5: not well-formed (invalid token)"},
        Malformed{"<R>&unknown;</R>", L"line 1, column 4: undefined entity"},
        Malformed{"<R>&#0;</R>", L"line 1, column 4: reference to invalid character number"},
        Malformed{"<R>&#xD800;</R>", L"line 1, column 4: reference to invalid character number"},
        Malformed{"<R>&#xFFFE;</R>", L"line 1, column 4: reference to invalid character number"},
        Malformed{std::string_view("<R>\0</R>", 8), L"line 1, column 4: not well-formed (invalid token)"},
        Malformed{"<R>\x01</R>", L"line 1, column 4: not well-formed (invalid token)"},
        Malformed{"<R>\xFF</R>", L"line 1, column 4: not well-formed (invalid token)"},
        Malformed{"<R>\xC3</R>", L"line 1, column 4: not well-formed (invalid token)"},
        Malformed{"<R>\xED\xA0\x80</R>", L"line 1, column 4: not well-formed (invalid token)"},
        Malformed{"<R>]]></R>", L"line 1, column 6: not well-formed (invalid token)"},
        Malformed{"<R a='1' a='2'/>", L"line 1, column 10: duplicate attribute"},
        Malformed{"<R a=1/>", L"line 1, column 6: not well-formed (invalid token)"},
        Malformed{"<R><!-- -- --></R>", L"line 1, column 11: not well-formed (invalid token)"},
        Malformed{"<R><![CDATA[</R>", L"line 1, column 17: unclosed CDATA section"},
        Malformed{" <?xml version='1.0'?><R/>", L"line 1, column 2: XML or text declaration not at start"},
        Malformed{"<?xml version='1.0' encoding='UTF-16'?><R/>",
                  L"line 1, column 31: encoding specified in XML declaration is incorrect"}));

/// A file in an encoding, with the name that it declares and what its root's text is.
struct Encoded {
  const char* Name;
  std::string Bytes;
  std::wstring Text;
};

std::ostream& operator<<(std::ostream& out, const Encoded& encoded) { return out << encoded.Name; }

class XMLManagerEncoding : public testing::TestWithParam<Encoded> {};

TEST_P(XMLManagerEncoding, IsRead) {
  const DocumentPointer document =
      LoadText("<?xml version=\"1.0\" encoding=\"" + std::string(GetParam().Name) + "\"?><R>" +
               GetParam().Bytes + "</R>");
  EXPECT_EQ(document->GetRootNode()->GetNodeText(), GetParam().Text);
}

// The bytes are those of the published code charts.
INSTANTIATE_TEST_SUITE_P(
    SingleByte, XMLManagerEncoding,
    testing::Values(
        Encoded{"UTF-8", "\xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80", L"\u00E4\u20AC\U0001F600"},
        Encoded{"utf-8", "\xC3\xA4", L"\u00E4"}, Encoded{"US-ASCII", "a", L"a"},
        Encoded{"ISO-8859-1", "\xE4\xA4\xFF", L"\u00E4\u00A4\u00FF"},
        Encoded{"ISO-8859-2", "\xB1\xE8", L"\u0105\u010D"},
        Encoded{"ISO-8859-3", "\xA1\xB1", L"\u0126\u0127"},
        Encoded{"ISO-8859-4", "\xA2\xBF", L"\u0138\u014B"},
        Encoded{"ISO-8859-5", "\xB0\xD0", L"\u0410\u0430"},
        Encoded{"ISO-8859-6", "\xC7\xCA", L"\u0627\u062A"},
        Encoded{"ISO-8859-7", "\xE1\xD9", L"\u03B1\u03A9"},
        Encoded{"ISO-8859-8", "\xE0\xFA", L"\u05D0\u05EA"},
        Encoded{"ISO-8859-9", "\xDD\xFE", L"\u0130\u015F"},
        Encoded{"ISO-8859-10", "\xBD\xFF", L"\u2015\u0138"},
        Encoded{"ISO-8859-11", "\xA1\xFB", L"\u0E01\u0E5B"},
        Encoded{"ISO-8859-13", "\xA1\xFF", L"\u201D\u2019"},
        Encoded{"ISO-8859-14", "\xA1\xFE", L"\u1E02\u0177"},
        Encoded{"ISO-8859-15", "\xA4\xBD", L"\u20AC\u0153"},
        Encoded{"ISO-8859-16", "\xA4\xE3", L"\u20AC\u0103"},
        Encoded{"windows-1250", "\x80\x9C\xB9", L"\u20AC\u015B\u0105"},
        Encoded{"windows-1251", "\x88\xC0\xE0", L"\u20AC\u0410\u0430"},
        Encoded{"windows-1252", "\x80\x93\xE4", L"\u20AC\u201C\u00E4"},
        Encoded{"Windows-1252", "\x80", L"\u20AC"}, Encoded{"windows-1253", "\xE1\xA2", L"\u03B1\u0386"},
        Encoded{"windows-1254", "\xDD\xFE", L"\u0130\u015F"},
        Encoded{"windows-1255", "\xA4\xE0", L"\u20AA\u05D0"},
        Encoded{"windows-1256", "\x81\xC7", L"\u067E\u0627"},
        Encoded{"windows-1257", "\xE0\xC8", L"\u0105\u010C"},
        Encoded{"windows-1258", "\xFE\xD2", L"\u20AB\u0309"}, Encoded{"KOI8-R", "\xC1\xE1", L"\u0430\u0410"},
        Encoded{"KOI8-U", "\xA4\xC1", L"\u0454\u0430"}, Encoded{"IBM850", "\x84\xD5", L"\u00E4\u0131"},
        Encoded{"CP437", "\x84\xE1", L"\u00E4\u00DF"}, Encoded{"IBM866", "\x80\xA0", L"\u0410\u0430"},
        Encoded{"TIS-620", "\xA1", L"\u0E01"}, Encoded{"macintosh", "\x80\x8A", L"\u00C4\u00E4"}));

TEST(XMLManager, ReadsUtf8WithAByteOrderMark) {
  EXPECT_STREQ(LoadText("\xEF\xBB\xBF<R>\xC3\xA4</R>")->GetRootNode()->GetNodeText(), L"\u00E4");
}

/// UTF-16 of a text of the BMP and of U+1F600, which stands as `@`.
std::string Utf16(std::u16string_view text, bool bigEndian) {
  std::string bytes;
  const auto put = [&](unsigned int unit) {
    const char high = static_cast<char>(unit >> 8);
    const char low = static_cast<char>(unit & 0xFF);
    bytes.push_back(bigEndian ? high : low);
    bytes.push_back(bigEndian ? low : high);
  };
  for (const char16_t unit : text) put(unit);
  return bytes;
}

TEST(XMLManager, ReadsUtf16InBothOrders) {
  for (const bool bigEndian : {false, true}) {
    const std::u16string_view text =
        u"\uFEFF<?xml version='1.0' encoding='UTF-16'?>\n<R>\n<\u00C4>\u20AC\U0001F600</\u00C4></R>";
    const DocumentPointer document = LoadText(Utf16(text, bigEndian));
    const DocumentPointer expected = LoadText("<R><\xC3\x84>\xE2\x82\xAC\xF0\x9F\x98\x80</\xC3\x84></R>");
    EXPECT_STREQ(document->GetRootNode()->GetFirstChildNode()->GetNodeName(), L"\u00C4");
    EXPECT_STREQ(document->GetRootNode()->GetFirstChildNode()->GetNodeText(), L"\u20AC\U0001F600");
    EXPECT_EQ(zebtest::SavedText(*document), zebtest::SavedText(*expected));
  }
}

TEST(XMLManager, SaysLineAndColumnInUtf16) {
  const XMLFailure failure = FailureOfText(Utf16(u"\uFEFF<R>\n\u00E4\u00E4&</R>", false));
  EXPECT_EQ(failure.Code, CXMLException::NotWellFormed);
  EXPECT_NE(failure.Message.find(L"line 2, column 4"), std::wstring::npos)
      << testing::PrintToString(failure.Message);
}

TEST(XMLManager, RefusesEncodingsThatItDoesNotKnow) {
  for (const char* name : {"no-such-encoding", "EBCDIC-CP-DE", "Shift_JIS", "GB18030", "EUC-JP", "UTF-7",
                           "ISO-2022-JP", "UTF-32", "Big5"}) {
    const TempDir folder;
    zebtest::WriteFile(folder.File("a.xml"),
                       "<?xml version='1.0' encoding='" + std::string(name) + "'?>\n<R/>");
    const XMLFailure failure = FailureOf([&] { LoadFile(folder.File("a.xml")); });
    EXPECT_EQ(failure.Code, CXMLException::UnsupportedEncoding) << name;
    EXPECT_EQ(failure.Message, L"The file '" + folder.WideFile("a.xml") +
                                   L"' declares an unknown encoding (line 1, column 31).")
        << name;
  }
}

TEST(XMLManager, RefusesBytesThatTheirEncodingDoesNotHave) {
  EXPECT_EQ(FailureOfText("<?xml version='1.0' encoding='US-ASCII'?><R>\xE4</R>").Code,
            CXMLException::NotWellFormed);
  EXPECT_EQ(FailureOfText("<?xml version='1.0' encoding='windows-1253'?><R>\xD2</R>").Code,
            CXMLException::NotWellFormed);
}

TEST(XMLException, KeepsCodeAndMessageInACopy) {
  const CXMLException exception(CXMLException::CannotWrite, L"message");
  CXMLException copy = exception;
  EXPECT_EQ(copy.GetErrorCode(), 3);
  EXPECT_STREQ(copy.GetErrorMessage(), L"message");
  copy = CXMLException(CXMLException::OutOfMemory, L"other");
  EXPECT_EQ(copy.GetErrorCode(), 6);
  EXPECT_STREQ(copy.GetErrorMessage(), L"other");
}

TEST(XMLException, HasStableNumbers) {
  EXPECT_EQ(CXMLException::CannotOpen, 1);
  EXPECT_EQ(CXMLException::NotWellFormed, 2);
  EXPECT_EQ(CXMLException::CannotWrite, 3);
  EXPECT_EQ(CXMLException::TargetReadOnly, 4);
  EXPECT_EQ(CXMLException::UnsupportedEncoding, 5);
  EXPECT_EQ(CXMLException::OutOfMemory, 6);
}

}  // namespace
