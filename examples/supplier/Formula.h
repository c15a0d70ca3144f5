#pragma once

#include "ReportRun.h"
#include "ZEBReportDocument.h"

#include <functional>
#include <string>
#include <vector>

namespace supplier {

/// What a formula reads: the results of its zone and, for all other keys, what the zone offers.
class FormulaInput {
 public:
  /// The type of a key's value, as formula and condition tell it.
  using TypeOfKey = std::function<int(const wchar_t* key)>;

  /// Both must outlive this object.
  FormulaInput(CReportZone& zone, const PrintedZone& printed) : m_zone(zone), m_printed(printed) {}

  /// The value of a formula for the present row. A key without a value counts as 0 or as an empty text.
  /// @param isComplete whether all keys had values
  /// @throws std::runtime_error if the formula is bad
  double Compute(const std::wstring& formula, const TypeOfKey& typeOfKey, bool& isComplete) const;
  /// A number of the present row, 0 if there is none.
  double NumberOf(const std::wstring& key, bool& isKnown) const;

 private:
  std::wstring TextOf(const std::wstring& key, bool& isKnown) const;

  CReportZone& m_zone;           // observer
  const PrintedZone& m_printed;  // observer
};

/// The keys that a formula reads.
/// @throws std::runtime_error if the formula is bad
std::vector<std::wstring> KeysOf(const std::wstring& formula);

}  // namespace supplier
