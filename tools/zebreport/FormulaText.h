#pragma once

#include "Failure.h"
#include "ZEBReportDocument.h"

#include <string>
#include <vector>

namespace zebreport {

/// Switches on what formulas of reports use: names in brackets and string functions.
void UseLanguageOfReports(CVariableFormulaParser& parser);

/// The variables of a formula in the order met, each once, or why it cannot be read.
struct FormulaVariables {
  std::vector<std::wstring> names;
  std::wstring failure;  ///< empty if the formula is good
};
FormulaVariables FindVariables(const std::wstring& formula);

/// The failure of the parser's last run: its message, and the formula with a caret under the place.
Failure FormulaFailure(const std::wstring& formula, const CFormulaParser& parser);

}  // namespace zebreport
