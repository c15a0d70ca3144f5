// The walk in one pass against the walk from entry to entry: made-up texts under made-up options give the same value,
// key, position and list of names.

#include "formula/FormulaTestSupport.h"
#include "formula/OpenParser.h"
#include "formula/TransparentOperation.h"

#include <gtest/gtest.h>

#include <random>

namespace {

using Parser = formulatest::OpenParser<CVariableFormulaParser>;

class Maker {
 public:
  unsigned Below(std::size_t limit) { return static_cast<unsigned>(m_random() % limit); }
  bool OneIn(std::size_t times) { return Below(times) == 0; }
  int Mask() { return OneIn(2) ? -1 : static_cast<int>(static_cast<unsigned>(m_random())); }

  template <std::size_t Count>
  std::wstring Pick(const wchar_t* const (&choice)[Count]) {
    return choice[Below(Count)];
  }

  std::wstring Blank() {
    static constexpr const wchar_t* kBlanks[] = {L"",    L"",    L"",      L" ",     L"\t ",
                                                 L"{c}", L"'c'", L" {'} ", L"\u00A0"};
    return Pick(kBlanks);
  }

  std::wstring Operand(int depth) {
    static constexpr const wchar_t* kSimple[] = {
        L"0",  L"1",    L"2",     L"7",   L"0.5",   L"1,25",    L".5",   L"123456789012345678.5",
        L"a",  L"b",    L"A",     L"[a]", L"[x y]", L"unknown", L"text", L"e",
        L"Pi", L"wert", L"\"s\"", L"#1",  L"a2",    L"3.5",     L"-.5"};
    static constexpr const wchar_t* kCalls[] = {L"sin",     L"TAN",  L"sqrt",   L"ln",    L"abs",
                                                L"w",       L"lg",   L"roundk", L"min",   L"max",
                                                L"arctan2", L"wenn", L"if",     L"strcmp"};
    if (depth == 0 || OneIn(2)) return Pick(kSimple);
    if (OneIn(3)) return L"(" + Expression(depth - 1) + L")";
    if (OneIn(4)) return L"strcmp(" + Blank() + L"text" + Blank() + L";" + Blank() + L"\"t e{x}xt\")";
    std::wstring call = Pick(kCalls) + Blank() + L"(" + Expression(depth - 1);
    for (auto more = Below(4); more > 0; --more) call += L";" + Expression(depth - 1);
    return call + L")";
  }

  std::wstring Expression(int depth) {
    static constexpr const wchar_t* kSigns[] = {L"", L"", L"", L"-", L"!", L"! -", L"{c}-"};
    static constexpr const wchar_t* kOperators[] = {L"+", L"-",  L"*",  L"/",  L":", L"mod", L"div",
                                                    L"^", L"**", L"~",  L"//", L"<", L"<=",  L">=",
                                                    L">", L"==", L"<>", L"&&", L"||"};
    std::wstring text = Blank() + Pick(kSigns) + Blank() + Operand(depth) + Blank();
    for (auto more = Below(3); more > 0; --more)
      text += Pick(kOperators) + Blank() + Operand(depth) + Blank();
    return text;
  }

  /// An expression, often with something that does not belong there or with something missing.
  std::wstring Text() {
    static constexpr const wchar_t* kBroken[] = {L"}", L"{", L"'", L"\"",     L"[",       L"]", L"(",
                                                 L")", L";", L"=", L"!=",     L".",       L"-", L"!",
                                                 L"&", L"|", L"$", L"\u00E4", L"strcmp(", L"*"};
    std::wstring text = Expression(static_cast<int>(Below(4)));
    if (OneIn(3)) text.insert(Below(text.size() + 1), Pick(kBroken));
    if (OneIn(6)) text.erase(Below(text.size() + 1), 1 + Below(3));
    return text;
  }

 private:
  std::mt19937_64 m_random{11};  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same texts in every run
};

/// Two parsers with the same options, one of which holds an operation more.
class Pair {
 public:
  explicit Pair(Maker& maker) {
    const int main = maker.Mask();
    const int extra = maker.OneIn(2) ? -1 : static_cast<int>(maker.Below(8));
    const bool braces = !maker.OneIn(4);
    const bool quotes = !maker.OneIn(4);
    const bool names = maker.OneIn(2);
    const bool strings = maker.OneIn(2);
    const bool anyCase = maker.OneIn(2);
    const auto unit = static_cast<CFormulaParser::Winkelmas>(maker.Below(3));
    for (Parser* const parser : {&m_usual, &m_extended}) {
      parser->SetIgnoreGrossKlein(anyCase);
      formulatest::AddTableVariables(*parser);
      parser->AddVariable(L"wert", 1e300);
      parser->EnableQuotedVariable(names);
      parser->SetWithStringFunctions(strings);
      parser->SetFunktionen(main);
      parser->SetFunktionenEx(extra);
      parser->EnableKommentarGeschweifteKlammer(braces);
      parser->EnableKommentarHochkomma(quotes);
      parser->SetWinkelmas(unit);
    }
    m_extended.InsertOperationBefore(&m_transparent, m_extended.GetFirstOperation());
  }

  void ExpectSame(const std::wstring& text) {
    m_usual = text;
    m_extended = text;
    for (const bool compute : {true, false}) {
      const formulatest::Outcome usual = formulatest::Run(m_usual, compute);
      const formulatest::Outcome extended = formulatest::Run(m_extended, compute);
      ASSERT_TRUE(formulatest::Same(usual, extended))
          << formulatest::Text(usual) << ", entry by entry " << formulatest::Text(extended);
      ASSERT_EQ(m_usual.GetBerechnen(), m_extended.GetBerechnen());
      m_good += usual.key.empty() ? 1 : 0;
    }
    ASSERT_EQ(m_usual.ScanVariable(), m_extended.ScanVariable());
    ASSERT_EQ(m_usual.GetErrPos(), m_extended.GetErrPos());
    ASSERT_EQ(m_usual.GetErrorCode(), m_extended.GetErrorCode());
    ASSERT_EQ(m_usual.GetVariable(), m_extended.GetVariable());
  }

  int Good() const { return m_good; }

 private:
  formulatest::TransparentOperation m_transparent;
  Parser m_usual;
  Parser m_extended;
  int m_good = 0;
};

}  // namespace

TEST(FormulaWalk, GivesWhatTheWalkFromEntryToEntryGives) {
  Maker maker;
  for (const char* const name : {"C", "de_DE.UTF-8"}) {
    const formulatest::LocaleScope locale(name);
    ASSERT_TRUE(locale.IsSet()) << name;
    int good = 0;
    for (int options = 0; options < 100; ++options) {
      Pair pair(maker);
      for (int i = 0; i < 25; ++i) {
        const std::wstring text = maker.Text();
        SCOPED_TRACE(testing::PrintToString(text));
        pair.ExpectSame(text);
        if (HasFatalFailure()) return;
      }
      good += pair.Good();
    }
    EXPECT_GT(good, 400) << name;
  }
}
