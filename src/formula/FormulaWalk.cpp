#include "formula/FormulaWalk.h"

#include "formula/FormulaAccess.h"
#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaNames.h"
#include "formula/FormulaNumber.h"
#include "formula/FormulaRounding.h"
#include "formula/FormulaSigns.h"
#include "formula/FunctionEvaluation.h"
#include "formula/Operation.h"
#include "formula/UsualOperations.h"
#include "foundation/ErrorKeys.h"

#include <algorithm>
#include <typeinfo>

namespace zeb {

bool FormulaWalk::Knows(const OperationList& operations, WalkedLanguage& language) {
  const UsualOperations& usual = GetUsualOperations();
  if (operations.size() <= usual.common.size() ||
      !std::equal(usual.common.begin(), usual.common.end(), operations.begin())) {
    return false;
  }
  Operation* const* entry = operations.begin() + usual.common.size();
  Operation* const* const end = operations.end();
  const auto take = [&entry, end](const Operation* operation) {
    const bool found = entry != end && *entry == operation;
    if (found) ++entry;
    return found;
  };
  language.stringFunctions = take(usual.stringFunction);
  if (!take(usual.function)) return false;
  language.variables = take(usual.variable);
  language.stringConstants = take(usual.stringConstant);
  return entry == end;
}

FormulaWalk::FormulaWalk(CFormulaParser& parser, const WalkedLanguage& language)
    : m_parser(parser),
      m_language(language),
      m_text(FormulaAccess::Text(parser)),
      m_pos(FormulaAccess::Position(parser)),
      m_computing(FormulaAccess::Computing(parser)) {}

double FormulaWalk::Expression() {
  SkipBlanks();
  double left = Logic();
  while (Follows(OperatorLevel::Comparison)) {
    const BinaryOperator op = TakeNext();
    const double right = Logic();
    left = CalculateComparison(op, left, right);
  }
  return left;
}

double FormulaWalk::Logic() {
  double left = Sum();
  while (Follows(OperatorLevel::Logic)) {
    const BinaryOperator op = TakeNext();
    const double right = Sum();
    left = CalculateLogic(op, left, right);
  }
  return left;
}

double FormulaWalk::Sum() {
  double left = Prefixed();
  while (Follows(OperatorLevel::Sum)) {
    const BinaryOperator op = TakeNext();
    const double right = Prefixed();
    left = CalculateSum(op, left, right, m_computing);
  }
  return left;
}

double FormulaWalk::Prefixed() {
  const wchar_t c = Current();
  return c == L'-' || c == L'!' ? WithPrefix() : Product();
}

double FormulaWalk::WithPrefix() {
  const int negation = FindNot(m_text, static_cast<std::size_t>(m_pos));
  m_pos += negation;
  SkipBlanks();
  const int sign = FindSign(m_parser, m_text, static_cast<std::size_t>(m_pos));
  m_pos += sign;
  SkipBlanks();
  double value = Product();
  if (sign != 0) value = -value;
  if (negation != 0) value = value == 0.0 ? 1.0 : 0.0;
  return value;
}

double FormulaWalk::Product() {
  double left = Power();
  while (Follows(OperatorLevel::Product)) {
    const BinaryOperator op = TakeNext();
    const double right = Power();
    left = CalculateProduct(op, left, right, m_computing);
  }
  return left;
}

double FormulaWalk::Power() {
  double left = Operand();
  while (Follows(OperatorLevel::Power)) {
    const BinaryOperator op = TakeNext();
    const double right = Operand();
    left = CalculatePower(op, left, right, m_computing);
  }
  return left;
}

double FormulaWalk::Operand() {
  const wchar_t c = Current();
  double value = 0.0;
  if (c >= L'0' && c <= L'9') {
    value = Number();
  } else if (c == L'(') {
    value = Bracket();
  } else {
    value = Other();
  }
  FindNext();
  return value;
}

double FormulaWalk::Bracket() {
  const NestingLevel level(m_parser);
  ++m_pos;
  const double value = Expression();
  ExpectClosingBracket();
  return value;
}

double FormulaWalk::Number() {
  std::size_t length = 0;
  const double value = ReadNumberAt(m_text, static_cast<std::size_t>(m_pos), length);
  m_pos += static_cast<int>(length);
  return value;
}

double FormulaWalk::Other() {
  const wchar_t c = Current();
  const bool mayBeNumber = c == L'-' || c == L'.' || c == L',';
  const std::size_t length = mayBeNumber ? FindNumber(m_text, static_cast<std::size_t>(m_pos)) : 0;
  if (length == 0) return Named();
  const double value = ReadNumber(m_text.substr(static_cast<std::size_t>(m_pos), length));
  m_pos += static_cast<int>(length);
  return value;
}

double FormulaWalk::Named() {
  const auto start = static_cast<std::size_t>(m_pos);
  const std::wstring_view name = m_text.substr(start, FindFunctionName(m_text, start));
  if (m_language.stringFunctions && IsWord(name, "strcmp") &&
      (m_parser.GetFunktionenEx() & kStringCompareBit) != 0) {
    return Through(GetUsualOperations().stringFunction);
  }
  double value = 0.0;
  if (IsWord(name, "e")) {
    m_pos += static_cast<int>(name.size());
    value = m_computing ? E : 0.0;
  } else if (IsWord(name, "pi")) {
    m_pos += static_cast<int>(name.size());
    value = m_computing ? m_parser.GetPI() : 0.0;
  } else if (const FunctionEntry* const entry = EnabledFunction(name); entry != nullptr) {
    m_pos += static_cast<int>(name.size());
    value = Call(*entry);
  } else {
    value = Variable(name.size());
  }
  return m_computing ? RoundTo14Decimals(value) : value;
}

const FunctionEntry* FormulaWalk::EnabledFunction(std::wstring_view name) const {
  const FunctionEntry* const entry = FindFunction(name);
  return entry != nullptr && IsEnabled(*entry, m_parser.GetFunktionen(), m_parser.GetFunktionenEx())
             ? entry
             : nullptr;
}

double FormulaWalk::Call(const FunctionEntry& entry) {
  ExpectOpeningBracket();
  const NestingLevel level(m_parser);
  ++m_pos;
  if (IsCondition(entry)) return Condition();
  FunctionArguments arguments;
  arguments.Add(Expression());
  while (IsAt(L';')) {
    ++m_pos;
    arguments.Add(Expression());
  }
  ExpectClosingBracket();
  return EvaluateFunction(entry, arguments, {m_computing, m_parser.GetWinkelmas(), m_parser.GetPI()});
}

double FormulaWalk::Condition() {
  const bool condition = Expression() != 0.0;
  const bool hasThen = IsAt(L';');
  const double thenValue = hasThen ? Part(condition) : 0.0;
  const double elseValue = hasThen && IsAt(L';') ? Part(!condition) : 0.0;
  if (!hasThen || IsAt(L';')) ThrowFormulaError(ErrorKeys::WrongFunctionParameterCount);
  ExpectClosingBracket();
  SkipBlanks();
  if (!m_computing) return 0.0;
  return condition ? thenValue : elseValue;
}

double FormulaWalk::Part(bool chosen) {
  ++m_pos;
  const bool computing = m_computing;
  if (!chosen) m_parser.SetBerechnen(false);
  const double value = Expression();
  if (!chosen) m_parser.SetBerechnen(computing);
  return value;
}

double FormulaWalk::Variable(std::size_t known) {
  if (!m_language.variables) {
    if (m_language.stringConstants) return Through(GetUsualOperations().stringConstant);
    ThrowFormulaError(ErrorKeys::FunctionExpected);
  }
  if (m_variables == nullptr) {
    // The usual class is found without the search of a cast.
    m_variables = typeid(m_parser) == typeid(CVariableFormulaParser)
                      ? static_cast<CVariableFormulaParser*>(&m_parser)
                      : dynamic_cast<CVariableFormulaParser*>(&m_parser);
  }
  if (m_variables == nullptr) ThrowFormulaError(ErrorKeys::InternalParserError);

  const auto start = static_cast<std::size_t>(m_pos);
  const bool quoted = Current() == gccVariablenKennzeichenAnfang && m_variables->IsQuotedVariableEnabled();
  const std::size_t length =
      quoted ? FindQuotedVariableName(m_text, start) : FindVariableName(m_text, start, known);
  if (length == 0) {
    if (m_language.stringConstants) return Through(GetUsualOperations().stringConstant);
    ThrowFormulaError(ErrorKeys::FunctionVariableExpected);
  }
  double value = 0.0;
  const std::wstring_view name = m_text.substr(start, length);
  if (FormulaAccess::IsScanning(*m_variables)) {
    FormulaAccess::AddScanned(*m_variables, name);
  } else {
    value = FormulaAccess::NumericValue(*m_variables, name);
  }
  m_pos += static_cast<int>(length);
  return value;
}

double FormulaWalk::Through(Operation* operation) { return operation->Eval(m_pos, &m_parser); }

void FormulaWalk::SkipBlanksAtPosition() {
  const std::size_t next = static_cast<std::size_t>(m_pos) + 1;
  // One blank in front of an ordinary character is the usual case.
  if (next < m_text.size() && m_text[next - 1] == L' ' && !MayBeSkipped(m_text[next])) {
    ++m_pos;
    return;
  }
  m_parser.EatWhite();
}

void FormulaWalk::FindNext() {
  SkipBlanks();
  m_next = FindOperator(m_text, static_cast<std::size_t>(m_pos), m_parser.GetFunktionen());
}

BinaryOperator FormulaWalk::TakeNext() {
  const BinaryOperator op = m_next.op;
  m_pos += m_next.length;
  SkipBlanks();
  return op;
}

void FormulaWalk::ExpectOpeningBracket() {
  SkipBlanks();
  if (!IsAt(L'(')) ThrowFormulaError(ErrorKeys::OpeningBracketExpected);
}

void FormulaWalk::ExpectClosingBracket() {
  if (!IsAt(L')')) ThrowFormulaError(ErrorKeys::ClosingBracketExpected);
  ++m_pos;
}

}  // namespace zeb
