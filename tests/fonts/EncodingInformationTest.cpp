#include "fonts/EncodingInformation.h"

#include "fonts/Encodings.h"
#include "foundation/IDManager.h"
#include "foundation/XMLDocument.h"
#include "foundation/XMLNode.h"
#include "support/TempDir.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;
using zebtest::DocumentPointer;
using zebtest::LoadFile;
using zebtest::LoadText;

/// Loads an encoding from the children of its element.
void Load(CEncodingInformation& encoding, const std::string& children) {
  const DocumentPointer document = LoadText("<EncodingInformation>" + children + "</EncodingInformation>");
  CIDManager ids;
  EXPECT_TRUE(encoding.Load(document->GetRootNode(), ids));
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// A new document with an empty root element.
DocumentPointer DocumentWithRoot() {
  DocumentPointer document = zebtest::NewDocument();
  document->CreateRootNode(L"Root");
  return document;
}

void ExpectSame(const CEncodingInformation& one, const CEncodingInformation& other) {
  EXPECT_STREQ(one.GetInternalName(), other.GetInternalName());
  EXPECT_STREQ(one.GetPDFName(), other.GetPDFName());
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(one.GetUnicodeAt(code), other.GetUnicodeAt(code)) << code;
    EXPECT_STREQ(one.GetCharNameAt(code), other.GetCharNameAt(code)) << code;
  }
}

TEST(EncodingInformation, StartsEmpty) {
  const CEncodingInformation encoding(nullptr);
  EXPECT_STREQ(encoding.GetInternalName(), L"");
  EXPECT_STREQ(encoding.GetPDFName(), L"");
  EXPECT_EQ(encoding.GetCharColl(), static_cast<CFontMetrics::CharColl>(-1));
  EXPECT_FALSE(encoding.GetStandardEncoding());
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(encoding.GetUnicodeAt(code), 0);
    EXPECT_STREQ(encoding.GetCharNameAt(code), L"");
  }
}

TEST(EncodingInformation, KeepsItsValues) {
  CEncodingInformation encoding(nullptr);
  encoding.SetInternalName(L"mine");
  encoding.SetPDFName(L"Mine");
  encoding.SetCharColl(CFontMetrics::CharCollJapan1);
  encoding.SetStandardEncoding(true);
  encoding.SetUnicodeAt(255, 0xFFFF);
  encoding.SetCharNameAt(255, L"ydieresis");
  EXPECT_STREQ(encoding.GetInternalName(), L"mine");
  EXPECT_STREQ(encoding.GetPDFName(), L"Mine");
  EXPECT_EQ(encoding.GetCharColl(), CFontMetrics::CharCollJapan1);
  EXPECT_TRUE(encoding.GetStandardEncoding());
  EXPECT_EQ(encoding.GetUnicodeAt(255), 0xFFFF);
  EXPECT_STREQ(encoding.GetCharNameAt(255), L"ydieresis");
}

TEST(EncodingInformation, LoadsTheFieldsInTheirOrder) {
  CEncodingInformation encoding(nullptr);
  Load(encoding,
       "<InternalName>mine</InternalName><PDFName>Mine</PDFName><Unicodes>65</Unicodes><Unicodes>8364</"
       "Unicodes>"
       "<CharNames>A</CharNames><CharNames/><CharNames>Euro</CharNames>");
  EXPECT_STREQ(encoding.GetInternalName(), L"mine");
  EXPECT_STREQ(encoding.GetPDFName(), L"Mine");
  EXPECT_EQ(encoding.GetUnicodeAt(0), 65);
  EXPECT_EQ(encoding.GetUnicodeAt(1), 8364);
  EXPECT_EQ(encoding.GetUnicodeAt(2), 0);
  EXPECT_STREQ(encoding.GetCharNameAt(0), L"A");
  EXPECT_STREQ(encoding.GetCharNameAt(1), L"");
  EXPECT_STREQ(encoding.GetCharNameAt(2), L"Euro");
  EXPECT_FALSE(encoding.GetStandardEncoding());
}

TEST(EncodingInformation, AnyFieldMayBeAbsent) {
  CEncodingInformation names(nullptr);
  Load(names, "<CharNames>A</CharNames>");
  EXPECT_STREQ(names.GetCharNameAt(0), L"A");
  CEncodingInformation nothing(nullptr);
  Load(nothing, "");
  EXPECT_STREQ(nothing.GetInternalName(), L"");
}

