#pragma once

#include "ReportData.h"
#include "ZEBReportDocument.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace supplier {

/// Where the values of the zone that is being printed come from.
struct RowSource {
  const Row* row = nullptr;     // observer; null between rows
  const Row* global = nullptr;  // observer

  /// The value of a key in the row, else in the values for all zones; null if neither has it.
  const Value* Find(const std::wstring& key) const;
};

/// One value that the supplier offers: the library's base class, filled from the present row.
class RowValue : public CAvailableValueHolderBase {
 public:
  /// @param source must outlive this object
  RowValue(const RowSource& source, const std::wstring& key);

  /// Fetches the value of the present row. Called before the value is asked for.
  void CallGetValue() override;
  /// The text, or the name of the file whose content is the value; null for a number and if there is no value.
  const wchar_t* GetValueAsText() override;
  /// The number with the decimals that the data have; 0 for a text and if there is no value. The caller owns it.
  CDoubleElement* GetValueAsDouble() override;

  bool HasValue() const { return m_pValue != nullptr; }

 private:
  const RowSource& m_source;        // observer
  const Value* m_pValue = nullptr;  // observer
};

/// Offers the values of the data to all zones of a report: asks the report which keys each zone needs and registers one
/// object for each. Must outlive the report.
class RowSupplier {
 public:
  explicit RowSupplier(const ReportData& data);

  /// Registers the objects with the zones of a loaded report.
  /// @param sumKeys what its sums add up, which any zone may have in its rows
  void OfferTo(CReportValueHolders& report, const std::set<std::wstring>& sumKeys);
  /// The row that the values come from from now on.
  void SetRow(const Row& row) { m_source.row = &row; }

 private:
  void Offer(CReportZone& zone, const std::wstring& key);

  RowSource m_source;
  std::vector<std::unique_ptr<RowValue>> m_values;
};

}  // namespace supplier
