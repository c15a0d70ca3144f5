#pragma once

#include "platform/Export.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class CAdjustHeightElements;
class CAvailableValueHolderBase;
class CFormulaValueHolder;
class CIDManager;
class CLine;
class CPicture;
class CPlaceable;
class CRectangle;
class CSumValueHolder;
class CTableCell;
class CText;
class CValueHolder;
namespace zeb {
class HeightGroupIndex;
class OrderedElementList;
class ZoneReader;
}  // namespace zeb
namespace zebxmln {
class CXMLNode;
}

/// One zone (band) of a report, tied by its internal name to its definition in the report type. Holds the
/// placed objects in one list per kind, its table cells, its settings for page breaks, and what is computed
/// over them: the order in which tied objects must be placed, the groups of objects of one height, the keys
/// that its formulas read.
///
/// Owns the objects of its lists and the cells with their elements; not the offered value holders and not the
/// defined formula value holders.
class ZEB_EXPORT CReportZone {
 public:
  CReportZone();
  /// Copies member by member: the copy shares all objects with its source.
  CReportZone(const CReportZone& other);
  virtual ~CReportZone();

  /// Reads a `ReportZone` element: settings, and the identifiers of the zone's objects, which are created
  /// where they are unknown. Lists are added to, but for the zones kept together and the defined formula
  /// value holders.
  /// @return true
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& ids);
  /// Adds the `ReportZone` element to `node`.
  /// @return true
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& ids);

  /// As the copy constructor. What this object held is not freed.
  CReportZone& operator=(const CReportZone& other);

  /// The name by which report types, copied value holders and lists of zones name this zone.
  const wchar_t* GetInternalReportZoneName() const;
  void SetInternalReportZoneName(const wchar_t* name);

  // Appending takes ownership. Indexes are not checked. Replacing an entry does not free the old one.
  void AddValueHolder(CValueHolder* valueHolder);
  int GetValueHolderCount() const;
  CValueHolder* GetValueHolderAt(int index) const;
  void SetValueHolderAt(CValueHolder* valueHolder, int index);
  void AddTextElement(CText* text);
  int GetTextElementCount() const;
  CText* GetTextElementAt(int index) const;
  void SetTextElementAt(CText* text, int index);
  void AddPictureElement(CPicture* picture);
  int GetPictureElementCount() const;
  CPicture* GetPictureElementAt(int index) const;
  void SetPictureElementAt(CPicture* picture, int index);
  void AddRectangleElement(CRectangle* rectangle);
  int GetRectangleElementCount() const;
  CRectangle* GetRectangleElementAt(int index) const;
  void SetRectangleElementAt(CRectangle* rectangle, int index);
  void AddLineElement(CLine* line);
  int GetLineElementCount() const;
  CLine* GetLineElementAt(int index) const;
  void SetLineElementAt(CLine* line, int index);

  /// Appends the cell, takes ownership of it and its elements, and marks the cells as unsorted.
  void AddTableCell(CTableCell* cell);
  /// The number of cells; sorts nothing.
  int GetTableCellCount() const;
  /// The cell at the index (not checked) in the order of table, row and column; sorts first if cells were
  /// added.
  CTableCell* GetTableCellAt(int index);
  /// The index in sorted order of the first cell with the same table, row and column, which need not be the
  /// same object; -1 if there is none.
  int GetTableCellIndex(CTableCell* cell);
  /// The index in the ordered elements of the last cell of the same table that stands in an earlier row or an
  /// earlier column; -1 if there is none.
  // Fixed behaviour: one of the two is enough, so a cell of a later row and an earlier column counts.
  int FindTableCellPos(const CTableCell* cell);

  bool GetFooterZone() const;
  void SetFooterZone(bool footerZone);
  /// Whether a page break may fall into the zone; true by default.
  bool GetZoneCanBreak() const;
  void SetZoneCanBreak(bool zoneCanBreak);
  /// Lines that stay together at a page break; 2 by default.
  int GetPageBreakNrLinesKeep() const;
  void SetPageBreakNrLinesKeep(int lines);
  /// Whether the zone must not be the last one of a page.
  bool GetPageBreakNotLastZone() const;
  void SetPageBreakNotLastZone(bool notLastZone);

  /// Appends the internal name of a zone that must stay on a page with this one. Duplicates are kept.
  void AddZonesKeepTogether(const wchar_t* zoneName);
  void ClearZonesKeepTogether();
  int GetZonesKeepTogetherCount() const;
  /// The name at the index, which is not checked.
  const wchar_t* GetZonesKeepTogetherAt(int index) const;

  /// Enters an offered value holder under its own internal key text, which must outlive the zone and not
  /// change. A key that is there keeps its first entry. Ownership stays with the caller.
  void AddAvailableValueHolder(CAvailableValueHolderBase* valueHolder);
  /// The offered value holder of the key, null if there is none.
  CAvailableValueHolderBase* GetAvailableValueHolder(const wchar_t* key) const;

  /// Computes the order of placing at the first call; later calls do nothing, even after changes.
  /// @param throwIfNotSortable whether objects whose ties run in a circle are a failure
  /// @throws CKXException of the key "OrderVectorNotSortable"
  void CalculateOrderedElements(bool throwIfNotSortable);
  /// The object's index in the order, -1 if it is not listed.
  int FindOrderedElement(const CPlaceable* element);
  /// The object at the index, which is not checked. Computes nothing.
  CPlaceable* GetOrderedElementAt(int index);
  /// Computes nothing.
  int GetOrderedElementCount();

  /// Puts two objects into one group of equal height: into the first group that holds either of them, else
  /// into a new one. Groups are never merged.
  void AddHeightElements(CPlaceable* element, CPlaceable* reference);
  /// Deletes all groups.
  void ClearHeightElements();
  /// The group at the index, which is not checked; owned by the zone.
  CAdjustHeightElements* GetHeightElementsAt(int index) const;
  int GetHeightElementsCount() const;
  /// The greatest height of the first group that holds the object, 0 if none does.
  float GetMaxHeightOfElement(CPlaceable* element);

  /// Finds the keys that the zone's formulas and conditions read, and those that its sums add up. Reads the lists of
  /// value holders in table cells as they stand. The cells' own conditions are not read.
  // Fixed behaviour: the sum keys are not emptied first, so that each call appends the sums of a footer zone again.
  void IdentifyFormulaValueHolderKeys();
  /// Appends the variables of a formula that are not listed yet to the formula keys. A formula that is null or cannot be
  /// scanned adds nothing and is no failure.
  void CollectFormulaVariables(const wchar_t* formula);
  /// The keys that the formulas of the zone read, in the order met, without duplicates. Indexes are not checked.
  const wchar_t* GetFormulaValueHolderKeyAt(int index) const;
  int GetFormulaValueHolderKeyCount() const;
  /// The keys that the sums of a footer zone add up, with duplicates. Indexes are not checked.
  const wchar_t* GetSumValueHolderKeyAt(int index) const;
  int GetSumValueHolderKeyCount() const;

  /// Fills the two lists of value holders in table cells anew from the cells.
  void FillValueHoldersInTableCells();
  /// Value holders in cells, other than formulas. Indexes are not checked.
  CValueHolder* GetValueHoldersInTableCellsAt(int index) const;
  int GetValueHoldersInTableCellsCount() const;
  /// Formula value holders in cells. Indexes are not checked.
  CFormulaValueHolder* GetFormulaValueHoldersInTableCellsAt(int index) const;
  int GetFormulaValueHoldersInTableCellsCount() const;

  /// Appends a formula field that the zone defines but does not place. Ownership stays with the caller.
  void AddDefinedFormulaValueHolder(CFormulaValueHolder* valueHolder);
  /// The formula field at the index, which is not checked.
  CFormulaValueHolder* GetDefinedFormulaValueHolderAt(int index) const;
  int GetDefinedFormulaValueHoldersCount() const;

 protected:
  void AddRelationsToOrderVector(CPlaceable* element, bool throwIfNotSortable);
  /// Index of the key in the formula keys by exact comparison, -1 if it is not listed.
  int FindFormulaValueHolderKey(const wchar_t* key);
  /// Brings the cells into the order of table, row and column; cells of one place come out in reverse order.
  void SortTableCells();

 private:
  struct KeyLess {
    bool operator()(const wchar_t* left, const wchar_t* right) const;
  };

  friend class zeb::ZoneReader;

  /// Appends the key to the formula keys unless it is listed.
  void AddFormulaValueHolderKey(const wchar_t* key);
  void AddKeysOfFormula(const CFormulaValueHolder& formula);
  void AddKeysOfSum(const CSumValueHolder& sum);
  /// The object may be null.
  void AddKeysOfCondition(const CPlaceable* object);

  std::wstring m_strInternalReportZoneName;
  std::vector<CValueHolder*> m_rgpValueHolders;     // owned, shared by copies
  std::vector<CText*> m_rgpTextElements;            // owned, shared by copies
  std::vector<CPicture*> m_rgpPictureElements;      // owned, shared by copies
  std::vector<CRectangle*> m_rgpRectangleElements;  // owned, shared by copies
  std::vector<CLine*> m_rgpLineElements;            // owned, shared by copies
  std::map<const wchar_t*, CAvailableValueHolderBase*, KeyLess> m_mapAvailableValueHolders;  // observer
  std::unique_ptr<zeb::OrderedElementList> m_pOrderedElements;  // never null; its objects: observer
  bool m_bOrderCalculated = false;
  std::vector<CAdjustHeightElements*> m_rgpHeightElements;     // owned, shared by copies
  std::unique_ptr<zeb::HeightGroupIndex> m_pHeightGroupIndex;  // never null; the copy of a zone has a copy
  std::vector<std::wstring> m_rgstrFormulaValueHolderKeys;
  std::map<std::wstring, int, std::less<>> m_mapFormulaValueHolderKeyIndex;  // index of each formula key
  std::vector<std::wstring> m_rgstrSumValueHolderKeys;
  bool m_bFooterZone = false;
  bool m_bTableCellsSorted = false;
  std::vector<CTableCell*> m_rgpTableCells;  // owned with their elements, shared by copies
  bool m_bZoneCanBreak = true;
  int m_iPageBreakNrLinesKeep = 2;
  bool m_bPageBreakNotLastZone = false;
  std::vector<std::wstring> m_rgstrZonesKeepTogether;
  std::vector<CValueHolder*> m_rgpValueHoldersInTableCells;                // observer
  std::vector<CFormulaValueHolder*> m_rgpFormulaValueHoldersInTableCells;  // observer
  std::vector<CFormulaValueHolder*> m_rgpDefinedFormulaValueHolders;       // observer
};
