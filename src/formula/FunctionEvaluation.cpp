#include "formula/FunctionEvaluation.h"

#include "formula/FormulaCharacters.h"
#include "formula/FormulaErrors.h"
#include "formula/FormulaOperators.h"
#include "formula/FormulaRounding.h"
#include "foundation/ErrorKeys.h"

#include <cmath>
#include <cstddef>

namespace zeb {

namespace {

constexpr std::size_t kLongestName = 7;
constexpr std::size_t kSlots = 64;

constexpr std::size_t Folded(wchar_t c) {
  return static_cast<char32_t>(c >= L'A' && c <= L'Z' ? c + (L'a' - L'A') : c);
}

/// Slot of a name of 1 to kLongestName characters: first, middle and last character and the length tell all
/// names apart.
constexpr std::size_t SlotOf(std::wstring_view name) {
  const std::size_t first = Folded(name.front());
  const std::size_t middle = Folded(name[name.size() / 2]);
  const std::size_t last = Folded(name.back());
  return (first * 11 + middle + last * 11 + name.size()) % kSlots;
}

/// Index in the function table plus 1, 0 for no function.
constexpr std::array<std::uint8_t, kSlots> MakeSlots() {
  std::array<std::uint8_t, kSlots> slots{};
  for (std::size_t i = 0; i < kFunctionTable.size(); ++i) {
    slots[SlotOf(kFunctionTable[i].name)] = static_cast<std::uint8_t>(i + 1);
  }
  return slots;
}

constexpr std::array<std::uint8_t, kSlots> kSlotTable = MakeSlots();

constexpr bool EveryFunctionHasItsSlot() {
  for (std::size_t i = 0; i < kFunctionTable.size(); ++i) {
    const std::wstring_view name = kFunctionTable[i].name;
    if (name.size() > kLongestName || kSlotTable[SlotOf(name)] != i + 1) return false;
  }
  return true;
}
static_assert(EveryFunctionHasItsSlot(), "two function names share a slot: change the factors of SlotOf");

double Illegal() { ThrowFormulaError(ErrorKeys::IllegalParameter); }

/// The square root; "NegativeRoot" below 0.
double Root(double x) {
  if (x < 0.0) ThrowFormulaError(ErrorKeys::NegativeRoot);
  return std::sqrt(x);
}

bool IsZeroAt14Decimals(double value) { return RoundTo14Decimals(value) == 0.0; }

/// Checks that run in syntax-only mode too.
// Fixed behaviour: arctan2 refuses every point on an axis.
void CheckAlways(Function function, double x, double y) {
  if (function == Function::Arctan2 && (x == 0.0 || y == 0.0)) Illegal();
  if (function == Function::Roundk && (!(std::fabs(y) < 14.0) || std::floor(y) != y)) Illegal();
}

double Trigonometric(Function function, double x, const FunctionContext& context) {
  const double w = context.angleUnit;
  switch (function) {
    case Function::Arcsin:
      return x < -1.0 || x > 1.0 ? Illegal() : std::asin(x) / w;
    case Function::Arccos:
      return x < -1.0 || x > 1.0 ? Illegal() : std::acos(x) / w;
    case Function::Arctan:
      return std::atan(x) / w;
    case Function::Arccot:
      return std::atan2(1.0, x) / w;
    case Function::Sin:
      return std::sin(w * x);
    case Function::Cos:
      return std::cos(w * x);
    case Function::Tan:
      return IsZeroAt14Decimals(std::cos(w * x)) ? Illegal() : std::tan(w * x);
    case Function::Cot:
      return IsZeroAt14Decimals(std::sin(w * x)) ? Illegal() : 1.0 / std::tan(w * x);
    case Function::Rad:
      return x / 360.0 * 2.0 * context.pi;
    default:
      return x / (context.pi * 2.0) * 360.0;
  }
}

double Compute(Function function, const FunctionArguments& arguments, const FunctionContext& context) {
  const double x = arguments.first;
  switch (function) {
    case Function::Floor:
      return std::floor(x);
    case Function::Sinh:
      return std::sinh(x);
    case Function::Cosh:
      return std::cosh(x);
    case Function::Tanh:
      return std::tanh(x);
    case Function::Ceil:
      return std::ceil(x);
    case Function::Sqrt:
    case Function::W:
      return Root(x);
    case Function::Log:
    case Function::Lg:
      return x > 0.0 ? std::log10(x) : Illegal();
    case Function::Exp:
      return std::exp(x);
    case Function::Abs:
      return std::fabs(x);
    case Function::Round:
      return RundeDouble(x, 0, 1, true);
    case Function::Sqr:
      return x * x;
    case Function::Ln:
      return x > 0.0 ? std::log(x) : Illegal();
    case Function::Eex:
      return std::pow(10.0, x);
    case Function::Roundk:
      return RundeDouble(x, static_cast<int>(arguments.second), 1, true);
    case Function::Arctan2:
      return std::atan2(x, arguments.second) / context.angleUnit;
    case Function::Trunc:
      return TruncateTo32Bits(x);
    case Function::Min:
      return arguments.smallest;
    case Function::Max:
      return arguments.largest;
    case Function::Wenn:
    case Function::If:
    case Function::Strcmp:
      return 0.0;
    default:
      return Trigonometric(function, x, context);
  }
}

}  // namespace

const FunctionEntry* FindFunction(std::wstring_view name) {
  if (name.empty() || name.size() > kLongestName) return nullptr;
  const std::uint8_t slot = kSlotTable[SlotOf(name)];
  if (slot == 0) return nullptr;
  const FunctionEntry& entry = kFunctionTable[slot - 1U];
  return IsWord(name, entry.word) ? &entry : nullptr;
}

void FunctionArguments::Add(double value) {
  if (count == 0) {
    first = smallest = largest = value;
  } else {
    if (count == 1) second = value;
    if (value < smallest) smallest = value;
    if (value > largest) largest = value;
  }
  ++count;
}

double EvaluateFunction(const FunctionEntry& entry, const FunctionArguments& arguments,
                        const FunctionContext& context) {
  if (arguments.count < entry.minimumArguments || arguments.count > entry.maximumArguments) {
    ThrowFormulaError(ErrorKeys::WrongFunctionParameterCount);
  }
  CheckAlways(entry.function, arguments.first, arguments.second);
  return context.computing ? Compute(entry.function, arguments, context) : 0.0;
}

}  // namespace zeb
