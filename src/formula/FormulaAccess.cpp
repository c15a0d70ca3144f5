#include "formula/FormulaAccess.h"

#include "formula/FormulaErrors.h"
#include "formula/FunctionTable.h"
#include "formula/FunktionOperation.h"
#include "formula/StringOperations.h"
#include "foundation/ErrorKeys.h"

namespace zeb {

double FormulaAccess::NumericValue(const CVariableFormulaParser& parser, std::wstring_view name) {
  double value = 0.0;
  if (FindNumber(parser, name, value)) return value;
  std::wstring text;
  if (!FindString(parser, name, text)) ThrowFormulaError(ErrorKeys::VariableNotFound);
  return 0.0;
}

void FormulaAccess::SwitchStringFunctions(CFormulaParser& parser, bool on, Operation* call) {
  if (parser.m_WithStringFunctions == on) return;
  parser.m_WithStringFunctions = on;
  if (!on) return;
  // Operations stay in the list when string functions are switched off, so they can be there already.
  OperationList& chain = parser.m_Operationen;
  Operation* const constant = GetConstStringOperation();
  if (chain.Find(call) == chain.size()) parser.InsertOperationBefore(call, GetFunktionOperation());
  if (chain.Find(constant) == chain.size()) chain.Append(constant);
  parser.m_FunktionenEx |= kStringCompareBit;
}

NestingLevel::NestingLevel(CFormulaParser& parser) : m_nesting(FormulaAccess::Nesting(parser)) {
  if (m_nesting >= kMaximumNesting) ThrowFormulaError(ErrorKeys::InternalParserError);
  ++m_nesting;
}

}  // namespace zeb
