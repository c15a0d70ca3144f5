#include "foundation/IDManager.h"
#include "model/FontNames.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportDocument.h"
#include "model/ReportRecords.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "placement/PlaceableRelation.h"

#include <vector>

namespace zeb {

namespace {

/// Writes the records of one report and collects the relations of the objects on the way.
class RecordsWriter {
 public:
  RecordsWriter(zebxmln::CXMLNode* root, CReportDocument& document, CIDManager& ids)
      : m_pRoot(root), m_Document(document), m_IDs(ids), m_FontNames(*document.GetFontHandler()) {}

  void Write() {
    ForEachZone([this](CReportZone& zone) { zone.Save(m_pRoot, m_IDs); });
    ForEachZone([this](CReportZone& zone) { WriteValueHolders(zone); });
    ForEachZone([this](CReportZone& zone) { WriteTexts(zone); });
    ForEachZone([this](CReportZone& zone) {
      for (int i = 0; i < zone.GetPictureElementCount(); ++i) WriteObject(zone.GetPictureElementAt(i));
    });
    ForEachZone([this](CReportZone& zone) {
      for (int i = 0; i < zone.GetRectangleElementCount(); ++i) WriteObject(zone.GetRectangleElementAt(i));
    });
    ForEachZone([this](CReportZone& zone) {
      for (int i = 0; i < zone.GetLineElementCount(); ++i) WriteObject(zone.GetLineElementAt(i));
    });
    ForEachZone([this](CReportZone& zone) {
      for (int i = 0; i < zone.GetTableCellCount(); ++i) WriteObject(zone.GetTableCellAt(i));
    });
    for (CPlaceableRelation* relation : m_rgpRelations) relation->Save(m_pRoot, m_IDs);
  }

 private:
  template <class Action>
  void ForEachZone(Action action) {
    for (int i = 0; i < m_Document.GetReportZoneCount(); ++i) {
      if (CReportZone* zone = m_Document.GetReportZoneAt(i)) action(*zone);
    }
  }

  template <class Action>
  static void ForEachCellElement(CReportZone& zone, Action action) {
    for (int i = 0; i < zone.GetTableCellCount(); ++i) {
      const CTableCell* cell = zone.GetTableCellAt(i);
      if (cell == nullptr) continue;
      for (int j = 0; j < cell->GetCellElementCount(); ++j) action(cell->GetCellElementAt(j));
    }
  }

  // Fixed behaviour: a formula that the zone only defines keeps its font name, and its relation is not written.
  void WriteValueHolders(CReportZone& zone) {
    for (int i = 0; i < zone.GetValueHolderCount(); ++i) WriteText(zone.GetValueHolderAt(i));
    for (int i = 0; i < zone.GetDefinedFormulaValueHoldersCount(); ++i) {
      CFormulaValueHolder* defined = zone.GetDefinedFormulaValueHolderAt(i);
      if (defined != nullptr) defined->Save(m_pRoot, m_IDs);
    }
    ForEachCellElement(zone,
                       [this](CPlaceable* element) { WriteText(dynamic_cast<CValueHolder*>(element)); });
  }

  void WriteTexts(CReportZone& zone) {
    for (int i = 0; i < zone.GetTextElementCount(); ++i) WriteText(zone.GetTextElementAt(i));
    ForEachCellElement(zone, [this](CPlaceable* element) {
      if (dynamic_cast<CValueHolder*>(element) == nullptr) WriteText(dynamic_cast<CText*>(element));
    });
  }

  void WriteText(CText* text) {
    if (text == nullptr) return;
    m_FontNames.Apply(*text);
    WriteObject(text);
  }

  void WriteObject(CPlaceable* object) {
    if (object == nullptr) return;
    object->Save(m_pRoot, m_IDs);
    if (CPlaceableRelation* relation = object->GetPlaceableRelation()) m_rgpRelations.push_back(relation);
  }

  zebxmln::CXMLNode* m_pRoot;   // observer
  CReportDocument& m_Document;  // observer
  CIDManager& m_IDs;            // observer
  UniqueFontNames m_FontNames;
  std::vector<CPlaceableRelation*> m_rgpRelations;  // observer; in the order of their objects' records
};

}  // namespace

void WriteReportRecords(zebxmln::CXMLNode* root, CReportDocument& document, CIDManager& ids) {
  RecordsWriter(root, document, ids).Write();
}

}  // namespace zeb
