#pragma once

#include "platform/Export.h"

namespace zebxmln {
class CXMLNode;
}
class CBorder;
class CCondition;
class CIDManager;
class CPlaceableRelation;
class CRGBColor;
class CTableCell;

/// Base of everything that can be placed in a zone or on a page: size, border, colours, a condition and a
/// relation to another object. All lengths are in the caller's unit.
///
/// A plain object of this class occurs as a target of relations only: as the placeholder of a zone
/// (IsZoneObject is true) and as the paper of a page.
///
/// Owns its relation, border, colours and condition. A copy shares them with its source: it must not outlive the
/// source and must not be destroyed beside it.
class ZEB_EXPORT CPlaceable {
 public:
  CPlaceable();
  CPlaceable(const CPlaceable& other);
  virtual ~CPlaceable();

  /// Reads the record of this class from `node`, which is the `Placeable` element. Always true.
  virtual bool Load(zebxmln::CXMLNode* node, CIDManager& idManager);
  /// Adds a `Placeable` element to `node`. Values that equal their default are left out. Always true.
  virtual bool Save(zebxmln::CXMLNode* node, CIDManager& idManager);

  CPlaceable& operator=(const CPlaceable& other);

  float GetWidth() const { return m_fWidth; }
  void SetWidth(float width) { m_fWidth = width; }
  float GetHeight() const { return m_fHeight; }
  void SetHeight(float height) { m_fHeight = height; }
  /// The least width of an object that is as wide as its content.
  float GetKeepMinWidth() const { return m_fKeepMinWidth; }
  void SetKeepMinWidth(float width) { m_fKeepMinWidth = width; }

  /// Whether this object stands for a zone as a relation's target; false for all that is really placed.
  bool IsZoneObject() const { return m_bIsZoneObject; }
  void SetIsZoneObject(bool isZoneObject) { m_bIsZoneObject = isZoneObject; }

  /// The cell that holds the object, null outside of cells. Not owned, not saved.
  CTableCell* GetTableCell() const { return m_pTableCell; }
  void SetTableCell(CTableCell* tableCell) { m_pTableCell = tableCell; }

  /// The tie to another object, null if there is none.
  CPlaceableRelation* GetPlaceableRelation() const { return m_pPlaceableRelation; }
  /// Stores the relation and takes ownership. The old one is not deleted.
  void SetPlaceableRelation(CPlaceableRelation* relation) { m_pPlaceableRelation = relation; }

  /// Null means neither border nor distances.
  CBorder* GetBorder() const { return m_pBorder; }
  /// Null means that the object always shows.
  CCondition* GetCondition() const { return m_pCondition; }
  /// Null unless set or loaded; black is not saved.
  CRGBColor* GetTextColor() const { return m_pTextColor; }
  /// Null unless set or loaded; white is not saved.
  CRGBColor* GetBackgroundColor() const { return m_pBackgroundColor; }

  /// Deletes the present object, stores the new one and takes ownership.
  void SetBorder(CBorder* border);
  /// Deletes the present object, stores the new one and takes ownership.
  void SetCondition(CCondition* condition);
  /// Deletes the present object, stores the new one and takes ownership.
  void SetTextColor(CRGBColor* color);
  /// Sets the parts, each from 0 to 1, of the present colour object, which is made if there is none.
  void SetTextColor(float red, float green, float blue);
  /// Deletes the present object, stores the new one and takes ownership.
  void SetBackgroundColor(CRGBColor* color);
  /// Sets the parts, each from 0 to 1, of the present colour object, which is made if there is none.
  void SetBackgroundColor(float red, float green, float blue);

  /// Moves upper and lower text distance of the border to the base line distances, where version 2 keeps what
  /// they meant in files of version 1. Nothing without a border.
  void UpdateTextDistancesToVersion2();

 private:
  CPlaceableRelation* m_pPlaceableRelation = nullptr;  // owned, shared by copies
  float m_fWidth = 0.0F;
  float m_fHeight = 0.0F;
  CBorder* m_pBorder = nullptr;             // owned, shared by copies
  CRGBColor* m_pTextColor = nullptr;        // owned, shared by copies
  CRGBColor* m_pBackgroundColor = nullptr;  // owned, shared by copies
  bool m_bIsZoneObject = false;
  float m_fKeepMinWidth = 0.0F;
  CCondition* m_pCondition = nullptr;  // owned, shared by copies
  CTableCell* m_pTableCell = nullptr;  // observer
};
