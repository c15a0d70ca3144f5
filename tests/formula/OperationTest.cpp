#include "formula/Operation.h"

#include "formula/BiOperation.h"
#include "formula/FunktionOperation.h"
#include "formula/OpenParser.h"
#include "formula/PrefixOperations.h"
#include "formula/ReplaceOperations.h"
#include "formula/ReplaceVariableFormulaParser.h"
#include "formula/StringOperations.h"
#include "formula/VariableOperation.h"
#include "formula/ZahlOperation.h"
#include "foundation/KXException.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <type_traits>

using formulatest::ExpectError;
using formulatest::ExpectValue;

namespace {

/// The key that a call throws, empty if it throws none.
std::wstring KeyOf(const std::function<void()>& call) {
  try {
    call();
  } catch (const CKXParserException& exception) {
    return formulatest::KeyOfError(exception.GetErrorNr());
  }
  return {};
}

class OpenSum : public PlusMinusOperation {
 public:
  using PlusMinusOperation::FindOperation;
};

/// Counts its calls and asks the next entry.
class CountingOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override {
    ++calls;
    return EvalNextOperation(pos, parser);
  }

  int calls = 0;

 protected:
  int FindOperation(int& /*pos*/, CFormulaParser* /*parser*/) override { return 0; }
};

/// Reads `?` as 42.
class QuestionOperation : public Operation {
 public:
  double Eval(int& pos, CFormulaParser* parser) override {
    parser->EatWhite();
    const int length = FindOperation(pos, parser);
    pos += length;
    return length != 0 ? 42.0 : EvalNextOperation(pos, parser);
  }

 protected:
  int FindOperation(int& pos, CFormulaParser* parser) override {
    return pos < parser->GetLength() && parser->GetAt(pos) == L'?' ? 1 : 0;
  }
};

/// Sums that give their left side.
class LeftOperation : public PlusMinusOperation {
 public:
  double BerechneOp(CFormulaParser* /*parser*/, std::wstring /*op*/, double a, double /*b*/) override {
    return a;
  }
};

}  // namespace

TEST(Operation, FixedVirtualOperationsStandInTheirOrderWithoutADestructor) {
  EXPECT_EQ(zebtest::VirtualSlot(&Operation::EvalNextOperation), 0U);
  EXPECT_EQ(zebtest::VirtualSlot(&Operation::Eval), 1U);
  EXPECT_EQ(zebtest::VirtualSlot(&OpenSum::FindOperation), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&BiOperation::BerechneOp), 3U);
  EXPECT_FALSE(std::has_virtual_destructor_v<Operation>);
}

TEST(Operation, ParsersHaveTheirVirtualOperationsInOrder) {
  // The destructor takes the first two places.
  EXPECT_TRUE(std::has_virtual_destructor_v<CFormulaParser>);
  EXPECT_EQ(zebtest::VirtualSlot(&CFormulaParser::WerteAus), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CFormulaParser::GetErrorMessage), 3U);
  EXPECT_EQ(zebtest::VirtualSlot(&CFormulaParser::SetWithStringFunctions), 4U);
  EXPECT_EQ(zebtest::VirtualSlot(&CVariableFormulaParser::SetIgnoreGrossKlein), 5U);
  EXPECT_EQ(zebtest::VirtualSlot(&CReplaceVariableFormulaParser::WerteAus), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CReplaceVariableFormulaParser::SetWithStringFunctions), 4U);
  EXPECT_EQ(zebtest::VirtualSlot(&CReplaceVariableFormulaParser::SetIgnoreGrossKlein), 5U);
}

TEST(Operation, HasTheDerivationOfTheGrammar) {
  EXPECT_TRUE((std::is_base_of_v<BiOperation, VergleichOperation>));
  EXPECT_TRUE((std::is_base_of_v<BiOperation, UndOderOperation>));
  EXPECT_TRUE((std::is_base_of_v<BiOperation, PlusMinusOperation>));
  EXPECT_TRUE((std::is_base_of_v<BiOperation, MalDurchOperation>));
  EXPECT_TRUE((std::is_base_of_v<BiOperation, PotenzOperation>));
  EXPECT_TRUE((std::is_base_of_v<StringFunktionOperation, ReplaceStringFunktionOperation>));
  EXPECT_TRUE((std::is_base_of_v<VariableOperation, ReplaceVariableOperation>));
  EXPECT_TRUE((std::is_base_of_v<VariableOperation, StringVariableOperation>));
  EXPECT_TRUE((std::is_base_of_v<StringVariableOperation, ReplaceStringVariableOperation>));
  EXPECT_FALSE((std::is_base_of_v<BiOperation, NotOperation>));
}

TEST(Operation, HasNoDataAndCanBeCopied) {
  EXPECT_EQ(sizeof(VergleichOperation), sizeof(void*));
  EXPECT_EQ(sizeof(ReplaceStringVariableOperation), sizeof(void*));
  EXPECT_TRUE(std::is_copy_constructible_v<FunktionOperation>);
  EXPECT_TRUE(std::is_copy_assignable_v<FunktionOperation>);
  EXPECT_TRUE(std::is_default_constructible_v<FunktionOperation>);
}

