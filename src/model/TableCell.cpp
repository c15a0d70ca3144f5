#include "model/TableCell.h"

#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/ElementNames.h"
#include "model/ObjectReference.h"

#include <cstddef>
#include <tuple>

namespace {

constexpr zeb::ElementName kTableID = L"TableID";
constexpr zeb::ElementName kRowIndex = L"RowIndex";
constexpr zeb::ElementName kColIndex = L"ColIndex";

}  // namespace

CTableCell::CTableCell() = default;
CTableCell::CTableCell(const CTableCell& other) = default;
CTableCell::~CTableCell() = default;
CTableCell& CTableCell::operator=(const CTableCell& other) = default;

bool CTableCell::Load(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordReader reader(node);
  zeb::ReadOwnID(reader, zeb::Elements::TableCellID, idManager, this);
  if (auto* const placeable = reader.Take(zeb::Elements::Placeable)) CPlaceable::Load(placeable, idManager);
  reader.Read(kTableID, m_iTableID);
  reader.Read(kRowIndex, m_iRowIndex);
  reader.Read(kColIndex, m_iColIndex);
  return true;
}

bool CTableCell::Save(zebxmln::CXMLNode* node, CIDManager& idManager) {
  zeb::RecordWriter writer(node, zeb::Elements::TableCell);
  zeb::WriteID(writer, zeb::Elements::TableCellID, idManager, this);
  CPlaceable::Save(writer.Node(), idManager);
  writer.Write(kTableID, m_iTableID);
  writer.Write(kRowIndex, m_iRowIndex);
  writer.Write(kColIndex, m_iColIndex);
  return true;
}

void CTableCell::AddCellElement(CPlaceable* element) { m_rgpCellElements.push_back(element); }

int CTableCell::GetCellElementCount() const { return static_cast<int>(m_rgpCellElements.size()); }

CPlaceable* CTableCell::GetCellElementAt(int index) const {
  return m_rgpCellElements[static_cast<std::size_t>(index)];
}

// Fixed behaviour: inserts in spite of its name; the element that stood there moves one on.
void CTableCell::SetCellElementAt(int index, CPlaceable* element) {
  m_rgpCellElements.insert(m_rgpCellElements.begin() + index, element);
}

bool CTableCell::operator<(const CTableCell& other) const {
  return std::tie(m_iTableID, m_iRowIndex, m_iColIndex) <
         std::tie(other.m_iTableID, other.m_iRowIndex, other.m_iColIndex);
}
