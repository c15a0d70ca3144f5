#pragma once

#include "ZEBReportDocument.h"

#include <set>

namespace zebreport {

/// The objects of a report that nobody owns: formulas that zones define but do not place, and the elements of table
/// cells on pages. Collects them while the report lives and frees them at its end.
class UnownedObjects {
 public:
  UnownedObjects() = default;
  UnownedObjects(const UnownedObjects&) = delete;
  UnownedObjects& operator=(const UnownedObjects&) = delete;
  ~UnownedObjects();

  void Collect(const CReportRootElement& report);

 private:
  void CollectDefinedFormulas(CReportDocument& document);
  void CollectCellElements(const CReportLayout& layout);

  std::set<CPlaceable*> m_objects;
};

}  // namespace zebreport
