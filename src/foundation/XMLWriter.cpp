#include "foundation/XMLWriter.h"

#include "foundation/XMLLimits.h"
#include "foundation/XMLTree.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace zeb {

using zebxmln::CXMLNode;

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD

/// Which bytes of a UTF-8 text are not written as they are.
enum class ByteKind : unsigned char {
  Plain,
  Text,       ///< escaped in texts and attributes
  Attribute,  ///< escaped in attributes only
  Impossible,
  LeadEF,  ///< begins U+FFFE and U+FFFF, and much else
};

constexpr std::array<ByteKind, 256> MakeByteKinds() {
  std::array<ByteKind, 256> kinds = {};
  std::fill_n(kinds.begin(), 0x20, ByteKind::Impossible);
  for (const char character : {'&', '<', '>', '\r'})
    kinds[static_cast<unsigned char>(character)] = ByteKind::Text;
  for (const char character : {'"', '\t', '\n'})
    kinds[static_cast<unsigned char>(character)] = ByteKind::Attribute;
  kinds[0xEF] = ByteKind::LeadEF;
  return kinds;
}

constexpr std::array<ByteKind, 256> kByteKinds = MakeByteKinds();

std::string_view Escaped(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    case '\t':
      return "&#9;";
    case '\n':
      return "&#10;";
    default:
      return "&#13;";
  }
}

class Writer {
 public:
  explicit Writer(const XMLByteSink& sink) : m_Sink(sink) { m_strBuffer.reserve(2 * kFlushAt); }

  FileStatus Run(const CXMLNode& root);

 private:
  static constexpr std::size_t kFlushAt = 65536;

  /// An element whose end tag is still to come.
  struct OpenElement {
    const CXMLNode* Node;  // observer
    CXMLNode** Next;       // observer: the child to be written next
  };

  void Start(const CXMLNode& node);
  void End(const CXMLNode& node);
  void Indent() { m_strBuffer.append(2 * std::min(m_rgOpen.size(), kMaxXMLIndentation), ' '); }
  template <bool InAttribute>
  void Escape(std::string_view utf8);
  void Flush();

  const XMLByteSink& m_Sink;  // observer
  std::string m_strBuffer;
  std::string m_strText;  // a text that the tree does not hold as UTF-8
  std::vector<OpenElement> m_rgOpen;
  FileStatus m_Status = FileStatus::Ok;
};

FileStatus Writer::Run(const CXMLNode& root) {
  m_strBuffer = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  Start(root);
  while (!m_rgOpen.empty() && m_Status == FileStatus::Ok) {
    OpenElement& element = m_rgOpen.back();
    if (*element.Next != nullptr) {
      Start(**element.Next++);
    } else {
      const CXMLNode& node = *element.Node;
      m_rgOpen.pop_back();
      End(node);
    }
    if (m_strBuffer.size() >= kFlushAt) Flush();
  }
  Flush();
  return m_Status;
}

void Writer::Start(const CXMLNode& node) {
  const std::string_view name = XMLTree::NameOf(node).Utf8;
  Indent();
  m_strBuffer.append(1, '<').append(name);
  for (const XMLAttribute& attribute : XMLTree::AttributesOf(node)) {
    m_strBuffer.append(1, ' ').append(attribute.Name).append("=\"");
    Escape<true>(attribute.Value);
    m_strBuffer.append(1, '"');
  }
  if (XMLTree::HasChildren(node)) {
    m_strBuffer.append(">\n");
    m_rgOpen.push_back({&node, XMLTree::ChildrenOf(node)});
    return;
  }
  const std::string_view text = XMLTree::Utf8TextOf(node, m_strText);
  if (text.empty()) {
    m_strBuffer.append("/>\n");
    return;
  }
  m_strBuffer.append(1, '>');
  Escape<false>(text);
  m_strBuffer.append("</").append(name).append(">\n");
}

void Writer::End(const CXMLNode& node) {
  Indent();
  m_strBuffer.append("</").append(XMLTree::NameOf(node).Utf8).append(">\n");
}

template <bool InAttribute>
void Writer::Escape(std::string_view utf8) {
  std::size_t written = 0;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const ByteKind kind = kByteKinds[static_cast<unsigned char>(utf8[i])];
    if (kind == ByteKind::Plain || (!InAttribute && kind == ByteKind::Attribute)) continue;
    std::size_t length = 1;
    std::string_view replacement = kReplacement;
    if (kind == ByteKind::LeadEF) {
      const std::string_view sequence = utf8.substr(i, 3);
      if (sequence != "\xEF\xBF\xBE" && sequence != "\xEF\xBF\xBF") continue;
      length = sequence.size();
    } else if (kind != ByteKind::Impossible) {
      replacement = Escaped(utf8[i]);
    }
    m_strBuffer.append(utf8.substr(written, i - written)).append(replacement);
    i += length - 1;
    written = i + 1;
  }
  m_strBuffer.append(utf8.substr(written));
}

void Writer::Flush() {
  if (m_Status == FileStatus::Ok) m_Status = m_Sink(std::as_bytes(std::span(m_strBuffer)));
  m_strBuffer.clear();
}

}  // namespace

FileStatus WriteXML(const CXMLNode& root, const XMLByteSink& sink) { return Writer(sink).Run(root); }

}  // namespace zeb
