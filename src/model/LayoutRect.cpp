#include "model/LayoutRect.h"

LayoutRect::LayoutRect() = default;
LayoutRect::LayoutRect(float upperLeftX, float upperLeftY, float lowerRightX, float lowerRightY)
    : m_fULX(upperLeftX), m_fULY(upperLeftY), m_fLRX(lowerRightX), m_fLRY(lowerRightY) {}
LayoutRect::LayoutRect(const LayoutRect& other) = default;
LayoutRect::~LayoutRect() = default;
LayoutRect& LayoutRect::operator=(const LayoutRect& other) = default;

bool LayoutRect::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool LayoutRect::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }
