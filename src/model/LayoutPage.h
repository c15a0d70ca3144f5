#pragma once

#include "platform/Export.h"

#include <map>
#include <memory>
#include <vector>

class CIDManager;
class CPlaceable;
class CPredecessors;
class CReportLayout;
class LayoutRect;
namespace zeb {
class OrderedElementList;
}
namespace zebxmln {
class CXMLNode;
}

/// One page template of a layout: a paper rectangle, a border rectangle (the area of the zones) and the
/// objects placed on the page. Owns all of them, but not the elements of its table cells.
class ZEB_EXPORT CLayoutPage {
 public:
  /// @param layout the layout that owns the page
  explicit CLayoutPage(CReportLayout* layout);
  /// Copies member by member: the copy shares rectangles, objects and predecessors with its source.
  CLayoutPage(const CLayoutPage& other);
  virtual ~CLayoutPage();

  /// Reads a `LayoutPage` element, or the root element of a layout file of the old form.
  /// @return true
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& ids);
  /// Fills a `LayoutPage` element.
  /// @return true
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& ids);

  /// As the copy constructor. What this object held is not freed.
  CLayoutPage& operator=(const CLayoutPage& other);

  /// Appends the object and takes ownership.
  void AddLayoutContent(CPlaceable* object);
  int GetLayoutContentCount();
  /// The object at the index, which is not checked.
  CPlaceable* GetLayoutContentAt(int index) const;
  /// Replaces the pointer at the index, which is not checked; the old object is not freed.
  void SetLayoutContentAt(CPlaceable* object, int index);

  /// The paper; y grows upward.
  const LayoutRect* GetPaperRect() const;
  /// Deletes the present rectangle, takes ownership of the new one and sizes the paper object.
  void SetPaperRect(LayoutRect* rect);
  /// The area of the zones; y grows upward.
  const LayoutRect* GetBorderRect() const;
  /// As SetPaperRect.
  void SetBorderRect(LayoutRect* rect);
  /// The object that stands for the paper as a target of relations; owned by the page.
  CPlaceable* GetPaperObject() const;
  /// Gives the paper object the size of the paper rectangle, if there is one.
  void AssignRectsToObjects();

  /// Computes the order of placing at the first call; later calls do nothing, even after changes.
  /// @throws CKXException of the key "OrderVectorNotSortable" if ties run in a circle
  void CalculateOrderedElements();
  /// The object's index in the order, -1 if it is not listed.
  int FindOrderedElement(const CPlaceable* element);
  /// The object at the index, which is not checked. Computes nothing.
  CPlaceable* GetOrderedElementAt(int index);
  /// Computes nothing.
  int GetOrderedElementCount();
  /// The objects that are tied to `object`, null if there is none; owned by the page.
  CPredecessors* GetPredecessorsAt(CPlaceable* object) const;
  /// Deletes all entries of predecessors.
  void ClearPredecessors();

 protected:
  void AddRelationsToOrderVector(CPlaceable* element);

 private:
  std::vector<CPlaceable*> m_rgpLayoutContent;                  // owned, shared by copies
  LayoutRect* m_pPaperRect;                                     // owned, shared by copies
  LayoutRect* m_pBorderRect;                                    // owned, shared by copies
  CPlaceable* m_pPaperObject;                                   // owned, shared by copies
  std::unique_ptr<zeb::OrderedElementList> m_pOrderedElements;  // never null; its objects: observer
  std::map<CPlaceable*, CPredecessors*> m_mapPredecessors;      // owned, shared by copies
  bool m_bOrderCalculated = false;
  CReportLayout* m_pReportLayout;  // observer
};
