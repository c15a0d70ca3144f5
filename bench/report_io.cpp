// Whole reports: one of 10,000 and one of 100,000 objects is loaded into the model and saved from it, beside libxml2 and
// pugixml, which read the same file into a bare tree and write that tree.
//
// The times of ten times the objects tell whether the work grows with them in proportion. Saving flushes the file to the
// disk and replaces the old one in one step; the peers do neither, so compare the CPU times.

#include "model/Placeable.h"
#include "model/ReportDocument.h"
#include "model/ReportRootElement.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "model/Text.h"
#include "model/ValueHolder.h"
#include "placement/PlaceableRelation.h"
#include "support/Libraries.h"

#include <cstddef>
#include <filesystem>
#include <memory>

namespace {

namespace fs = std::filesystem;

bool IsTied(const CPlaceable& object) {
  const CPlaceableRelation* relation = object.GetPlaceableRelation();
  return relation != nullptr && relation->GetRelationObject() != nullptr && object.GetHeight() > 0.0F;
}

int CountTiedTexts(const CReportZone& zone) {
  int count = 0;
  for (int i = 0; i < zone.GetTextElementCount(); ++i) count += IsTied(*zone.GetTextElementAt(i)) ? 1 : 0;
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) count += IsTied(*zone.GetValueHolderAt(i)) ? 1 : 0;
  return count;
}

int CountObjects(CReportZone& zone) {
  int count = zone.GetPictureElementCount() + zone.GetRectangleElementCount() + zone.GetLineElementCount();
  for (int i = 0; i < zone.GetTableCellCount(); ++i) {
    count += 1 + zone.GetTableCellAt(i)->GetCellElementCount();
  }
  return count + CountTiedTexts(zone);
}

/// Counts the objects, and checks that all are there: measuring a report that is read in part only would be worth
/// nothing.
std::size_t WalkObjects(const CReportRootElement& report) {
  constexpr std::size_t kPerZone = 100;
  CReportDocument* document = report.GetReportDocument();
  zebbench::Check(document != nullptr && document->GetReportZoneCount() > 0, "LoadReport");
  std::size_t count = 0;
  for (int i = 0; i < document->GetReportZoneCount(); ++i) {
    const auto inZone = static_cast<std::size_t>(CountObjects(*document->GetReportZoneAt(i)));
    zebbench::Check(inZone == kPerZone, "LoadReport of all objects");
    count += inZone;
  }
  return count;
}

zebbench::Library Zeb() {
  return {"zeb",
          [](const fs::path& path) {
            auto report = std::make_shared<CReportRootElement>();
            report->LoadReport(path.wstring().c_str(), nullptr);
            return std::static_pointer_cast<void>(report);
          },
          [](void* report) { return WalkObjects(*static_cast<CReportRootElement*>(report)); },
          [](void* report, const fs::path& path) {
            static_cast<CReportRootElement*>(report)->SaveReport(path.wstring().c_str(), nullptr);
          }};
}

}  // namespace

int main(int argc, char** argv) { return zebbench::MeasureLibraries(argc, argv, Zeb(), {10000, 100000}); }
