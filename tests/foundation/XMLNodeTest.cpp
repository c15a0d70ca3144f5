#include "foundation/XMLNode.h"

#include "foundation/XMLTree.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using zebtest::DocumentPointer;
using zebtest::LoadText;
using zebtest::NewDocument;
using zebtest::SavedText;
using zebxmln::CXMLBinNode;
using zebxmln::CXMLNode;

/// The text of the root element of a document.
std::wstring RootText(std::string_view text) { return LoadText(text)->GetRootNode()->GetNodeText(); }

std::vector<std::wstring> ChildNames(CXMLNode* node) {
  std::vector<std::wstring> names;
  for (CXMLNode** child = node->GetChildNodes(); *child != nullptr; ++child)
    names.emplace_back((*child)->GetNodeName());
  return names;
}

TEST(XMLNode, GivesItsChildrenInFileOrderClosedByNull) {
  const DocumentPointer document = LoadText("<R><B/>\n<A>1</A><B/></R>");
  EXPECT_STREQ(document->GetRootNode()->GetNodeName(), L"R");
  EXPECT_EQ(ChildNames(document->GetRootNode()), (std::vector<std::wstring>{L"B", L"A", L"B"}));
  EXPECT_EQ(document->GetRootNode()->GetChildNodes()[3], nullptr);
}

TEST(XMLNode, GivesAnArrayWithNullAloneWithoutChildren) {
  const DocumentPointer document = LoadText("<R/>");
  ASSERT_NE(document->GetRootNode()->GetChildNodes(), nullptr);
  EXPECT_EQ(document->GetRootNode()->GetChildNodes()[0], nullptr);
  EXPECT_EQ(document->GetRootNode()->GetFirstChildNode(), nullptr);
}

TEST(XMLNode, GivesItsFirstChild) {
  const DocumentPointer document = LoadText("<R> <A/><B/></R>");
  EXPECT_STREQ(document->GetRootNode()->GetFirstChildNode()->GetNodeName(), L"A");
}

TEST(XMLNode, KeepsCaseAndLettersOfNames) {
  const DocumentPointer document = LoadText("<r\xC3\xA4t><R\xC3\x84T/></r\xC3\xA4t>");
  EXPECT_STREQ(document->GetRootNode()->GetNodeName(), L"r\u00E4t");
  EXPECT_STREQ(document->GetRootNode()->GetFirstChildNode()->GetNodeName(), L"R\u00C4T");
}

TEST(XMLNode, KeepsTheTextOfALeafToTheLastBlank) {
  EXPECT_EQ(RootText("<R>  a \n b\t </R>"), L"  a \n b\t ");
  EXPECT_EQ(RootText("<R> </R>"), L" ");
  EXPECT_EQ(RootText("<R>\n</R>"), L"\n");
}

TEST(XMLNode, TextIsEmptyAndNeverNull) {
  const DocumentPointer document = LoadText("<R><A/><B></B></R>");
  EXPECT_STREQ(document->GetRootNode()->GetNodeText(), L"");
  EXPECT_STREQ(document->GetRootNode()->GetChildNodes()[0]->GetNodeText(), L"");
  EXPECT_STREQ(document->GetRootNode()->GetChildNodes()[1]->GetNodeText(), L"");
}

TEST(XMLNode, ReadsReferencesAndCDataAsText) {
  EXPECT_EQ(RootText("<R>a&amp;&lt;&gt;&quot;&apos;&#65;&#x42;</R>"), L"a&<>\"'AB");
  EXPECT_EQ(RootText("<R> x<![CDATA[ <b>&amp; ]]>y </R>"), L" x <b>&amp; y ");
  EXPECT_EQ(RootText("<!DOCTYPE R [<!ENTITY e 'inner'>]><R>[&e;]</R>"), L"[inner]");
}

TEST(XMLNode, ReadsLineEndsAsLineFeedsButKeepsReferencedCarriageReturns) {
  EXPECT_EQ(RootText("<R>a\r\nb\rc\nd&#13;e&#xD;&#10;</R>"), L"a\nb\nc\nd\re\r\n");
}

