#include "foundation/RecordWriter.h"

#include "foundation/ValueConversion.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace {

using zeb::RecordWriter;
using zebtest::DocumentPointer;

/// What an action writes into a record `R`, without the declaration.
template <class Action>
std::string Written(Action action) {
  const CSetLocaleSwitch locale;
  const DocumentPointer document = zebtest::NewDocument();
  RecordWriter writer(document->CreateRootNode(L"R"));
  action(writer);
  const std::string text = zebtest::SavedText(*document);
  return text.substr(text.find('\n') + 1);
}

TEST(RecordWriter, AppendsFieldsInTheOrderOfTheCalls) {
  EXPECT_EQ(Written([](RecordWriter& writer) {
              writer.Write(L"B", std::wstring(L" b "));
              writer.Write(L"A", L"a");
              writer.Write(L"N", -12);
              writer.Write(L"F", 12.0F);
              writer.Write(L"G", 0.25F);
              writer.Write(L"Y", true);
              writer.Write(L"Z", false);
              writer.Write(L"A", L"");
            }),
            "<R>\n  <B> b </B>\n  <A>a</A>\n  <N>-12</N>\n  <F>12.0</F>\n  <G>0.25</G>\n  <Y>1</Y>\n  "
            "<Z>0</Z>\n  <A/>\n</R>\n");
}

TEST(RecordWriter, LeavesDefaultsOut) {
  EXPECT_EQ(Written([](RecordWriter& writer) {
              writer.WriteUnless(L"A", 1, 1);
              writer.WriteUnless(L"B", 2, 1);
              writer.WriteUnless(L"C", 1.5F, 1.5F);
              writer.WriteUnless(L"D", 1.5F, 0.0F);
              writer.WriteUnless(L"E", true, true);
              writer.WriteUnless(L"F", true, false);
              writer.WriteUnlessEmpty(L"G", L"");
              writer.WriteUnlessEmpty(L"H", L" ");
            }),
            "<R>\n  <B>2</B>\n  <D>1.5</D>\n  <F>1</F>\n  <H> </H>\n</R>\n");
}

TEST(RecordWriter, FixedFloatsAreComparedExactly) {
  EXPECT_EQ(Written([](RecordWriter& writer) {
              writer.WriteUnless(L"A", 1.0F + std::numeric_limits<float>::epsilon(), 1.0F);
              writer.WriteUnless(L"B", -0.0F, 0.0F);
            }),
            "<R>\n  <A>1.0</A>\n</R>\n");
}

TEST(RecordWriter, AddsElementsForMembersAndRecords) {
  EXPECT_EQ(Written([](RecordWriter& writer) {
              RecordWriter inner(writer.Node(), L"Inner");
              inner.Write(L"A", 1);
              writer.Add(L"Empty");
              EXPECT_STREQ(inner.Node()->GetNodeName(), L"Inner");
            }),
            "<R>\n  <Inner>\n    <A>1</A>\n  </Inner>\n  <Empty/>\n</R>\n");
}

TEST(RecordWriter, WritesTheExtremesOfNumbers) {
  EXPECT_EQ(Written([](RecordWriter& writer) {
              writer.Write(L"A", std::numeric_limits<int>::min());
              writer.Write(L"B", std::numeric_limits<float>::max());
            }),
            "<R>\n  <A>-2147483648</A>\n  <B>340282346638528859811704183484516925440.0</B>\n</R>\n");
}

}  // namespace
