#include "foundation/IDManager.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/FontNames.h"
#include "model/FormulaValueHolder.h"
#include "model/LayoutPage.h"
#include "model/LayoutRect.h"
#include "model/Line.h"
#include "model/ObjectBinding.h"
#include "model/PageContentReader.h"
#include "model/Picture.h"
#include "model/RecordIdentifier.h"
#include "model/Rectangle.h"
#include "model/ReportLayout.h"
#include "model/TableCell.h"
#include "model/ValueHolder.h"
#include "placement/PlaceableRelation.h"

#include <optional>
#include <vector>

// A page's record holds its objects inline, and behind them their relations.

namespace {

constexpr zeb::ElementName kLayoutRect = L"LayoutRect";
constexpr zeb::ElementName kPlRel = L"PlRel";
constexpr zeb::ElementName kPlRelID = L"PlRelID";

/// From this version on distances are those of the present.
constexpr int kFirstVersionWithBaseLines = 2;

void LoadRect(zeb::RecordReader& reader, LayoutRect*& rect, CIDManager& ids) {
  zebxmln::CXMLNode* node = reader.Take(kLayoutRect);
  if (node == nullptr) return;
  if (rect == nullptr) rect = new LayoutRect;
  rect->Load(node, ids);
}

// A missing rectangle is written as an empty element, so that the one behind it keeps its place.
void SaveRect(zeb::RecordWriter& writer, LayoutRect* rect, CIDManager& ids) {
  zebxmln::CXMLNode* node = writer.Add(kLayoutRect);
  if (rect != nullptr) rect->Save(node, ids);
}

// Fixed behaviour: neither the font names of a cell's elements nor their relations nor that of the cell are saved.
void SaveCell(zebxmln::CXMLNode* page, CTableCell& cell, CIDManager& ids) {
  cell.Save(page, ids);
  for (int i = 0; i < cell.GetCellElementCount(); ++i) {
    if (auto* text = dynamic_cast<CText*>(cell.GetCellElementAt(i))) text->Save(page, ids);
  }
}

/// Reads the relations of the page's objects; one without a target is tied to the paper.
void ReadRelations(zeb::RecordReader& reader, CIDManager& ids, CPlaceable* paper) {
  const zeb::IDBinding binding(ids);
  while (zebxmln::CXMLNode* record = reader.Take(kPlRel)) {
    const auto id = zeb::ReadRecordIdentifier(record, zeb::IdentifierPlace::FirstChild, kPlRelID);
    auto* relation = id ? zeb::FindObject<CPlaceableRelation>(binding, *id) : nullptr;
    if (zeb::ReadingTrace* trace = zeb::ReadingTrace::Active()) {
      if (relation == nullptr) trace->NoteRefusedRecord(*record, kPlRelID, id);
      if (relation != nullptr) trace->NoteLoadedRecord(*record, *id);
    }
    if (relation == nullptr) continue;
    relation->Load(record, ids);
    if (relation->GetRelationObject() == nullptr) relation->SetRelationObject(paper);
  }
}

}  // namespace

bool CLayoutPage::Load(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::RecordReader reader(node);
  while (!reader.AtEnd() && !reader.Is(kLayoutRect)) reader.Next();
  LoadRect(reader, m_pPaperRect, ids);
  LoadRect(reader, m_pBorderRect, ids);
  AssignRectsToObjects();
  const bool isOld =
      m_pReportLayout != nullptr && m_pReportLayout->GetVersionNr() < kFirstVersionWithBaseLines;
  zeb::PageContentReader(*this, ids, isOld).Read(reader);
  ReadRelations(reader, ids, m_pPaperObject);
  return true;
}

bool CLayoutPage::Save(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::RecordWriter writer(node);
  SaveRect(writer, m_pPaperRect, ids);
  SaveRect(writer, m_pBorderRect, ids);
  std::vector<CPlaceableRelation*> relations;
  std::optional<zeb::UniqueFontNames> fontNames;
  if (m_pReportLayout != nullptr) fontNames.emplace(*m_pReportLayout->GetFontHandler());
  for (CPlaceable* object : m_rgpLayoutContent) {
    if (object == nullptr) continue;
    if (auto* cell = dynamic_cast<CTableCell*>(object)) {
      SaveCell(node, *cell, ids);
      continue;
    }
    if (auto* text = dynamic_cast<CText*>(object)) {
      if (fontNames) fontNames->Apply(*text);
    } else if (dynamic_cast<CPicture*>(object) == nullptr && dynamic_cast<CRectangle*>(object) == nullptr &&
               dynamic_cast<CLine*>(object) == nullptr) {
      continue;
    }
    object->Save(node, ids);
    if (CPlaceableRelation* relation = object->GetPlaceableRelation()) relations.push_back(relation);
  }
  for (CPlaceableRelation* relation : relations) relation->Save(node, ids);
  return true;
}
