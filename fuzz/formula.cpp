// Formulas: any text, with any options and variables, has an outcome. It is the same in one pass and from entry to entry of
// the list of operations, in a second run, and its position lies in the text; a formula that can be scanned can be
// rewritten with its own names and stays as it is.
//
// The first two bytes are options, the rest is Latin-1: the formula's line, then lines of variables `name=value`.

#include "formula/Operation.h"
#include "formula/ReplaceVariableFormulaParser.h"
#include "foundation/KXExceptionHandler.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

namespace {

struct Input {
  unsigned options = 0;
  unsigned masks = 0;
  std::wstring formula;
  std::vector<std::wstring> variables;

  bool Has(unsigned option) const { return (options & option) != 0; }
};

enum Option : unsigned {
  kVariables = 1,
  kQuoted = 2,
  kStrings = 4,
  kIgnoreCase = 8,
  kNoBraces = 16,
  kNoQuotes = 32,
};

Input Split(const std::uint8_t* data, std::size_t size) {
  Input input;
  if (size > 0) input.options = data[0];
  if (size > 1) input.masks = data[1];
  std::wstring line;
  std::vector<std::wstring> lines;
  for (std::size_t i = 2; i <= size; ++i) {
    if (i < size && data[i] != '\n') {
      line.push_back(static_cast<wchar_t>(data[i]));
    } else {
      lines.push_back(line);
      line.clear();
    }
  }
  if (lines.empty()) return input;
  input.formula = lines.front();
  input.variables.assign(lines.begin() + 1, lines.end());
  return input;
}

class TransparentOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override { return EvalNextOperation(pos, parser); }

 protected:
  int FindOperation(int& /*pos*/, CFormulaParser* /*parser*/) override { return 0; }
};

/// With an operation more, so that the list is walked from entry to entry.
template <class Parser>
class ExtendedParser : public Parser {
 public:
  ExtendedParser() { this->InsertOperationBefore(&m_transparent, this->GetFirstOperation()); }

 private:
  TransparentOperation m_transparent;
};

void AddVariables(CVariableFormulaParser& parser, const Input& input) {
  parser.SetIgnoreGrossKlein(input.Has(kIgnoreCase));
  parser.EnableQuotedVariable(input.Has(kQuoted));
  for (const std::wstring& variable : input.variables) {
    const std::size_t equals = variable.find(L'=');
    const std::wstring value = equals == std::wstring::npos ? L"" : variable.substr(equals + 1);
    const double number = std::wcstod(value.c_str(), nullptr);
    if (number != 0.0 || value == L"0") {
      parser.AddVariable(variable.substr(0, equals), number);
    } else {
      parser.AddStringVariable(variable.substr(0, equals), value);
    }
  }
}

void SetOptions(CFormulaParser& parser, const Input& input) {
  parser = input.formula;
  parser.SetWithStringFunctions(input.Has(kStrings));
  parser.EnableKommentarGeschweifteKlammer(!input.Has(kNoBraces));
  parser.EnableKommentarHochkomma(!input.Has(kNoQuotes));
  parser.SetWinkelmas(static_cast<CFormulaParser::Winkelmas>(input.masks & 3U));
  if ((input.masks & 4U) != 0) parser.SetFunktionen(static_cast<int>(input.masks * 0x1010101U));
  if ((input.masks & 8U) != 0) parser.SetFunktionenEx(static_cast<int>(input.masks >> 4U));
}

template <class Parser>
std::unique_ptr<CFormulaParser> Make(const Input& input) {
  auto parser = std::make_unique<Parser>();
  if constexpr (std::is_base_of_v<CVariableFormulaParser, Parser>) AddVariables(*parser, input);
  SetOptions(*parser, input);
  return parser;
}

struct Outcome {
  bool good;
  int error;
  int position;
  std::uint64_t value;

  bool operator==(const Outcome& other) const = default;
};

Outcome Run(CFormulaParser& parser, bool compute) {
  const bool good = parser.WerteAus(compute);
  if (good != (parser.GetErrorCode() == 0)) std::abort();
  if (parser.GetErrPos() < 0 || parser.GetErrPos() > parser.GetLength()) std::abort();
  return {good, parser.GetErrorCode(), parser.GetErrPos(), std::bit_cast<std::uint64_t>(parser.GetWert())};
}

void CheckWalks(const Input& input) {
  const bool named = input.Has(kVariables);
  const auto usual = named ? Make<CVariableFormulaParser>(input) : Make<CFormulaParser>(input);
  const auto extended = named ? Make<ExtendedParser<CVariableFormulaParser>>(input)
                              : Make<ExtendedParser<CFormulaParser>>(input);
  for (const bool compute : {true, false}) {
    const Outcome outcome = Run(*usual, compute);
    if (Run(*extended, compute) != outcome || Run(*usual, compute) != outcome) std::abort();
  }
}

void CheckRewriting(const Input& input) {
  CReplaceVariableFormulaParser parser;
  AddVariables(parser, input);
  SetOptions(parser, input);
  const bool scanned = parser.ScanVariable();
  for (const std::wstring& name : parser.GetVariable()) {
    int position = 0;
    CVariableFormulaParser::IsValidVariablenName(name, position);
    parser.AddReplace(name, name);
  }
  const bool replaced = parser.Replace(false, false, false);
  if (scanned && !replaced) std::abort();
  if (!input.Has(kIgnoreCase) && parser.GetAusdruck() != std::wstring(input.formula.c_str())) std::abort();
  parser.Replace((input.masks & 16U) != 0, (input.masks & 32U) != 0, (input.masks & 64U) != 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const bool loaded = [] {
    const std::string share = ZEB_SHARE;
    CKXExceptionHandler::GetInstance().SetExceptionPathName(std::wstring(share.begin(), share.end()).c_str());
    return true;
  }();
  const Input input = Split(data, size);
  if (loaded) {
    CheckWalks(input);
    CheckRewriting(input);
  }
  return 0;
}