TEST(EncodingInformation, AnElementOutOfItsPlaceEndsTheMatching) {
  CEncodingInformation encoding(nullptr);
  Load(encoding, "<PDFName>Mine</PDFName><InternalName>mine</InternalName><Unicodes>65</Unicodes>");
  EXPECT_STREQ(encoding.GetPDFName(), L"Mine");
  EXPECT_STREQ(encoding.GetInternalName(), L"");
  EXPECT_EQ(encoding.GetUnicodeAt(0), 0);
}

TEST(EncodingInformation, AnotherNameEndsTheListOfCodes) {
  CEncodingInformation encoding(nullptr);
  Load(encoding, "<Unicodes>65</Unicodes><CharNames>A</CharNames><Unicodes>66</Unicodes>");
  EXPECT_EQ(encoding.GetUnicodeAt(0), 65);
  EXPECT_EQ(encoding.GetUnicodeAt(1), 0);
  EXPECT_STREQ(encoding.GetCharNameAt(0), L"A");
}

TEST(EncodingInformation, CodesAreTakenWith16Bits) {
  CEncodingInformation encoding(nullptr);
  Load(encoding,
       "<Unicodes>65535</Unicodes><Unicodes>-1</Unicodes><Unicodes>65537</Unicodes><Unicodes>x</Unicodes>");
  EXPECT_EQ(encoding.GetUnicodeAt(0), 65535);
  EXPECT_EQ(encoding.GetUnicodeAt(1), 65535);
  EXPECT_EQ(encoding.GetUnicodeAt(2), 1);
  EXPECT_EQ(encoding.GetUnicodeAt(3), 0);
}

// An attack: a list longer than the arrays.
TEST(EncodingInformation, OfMoreThan256EntriesTheFirst256Count) {
  CEncodingInformation encoding(nullptr);
  Load(encoding, Repeated("<Unicodes>7</Unicodes>", 255) + "<Unicodes>8</Unicodes>" +
                     Repeated("<Unicodes>9</Unicodes>", 1000) + Repeated("<CharNames>a</CharNames>", 255) +
                     "<CharNames>b</CharNames>" + Repeated("<CharNames>c</CharNames>", 1000));
  EXPECT_EQ(encoding.GetUnicodeAt(0), 7);
  EXPECT_EQ(encoding.GetUnicodeAt(255), 8);
  EXPECT_STREQ(encoding.GetCharNameAt(0), L"a");
  EXPECT_STREQ(encoding.GetCharNameAt(255), L"b");
}

TEST(EncodingInformation, SavesAllFieldsInTheirOrder) {
  CEncodingInformation encoding(nullptr);
  encoding.SetInternalName(L"mine");
  encoding.SetUnicodeAt(1, 65535);
  encoding.SetCharNameAt(2, L"b");
  const DocumentPointer document = DocumentWithRoot();
  CIDManager ids;
  EXPECT_TRUE(encoding.Save(document->GetRootNode(), ids));
  zebxmln::CXMLNode* const element = document->GetRootNode()->GetFirstChildNode();
  ASSERT_NE(element, nullptr);
  EXPECT_STREQ(element->GetNodeName(), L"EncodingInformation");
  zebxmln::CXMLNode** children = element->GetChildNodes();
  EXPECT_STREQ(children[0]->GetNodeName(), L"InternalName");
  EXPECT_STREQ(children[0]->GetNodeText(), L"mine");
  EXPECT_STREQ(children[1]->GetNodeName(), L"PDFName");
  EXPECT_STREQ(children[1]->GetNodeText(), L"");
  for (int code = 0; code < 256; ++code) {
    EXPECT_STREQ(children[2 + code]->GetNodeName(), L"Unicodes");
    EXPECT_STREQ(children[2 + code]->GetNodeText(), code == 1 ? L"65535" : L"0");
    EXPECT_STREQ(children[258 + code]->GetNodeName(), L"CharNames");
    EXPECT_STREQ(children[258 + code]->GetNodeText(), code == 2 ? L"b" : L"");
  }
  EXPECT_EQ(children[514], nullptr);
}

