#pragma once

#include "formula/FormulaParser.h"
#include "formula/ReplaceVariableFormulaParser.h"

#include <string>
#include <string_view>
#include <utility>

namespace zeb {

/// The way of the operations into a parser's insides.
struct FormulaAccess {
  static std::wstring_view Text(const CFormulaParser& parser) { return parser.m_Ausdruck; }
  static int& Position(CFormulaParser& parser) { return parser.m_Pos; }
  static const bool& Computing(const CFormulaParser& parser) { return parser.m_Berechnen; }
  static int& Nesting(CFormulaParser& parser) { return parser.m_Schachtelung; }

  static bool IsScanning(const CVariableFormulaParser& parser) { return parser.m_ScanVariable; }
  static void AddScanned(CVariableFormulaParser& parser, std::wstring_view name) {
    parser.AddGescannteVariable(std::wstring(name));
  }
  static void AddScannedString(CVariableFormulaParser& parser, std::wstring_view name) {
    parser.AddGescannteStringVariable(std::wstring(name));
  }
  /// A numeric variable's value; false if there is none of the name.
  static bool FindNumber(const CVariableFormulaParser& parser, std::wstring_view name, double& value) {
    return parser.FindVariable(name, value);
  }
  /// A string variable's value; false if there is none of the name.
  static bool FindString(const CVariableFormulaParser& parser, std::wstring_view name, std::wstring& value) {
    return parser.FindStringVariable(name, value);
  }
  /// What a name is worth in a numeric place: a string variable is worth 0.0. "VariableNotFound" for an unknown name.
  static double NumericValue(const CVariableFormulaParser& parser, std::wstring_view name);

  static bool IsReplaceable(CReplaceVariableFormulaParser& parser, std::wstring name) {
    return parser.LookupReplace(std::move(name));
  }
  /// Replaces a name in the text and returns the length of the new one.
  static int ReplaceAt(CReplaceVariableFormulaParser& parser, int pos, int length) {
    int newLength = 0;
    parser.ReplaceAt(pos, length, newLength);
    return newLength;
  }

  /// CFormulaParser::SetWithStringFunctions, with `call` as the operation that reads calls of string functions.
  static void SwitchStringFunctions(CFormulaParser& parser, bool on, Operation* call);
};

/// One level of brackets or calls, for as long as the object lives.
///
/// Every evaluation nests through one of these, and there are at most kMaximumNesting: so the depth of the stack
/// is bounded whatever the formula.
class NestingLevel {
 public:
  /// "InternalParserError" beyond the limit.
  explicit NestingLevel(CFormulaParser& parser);
  ~NestingLevel() { --m_nesting; }
  NestingLevel(const NestingLevel&) = delete;
  NestingLevel& operator=(const NestingLevel&) = delete;

 private:
  int& m_nesting;
};

/// Deepest nesting of brackets and calls in a formula.
inline constexpr int kMaximumNesting = 200;

}  // namespace zeb