TEST(XMLNode, DropsTheTextOfAnElementWithChildren) {
  EXPECT_EQ(RootText("<R>before<A/>behind</R>"), L"");
  EXPECT_EQ(RootText("<R>before<A>in</A></R>"), L"");
  EXPECT_EQ(RootText("<R><A/>behind</R>"), L"");
  const DocumentPointer document = LoadText("<R>before<A>in</A>between<B>also</B></R>");
  EXPECT_STREQ(document->GetRootNode()->GetChildNodes()[0]->GetNodeText(), L"in");
  EXPECT_STREQ(document->GetRootNode()->GetChildNodes()[1]->GetNodeText(), L"also");
}

TEST(XMLNode, SkipsAttributesCommentsAndProcessingInstructions) {
  const DocumentPointer document = LoadText(
      "<?x y?><!-- c --><R a='1' b=\"2\"><!-- <A/> --><?p q?><A c='3'>a<!-- d -->b<?r?>c</A></R><!-- e -->");
  EXPECT_EQ(ChildNames(document->GetRootNode()), (std::vector<std::wstring>{L"A"}));
  EXPECT_STREQ(document->GetRootNode()->GetFirstChildNode()->GetNodeText(), L"abc");
  EXPECT_EQ(SavedText(*document), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R>\n  <A>abc</A>\n</R>\n");
}

TEST(XMLNode, TextAndChildrenStayValidWhileOthersAreAsked) {
  const DocumentPointer document = LoadText("<R><A>one</A><B>two</B></R>");
  CXMLNode** children = document->GetRootNode()->GetChildNodes();
  const wchar_t* one = children[0]->GetNodeText();
  const wchar_t* two = children[1]->GetNodeText();
  EXPECT_EQ(children[0]->GetNodeText(), one);
  EXPECT_STREQ(one, L"one");
  EXPECT_STREQ(two, L"two");
  EXPECT_EQ(document->GetRootNode()->GetChildNodes(), children);
}

TEST(XMLNode, AppendsChildrenAtTheEnd) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  std::vector<std::wstring> expected;
  for (int i = 0; i < 100; ++i) {
    expected.push_back(L"N" + std::to_wstring(i));
    CXMLNode* child = root->AddChildNode(expected.back().c_str(), 0);
    ASSERT_NE(child, nullptr);
    ASSERT_EQ(root->GetChildNodes()[i], child);
    ASSERT_EQ(root->GetChildNodes()[i + 1], nullptr);
  }
  EXPECT_EQ(ChildNames(root), expected);
}

TEST(XMLNode, AnOldArrayOfChildrenKeepsWhatItHad) {
  const DocumentPointer document = LoadText("<R><A/><B/></R>");
  CXMLNode* root = document->GetRootNode();
  CXMLNode** before = root->GetChildNodes();
  for (int i = 0; i < 20; ++i) root->AddChildNode(L"C", 0);
  EXPECT_STREQ(before[0]->GetNodeName(), L"A");
  EXPECT_STREQ(before[1]->GetNodeName(), L"B");
  EXPECT_EQ(before[2], nullptr);
  EXPECT_EQ(ChildNames(root).size(), 22U);
}

TEST(XMLNode, CopiesTheTextThatIsSet) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  std::wstring text = L"Gr\u00FC\u00DFe";
  root->SetNodeText(text.c_str());
  text = L"other";
  EXPECT_STREQ(root->GetNodeText(), L"Gr\u00FC\u00DFe");
  root->SetNodeText(L"again");
  EXPECT_STREQ(root->GetNodeText(), L"again");
  root->SetNodeText(L"");
  EXPECT_STREQ(root->GetNodeText(), L"");
  root->SetNodeText(nullptr);
  EXPECT_STREQ(root->GetNodeText(), L"");
}

