#pragma once

#include <map>
#include <vector>

class CPlaceable;
class CTableCell;

/// The order of a zone by its rules, step by step on plain vectors: what every fast way must give.
class NaiveZoneOrder {
 public:
  /// Cells in the order in which they are added to the zone.
  explicit NaiveZoneOrder(const std::vector<CTableCell*>& cells);

  /// Looks at an object and at all that it leads to.
  /// @return false where an exception would be thrown
  bool AddRelations(CPlaceable* element, bool throwIfNotSortable);
  /// Looks at all objects, those outside of cells first.
  bool AddAll(const std::vector<CPlaceable*>& elements, bool throwIfNotSortable);
  void AddHeightElements(CPlaceable* element, CPlaceable* reference);

  std::vector<CPlaceable*> order;
  std::vector<std::vector<CPlaceable*>> groups;

 private:
  std::vector<CTableCell*> m_Cells;
};

/// The order and the predecessors of a page by its rules, step by step on plain vectors.
class NaivePageOrder {
 public:
  explicit NaivePageOrder(const CPlaceable* paperObject) : m_pPaperObject(paperObject) {}

  /// @return false where an exception would be thrown
  bool AddRelations(CPlaceable* element);
  bool AddAll(const std::vector<CPlaceable*>& elements);

  std::vector<CPlaceable*> order;
  std::map<CPlaceable*, std::vector<CPlaceable*>> predecessors;

 private:
  const CPlaceable* m_pPaperObject;
};
