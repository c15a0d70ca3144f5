#include "model/TableCell.h"

#include <cstddef>
#include <tuple>

CTableCell::CTableCell() = default;
CTableCell::CTableCell(const CTableCell& other) = default;
CTableCell::~CTableCell() = default;
CTableCell& CTableCell::operator=(const CTableCell& other) = default;

bool CTableCell::Load(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

bool CTableCell::Save(zebxmln::CXMLNode* /*node*/, CIDManager& /*idManager*/) { return true; }

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
