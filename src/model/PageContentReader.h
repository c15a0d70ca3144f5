#pragma once

#include "foundation/IDBinding.h"
#include "foundation/RecordReader.h"

#include <memory>

class CIDManager;
class CLayoutPage;
class CPlaceable;
class CTableCell;

namespace zeb {

struct PageContentKind;

/// Reads the objects of a page, whose records stand inline, into the page.
///
/// The elements of a table cell follow the cell's record. A cell is open until the next one or the end of the objects;
/// texts, fields and formulas that are met meanwhile are its elements, all other objects are the page's own.
class PageContentReader {
 public:
  /// @param isOld whether upper and lower distances are of the kind before version 2
  PageContentReader(CLayoutPage& page, CIDManager& ids, bool isOld);
  /// Puts a cell that is still open, because a failure passes, into the page.
  ~PageContentReader();
  PageContentReader(const PageContentReader&) = delete;
  PageContentReader& operator=(const PageContentReader&) = delete;

  /// Reads up to the first element that is no object of a page.
  void Read(RecordReader& reader);

 private:
  std::unique_ptr<CPlaceable> ReadObject(const PageContentKind& kind, zebxmln::CXMLNode* record);
  void AddToPage(std::unique_ptr<CPlaceable> object);
  void CloseCell();

  CLayoutPage& m_Page;  // observer
  CIDManager& m_IDs;    // observer
  bool m_bIsOld;
  CTableCell* m_pOpenCell = nullptr;  // owned until it is closed
};

}  // namespace zeb
