#include "foundation/XMLParser.h"

#include "foundation/XMLLimits.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLTree.h"
#include "platform/SingleBytePage.h"
#include "platform/Unicode.h"

#include <expat.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <new>
#include <string_view>
#include <type_traits>
#include <vector>

namespace zeb {

using zebxmln::CXMLException;
using zebxmln::CXMLNode;

namespace {

constexpr std::size_t kShortestElement = 4;  // <x/>

/// Builds the tree from the parser's events.
class TreeBuilder {
 public:
  TreeBuilder(XML_Parser parser, XMLTree& tree);

  /// Says how much of the file the parser has got, for the limit on what may come of it.
  void SetFed(std::size_t bytes) { m_iMostGiven = kXMLAmplificationThreshold + kMaxXMLAmplification * bytes; }

  bool IsOutOfMemory() const { return m_bOutOfMemory; }
  /// What the file has too much of, null if nothing.
  const wchar_t* Excess() const { return m_pExcess; }

 private:
  /// An element whose end is still to come.
  struct OpenElement {
    CXMLNode* Node;          // observer: belongs to the tree
    std::size_t FirstChild;  // in the list of pending children
  };

  static TreeBuilder& From(void* userData) { return *static_cast<TreeBuilder*>(userData); }
  static void XMLCALL OnStart(void* userData, const XML_Char* name, const XML_Char** attributes);
  static void XMLCALL OnEnd(void* userData, const XML_Char* name);
  static void XMLCALL OnText(void* userData, const XML_Char* text, int length);
  static void XMLCALL OnAttributeDeclaration(void* userData, const XML_Char* element,
                                             const XML_Char* attribute, const XML_Char* type,
                                             const XML_Char* defaultValue, int isRequired);
  static void XMLCALL OnEntityDeclaration(void* userData, const XML_Char* name, int isParameter,
                                          const XML_Char* value, int valueLength, const XML_Char* base,
                                          const XML_Char* systemID, const XML_Char* publicID,
                                          const XML_Char* notation);
  static int XMLCALL OnUnknownEncoding(void* userData, const XML_Char* name, XML_Encoding* info);

  /// Runs what may run out of memory: no exception may cross the parser's own code.
  template <class Action>
  void Guard(Action action);
  void Start(const XML_Char* name);
  void End();
  /// Counts what an event adds to the tree, in bytes that it takes at least if it stands in the file itself.
  void Count(std::size_t bytes);
  void Refuse(const wchar_t* excess);
  XMLPosition Position() const;

