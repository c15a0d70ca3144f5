#pragma once

#include "formula/FunctionTable.h"

#include <string_view>

// Finding a function of the formula language by its name, and its value for given arguments.
namespace zeb {

/// The table row of a name, null if it names no function. Case is ignored; masks are not looked at.
const FunctionEntry* FindFunction(std::wstring_view name);

/// Whether the masks enable a function of numbers.
constexpr bool IsEnabled(const FunctionEntry& entry, int mainMask, int extraMask) {
  return ((entry.set == FunctionSet::Main ? mainMask : extraMask) & entry.Bit()) != 0 &&
         entry.function != Function::Strcmp;
}

/// Whether a function is one of the conditions, which read their arguments themselves.
constexpr bool IsCondition(const FunctionEntry& entry) {
  return entry.function == Function::Wenn || entry.function == Function::If;
}

/// The arguments of a call, as far as any function looks at them: none keeps more than two.
class FunctionArguments {
 public:
  void Add(double value);

  int count = 0;
  double first = 0.0;
  double second = 0.0;
  double smallest = 0.0;  ///< the earliest among equals
  double largest = 0.0;   ///< the earliest among equals
};

/// What a function's value depends on beside its arguments.
struct FunctionContext {
  bool computing;
  double angleUnit;  ///< factor from the angle unit to radians
  double pi;
};

/// The value of a call, 0.0 unless computing; not rounded yet. Conditions and string functions have no value here.
/// Keys: "WrongFunctionParameterCount", "IllegalParameter", "NegativeRoot".
double EvaluateFunction(const FunctionEntry& entry, const FunctionArguments& arguments,
                        const FunctionContext& context);

}  // namespace zeb
