#include "foundation/IDManager.h"
#include "foundation/ReadingTrace.h"
#include "foundation/RecordReader.h"
#include "foundation/RecordWriter.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/ObjectBinding.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportZone.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"

#include <array>

// A zone's record holds its settings and the identifiers of its objects, whose own records follow in the file.

namespace {

constexpr zeb::ElementName kReportZone = L"ReportZone";
constexpr zeb::ElementName kZoneID = L"ZoneID";
constexpr zeb::ElementName kInternalName = L"InternalName";
constexpr zeb::ElementName kTxID = L"TxID";
constexpr zeb::ElementName kVHID = L"VHID";
constexpr zeb::ElementName kFormulaVHID = L"FormulaVHID";
constexpr zeb::ElementName kSumVHID = L"SumVHID";
constexpr zeb::ElementName kDynVHID = L"DynVHID";
constexpr zeb::ElementName kCopyVHID = L"CopyVHID";
constexpr zeb::ElementName kPicID = L"PicID";
constexpr zeb::ElementName kRectID = L"RectID";
constexpr zeb::ElementName kLineID = L"LineID";
constexpr zeb::ElementName kTableCellID = L"TableCellID";
constexpr zeb::ElementName kFooterZone = L"FooterZone";
constexpr zeb::ElementName kZoneCanBreak = L"ZoneCanBreak";
constexpr zeb::ElementName kPageBreakNrLinesKeep = L"PageBreakNrLinesKeep";
constexpr zeb::ElementName kPageBreakNotLastZone = L"PageBreakNotLastZone";
constexpr zeb::ElementName kKeepTogetherZoneID = L"KeepTogetherZoneID";
constexpr zeb::ElementName kDefinedFormulaVHID = L"DefinedFormulaVHID";

constexpr int kDefaultLinesKeep = 2;

/// A kind of value holder: the element that refers to one, and how the object is got from the identifier.
struct ValueHolderKind {
  zeb::ElementName Reference;
  CValueHolder* (*Take)(zeb::IDBinding& binding, int id);
};

template <class T>
CValueHolder* TakeValueHolder(zeb::IDBinding& binding, int id) {
  return zeb::TakeObject<T>(binding, id);
}

constexpr std::array kValueHolderKinds{
    ValueHolderKind{kVHID, TakeValueHolder<CValueHolder>},
    ValueHolderKind{kFormulaVHID, TakeValueHolder<CFormulaValueHolder>},
    ValueHolderKind{kSumVHID, TakeValueHolder<CSumValueHolder>},
    ValueHolderKind{kDynVHID, TakeValueHolder<CDynamicValueHolder>},
    ValueHolderKind{kCopyVHID, TakeValueHolder<CCopyValueHolder>},
};

/// The kind whose reference stands at the cursor, null if none does.
const ValueHolderKind* KindAt(const zeb::RecordReader& reader) {
  for (const ValueHolderKind& kind : kValueHolderKinds) {
    if (reader.Is(kind.Reference)) return &kind;
  }
  return nullptr;
}

zeb::ElementName ReferenceOf(CValueHolder& valueHolder) {
  if (valueHolder.IsFormulaValueHolder()) return kFormulaVHID;
  if (valueHolder.IsSumValueHolder()) return kSumVHID;
  if (valueHolder.IsDynamicValueHolder()) return kDynVHID;
  if (valueHolder.IsCopyValueHolder()) return kCopyVHID;
  return kVHID;
}

void WriteReference(zeb::RecordWriter& writer, zeb::ElementName name, CIDManager& ids, CPlaceable* object) {
  writer.Write(name, ids.GetIDFromObject(object));
}

template <class T>
void WriteReferences(zeb::RecordWriter& writer, zeb::ElementName name, CIDManager& ids,
                     const std::vector<T*>& objects) {
  for (T* object : objects) {
    if (object != nullptr) WriteReference(writer, name, ids, object);
  }
}

// Fixed behaviour: an element of a cell that is no text is not written.
void WriteCell(zeb::RecordWriter& writer, CIDManager& ids, CTableCell& cell) {
  WriteReference(writer, kTableCellID, ids, &cell);
  for (int i = 0; i < cell.GetCellElementCount(); ++i) {
    CPlaceable* element = cell.GetCellElementAt(i);
    if (auto* valueHolder = dynamic_cast<CValueHolder*>(element)) {
      WriteReference(writer, ReferenceOf(*valueHolder), ids, valueHolder);
    } else if (dynamic_cast<CText*>(element) != nullptr) {
      WriteReference(writer, kTxID, ids, element);
    }
  }
}

}  // namespace

/// Reads the record of one zone.
class zeb::ZoneReader {
 public:
  ZoneReader(CReportZone& zone, zebxmln::CXMLNode* node, CIDManager& ids)
      : m_Zone(zone), m_Reader(node), m_Binding(ids) {}

  void Read() {
    int id = 0;
    if (m_Reader.Read(kZoneID, id)) BindRecord(m_Binding, id, &m_Zone);
    m_Reader.Read(kInternalName, m_Zone.m_strInternalReportZoneName);
    ReadElements();
    while (m_Reader.Read(kTableCellID, id)) ReadCell(id);
    m_Reader.Read(kFooterZone, m_Zone.m_bFooterZone);
    m_Reader.Read(kZoneCanBreak, m_Zone.m_bZoneCanBreak);
    m_Reader.Read(kPageBreakNrLinesKeep, m_Zone.m_iPageBreakNrLinesKeep);
    m_Reader.Read(kPageBreakNotLastZone, m_Zone.m_bPageBreakNotLastZone);
    m_Zone.ClearZonesKeepTogether();
    std::wstring zoneName;
    while (m_Reader.Read(kKeepTogetherZoneID, zoneName)) m_Zone.AddZonesKeepTogether(zoneName.c_str());
    m_Zone.m_rgpDefinedFormulaValueHolders.clear();
    while (m_Reader.Read(kDefinedFormulaVHID, id)) AddDefinedFormula(id);
  }

