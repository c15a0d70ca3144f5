#include "formula/FormulaTestSupport.h"

#include "foundation/ErrorKeys.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"

#include <gtest/gtest.h>

#include <bit>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <map>
#include <sstream>

namespace formulatest {

namespace {

class CatalogueEnvironment : public testing::Environment {
 public:
  void SetUp() override { LoadErrorCatalogue(); }
};

const testing::Environment* const kCatalogue = testing::AddGlobalTestEnvironment(new CatalogueEnvironment);

std::map<int, std::wstring> KeysByNumber() {
  std::map<int, std::wstring> keys;
  for (const wchar_t* const key : zeb::ErrorKeys::All) {
    try {
      CKXExceptionHandler::GetInstance().ThrowException(key);
    } catch (const CKXException& exception) {
      keys[exception.GetErrorNr()] = key;
    }
  }
  return keys;
}

Outcome ParseOutcome(const std::string& text) {
  Outcome outcome;
  if (text == "ok") return outcome;
  const std::size_t at = text.find(" @");
  if (at == std::string::npos) {
    const auto result = std::from_chars(text.data(), text.data() + text.size(), outcome.value);
    EXPECT_TRUE(result.ec == std::errc{} && result.ptr == text.data() + text.size()) << text;
  } else {
    outcome.key = Wide(text.substr(0, at));
    outcome.position = std::stoi(text.substr(at + 2));
  }
  return outcome;
}

}  // namespace

void LoadErrorCatalogue() {
  CKXExceptionHandler::GetInstance().SetExceptionPathName(Wide(ZEB_SHARE).c_str());
}

std::wstring KeyOfError(int number) {
  static const std::map<int, std::wstring> keys = KeysByNumber();
  const auto found = keys.find(number);
  return found == keys.end() ? L"" : found->second;
}

Outcome Run(CFormulaParser& parser, bool compute) {
  Outcome outcome;
  if (parser.WerteAus(compute)) {
    EXPECT_EQ(parser.GetErrorCode(), 0);
    EXPECT_EQ(parser.GetErrPos(), 0);
    outcome.value = parser.GetWert();
  } else {
    outcome.key = KeyOfError(parser.GetErrorCode());
    outcome.position = parser.GetErrPos();
  }
  return outcome;
}

std::string Text(const Outcome& outcome) {
  std::ostringstream text;
  if (outcome.key.empty()) {
    text.precision(17);
    text << outcome.value;
  } else {
    text << std::string(outcome.key.begin(), outcome.key.end()) << " @" << outcome.position;
  }
  return text.str();
}

bool Same(const Outcome& a, const Outcome& b) {
  return a.key == b.key && a.position == b.position &&
         std::bit_cast<std::uint64_t>(a.value) == std::bit_cast<std::uint64_t>(b.value);
}

TableLine ParseTableLine(const std::string& line) {
  TableLine entry{};
  const std::size_t arrow = line.rfind(" => ");
  if (arrow == std::string::npos) {
    ADD_FAILURE() << "no outcome: " << line;
    return entry;
  }
  entry.formula = Wide(line.substr(0, arrow));
  const std::string outcomes = line.substr(arrow + 4);
  const std::size_t bar = outcomes.find(" | ");
  entry.computed = ParseOutcome(outcomes.substr(0, bar));
  if (bar != std::string::npos) entry.checked = ParseOutcome(outcomes.substr(bar + 3));
  return entry;
}

std::vector<TableLine> ReadTable(const std::string& name) {
  std::ifstream file(std::string(ZEB_TEST_DATA "/formula/") + name);
  EXPECT_TRUE(file.is_open()) << name;
  std::vector<TableLine> table;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    if (line.empty() || line.starts_with("# ")) continue;
    table.push_back(ParseTableLine(line));
    table.back().number = number;
  }
  EXPECT_FALSE(table.empty()) << name;
  return table;
}

void AddTableVariables(CVariableFormulaParser& parser) {
  parser.AddVariable(L"a", 2.0);
  parser.AddVariable(L"b", 3.0);
  parser.AddVariable(L"#1", 7.0);
  parser.AddVariable(L"_z", 8.0);
  parser.AddVariable(L"x#y", 9.0);
  parser.AddVariable(L"x y", 5.0);
  parser.AddVariable(L"+", 6.0);
  parser.AddVariable(L"third", 1.0 / 3.0);
  parser.AddVariable(L"E", 99.0);
  parser.AddVariable(L"sin", 98.0);
  parser.AddStringVariable(L"text", L"text");
}

std::wstring Wide(const std::string& text) {
  std::wstring wide;
  for (std::size_t i = 0; i < text.size();) {
    const auto byte = static_cast<unsigned char>(text[i++]);
    unsigned code = byte;
    int more = 0;
    if (byte >= 0xE0) {
      code = byte & 0x0FU;
      more = 2;
    } else if (byte >= 0xC0) {
      code = byte & 0x1FU;
      more = 1;
    }
    for (; more > 0 && i < text.size(); --more)
      code = code << 6U | (static_cast<unsigned char>(text[i++]) & 0x3FU);
    wide.push_back(static_cast<wchar_t>(code));
  }
  return wide;
}

}  // namespace formulatest
