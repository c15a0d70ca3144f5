#pragma once

#include "ZEBReportDocument.h"

#include <string>
#include <vector>

namespace zebreport {

/// A value holder of a zone.
struct NeededField {
  std::wstring key;
  std::wstring kind;   ///< as KindOf says it
  int type = 0;        ///< type of the value
  std::wstring place;  ///< "zone", "table cell", or "defined" for a formula that the zone does not show
  std::wstring name;   ///< of a formula, sum or dynamic field
  std::wstring formula;
  bool isEmptyIfValueIsEmpty = false;
  bool isEmptyIfZero = false;
  bool isTruthValue = false;
  bool isInWords = false;
  std::wstring roundKey;           ///< of a formula: the key for its decimal places
  int internalDecimalPlaces = -1;  ///< of a formula: what it is rounded to before; -1 for not at all
  std::wstring sumKey;
  std::wstring copiedZone;
  std::wstring copiedKey;
};

/// A graphic of a zone with its size, in the unit of the report.
struct NeededGraphic {
  std::wstring key;
  float width = 0.0F;
  float height = 0.0F;
};

/// What a data supplier has to know of a zone.
struct ZoneNeeds {
  std::wstring name;
  bool isFooter = false;
  std::vector<NeededField> fields;  ///< in the order of the facade's index, then the defined formulas
  // Keys, each once, in the order met.
  std::vector<std::wstring> formulaKeys;  ///< what formulas and conditions read
  std::vector<std::wstring>
      definedFormulaKeys;  ///< what the defined formulas and their conditions read besides
  std::vector<std::wstring>
      cellConditionKeys;                   ///< what conditions of cells and of things in them read besides
  std::vector<std::wstring> sumKeys;       ///< what the sums of a footer zone add up
  std::vector<std::wstring> otherSumKeys;  ///< what running sums and sums in cells add up besides
  std::vector<NeededGraphic> graphics;     ///< one for each key
};

ZoneNeeds NeedsOfZone(CReportValueHolders& report, int zone);

}  // namespace zebreport
