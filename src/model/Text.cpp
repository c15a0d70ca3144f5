#include "model/Text.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/ObjectReference.h"

#include <cmath>

namespace {

constexpr zeb::ElementName kTextContent = L"TextContent";
constexpr zeb::ElementName kFontName = L"FontName";
constexpr zeb::ElementName kFontSize = L"FontSize";
constexpr zeb::ElementName kUnderline = L"Underline";
constexpr zeb::ElementName kOverline = L"Overline";
constexpr zeb::ElementName kStrikeout = L"Strikeout";
constexpr zeb::ElementName kOrientation = L"Orientation";
constexpr zeb::ElementName kLineSpacing = L"LineSpacing";
constexpr zeb::ElementName kTextEncoding = L"TextEncoding";
constexpr zeb::ElementName kBold = L"Bold";
constexpr zeb::ElementName kItalic = L"Italic";

constexpr int kNormalWeight = 400;

// Fixed behaviour: the one comparison with a tolerance. An absent line spacing reads as the font size.
bool HasOwnLineSpacing(float lineSpacing, float fontSize) {
  return std::fabs(static_cast<double>(lineSpacing) - static_cast<double>(fontSize)) > 1e-05;
}

}  // namespace

CText::CText() : m_strFontName(L"Helvetica") {}
CText::CText(const CText& other) = default;
CText::~CText() = default;
CText& CText::operator=(const CText& other) = default;

bool CText::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::TxID, idManager, this);
  if (auto* const placeable = reader.Take(zeb::Elements::Placeable)) CPlaceable::Load(placeable, idManager);
  reader.Read(kTextContent, m_strTextContent);
  reader.Read(kFontName, m_strFontName);
  if (reader.Read(kFontSize, m_fFontSize)) m_fLineSpacing = m_fFontSize;
  reader.Read(kUnderline, m_bUnderline);
  reader.Read(kOverline, m_bOverline);
  reader.Read(kStrikeout, m_bStrikeout);
  int orientation = 0;
  if (reader.Read(kOrientation, orientation)) m_eOrientation = static_cast<DOMOrientation>(orientation);
  reader.Read(kLineSpacing, m_fLineSpacing);
  reader.Read(kTextEncoding, m_strTextEncoding);
  reader.Read(kBold, m_iBold);
  reader.Read(kItalic, m_bItalic);
  return true;
}

bool CText::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::Text);
  zeb::WriteID(writer, zeb::Elements::TxID, idManager, this);
  CPlaceable::Save(writer.Node(), idManager);
  writer.WriteUnlessEmpty(kTextContent, m_strTextContent);
  writer.Write(kFontName, m_strFontName);
  writer.Write(kFontSize, m_fFontSize);
  writer.WriteUnless(kUnderline, m_bUnderline, false);
  writer.WriteUnless(kOverline, m_bOverline, false);
  writer.WriteUnless(kStrikeout, m_bStrikeout, false);
  writer.WriteUnless(kOrientation, static_cast<int>(m_eOrientation), static_cast<int>(DOMOrientationDefault));
  if (HasOwnLineSpacing(m_fLineSpacing, m_fFontSize)) writer.Write(kLineSpacing, m_fLineSpacing);
  writer.WriteUnlessEmpty(kTextEncoding, m_strTextEncoding);
  writer.WriteUnless(kBold, m_iBold, kNormalWeight);
  writer.WriteUnless(kItalic, m_bItalic, false);
  return true;
}

// Fixed behaviour: the line spacing follows the font size; a spacing of its own is set afterwards.
void CText::SetFontSize(float size) {
  m_fFontSize = size;
  m_fLineSpacing = size;
}
