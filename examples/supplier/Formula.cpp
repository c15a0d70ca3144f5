#include "Formula.h"

#include "Utf8.h"

#include <memory>
#include <stdexcept>

namespace supplier {

namespace {

/// A parser of the formulas of reports, with names in brackets and texts.
void Prepare(CVariableFormulaParser& parser) {
  parser.EnableQuotedVariable(true);
  parser.SetWithStringFunctions(true);
}

[[noreturn]] void Fail(const std::wstring& formula, const CFormulaParser& parser) {
  throw std::runtime_error(ToUtf8(formula + L": " + parser.GetErrorMessage()));
}

/// The value of a key for the present row; null if the zone does not offer the key or has no value.
RowValue* Fetch(CReportZone& zone, const std::wstring& key) {
  auto* value = dynamic_cast<RowValue*>(zone.GetAvailableValueHolder(key.c_str()));
  if (value == nullptr) return nullptr;
  value->CallGetValue();
  return value->HasValue() ? value : nullptr;
}

}  // namespace

std::vector<std::wstring> KeysOf(const std::wstring& formula) {
  CVariableFormulaParser parser(formula, false);
  Prepare(parser);
  if (!parser.ScanVariable()) Fail(formula, parser);
  return parser.GetVariable();
}

double FormulaInput::Compute(const std::wstring& formula, const TypeOfKey& typeOfKey,
                             bool& isComplete) const {
  CVariableFormulaParser parser(formula, false);
  Prepare(parser);
  isComplete = true;
  for (const std::wstring& key : KeysOf(formula)) {
    bool isKnown = false;
    if (typeOfKey(key.c_str()) == CValueHolder::VHTypeNumber) {
      parser.AddVariable(key, NumberOf(key, isKnown));
    } else {
      parser.AddStringVariable(key, TextOf(key, isKnown));
    }
    isComplete = isComplete && isKnown;
  }
  if (!parser.WerteAus(true)) Fail(formula, parser);
  return parser.GetWert();
}

double FormulaInput::NumberOf(const std::wstring& key, bool& isKnown) const {
  if (const auto found = m_printed.results.find(key); found != m_printed.results.end()) {
    isKnown = !found->second.isEmpty;
    return found->second.exact;
  }
  RowValue* value = Fetch(m_zone, key);
  isKnown = value != nullptr;
  if (!isKnown) return 0.0;
  return std::unique_ptr<CDoubleElement>(value->GetValueAsDouble())->GetDouble();
}

std::wstring FormulaInput::TextOf(const std::wstring& key, bool& isKnown) const {
  RowValue* value = Fetch(m_zone, key);
  const wchar_t* text = value == nullptr ? nullptr : value->GetValueAsText();
  isKnown = text != nullptr;
  return isKnown ? text : L"";
}

}  // namespace supplier
