// Attacks on the XML facility: each ends in a document or in CXMLException, soon and with bounded memory.

#include "foundation/XMLLimits.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>
#include <string_view>

namespace {

using zebtest::DocumentPointer;
using zebtest::FailureOfText;
using zebtest::LoadText;
using zebtest::XMLFailure;
using zebxmln::CXMLException;
using zebxmln::CXMLNode;

std::string Repeat(std::string_view text, std::size_t count) {
  std::string repeated;
  repeated.reserve(text.size() * count);
  for (std::size_t i = 0; i < count; ++i) repeated += text;
  return repeated;
}

void ExpectRefused(const XMLFailure& failure, std::wstring_view message) {
  EXPECT_EQ(failure.Code, CXMLException::NotWellFormed);
  EXPECT_NE(failure.Message.find(message), std::wstring::npos) << testing::PrintToString(failure.Message);
}

std::size_t DepthOf(CXMLNode* node) {
  std::size_t depth = 0;
  for (; node != nullptr; node = node->GetFirstChildNode()) ++depth;
  return depth;
}

TEST(XMLHostile, AHundredThousandLevelsAreReadSavedAndEnded) {
  constexpr std::size_t kDepth = 100000;
  const std::string text = Repeat("<a>", kDepth) + "x" + Repeat("</a>", kDepth);
  const DocumentPointer document = LoadText(text);
  EXPECT_EQ(DepthOf(document->GetRootNode()), kDepth);
  const std::string saved = zebtest::SavedText(*document);
  // The indentation of so deep a tree would take 20 GB.
  EXPECT_LT(saved.size(), 2 * kDepth * (2 * zeb::kMaxXMLIndentation + 6));
  EXPECT_EQ(DepthOf(LoadText(saved)->GetRootNode()), kDepth);
}

TEST(XMLHostile, IndentationGrowsToItsLimitAndNoFurther) {
  const std::size_t depth = zeb::kMaxXMLIndentation + 3;
  const std::string saved = zebtest::SavedText(*LoadText(Repeat("<a>", depth) + Repeat("</a>", depth)));
  const std::string most(2 * zeb::kMaxXMLIndentation, ' ');
  EXPECT_NE(saved.find("\n" + most + "<a>\n" + most + "<a>\n" + most + "<a/>\n" + most + "</a>\n" + most +
                       "</a>\n" + most.substr(2) + "</a>\n"),
            std::string::npos);
}

TEST(XMLHostile, ManyOpenTagsWithoutEndAreRefused) {
  ExpectRefused(FailureOfText(Repeat("<a>", 100000)), L"line 1, column 300001: no element found");
}

// Every entity names the one before ten times: 10^9 words from a few hundred bytes.
TEST(XMLHostile, AnEntityBombIsRefused) {
  std::string types = "<!ENTITY e0 'lol'>";
  for (int i = 1; i < 10; ++i) {
    types += "<!ENTITY e" + std::to_string(i) + " '" + Repeat("&e" + std::to_string(i - 1) + ";", 10) + "'>";
  }
  const std::string head = "<!DOCTYPE R [" + types + "]>";
  EXPECT_EQ(FailureOfText(head + "<R>&e9;</R>").Code, CXMLException::NotWellFormed);
  EXPECT_EQ(FailureOfText(head + "<R a='&e9;'/>").Code, CXMLException::NotWellFormed);
}

// One long entity named often: the square of the file's length.
TEST(XMLHostile, AQuadraticEntityBombIsRefused) {
  const std::string head = "<!DOCTYPE R [<!ENTITY e '" + std::string(100000, 'x') + "'>]>";
  ExpectRefused(FailureOfText(head + "<R>" + Repeat("&e;", 30000) + "</R>"), L"entities make too much of it");
}

// Elements take more memory than the characters that they are made of.
TEST(XMLHostile, ManyElementsOutOfAnEntityAreRefused) {
  const std::string head = "<!DOCTYPE R [<!ENTITY e '" + Repeat("<x/>", 10000) + "'>]>";
  ExpectRefused(FailureOfText(head + "<R>" + Repeat("&e;", 10000) + "</R>"), L"entities make too much of it");
}

TEST(XMLHostile, HarmlessEntitiesMayRepeat) {
  const DocumentPointer document =
      LoadText("<!DOCTYPE R [<!ENTITY e '0123456789'>]><R>" + Repeat("&e;", 1000) + "</R>");
  EXPECT_EQ(std::wstring(document->GetRootNode()->GetNodeText()).size(), 10000U);
}

TEST(XMLHostile, EntitiesThatNameEachOtherAreRefused) {
  ExpectRefused(FailureOfText("<!DOCTYPE R [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><R>&a;</R>"),
                L"recursive entity reference");
}

std::string EntityChain(int count) {
  std::string types = "<!ENTITY e0 'end'>";
  for (int i = 1; i < count; ++i) {
    types += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
  }
  return "<!DOCTYPE R [" + types + "]><R>&e" + std::to_string(count - 1) + ";</R>";
}

// Entities within entities are expanded by recursion.
TEST(XMLHostile, AChainOfEntitiesIsReadUpToItsLimit) {
  EXPECT_STREQ(LoadText(EntityChain(zeb::kMaxXMLEntities))->GetRootNode()->GetNodeText(), L"end");
  ExpectRefused(FailureOfText(EntityChain(zeb::kMaxXMLEntities + 1)), L"too many entities");
  ExpectRefused(FailureOfText(EntityChain(100000)), L"too many entities");
}

std::string DeclaredAttributes(int count, std::size_t elements, const std::string& kind) {
  std::string types;
  for (int i = 0; i < count; ++i) types += "<!ATTLIST x a" + std::to_string(i) + " " + kind + ">";
  return "<!DOCTYPE R [" + types + "]><R>" + Repeat("<x/>", elements) + "</R>";
}

// Each declared attribute costs time at each element, more so if it has a default.
TEST(XMLHostile, DeclaredAttributesAreTakenUpToTheirLimit) {
  for (const char* kind : {"CDATA 'v'", "CDATA #IMPLIED"}) {
    const int most = zeb::kMaxXMLDeclaredAttributes;
    EXPECT_NE(LoadText(DeclaredAttributes(most, 10, kind))->GetRootNode(), nullptr);
    ExpectRefused(FailureOfText(DeclaredAttributes(most + 1, 10, kind)), L"too many declared attributes");
  }
}

TEST(XMLHostile, NoExternalEntityIsLoaded) {
  const zebtest::TempDir folder;
  zebtest::WriteFile(folder.File("secret.txt"), "secret");
  const std::string path = folder.File("secret.txt").string();
  const DocumentPointer document =
      LoadText("<!DOCTYPE R SYSTEM '" + path + "' [<!ENTITY e SYSTEM 'file://" + path + "'>]><R>[&e;]</R>");
  EXPECT_STREQ(document->GetRootNode()->GetNodeText(), L"[]");
}

// A token that spans many blocks must not be scanned from its beginning with each of them.
TEST(XMLHostile, OneTokenAsLongAsTheFileIsReadInProportion) {
  const std::string filler = Repeat("x", 20000000);
  const auto start = std::chrono::steady_clock::now();
  EXPECT_NE(LoadText("<R a='" + filler + "'/>")->GetRootNode(), nullptr);
  EXPECT_NE(LoadText("<R><!--" + filler + "--></R>")->GetRootNode(), nullptr);
  EXPECT_EQ(FailureOfText("<R><!--" + filler).Code, CXMLException::NotWellFormed);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST(XMLHostile, ManyAttributesAndManyNamesAreReadInProportion) {
  std::string attributes;
  std::string elements;
  for (int i = 0; i < 100000; ++i) {
    attributes += " a" + std::to_string(i) + "=''";
    elements += "<e" + std::to_string(i) + "/>";
  }
  const DocumentPointer document = LoadText("<R" + attributes + ">" + elements + "</R>");
  EXPECT_STREQ(document->GetRootNode()->GetChildNodes()[99999]->GetNodeName(), L"e99999");
}

TEST(XMLHostile, ALongNameIsReadAndWritten) {
  const std::string name(1000000, 'n');
  EXPECT_EQ(zebtest::SavedText(*LoadText("<" + name + "/>")),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + name + "/>\n");
}

TEST(XMLHostile, TextInManyPiecesIsReadInProportion) {
  const std::size_t count = 300000;
  const DocumentPointer document = LoadText("<R>" + Repeat("<!---->a&#10;<![CDATA[b]]>", count) + "</R>");
  EXPECT_EQ(std::wstring(document->GetRootNode()->GetNodeText()).size(), 3 * count);
}

// Longer than any report, though only 10 MB: the sanitizers slow the tests down.
TEST(XMLHostile, ALargeFileIsReadAndSaved) {
  const std::size_t count = 10000000 / 32;
  const std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R>\n" +
                           Repeat("  <Element>0123456789</Element>\n", count) + "</R>\n";
  const DocumentPointer document = LoadText(text);
  EXPECT_EQ(document->GetRootNode()->GetChildNodes()[count], nullptr);
  EXPECT_STREQ(document->GetRootNode()->GetChildNodes()[count - 1]->GetNodeText(), L"0123456789");
  EXPECT_TRUE(zebtest::SavedText(*document) == text);
}

TEST(XMLHostile, EveryEndOfAFileThatComesTooSoonIsRefused) {
  const std::string text =
      "<?xml version='1.0' encoding='ISO-8859-2'?><!DOCTYPE R [<!ENTITY e 'x'>]><R "
      "a='1'><!--c--><A>&e;\xB1<![CDATA[d]]></A></R>";
  for (std::size_t length = 0; length < text.size(); ++length) {
    EXPECT_EQ(FailureOfText(text.substr(0, length)).Code, CXMLException::NotWellFormed) << length;
  }
  EXPECT_EQ(FailureOfText(text).Code, 0);
}

TEST(XMLHostile, AnyByteInAnyPlaceIsSurvived) {
  const std::string text = "<?xml version='1.0' encoding='KOI8-R'?><R a='1'><A>&amp;\xC1</A></R>";
  for (std::size_t position = 0; position < text.size(); ++position) {
    for (const char byte : {'\0', '<', '>', '&', '\'', '-', '\x80', '\xFF'}) {
      std::string changed = text;
      changed[position] = byte;
      const int code = FailureOfText(changed).Code;
      EXPECT_TRUE(code == 0 || code == CXMLException::NotWellFormed ||
                  code == CXMLException::UnsupportedEncoding);
    }
  }
}

}  // namespace