TEST(Operation, FactoriesGiveOneObjectEach) {
  EXPECT_EQ(GetVergleichOperation(), GetVergleichOperation());
  EXPECT_EQ(GetUndOderOperation(), GetUndOderOperation());
  EXPECT_EQ(GetPlusMinusOperation(), GetPlusMinusOperation());
  EXPECT_EQ(GetNotOperation(), GetNotOperation());
  EXPECT_EQ(GetNegVorzeichenOperation(), GetNegVorzeichenOperation());
  EXPECT_EQ(GetMalDurchOperation(), GetMalDurchOperation());
  EXPECT_EQ(GetPotenzOperation(), GetPotenzOperation());
  EXPECT_EQ(GetKlammerOperation(), GetKlammerOperation());
  EXPECT_EQ(GetZahlOperation(), GetZahlOperation());
  EXPECT_EQ(GetFunktionOperation(), GetFunktionOperation());
  EXPECT_EQ(GetStringFunktionOperation(), GetStringFunktionOperation());
  EXPECT_EQ(GetConstStringOperation(), GetConstStringOperation());
  EXPECT_EQ(GetVariableOperation(), GetVariableOperation());
  EXPECT_EQ(GetStringVariableOperation(), GetStringVariableOperation());
  EXPECT_EQ(GetReplaceVariableOperation(), GetReplaceVariableOperation());
  EXPECT_EQ(GetReplaceStringVariableOperation(), GetReplaceStringVariableOperation());
  EXPECT_EQ(GetReplaceStringFunktionOperation(), GetReplaceStringFunktionOperation());
  EXPECT_NE(static_cast<Operation*>(GetVariableOperation()), GetReplaceVariableOperation());
}

TEST(Operation, AsksTheEntryBehindIt) {
  formulatest::OpenParser<CFormulaParser> parser;
  CountingOperation counting;
  parser.InsertOperationBefore(&counting, GetNotOperation());
  parser = L"1 + 2 * 3 + (4)";
  ExpectValue(parser, 11.0);
  EXPECT_EQ(counting.calls, 4);
}

TEST(Operation, WithoutAnEntryBehindItFails) {
  CFormulaParser parser(L"1");
  int position = 0;
  EXPECT_EQ(KeyOf([&] { GetFunktionOperation()->EvalNextOperation(position, &parser); }),
            L"InternalParserError");
  EXPECT_EQ(KeyOf([&] { GetVariableOperation()->EvalNextOperation(position, &parser); }),
            L"InternalParserError");
}

TEST(Operation, OfBracketsFailsInAParserWithoutOperations) {
  formulatest::OpenParser<CFormulaParser> parser;
  parser = L"(1)";
  while (parser.GetFirstOperation() != nullptr) parser.DeleteOperation(parser.GetFirstOperation());
  int position = 0;
  EXPECT_EQ(KeyOf([&] { GetKlammerOperation()->Eval(position, &parser); }), L"InternalParserError");
  EXPECT_EQ(position, 1);
}

TEST(Operation, OfACallerExtendsTheLanguage) {
  formulatest::OpenParser<CFormulaParser> parser;
  QuestionOperation question;
  parser.InsertOperationBefore(&question, GetFunktionOperation());
  parser = L"2 * ? + sqrt(?-26)";
  ExpectValue(parser, 88.0);
}

TEST(Operation, OfACallerReplacesALevel) {
  formulatest::OpenParser<CFormulaParser> parser;
  LeftOperation left;
  parser.ReplaceOperation(GetPlusMinusOperation(), &left);
  parser = L"2 * 3 + 100 - sqrt(16)";
  ExpectValue(parser, 6.0);
}

TEST(BiOperation, CalculatesEachOperatorByItsText) {
  CFormulaParser parser;
  EXPECT_EQ(GetVergleichOperation()->BerechneOp(&parser, L"<", 1, 2), 1.0);
  EXPECT_EQ(GetVergleichOperation()->BerechneOp(&parser, L"<>", 1, 1), 0.0);
  EXPECT_EQ(GetUndOderOperation()->BerechneOp(&parser, L"&&", 1, 0), 0.0);
  EXPECT_EQ(GetUndOderOperation()->BerechneOp(&parser, L"||", 1, 0), 1.0);
  EXPECT_EQ(GetPlusMinusOperation()->BerechneOp(&parser, L"-", 1, 3), -2.0);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L":", 6, 4), 1.5);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L"MoD", 7, 4), 3.0);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L"DIV", 7, 4), 1.0);
  EXPECT_EQ(GetPotenzOperation()->BerechneOp(&parser, L"**", 2, 3), 8.0);
  EXPECT_EQ(GetPotenzOperation()->BerechneOp(&parser, L"//", 2, 9), 3.0);
}