  XML_Parser m_Parser;  // observer
  XMLTree& m_Tree;      // observer
  std::vector<OpenElement> m_rgOpen;
  std::vector<CXMLNode*> m_rgpPending;  // finished children of open elements, those of the innermost last
  std::string m_strText;                // of the innermost element, as long as it has no children
  bool m_bIsLeaf = false;               // whether the innermost element has no children so far
  bool m_bOutOfMemory = false;
  const wchar_t* m_pExcess = nullptr;
  std::uint64_t m_iGiven = 0;
  std::uint64_t m_iMostGiven = 0;
  int m_iEntities = 0;
  int m_iDeclaredAttributes = 0;
};

TreeBuilder::TreeBuilder(XML_Parser parser, XMLTree& tree) : m_Parser(parser), m_Tree(tree) {
  XML_SetUserData(parser, this);
  XML_SetElementHandler(parser, &OnStart, &OnEnd);
  XML_SetCharacterDataHandler(parser, &OnText);
  XML_SetAttlistDeclHandler(parser, &OnAttributeDeclaration);
  XML_SetEntityDeclHandler(parser, &OnEntityDeclaration);
  XML_SetUnknownEncodingHandler(parser, &OnUnknownEncoding, this);
}

template <class Action>
void TreeBuilder::Guard(Action action) {
  try {
    action();
  } catch (const std::bad_alloc&) {
    m_bOutOfMemory = true;
    XML_StopParser(m_Parser, XML_FALSE);
  }
}

void TreeBuilder::OnStart(void* userData, const XML_Char* name, const XML_Char** /*attributes*/) {
  TreeBuilder& self = From(userData);
  self.Guard([&] { self.Start(name); });
}

void TreeBuilder::OnEnd(void* userData, const XML_Char* /*name*/) {
  TreeBuilder& self = From(userData);
  // The end of an empty element comes even if its start has stopped the parser.
  if (self.m_bOutOfMemory) return;
  self.Guard([&] { self.End(); });
}

void TreeBuilder::OnText(void* userData, const XML_Char* text, int length) {
  TreeBuilder& self = From(userData);
  if (!self.m_bIsLeaf) return;
  self.Count(static_cast<std::size_t>(length));
  self.Guard([&] { self.m_strText.append(text, static_cast<std::size_t>(length)); });
}

void TreeBuilder::OnAttributeDeclaration(void* userData, const XML_Char* /*element*/,
                                         const XML_Char* /*attribute*/, const XML_Char* /*type*/,
                                         const XML_Char* /*defaultValue*/, int /*isRequired*/) {
  TreeBuilder& self = From(userData);
  if (++self.m_iDeclaredAttributes > kMaxXMLDeclaredAttributes) {
    self.Refuse(L"too many declared attributes");
  }
}

void TreeBuilder::OnEntityDeclaration(void* userData, const XML_Char* /*name*/, int /*isParameter*/,
                                      const XML_Char* /*value*/, int /*valueLength*/,
                                      const XML_Char* /*base*/, const XML_Char* /*systemID*/,
                                      const XML_Char* /*publicID*/, const XML_Char* /*notation*/) {
  TreeBuilder& self = From(userData);
  if (++self.m_iEntities > kMaxXMLEntities) self.Refuse(L"too many entities");
}

int TreeBuilder::OnUnknownEncoding(void* userData, const XML_Char* name, XML_Encoding* info) {
  int result = XML_STATUS_ERROR;
  From(userData).Guard([&] {
    const SingleBytePage* page = FindSingleBytePage(name);
    if (page == nullptr) return;
    std::copy(page->begin(), page->end(), info->map);
    info->data = nullptr;
    info->convert = nullptr;
    info->release = nullptr;
    result = XML_STATUS_OK;
  });
  return result;
}

void TreeBuilder::Start(const XML_Char* name) {
  CXMLNode* node = m_Tree.MakeNode(m_Tree.FindName(std::string_view(name)), Position());
  if (m_rgOpen.empty()) {
    m_Tree.SetRoot(node);
  } else {
    m_rgpPending.push_back(node);
  }
  m_rgOpen.push_back({node, m_rgpPending.size()});
  m_bIsLeaf = true;
  m_strText.clear();
  Count(kShortestElement);
}

void TreeBuilder::End() {
  const OpenElement element = m_rgOpen.back();
  m_rgOpen.pop_back();
  if (m_bIsLeaf) {
    XMLTree::SetUtf8Text(*element.Node, m_strText);
  } else {
    XMLTree::SetChildren(*element.Node, std::span(m_rgpPending).subspan(element.FirstChild));
    m_rgpPending.resize(element.FirstChild);
  }
  m_bIsLeaf = false;
}

void TreeBuilder::Count(std::size_t bytes) {
  m_iGiven += bytes;
  if (m_iGiven > m_iMostGiven) Refuse(L"entities make too much of it");
}

void TreeBuilder::Refuse(const wchar_t* excess) {
  m_pExcess = excess;
  XML_StopParser(m_Parser, XML_FALSE);
}

XMLPosition TreeBuilder::Position() const {
  constexpr XML_Size kMost = std::numeric_limits<unsigned int>::max();
  return {static_cast<unsigned int>(std::min<XML_Size>(XML_GetCurrentLineNumber(m_Parser), kMost)),
          static_cast<unsigned int>(std::min<XML_Size>(XML_GetCurrentColumnNumber(m_Parser) + 1, kMost))};
}

/// A whole parsing: the parser, the builder and the messages.
class Parsing {
 public:
  Parsing(const XMLByteSource& source, const std::wstring& path, XMLTree& tree);
  void Run();

