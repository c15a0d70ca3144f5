#pragma once

#include "model/Placeable.h"

#include <vector>

/// One cell of a table: the cells of a zone with one table identifier make up a table.
///
/// The cell does not own its elements: in a zone the zone deletes them, on a page nobody does.
/// A copy shares the elements.
class ZEB_EXPORT CTableCell : public CPlaceable {
 public:
  CTableCell();
  CTableCell(const CTableCell& other);
  ~CTableCell() override;

  /// Reads the record from `node`, which is the `TableCell` element; the elements are not in it. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `TableCell` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  CTableCell& operator=(const CTableCell& other);

  /// Shared by the cells of one table; -1 by default.
  int GetTableID() const { return m_iTableID; }
  void SetTableID(int tableID) { m_iTableID = tableID; }
  /// From 0; -1 by default.
  int GetRowIndex() const { return m_iRowIndex; }
  void SetRowIndex(int rowIndex) { m_iRowIndex = rowIndex; }
  /// From 0; -1 by default.
  int GetColIndex() const { return m_iColIndex; }
  void SetColIndex(int colIndex) { m_iColIndex = colIndex; }

  /// Whether an element of the cell is as wide as its content; set when a report file is loaded, not saved.
  bool HasVariableWidthElements() const { return m_bHasVariableWidthElements; }
  void SetVariableWidthElements(bool hasThem) { m_bHasVariableWidthElements = hasThem; }

  /// Appends an element.
  void AddCellElement(CPlaceable* element);
  int GetCellElementCount() const;
  /// The element at an index, which is not checked.
  CPlaceable* GetCellElementAt(int index) const;
  /// Inserts the element in front of the one at the index; nothing is replaced. The index is not checked.
  void SetCellElementAt(int index, CPlaceable* element);

  /// Order of cells: by table, then row, then column.
  bool operator<(const CTableCell& other) const;

 private:
  int m_iTableID = -1;
  int m_iRowIndex = -1;
  int m_iColIndex = -1;
  std::vector<CPlaceable*> m_rgpCellElements;  // observers
  bool m_bHasVariableWidthElements = false;
};
