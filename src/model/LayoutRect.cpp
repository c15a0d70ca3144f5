#include "model/LayoutRect.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"

namespace {

constexpr zeb::ElementName kUlx = L"Ulx";
constexpr zeb::ElementName kUly = L"Uly";
constexpr zeb::ElementName kLrx = L"Lrx";
constexpr zeb::ElementName kLry = L"Lry";

}  // namespace

LayoutRect::LayoutRect() = default;
LayoutRect::LayoutRect(float upperLeftX, float upperLeftY, float lowerRightX, float lowerRightY)
    : m_fULX(upperLeftX), m_fULY(upperLeftY), m_fLRX(lowerRightX), m_fLRY(lowerRightY) {}
LayoutRect::LayoutRect(const LayoutRect& other) = default;
LayoutRect::~LayoutRect() = default;
LayoutRect& LayoutRect::operator=(const LayoutRect& other) = default;

bool LayoutRect::Load(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordReader reader(node);
  reader.Read(kUlx, m_fULX);
  reader.Read(kUly, m_fULY);
  reader.Read(kLrx, m_fLRX);
  reader.Read(kLry, m_fLRY);
  return true;
}

bool LayoutRect::Save(zebxmln::CXMLNode* node, CIDManager& /*idManager*/) {
  zeb::RecordWriter writer(node);
  writer.Write(kUlx, m_fULX);
  writer.Write(kUly, m_fULY);
  writer.Write(kLrx, m_fLRX);
  writer.Write(kLry, m_fLRY);
  return true;
}