TEST(XMLNode, GivesBackAnyTextAsItWasSet) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  const std::array<std::wstring, 5> texts = {L"\x01\x1F\r\n", std::wstring(1, wchar_t{0xD800}),
                                             L"\xFFFE\xFFFF", std::wstring{wchar_t{0xD83D}, wchar_t{0xDE00}},
                                             L"\U0001F600"};
  for (const std::wstring& text : texts) {
    root->SetNodeText(text.c_str());
    EXPECT_EQ(root->GetNodeText(), text);
  }
}

TEST(XMLNode, AnElementWithChildrenHasNoText) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  root->SetNodeText(L"text");
  root->AddChildNode(L"A", 0);
  EXPECT_STREQ(root->GetNodeText(), L"");
  root->SetNodeText(L"later");
  EXPECT_STREQ(root->GetNodeText(), L"");
  EXPECT_EQ(ChildNames(root), (std::vector<std::wstring>{L"A"}));
}

TEST(XMLNode, WritesAttributesInTheOrderOfSetting) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  root->SetNodeAttribute(L"Level", L"1");
  root->SetNodeAttribute(L"Other", L"<&>\"'\t\n\r\x01");
  root->SetNodeAttribute(L"Level", L"2");
  root->SetNodeText(L"text");
  EXPECT_EQ(SavedText(*document),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
            "<R Level=\"2\" Other=\"&lt;&amp;&gt;&quot;'&#9;&#10;&#13;\xEF\xBF\xBD\">text</R>\n");
}

TEST(XMLNode, WritesAttributesOfEmptyAndOfInnerElements) {
  const DocumentPointer document = NewDocument();
  CXMLNode* root = document->CreateRootNode(L"R");
  root->SetNodeAttribute(L"a", L"");
  root->AddChildNode(L"E", 0)->SetNodeAttribute(L"b", L"1");
  EXPECT_EQ(SavedText(*document),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R a=\"\">\n  <E b=\"1\"/>\n</R>\n");
}

TEST(XMLNode, HasAVirtualDestructor) { EXPECT_TRUE(std::has_virtual_destructor_v<CXMLNode>); }

TEST(XMLNode, RemembersWhereItsStartTagStands) {
  const DocumentPointer document =
      LoadText("<?xml version=\"1.0\"?>\n<R>\r\n  <A\n  x='1'/><B/>\n\t<!-- \n --> <C/>\n</R>");
  CXMLNode* root = document->GetRootNode();
  CXMLNode** children = root->GetChildNodes();
  const auto place = [](const CXMLNode& node) {
    const zeb::XMLPosition position = zeb::XMLTree::PositionOf(node);
    return std::array<unsigned int, 2>{position.Line, position.Column};
  };
  EXPECT_EQ(place(*root), (std::array<unsigned int, 2>{2, 1}));
  EXPECT_EQ(place(*children[0]), (std::array<unsigned int, 2>{3, 3}));
  EXPECT_EQ(place(*children[1]), (std::array<unsigned int, 2>{4, 10}));
  EXPECT_EQ(place(*children[2]), (std::array<unsigned int, 2>{6, 6}));
  EXPECT_EQ(place(*root->AddChildNode(L"D", 0)), (std::array<unsigned int, 2>{0, 0}));
}

TEST(XMLBinNode, IsTheFirstChildOfAnElementWithBinaryContent) {
  const DocumentPointer document =
      LoadText("<R><P><BinaryData>AAEC</BinaryData></P><Q><Data>AAEC</Data></Q><E/></R>");
  CXMLNode** children = document->GetRootNode()->GetChildNodes();
  auto* binary = dynamic_cast<CXMLBinNode*>(children[0]->GetFirstChildNode());
  ASSERT_NE(binary, nullptr);
  void* data = nullptr;
  int length = -1;
  binary->GetBinaryData(&data, &length);
  ASSERT_EQ(length, 3);
  const auto* bytes = static_cast<const unsigned char*>(data);
  EXPECT_EQ(std::vector<unsigned char>(bytes, bytes + length), (std::vector<unsigned char>{0, 1, 2}));
  EXPECT_EQ(dynamic_cast<CXMLBinNode*>(children[1]->GetFirstChildNode()), nullptr);
  EXPECT_EQ(dynamic_cast<CXMLBinNode*>(children[2]->GetFirstChildNode()), nullptr);
}

