// Holds the shipped catalogues and the keys of the code together. Numbers are stable for ever: callers store them.

#include "foundation/ErrorKeys.h"
#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "foundation/RecordReader.h"
#include "foundation/XMLDocument.h"
#include "foundation/XMLManager.h"
#include "foundation/XMLNode.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

struct Failure {
  std::wstring family;
  int number = 0;
  bool operator==(const Failure&) const = default;
};

const std::map<std::wstring, Failure> kFailures = {
    {L"NoMoreMemoryLeft", {L"MemoryException", 1001}},
    {L"ReadFileFailure", {L"FileException", 1002}},
    {L"FileReadOnly", {L"FileException", 1003}},
    {L"OrderVectorNotSortable", {L"ReportDocumentException", 2001}},
    {L"ArithmeticOperatorExpected", {L"ParserException", 3001}},
    {L"ClosingBracketExpected", {L"ParserException", 3002}},
    {L"CommentBeginMissing", {L"ParserException", 3003}},
    {L"CommentEndMissing", {L"ParserException", 3004}},
    {L"CommentEndMissing2", {L"ParserException", 3005}},
    {L"ConstStringEndMissing", {L"ParserException", 3006}},
    {L"DivisionByZero", {L"ParserException", 3007}},
    {L"DoubleExpected", {L"ParserException", 3008}},
    {L"FunctionExpected", {L"ParserException", 3009}},
    {L"FunctionVariableExpected", {L"ParserException", 3010}},
    {L"IllegalParameter", {L"ParserException", 3011}},
    {L"InternalParserError", {L"ParserException", 3012}},
    {L"NegativePowerFraction", {L"ParserException", 3013}},
    {L"NegativeRoot", {L"ParserException", 3014}},
    {L"NegativeRootNull", {L"ParserException", 3015}},
    {L"NestedComment", {L"ParserException", 3016}},
    {L"NullPowerNegative", {L"ParserException", 3017}},
    {L"NumberTooLong", {L"ParserException", 3018}},
    {L"OpeningBracketExpected", {L"ParserException", 3019}},
    {L"VariableEndMissing", {L"ParserException", 3020}},
    {L"VariableNotFound", {L"ParserException", 3021}},
    {L"WrongFunctionParameterCount", {L"ParserException", 3022}},
    {L"ZeroDividedByZero", {L"ParserException", 3023}},
    {L"ZeroRoot", {L"ParserException", 3024}},
    {L"IncorrectTrueTypeFile", {L"FileException", 4001}},
    {L"IncorrectPFMFile", {L"FileException", 4002}},
    {L"IncorrectPFAPFBFile", {L"FileException", 4003}},
    {L"NoCharMetrics", {L"FileException", 4004}},
    {L"TooManyCharacterCodes", {L"FileException", 4005}},
    {L"WrongGlobalIndentifier", {L"FileException", 4006}},
    {L"TrueTypeCreationFailed", {L"ReportDocumentException", 4007}},
    {L"BitmapMACFontUnsupported", {L"ReportDocumentException", 4008}},
    {L"FontEmbeddingNotAllowed", {L"ReportDocumentException", 4009}},
    {L"FontPoolIncomplete", {L"ReportDocumentException", 4010}},
    {L"WrongParameter", {L"ReportDocumentException", 5001}},
    {L"UnknownException", {L"ReportDocumentException", 5002}},
};

struct Message {
  std::wstring key;
  Failure failure;
  std::wstring text;
};

std::vector<Message> ReadCatalogue(const std::string& file) {
  zebxmln::CXMLDocument* const document = zebxmln::CXMLManager::GetInstance().LoadDocument(
      zebtest::Widen(file).c_str(), true, false, nullptr, false, false);
  std::vector<Message> messages;
  zeb::RecordReader catalogue(document->GetRootNode());
  catalogue.StepOver(L"VersionNr");
  while (zebxmln::CXMLNode* const familyNode = catalogue.Take(L"ErrorFamily")) {
    zeb::RecordReader family(familyNode);
    Message message;
    family.Read(L"ErrorFamilyName", message.failure.family);
    while (zebxmln::CXMLNode* const entryNode = family.Take(L"ErrorEntry")) {
      zeb::RecordReader entry(entryNode);
      EXPECT_TRUE(entry.Read(L"ErrorKey", message.key));
      EXPECT_TRUE(entry.Read(L"ErrorNr", message.failure.number));
      EXPECT_TRUE(entry.Read(L"ErrorMessage", message.text));
      EXPECT_TRUE(entry.AtEnd());
      messages.push_back(message);
    }
    EXPECT_TRUE(family.AtEnd());
  }
  EXPECT_TRUE(catalogue.AtEnd());
  document->DestroyDocument();
  return messages;
}

class ErrorCatalogue : public testing::TestWithParam<const char*> {
 protected:
  const std::vector<Message> m_messages =
      ReadCatalogue(std::string(ZEB_SHARE) + GetParam() + "/KXErrorMessages.xml");
};

class Handler : public CKXExceptionHandler {};

}  // namespace

TEST(ErrorKeys, AreThoseOfTheTable) {
  std::set<std::wstring> keys(zeb::ErrorKeys::All.begin(), zeb::ErrorKeys::All.end());
  EXPECT_EQ(keys.size(), zeb::ErrorKeys::All.size());
  std::set<std::wstring> expected;
  for (const auto& [key, failure] : kFailures) expected.insert(key);
  EXPECT_EQ(keys, expected);
}

TEST_P(ErrorCatalogue, HasEachKeyOnceWithItsFamilyAndNumber) {
  std::map<std::wstring, Failure> failures;
  for (const Message& message : m_messages) {
    EXPECT_TRUE(failures.emplace(message.key, message.failure).second) << testing::PrintToString(message.key);
  }
  EXPECT_EQ(failures, kFailures);
}

TEST_P(ErrorCatalogue, GivesNoNumberTwice) {
  std::set<int> numbers;
  for (const Message& message : m_messages) EXPECT_TRUE(numbers.insert(message.failure.number).second);
}

TEST_P(ErrorCatalogue, HasAMessageOfOneLineForEachKey) {
  std::set<std::wstring> texts;
  for (const Message& message : m_messages) {
    EXPECT_FALSE(message.text.empty());
    EXPECT_EQ(message.text.find(L'\n'), std::wstring::npos);
    EXPECT_TRUE(message.text.ends_with(L'.') || message.text.ends_with(L':'));
    EXPECT_TRUE(texts.insert(message.text).second) << testing::PrintToString(message.text);
  }
}

TEST_P(ErrorCatalogue, IsReadByTheHandler) {
  Handler handler;
  handler.SetExceptionPathName(zebtest::Widen(std::string(ZEB_SHARE) + GetParam()).c_str());
  for (const Message& message : m_messages) {
    try {
      handler.ThrowException(message.key.c_str());
      ADD_FAILURE() << "nothing thrown";
    } catch (const CKXException& exception) {
      EXPECT_EQ(exception.GetErrorNr(), message.failure.number);
      EXPECT_EQ(exception.GetErrorMessage(), message.text);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Languages, ErrorCatalogue, testing::Values("", "/en"),
                         [](const auto& language) { return language.index == 0 ? "German" : "English"; });
