#pragma once

#include "ZEBReportDocument.h"

#include <set>

namespace zebreport {

/// The objects of a report that nobody owns: formulas that zones define but do not place, the elements of table cells on
/// pages, and the records of the characters of fonts. Collects them while the report lives and frees them at its end.
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
  void CollectCharacters(const CGlobalFontHandler& handler);

  std::set<CPlaceable*> m_objects;
  std::set<CFontCharMetricsInfo*> m_characters;
};

}  // namespace zebreport
