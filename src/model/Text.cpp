#include "model/Text.h"

CText::CText() : m_strFontName(L"Helvetica") {}
CText::CText(const CText& other) = default;
CText::~CText() = default;
CText& CText::operator=(const CText& other) = default;

bool CText::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CText::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

// Fixed behaviour: the line spacing follows the font size; a spacing of its own is set afterwards.
void CText::SetFontSize(float size) {
  m_fFontSize = size;
  m_fLineSpacing = size;
}
