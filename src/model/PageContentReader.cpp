#include "model/PageContentReader.h"

#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/LayoutPage.h"
#include "model/Line.h"
#include "model/ObjectBinding.h"
#include "model/Picture.h"
#include "model/RecordIdentifier.h"
#include "model/Rectangle.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"

#include <array>
#include <utility>

namespace zeb {

/// A kind of object that a page can hold.
struct PageContentKind {
  ElementName Record;
  ElementName Identifier;
  IdentifierPlace Place;
  std::unique_ptr<CPlaceable> (*Make)();
  bool IsText;
  bool GoesIntoCells;
};

namespace {

template <class T>
std::unique_ptr<CPlaceable> Make() {
  return std::make_unique<T>();
}

constexpr auto kOuter = IdentifierPlace::FirstChild;
constexpr auto kInner = IdentifierPlace::FirstChildOfFirstChild;

// Fixed behaviour: a page holds no copied value holders, and sums and dynamic fields never go into its cells.
constexpr std::array kKinds{
    PageContentKind{L"ValueHolder", L"VHID", kOuter, Make<CValueHolder>, true, true},
    PageContentKind{L"FormulaValueHolder", L"VHID", kInner, Make<CFormulaValueHolder>, true, true},
    PageContentKind{L"SumValueHolder", L"VHID", kInner, Make<CSumValueHolder>, true, false},
    PageContentKind{L"DynValueHolder", L"VHID", kInner, Make<CDynamicValueHolder>, true, false},
    PageContentKind{L"Text", L"TxID", kOuter, Make<CText>, true, true},
    PageContentKind{L"Picture", L"PicID", kOuter, Make<CPicture>, false, false},
    PageContentKind{L"Rectangle", L"RectID", kOuter, Make<CRectangle>, false, false},
    PageContentKind{L"Line", L"LineID", kOuter, Make<CLine>, false, false},
    PageContentKind{L"TableCell", L"TableCellID", kOuter, Make<CTableCell>, false, false},
};

const PageContentKind* KindAt(const RecordReader& reader) {
  for (const PageContentKind& kind : kKinds) {
    if (reader.Is(kind.Record)) return &kind;
  }
  return nullptr;
}

}  // namespace

PageContentReader::PageContentReader(CLayoutPage& page, CIDManager& ids, bool isOld)
    : m_Page(page), m_IDs(ids), m_bIsOld(isOld) {}

PageContentReader::~PageContentReader() { CloseCell(); }

void PageContentReader::Read(RecordReader& reader) {
  while (const PageContentKind* kind = KindAt(reader)) {
    std::unique_ptr<CPlaceable> object = ReadObject(*kind, reader.Take(kind->Record));
    if (auto* cell = dynamic_cast<CTableCell*>(object.get())) {
      CloseCell();
      m_pOpenCell = cell;
      static_cast<void>(object.release());
    } else if (m_pOpenCell != nullptr && kind->GoesIntoCells) {
      // Fixed behaviour: the element does not learn of its cell.
      m_pOpenCell->AddCellElement(object.get());
      static_cast<void>(object.release());
    } else {
      AddToPage(std::move(object));
    }
  }
  CloseCell();
}

// The identifier is bound whether or not it is known; the first object that it names keeps it.
std::unique_ptr<CPlaceable> PageContentReader::ReadObject(const PageContentKind& kind,
                                                          zebxmln::CXMLNode* record) {
  std::unique_ptr<CPlaceable> object = kind.Make();
  IDBinding binding(m_IDs);
  if (const auto id = ReadRecordIdentifier(record, kind.Place, kind.Identifier)) {
    BindRecord(binding, *id, object.get());
  }
  binding.Own(object.get());
  object->Load(record, m_IDs);
  if (kind.IsText && m_bIsOld) object->UpdateTextDistancesToVersion2();
  return object;
}

void PageContentReader::AddToPage(std::unique_ptr<CPlaceable> object) {
  m_Page.AddLayoutContent(object.get());
  static_cast<void>(object.release());
}

void PageContentReader::CloseCell() {
  if (m_pOpenCell != nullptr) m_Page.AddLayoutContent(std::exchange(m_pOpenCell, nullptr));
}

}  // namespace zeb
