#pragma once

class CReportDocument;
namespace zebxmln {
class CXMLNode;
}

namespace zeb {

/// Fills the root of a value holder list: one `ReportZone` per zone with the keys of the zone's value holders.
/// Fields in table cells and defined formulas are not listed. The file is written only.
void WriteValueHolderList(zebxmln::CXMLNode* root, CReportDocument& document);

}  // namespace zeb
