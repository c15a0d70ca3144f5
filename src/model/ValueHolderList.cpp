#include "model/ValueHolderList.h"

#include "foundation/RecordWriter.h"
#include "model/ReportDocument.h"
#include "model/ReportZone.h"
#include "model/ValueHolder.h"

namespace zeb {

void WriteValueHolderList(zebxmln::CXMLNode* root, CReportDocument& document) {
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    const CReportZone* zone = document.GetReportZoneAt(i);
    if (zone == nullptr) continue;
    RecordWriter writer(root, L"ReportZone");
    writer.Write(L"InternalKey", zone->GetInternalReportZoneName());
    for (int j = 0; j < zone->GetValueHolderCount(); ++j) {
      const CValueHolder* valueHolder = zone->GetValueHolderAt(j);
      if (valueHolder != nullptr) writer.Write(L"ValueHolderKey", valueHolder->GetInternalKey());
    }
  }
}

}  // namespace zeb