 private:
  void ReadElements() {
    ReadReferences<CText>(kTxID, [this](CText* text) { m_Zone.AddTextElement(text); });
    int id = 0;
    while (const ValueHolderKind* kind = KindAt(m_Reader)) {
      m_Reader.Read(kind->Reference, id);
      if (CValueHolder* valueHolder = kind->Take(m_Binding, id)) m_Zone.AddValueHolder(valueHolder);
    }
    ReadReferences<CPicture>(kPicID, [this](CPicture* picture) { m_Zone.AddPictureElement(picture); });
    ReadReferences<CRectangle>(kRectID,
                               [this](CRectangle* rectangle) { m_Zone.AddRectangleElement(rectangle); });
    ReadReferences<CLine>(kLineID, [this](CLine* line) { m_Zone.AddLineElement(line); });
  }

  // The formula has no owner. It is noted, so that it is not lost where a second record of the zone empties the list.
  void AddDefinedFormula(int id) {
    auto* formula = FindOrMakeObject<CFormulaValueHolder>(m_Binding, id);
    m_Binding.NoteNamedByRelation(static_cast<CPlaceable*>(formula), kPlaceableTag);
    m_Zone.AddDefinedFormulaValueHolder(formula);
    if (ReadingTrace* trace = ReadingTrace::Active()) trace->NoteDefinedFormula(id);
  }

  /// Reads the references of one name and gives each object that has no owner yet to `add`.
  template <class T, class Add>
  void ReadReferences(ElementName name, Add add) {
    int id = 0;
    while (m_Reader.Read(name, id)) {
      if (T* object = TakeObject<T>(m_Binding, id)) add(object);
    }
  }

  // A cell that is in a list already is not entered a second time, but takes the elements of this group too.
  void ReadCell(int cellID) {
    auto* cell = FindOrMakeObject<CTableCell>(m_Binding, cellID);
    const bool isNew = m_Binding.Own(cell);
    ReadingTrace* trace = ReadingTrace::Active();
    if (!isNew && trace != nullptr) trace->NoteSecondReference(cellID);
    int id = 0;
    while (true) {
      if (const ValueHolderKind* kind = KindAt(m_Reader)) {
        m_Reader.Read(kind->Reference, id);
        if (CValueHolder* valueHolder = kind->Take(m_Binding, id)) {
          AddToCell(*cell, valueHolder);
          NoteCellValueHolder(valueHolder);
        }
      } else if (m_Reader.Read(kTxID, id)) {
        if (CText* text = TakeObject<CText>(m_Binding, id)) AddToCell(*cell, text);
      } else {
        break;
      }
    }
    if (isNew) m_Zone.AddTableCell(cell);
  }

  static void AddToCell(CTableCell& cell, CPlaceable* element) {
    element->SetTableCell(&cell);
    cell.AddCellElement(element);
  }

  // Fixed behaviour: a copied value holder is in neither list of value holders in cells.
  void NoteCellValueHolder(CValueHolder* valueHolder) {
    if (auto* formula = dynamic_cast<CFormulaValueHolder*>(valueHolder)) {
      m_Zone.m_rgpFormulaValueHoldersInTableCells.push_back(formula);
    } else if (!valueHolder->IsCopyValueHolder()) {
      m_Zone.m_rgpValueHoldersInTableCells.push_back(valueHolder);
    }
  }

  CReportZone& m_Zone;  // observer
  RecordReader m_Reader;
  IDBinding m_Binding;
};

bool CReportZone::Load(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::ZoneReader(*this, node, ids).Read();
  return true;
}

bool CReportZone::Save(zebxmln::CXMLNode* node, CIDManager& ids) {
  zeb::RecordWriter writer(node, kReportZone);
  writer.Write(kZoneID, ids.GetIDFromObject(this));
  writer.Write(kInternalName, m_strInternalReportZoneName);
  WriteReferences(writer, kTxID, ids, m_rgpTextElements);
  for (CValueHolder* valueHolder : m_rgpValueHolders) {
    if (valueHolder != nullptr) WriteReference(writer, ReferenceOf(*valueHolder), ids, valueHolder);
  }
  WriteReferences(writer, kPicID, ids, m_rgpPictureElements);
  WriteReferences(writer, kRectID, ids, m_rgpRectangleElements);
  WriteReferences(writer, kLineID, ids, m_rgpLineElements);
  for (int i = 0; i < GetTableCellCount(); ++i) {
    if (CTableCell* cell = GetTableCellAt(i)) WriteCell(writer, ids, *cell);
  }
  writer.WriteUnless(kFooterZone, m_bFooterZone, false);
  writer.WriteUnless(kZoneCanBreak, m_bZoneCanBreak, true);
  writer.WriteUnless(kPageBreakNrLinesKeep, m_iPageBreakNrLinesKeep, kDefaultLinesKeep);
  writer.WriteUnless(kPageBreakNotLastZone, m_bPageBreakNotLastZone, false);
  for (const std::wstring& zoneName : m_rgstrZonesKeepTogether) writer.Write(kKeepTogetherZoneID, zoneName);
  WriteReferences(writer, kDefinedFormulaVHID, ids, m_rgpDefinedFormulaValueHolders);
  return true;
}
