#include "model/ReportRecords.h"

#include "foundation/IDManager.h"
#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/FontNames.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/ObjectBinding.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportDocument.h"
#include "model/ReportRecordNames.h"
#include "model/ReportZone.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"
#include "placement/PlaceableRelation.h"

namespace zeb {

namespace {

/// From this version on upper and lower distances are those of the present.
constexpr int kFirstVersionWithBaseLines = 2;

/// Reads the groups of records one behind the other.
class RecordGroups {
 public:
  RecordGroups(RecordReader& reader, CReportDocument* document, CIDManager& ids)
      : m_Reader(reader), m_pDocument(document), m_IDs(ids), m_Binding(ids) {}

  /// Reads the records of one kind up to the first other element; `finish` gets each object that was loaded.
  template <class T, class Finish>
  void Read(const RecordName& name, Finish finish) {
    while (zebxmln::CXMLNode* record = m_Reader.Take(name.Record)) {
      if (T* object = Load<T>(name, record)) finish(*object);
    }
  }

  /// Reads the records of all kinds of value holders, which stand in any mixture.
  void ReadValueHolders() {
    const auto finish = [this](CText& text) { FinishText(text); };
    const zebxmln::CXMLNode* before = nullptr;
    while (before != m_Reader.Current()) {
      before = m_Reader.Current();
      Read<CValueHolder>(kValueHolderRecord, finish);
      Read<CFormulaValueHolder>(kFormulaRecord, finish);
      Read<CSumValueHolder>(kSumRecord, finish);
      Read<CDynamicValueHolder>(kDynamicRecord, finish);
      Read<CCopyValueHolder>(kCopyRecord, [this](CCopyValueHolder& copy) { FinishCopy(copy); });
    }
  }

  void FinishText(CText& text) const {
    if (m_pDocument == nullptr) return;
    if (m_pDocument->GetVersionNr() < kFirstVersionWithBaseLines) text.UpdateTextDistancesToVersion2();
    LocalizeFontName(*m_pDocument->GetFontHandler(), text);
  }

 private:
  template <class T>
  T* Load(const RecordName& name, zebxmln::CXMLNode* record) {
    const auto id = ReadRecordIdentifier(record, name.Place, name.Identifier);
    T* object = id ? FindExactObject<T>(m_Binding, *id) : nullptr;
    if (ReadingTrace* trace = ReadingTrace::Active()) {
      if (object == nullptr) trace->NoteRefusedRecord(*record, name.Identifier, id);
      if (object != nullptr) trace->NoteLoadedRecord(*record, *id);
    }
    if (object != nullptr) object->Load(record, m_IDs);
    return object;
  }

  // Fixed behaviour: the distances of a copied value holder are not upgraded.
  void FinishCopy(CCopyValueHolder& copy) const {
    if (m_pDocument == nullptr) return;
    LocalizeFontName(*m_pDocument->GetFontHandler(), copy);
    m_pDocument->AddCopyValueHolderKey(copy.GetRefZoneID(), copy.GetRefVHID());
  }

  RecordReader& m_Reader;        // observer
  CReportDocument* m_pDocument;  // observer
  CIDManager& m_IDs;             // observer
  IDBinding m_Binding;
};

/// An element of width 0 is as wide as its content.
void FindVariableWidth(CTableCell& cell) {
  for (int i = 0; i < cell.GetCellElementCount(); ++i) {
    const CPlaceable* element = cell.GetCellElementAt(i);
    if (element != nullptr && element->GetWidth() == 0.0F) {
      cell.SetVariableWidthElements(true);
      return;
    }
  }
}

}  // namespace

void ReadReportRecords(RecordReader& reader, CReportDocument* document, CIDManager& ids) {
  RecordGroups groups(reader, document, ids);
  const auto nothing = [](const auto& /*object*/) {};
  groups.Read<CReportZone>(kZoneRecord, nothing);
  groups.ReadValueHolders();
  groups.Read<CText>(kTextRecord, [&groups](CText& text) { groups.FinishText(text); });
  groups.Read<CPicture>(kPictureRecord, nothing);
  groups.Read<CRectangle>(kRectangleRecord, nothing);
  groups.Read<CLine>(kLineRecord, nothing);
  groups.Read<CTableCell>(kTableCellRecord, FindVariableWidth);
  groups.Read<CPlaceableRelation>(kRelationRecord, nothing);
}

}  // namespace zeb