TEST(XMLBinNode, ReadsNoBase64AsNullAndLengthZero) {
  for (const char* text : {"", " ", "?", "QQ", "QQ=", "QUI=x", "<A>QQ==</A>", "\xC3\xA4\xC3\xA4"}) {
    const DocumentPointer document = LoadText("<R><BinaryData>" + std::string(text) + "</BinaryData></R>");
    auto* binary = dynamic_cast<CXMLBinNode*>(document->GetRootNode()->GetFirstChildNode());
    ASSERT_NE(binary, nullptr);
    int marker = 0;
    void* data = &marker;
    int length = -1;
    binary->GetBinaryData(&data, &length);
    EXPECT_EQ(data, nullptr) << text;
    EXPECT_EQ(length, 0) << text;
  }
}

TEST(XMLBinNode, StoresACopyAndWritesOneLineOfBase64) {
  const DocumentPointer document = NewDocument();
  CXMLNode* picture = document->CreateRootNode(L"R")->AddChildNode(L"PictureData", 0);
  CXMLBinNode* binary = picture->CreateBinNode();
  std::vector<unsigned char> bytes(200);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<unsigned char>(i);
  binary->SetBinaryData(bytes.data(), static_cast<int>(bytes.size()));
  const std::vector<unsigned char> original = bytes;
  bytes.assign(bytes.size(), 0);
  void* data = nullptr;
  int length = 0;
  binary->GetBinaryData(&data, &length);
  ASSERT_EQ(length, 200);
  const auto* stored = static_cast<const unsigned char*>(data);
  EXPECT_EQ(std::vector<unsigned char>(stored, stored + length), original);
  binary->SetBinaryData("AB", 2);
  binary->GetBinaryData(&data, &length);
  EXPECT_EQ(std::string(static_cast<const char*>(data), 2), "AB");
  EXPECT_EQ(length, 2);
  EXPECT_EQ(picture->GetFirstChildNode(), binary);
  EXPECT_EQ(picture->CreateBinNode(), binary);
  EXPECT_EQ(SavedText(*document),
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R>\n  <PictureData>\n"
            "    <BinaryData>QUI=</BinaryData>\n  </PictureData>\n</R>\n");
}

TEST(XMLBinNode, TakesNoBytesAsNoContent) {
  const DocumentPointer document = NewDocument();
  CXMLBinNode* binary = document->CreateRootNode(L"R")->CreateBinNode();
  for (const int length : {0, -1}) {
    binary->SetBinaryData("AB", length);
    int marker = 0;
    void* data = &marker;
    int stored = -1;
    binary->GetBinaryData(&data, &stored);
    EXPECT_EQ(data, nullptr);
    EXPECT_EQ(stored, 0);
  }
  binary->SetBinaryData(nullptr, 5);
  EXPECT_EQ(SavedText(*document), "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<R>\n  <BinaryData/>\n</R>\n");
}

TEST(XMLBinNode, SurvivesAFile) {
  const zebtest::TempDir folder;
  std::vector<unsigned char> bytes(100000);
  for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<unsigned char>(i * 7 + i / 256);
  {
    const DocumentPointer document = NewDocument();
    document->CreateRootNode(L"R")->CreateBinNode()->SetBinaryData(bytes.data(),
                                                                   static_cast<int>(bytes.size()));
    document->SaveDocumentToFile(folder.WideFile("a.xml").c_str(), true);
  }
  const DocumentPointer document = zebtest::LoadFile(folder.File("a.xml"));
  auto* binary = dynamic_cast<CXMLBinNode*>(document->GetRootNode()->GetFirstChildNode());
  ASSERT_NE(binary, nullptr);
  void* data = nullptr;
  int length = 0;
  binary->GetBinaryData(&data, &length);
  const auto* read = static_cast<const unsigned char*>(data);
  EXPECT_EQ(std::vector<unsigned char>(read, read + length), bytes);
}

}  // namespace