TEST(BiOperation, RefusesTextsThatAreNoOperatorsOfTheLevelInBothModes) {
  CFormulaParser parser;
  for (const bool compute : {true, false}) {
    parser.SetBerechnen(compute);
    for (const wchar_t* const text : {L"", L"?", L"=", L"+ ", L"+-"}) {
      EXPECT_EQ(KeyOf([&] { GetVergleichOperation()->BerechneOp(&parser, text, 1, 1); }),
                L"InternalParserError");
      EXPECT_EQ(KeyOf([&] { GetUndOderOperation()->BerechneOp(&parser, text, 1, 1); }),
                L"InternalParserError");
      EXPECT_EQ(KeyOf([&] { GetPlusMinusOperation()->BerechneOp(&parser, text, 1, 1); }),
                L"InternalParserError");
      EXPECT_EQ(KeyOf([&] { GetMalDurchOperation()->BerechneOp(&parser, text, 1, 1); }),
                L"InternalParserError");
      EXPECT_EQ(KeyOf([&] { GetPotenzOperation()->BerechneOp(&parser, text, 1, 1); }),
                L"InternalParserError");
    }
    EXPECT_EQ(KeyOf([&] { GetVergleichOperation()->BerechneOp(&parser, L"+", 1, 1); }),
              L"InternalParserError");
    EXPECT_EQ(KeyOf([&] { GetUndOderOperation()->BerechneOp(&parser, L"<", 1, 1); }), L"InternalParserError");
    EXPECT_EQ(KeyOf([&] { GetPlusMinusOperation()->BerechneOp(&parser, L"*", 1, 1); }),
              L"InternalParserError");
    EXPECT_EQ(KeyOf([&] { GetMalDurchOperation()->BerechneOp(&parser, L"^", 1, 1); }),
              L"InternalParserError");
    EXPECT_EQ(KeyOf([&] { GetPotenzOperation()->BerechneOp(&parser, L"*", 1, 1); }), L"InternalParserError");
  }
}

TEST(BiOperation, ChecksOnlyInSyntaxOnlyMode) {
  CFormulaParser parser;
  parser.SetBerechnen(false);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L"/", 1, 0), 0.0);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L"*", 2, 3), 0.0);
  EXPECT_EQ(GetPotenzOperation()->BerechneOp(&parser, L"^", 0, -1), 0.0);
  EXPECT_EQ(GetPotenzOperation()->BerechneOp(&parser, L"^", 2, 3), 0.0);
  // Sums, logic and comparisons are worked out; sums are not rounded.
  EXPECT_EQ(GetPlusMinusOperation()->BerechneOp(&parser, L"+", 1.0 / 3.0, 0), 1.0 / 3.0);
  EXPECT_EQ(GetUndOderOperation()->BerechneOp(&parser, L"&&", 1, 1), 1.0);
  EXPECT_EQ(GetVergleichOperation()->BerechneOp(&parser, L"==", 1, 1), 1.0);
}

TEST(BiOperation, GivesAnUndefinedResultTheValueZero) {
  CFormulaParser parser;
  const double infinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(GetPlusMinusOperation()->BerechneOp(&parser, L"-", infinity, infinity), 0.0);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L"*", infinity, 0), 0.0);
  EXPECT_EQ(GetMalDurchOperation()->BerechneOp(&parser, L"div", infinity, 2), -2147483648.0);
  EXPECT_EQ(GetVergleichOperation()->BerechneOp(&parser, L"==", infinity, infinity), 1.0);
  EXPECT_EQ(GetVergleichOperation()->BerechneOp(&parser, L"<", 1, infinity), 1.0);
  EXPECT_EQ(GetVergleichOperation()->BerechneOp(&parser, L">", 1, -infinity), 1.0);
}

TEST(MalDurchOperation, ReadsModAndDivOnlyWithTheirBits) {
  CFormulaParser parser(L"7 mod 2");
  parser.SetFunktionen(-1 & ~0x40000);
  ExpectError(parser, L"ArithmeticOperatorExpected", 2);
  parser = L"7 div 2";
  ExpectValue(parser, 3.0);
  parser.SetFunktionen(-1 & ~0x2000000);
  ExpectError(parser, L"ArithmeticOperatorExpected", 2);
  parser = L"7 mod 2";
  ExpectValue(parser, 1.0);
  parser.SetFunktionen(0x40000);
  ExpectValue(parser, 1.0);
}

TEST(ConstStringOperation, ReadsItsTextWithoutBlanksAndComments) {
  class Reader : public formulatest::OpenParser<CFormulaParser> {
   public:
    std::wstring Read(const wchar_t* text) {
      m_Ausdruck = text;
      m_Pos = 0;
      return GetConstStringOperation()->EvalString(m_Pos, this);
    }
    int Position() const { return m_Pos; }
  };
  Reader reader;
  EXPECT_EQ(reader.Read(L" \"a b{c}'d'e\"x"), L"abe");
  EXPECT_EQ(reader.Position(), 12);
  EXPECT_EQ(reader.Read(L"\"\""), L"");
  EXPECT_EQ(reader.Position(), 1);
  EXPECT_EQ(reader.Read(L" a"), L"");
  EXPECT_EQ(reader.Position(), 1);
  EXPECT_EQ(KeyOf([&] { reader.Read(L"\"a "); }), L"ConstStringEndMissing");
  EXPECT_EQ(reader.Position(), 3);
}