TEST(EncodingInformation, AStandardEncodingSavesNothing) {
  CEncodingInformation encoding(nullptr);
  encoding.SetStandardEncoding(true);
  const DocumentPointer document = DocumentWithRoot();
  CIDManager ids;
  EXPECT_TRUE(encoding.Save(document->GetRootNode(), ids));
  EXPECT_EQ(document->GetRootNode()->GetFirstChildNode(), nullptr);
}

TEST(EncodingInformation, AListOfStandardEncodingsSavesNothing) {
  CEncodings encodings(nullptr);
  encodings.AddCP1250Encoding();
  const DocumentPointer document = DocumentWithRoot();
  CIDManager ids;
  for (int index = 0; index < encodings.GetEncodingCount(); ++index) {
    encodings.GetEncodingAt(index)->Save(document->GetRootNode(), ids);
  }
  EXPECT_EQ(document->GetRootNode()->GetFirstChildNode(), nullptr);
}

TEST(EncodingInformation, TheCharacterCollectionIsNotSaved) {
  CEncodingInformation encoding(nullptr);
  encoding.SetCharColl(CFontMetrics::CharCollKorea1);
  const DocumentPointer document = DocumentWithRoot();
  CIDManager ids;
  encoding.Save(document->GetRootNode(), ids);
  CEncodingInformation loaded(nullptr);
  loaded.Load(document->GetRootNode()->GetFirstChildNode(), ids);
  EXPECT_EQ(loaded.GetCharColl(), static_cast<CFontMetrics::CharColl>(-1));
}

/// The `EncodingInformation` element below the root or the document element.
zebxmln::CXMLNode* FindEncodingElement(zebxmln::CXMLNode* root) {
  for (zebxmln::CXMLNode** child = root->GetChildNodes(); *child != nullptr; ++child) {
    if (std::wstring((*child)->GetNodeName()) == L"EncodingInformation") return *child;
    if (std::wstring((*child)->GetNodeName()) == L"ReportDocument") return FindEncodingElement(*child);
  }
  return nullptr;
}

class EncodingInformationFile : public testing::TestWithParam<const char*> {};

TEST_P(EncodingInformationFile, SurvivesLoadAndSave) {
  const fs::path file = fs::path(ZEB_EXAMPLES) / "legacy" / GetParam();
  const DocumentPointer document = LoadFile(file);
  zebxmln::CXMLNode* const element = FindEncodingElement(document->GetRootNode());
  ASSERT_NE(element, nullptr);
  CIDManager ids;
  CEncodingInformation loaded(nullptr);
  loaded.Load(element, ids);
  EXPECT_STREQ(loaded.GetInternalName(), L"iso8859-15");
  EXPECT_EQ(loaded.GetUnicodeAt(0), 0);
  EXPECT_EQ(loaded.GetUnicodeAt(65), 65);
  EXPECT_STREQ(loaded.GetCharNameAt(65), L"A");
  EXPECT_EQ(loaded.GetUnicodeAt(0xA4), 0x20AC);
  EXPECT_STREQ(loaded.GetCharNameAt(0xA4), L"Euro");

  const zebtest::TempDir folder;
  const DocumentPointer written = DocumentWithRoot();
  loaded.Save(written->GetRootNode(), ids);
  written->SaveDocumentToFile(folder.WideFile("saved.xml").c_str(), true);
  const DocumentPointer read = LoadFile(folder.File("saved.xml"));
  CEncodingInformation again(nullptr);
  again.Load(read->GetRootNode()->GetFirstChildNode(), ids);
  ExpectSame(again, loaded);
}

INSTANTIATE_TEST_SUITE_P(Legacy, EncodingInformationFile,
                         testing::Values("report.xml", "layout.xml", "layout_v1.xml"));

TEST(EncodingInformation, FixedCopiesShareTheArrays) {
  CEncodingInformation source(nullptr);
  source.SetUnicodeAt(1, 5);
  // Only one of them may be destroyed; the memory of the copy is released without its destructor.
  alignas(CEncodingInformation) std::byte room[sizeof(CEncodingInformation)];
  auto* copy = new (room) CEncodingInformation(source);
  copy->SetUnicodeAt(1, 6);
  copy->SetCharNameAt(1, L"six");
  EXPECT_EQ(source.GetUnicodeAt(1), 6);
  EXPECT_STREQ(source.GetCharNameAt(1), L"six");
}

}  // namespace
