#pragma once

#include "ReportData.h"
#include "RowValue.h"
#include "ZEBReportDocument.h"

#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace supplier {

/// What a formula or a sum gave.
struct Result {
  double exact = 0.0;    ///< what other formulas and sums go on with
  double printed = 0.0;  ///< rounded to the decimals of the report
  int decimals = 0;
  bool isEmpty = false;  ///< nothing is printed
};

/// Whether an object with a condition is printed.
struct Visibility {
  std::wstring object;  ///< the key of a field, the text of a text, else the condition
  bool isVisible = true;
};

/// One zone as it is printed for one row of data.
struct PrintedZone {
  std::wstring name;
  std::map<std::wstring, Result> results;  ///< of formulas and sums, by their keys
  std::vector<Visibility> conditions;      ///< of all objects that have one
};

/// Runs a report over its data: each zone once for each of its rows, with all formulas, sums and conditions, in place of
/// a layout component. A sum of a footer zone is over all rows that were printed before, one of another zone runs on from
/// row to row.
class ReportRun {
 public:
  /// @param dataFile a `data.json`, which names its report
  /// @throws CKXException, std::runtime_error
  ReportRun(const std::filesystem::path& dataFile, const std::filesystem::path& catalogueFolder);
  ReportRun(const ReportRun&) = delete;
  ReportRun& operator=(const ReportRun&) = delete;
  ~ReportRun();

  /// @throws std::runtime_error a formula is bad, or formulas read each other in a circle
  std::vector<PrintedZone> Print();

 private:
  CReportZone& Zone(int index) const;
  PrintedZone PrintZone(CReportZone& zone);
  void ComputeSums(const CReportZone& zone, PrintedZone& printed);
  void ComputeFormulas(CReportZone& zone, PrintedZone& printed);
  void AddToTotals(CReportZone& zone, const PrintedZone& printed);
  void CollectUnowned();

  ReportData m_data;
  RowSupplier m_supplier;
  CReportValueHolders m_report;
  std::set<std::wstring> m_sumKeys;                  // of all sums of the report
  std::map<std::wstring, double> m_totals;           // of each of these keys
  std::set<CFormulaValueHolder*> m_definedFormulas;  // owned: no zone does
  std::set<CFontCharMetricsInfo*> m_characters;      // owned: no font does
};

}  // namespace supplier
