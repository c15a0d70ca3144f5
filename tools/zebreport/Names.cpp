#include "Names.h"

#include "TextFormat.h"

namespace zebreport {

namespace {

/// The name before equal ones are counted; empty for objects that only their number tells apart.
std::wstring PlainName(const CPlaceable& object, Names::Shape shape) {
  std::wstring kind = KindOf(object);
  if (const auto* cell = dynamic_cast<const CTableCell*>(&object)) {
    return kind + L" " + std::to_wstring(cell->GetRowIndex()) + L"/" + std::to_wstring(cell->GetColIndex()) +
           L" of table " + std::to_wstring(cell->GetTableID());
  }
  if (const auto* field = dynamic_cast<const CValueHolder*>(&object)) {
    const std::wstring key = field->GetInternalKey();
    return kind + L" " + (key.empty() ? L"without key" : QuotedIfNeeded(shape(key)));
  }
  if (const auto* text = dynamic_cast<const CText*>(&object)) {
    return kind + L" " + QuotedShort(text->GetTextContent());
  }
  return kind;
}

std::wstring Whole(const std::wstring& name) { return name; }

std::wstring ZoneOfName(const std::wstring& name) { return L"zone " + QuotedIfNeeded(name); }

bool IsToldApartByNumberAlone(const CPlaceable& object) {
  return dynamic_cast<const CText*>(&object) == nullptr &&
         dynamic_cast<const CTableCell*>(&object) == nullptr;
}

}  // namespace

std::wstring KindOf(const CPlaceable& object) {
  if (const auto* field = dynamic_cast<const CValueHolder*>(&object)) {
    if (field->IsFormulaValueHolder()) return L"formula";
    if (field->IsSumValueHolder()) return L"sum";
    if (field->IsDynamicValueHolder()) return L"dynamic field";
    if (field->IsCopyValueHolder()) return L"copied field";
    return L"field";
  }
  if (dynamic_cast<const CText*>(&object) != nullptr) return L"text";
  if (dynamic_cast<const CPicture*>(&object) != nullptr) return L"picture";
  if (dynamic_cast<const CRectangle*>(&object) != nullptr) return L"rectangle";
  if (dynamic_cast<const CLine*>(&object) != nullptr) return L"line";
  if (dynamic_cast<const CTableCell*>(&object) != nullptr) return L"cell";
  return L"object";
}

std::wstring Names::OfZone(const CReportZone& zone) { return ZoneOfName(zone.GetInternalReportZoneName()); }

std::wstring Names::OfPage(int index) { return L"page template " + std::to_wstring(index + 1); }

Names::Names(const CReportRootElement& report) : Names(report, Whole) {}

Names::Names(const CReportRootElement& report, Shape shape) : m_shape(shape) {
  if (CReportDocument* document = report.GetReportDocument()) {
    for (int i = 0; i < document->GetReportZoneCount(); ++i) {
      if (CReportZone* zone = document->GetReportZoneAt(i)) AddZone(*zone);
    }
  }
  if (const CReportLayout* layout = report.GetReportLayout()) {
    for (int i = 0; i < layout->GetPageCount(); ++i) {
      if (CLayoutPage* page = layout->GetPageAt(i)) AddPage(*page, i);
    }
  }
}

void Names::AddZone(CReportZone& zone) {
  const Place& place =
      *m_places.emplace(OfZone(zone), ZoneOfName(m_shape(zone.GetInternalReportZoneName()))).first;
  for (int i = 0; i < zone.GetTextElementCount(); ++i) Add(zone.GetTextElementAt(i), place);
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) Add(zone.GetValueHolderAt(i), place);
  for (int i = 0; i < zone.GetPictureElementCount(); ++i) Add(zone.GetPictureElementAt(i), place);
  for (int i = 0; i < zone.GetRectangleElementCount(); ++i) Add(zone.GetRectangleElementAt(i), place);
  for (int i = 0; i < zone.GetLineElementCount(); ++i) Add(zone.GetLineElementAt(i), place);
  for (int i = 0; i < zone.GetTableCellCount(); ++i) AddCell(zone.GetTableCellAt(i), place);
  for (int i = 0; i < zone.GetDefinedFormulaValueHoldersCount(); ++i) {
    Add(zone.GetDefinedFormulaValueHolderAt(i), place);
  }
}

void Names::AddPage(CLayoutPage& page, int index) {
  const Place& place = *m_places.emplace(OfPage(index), OfPage(index)).first;
  m_entries.try_emplace(page.GetPaperObject(), Entry{L"the paper", &place});
  for (int i = 0; i < page.GetLayoutContentCount(); ++i) {
    CPlaceable* object = page.GetLayoutContentAt(i);
    if (auto* cell = dynamic_cast<CTableCell*>(object)) {
      AddCell(cell, place);
    } else {
      Add(object, place);
    }
  }
}

void Names::AddCell(CTableCell* cell, const Place& place) {
  if (cell == nullptr) return;
  Add(cell, place);
  for (int i = 0; i < cell->GetCellElementCount(); ++i) Add(cell->GetCellElementAt(i), place);
}

void Names::Add(const CPlaceable* object, const Place& place) {
  if (object == nullptr || m_entries.contains(object)) return;
  std::wstring name = PlainName(*object, m_shape);
  const int count = ++m_used[{&place, name}];
  if (IsToldApartByNumberAlone(*object)) {
    name += L" " + std::to_wstring(count);
  } else if (count > 1) {
    name += L" (" + std::to_wstring(count) + L")";
  }
  m_entries.emplace(object, Entry{name, &place});
}

std::wstring Names::Of(const CPlaceable* object, const std::wstring& place) const {
  if (object == nullptr) return L"nothing";
  const auto found = m_entries.find(object);
  if (found == m_entries.end()) return object->IsZoneObject() ? L"the zone" : L"an unknown object";
  const Entry& entry = found->second;
  return entry.place->first == place ? entry.name : entry.name + L" of " + entry.place->second;
}

}  // namespace zebreport