 private:
  static XML_Parser MakeParser(const std::wstring& path);
  [[noreturn]] static void ThrowOutOfMemory(const std::wstring& path);

  std::size_t ReadBlock(std::span<std::byte> block);
  std::size_t NextBlockSize() const;
  [[noreturn]] void ThrowError() const;

  const XMLByteSource& m_Source;  // observer
  const std::wstring& m_strPath;  // observer
  std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)> m_pParser;
  TreeBuilder m_Builder;
  std::size_t m_iFed = 0;  // bytes that the parser got so far
};

Parsing::Parsing(const XMLByteSource& source, const std::wstring& path, XMLTree& tree)
    : m_Source(source),
      m_strPath(path),
      m_pParser(MakeParser(path), &XML_ParserFree),
      m_Builder(m_pParser.get(), tree) {}

XML_Parser Parsing::MakeParser(const std::wstring& path) {
  XML_Parser parser = XML_ParserCreate(nullptr);
  if (parser == nullptr) ThrowOutOfMemory(path);
  return parser;
}

void Parsing::Run() {
  for (bool isLast = false; !isLast;) {
    const std::size_t size = NextBlockSize();
    void* buffer = XML_GetBuffer(m_pParser.get(), static_cast<int>(size));
    if (buffer == nullptr) ThrowError();
    const std::size_t count = ReadBlock({static_cast<std::byte*>(buffer), size});
    isLast = count < size;
    m_iFed += count;
    m_Builder.SetFed(m_iFed);
    if (XML_ParseBuffer(m_pParser.get(), static_cast<int>(count), isLast ? XML_TRUE : XML_FALSE) !=
        XML_STATUS_OK) {
      ThrowError();
    }
  }
}

std::size_t Parsing::ReadBlock(std::span<std::byte> block) {
  std::size_t count = 0;
  const FileStatus status = m_Source(block, count);
  if (status == FileStatus::Ok) return count;
  throw CXMLException(CXMLException::CannotOpen,
                      L"The file '" + m_strPath + L"' cannot be read: " + DescribeFileStatus(status) + L".");
}

/// A token that does not end within a block is scanned again with each new one. Blocks grow with it, so that a file that
/// is one single tag takes no longer than others.
std::size_t Parsing::NextBlockSize() const {
  constexpr std::size_t kLeast = 65536;
  constexpr std::size_t kMost = 1 << 28;
  const XML_Index parsed = XML_GetCurrentByteIndex(m_pParser.get());
  const std::size_t pending = parsed < 0 ? 0 : m_iFed - std::min(m_iFed, static_cast<std::size_t>(parsed));
  return std::clamp(pending, kLeast, kMost);
}

void Parsing::ThrowOutOfMemory(const std::wstring& path) {
  throw CXMLException(CXMLException::OutOfMemory,
                      L"There is not enough memory to read the file '" + path + L"'.");
}

void Parsing::ThrowError() const {
  const XML_Error error = XML_GetErrorCode(m_pParser.get());
  if (m_Builder.IsOutOfMemory() || error == XML_ERROR_NO_MEMORY) ThrowOutOfMemory(m_strPath);
  const std::wstring place = L"line " + std::to_wstring(XML_GetCurrentLineNumber(m_pParser.get())) +
                             L", column " + std::to_wstring(XML_GetCurrentColumnNumber(m_pParser.get()) + 1);
  if (error == XML_ERROR_UNKNOWN_ENCODING) {
    throw CXMLException(CXMLException::UnsupportedEncoding,
                        L"The file '" + m_strPath + L"' declares an unknown encoding (" + place + L").");
  }
  const std::wstring what =
      m_Builder.Excess() != nullptr ? m_Builder.Excess() : Utf8ToWide(XML_ErrorString(error));
  throw CXMLException(CXMLException::NotWellFormed,
                      L"The file '" + m_strPath + L"' is not well-formed at " + place + L": " + what + L".");
}

}  // namespace

void ParseXML(const XMLByteSource& source, const std::wstring& path, XMLTree& tree) {
  Parsing(source, path, tree).Run();
}

}  // namespace zeb
