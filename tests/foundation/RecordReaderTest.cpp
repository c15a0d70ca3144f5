#include "foundation/RecordReader.h"

#include "foundation/IDManager.h"
#include "foundation/ValueConversion.h"
#include "support/XMLText.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

namespace {

using zeb::RecordReader;
using zebtest::DocumentPointer;
using zebtest::LoadText;

/// A record with one field of each kind and a repeated one, in the order of reading.
struct Sample {
  std::wstring Text = L"default";
  int Number = -7;
  float Length = 0.5F;
  bool Flag = true;
  std::vector<int> Numbers;
  std::wstring Last = L"last";

  void Load(zebxmln::CXMLNode* node) {
    RecordReader reader(node);
    reader.Read(L"Text", Text);
    reader.Read(L"Number", Number);
    reader.StepOver(L"Retired");
    reader.Read(L"Length", Length);
    reader.Read(L"Flag", Flag);
    for (int number = 0; reader.Read(L"Item", number);) Numbers.push_back(number);
    reader.Read(L"Last", Last);
  }
};

Sample Load(std::string_view text) {
  const DocumentPointer document = LoadText(text);
  Sample sample;
  sample.Load(document->GetRootNode());
  return sample;
}

TEST(RecordReader, ReadsAllFieldsInTheirOrder) {
  const CSetLocaleSwitch locale;
  const Sample sample = Load(
      "<R><Text> a </Text><Number>12</Number><Retired>x</Retired><Length>2.5</Length><Flag>0</Flag>"
      "<Item>1</Item><Item>2</Item><Last>z</Last></R>");
  EXPECT_EQ(sample.Text, L" a ");
  EXPECT_EQ(sample.Number, 12);
  EXPECT_EQ(sample.Length, 2.5F);
  EXPECT_FALSE(sample.Flag);
  EXPECT_EQ(sample.Numbers, (std::vector<int>{1, 2}));
  EXPECT_EQ(sample.Last, L"z");
}

TEST(RecordReader, ARecordWithoutChildrenKeepsAllDefaults) {
  for (const char* text : {"<R/>", "<R></R>", "<R>text</R>"}) {
    const Sample sample = Load(text);
    EXPECT_EQ(sample.Text, L"default");
    EXPECT_EQ(sample.Number, -7);
    EXPECT_EQ(sample.Length, 0.5F);
    EXPECT_TRUE(sample.Flag);
    EXPECT_TRUE(sample.Numbers.empty());
    EXPECT_EQ(sample.Last, L"last");
  }
}

TEST(RecordReader, AnAbsentFieldKeepsItsDefaultAndTheOthersAreRead) {
  const Sample sample = Load("<R><Number>3</Number><Item>4</Item></R>");
  EXPECT_EQ(sample.Text, L"default");
  EXPECT_EQ(sample.Number, 3);
  EXPECT_EQ(sample.Numbers, (std::vector<int>{4}));
  EXPECT_EQ(sample.Last, L"last");
}

TEST(RecordReader, FixedAnElementOutOfItsPlaceEndsTheMatchingInSilence) {
  const Sample sample = Load("<R><Number>3</Number><Text>late</Text><Flag>0</Flag><Last>z</Last></R>");
  EXPECT_EQ(sample.Number, 3);
  EXPECT_EQ(sample.Text, L"default");
  EXPECT_TRUE(sample.Flag);
  EXPECT_EQ(sample.Last, L"last");
}

TEST(RecordReader, FixedAnUnknownElementInARepeatedListEndsIt) {
  const Sample sample = Load("<R><Item>1</Item><Other/><Item>2</Item><Last>z</Last></R>");
  EXPECT_EQ(sample.Numbers, (std::vector<int>{1}));
  EXPECT_EQ(sample.Last, L"last");
}

TEST(RecordReader, FixedARetiredElementIsSteppedOverWhereItStood) {
  EXPECT_FALSE(Load("<R><Retired/><Flag>0</Flag></R>").Flag);
  EXPECT_FALSE(Load("<R><Flag>0</Flag><Retired/></R>").Flag);
  EXPECT_EQ(Load("<R><Flag>0</Flag><Retired/><Last>z</Last></R>").Last, L"last");
}

TEST(RecordReader, NamesAreCaseSensitiveAndExact) {
  EXPECT_EQ(Load("<R><number>3</number></R>").Number, -7);
  EXPECT_EQ(Load("<R><Numbers>3</Numbers></R>").Number, -7);
  EXPECT_EQ(Load("<R><Numbe>3</Numbe></R>").Number, -7);
}

TEST(RecordReader, TextThatIsNoNumberReadsAsZero) {
  const Sample sample = Load("<R><Number>x</Number><Length>x</Length><Flag>true</Flag><Item/></R>");
  EXPECT_EQ(sample.Number, 0);
  EXPECT_EQ(sample.Length, 0.0F);
  EXPECT_FALSE(sample.Flag);
  EXPECT_EQ(sample.Numbers, (std::vector<int>{0}));
}

TEST(RecordReader, ReadsNumbersAsTheConversionsDo) {
  const std::array<const char*, 14> texts = {"12",
                                             " 12",
                                             "+3",
                                             "-4x",
                                             "12abc",
                                             "0x10",
                                             "99999999999",
                                             "-99999999999",
                                             "\xC2\xA0"
                                             "1",
                                             "1e3",
                                             " 1.5e-3 tail",
                                             "inf",
                                             "1,5",
                                             "\t\n7"};
  for (const char* text : texts) {
    const DocumentPointer document = LoadText("<R><N>" + std::string(text) + "</N></R>");
    const wchar_t* wide = document->GetRootNode()->GetFirstChildNode()->GetNodeText();
    const DocumentPointer fresh = LoadText("<R><N>" + std::string(text) + "</N></R>");
    int number = 1;
    EXPECT_TRUE(RecordReader(fresh->GetRootNode()).Read(L"N", number));
    EXPECT_EQ(number, StringToInt(wide)) << text;
    float length = 1;
    EXPECT_TRUE(RecordReader(fresh->GetRootNode()).Read(L"N", length));
    EXPECT_EQ(length, StringToFloat(wide)) << text;
    bool flag = true;
    EXPECT_TRUE(RecordReader(fresh->GetRootNode()).Read(L"N", flag));
    EXPECT_EQ(flag, StringToBool(wide)) << text;
  }
}

TEST(RecordReader, ReadsLongNumbers) {
  const std::string zeros(1000, '0');
  const DocumentPointer document = LoadText("<R><N>" + zeros + "12</N><N>" + zeros + "1.5</N></R>");
  RecordReader reader(document->GetRootNode());
  int number = 0;
  float length = 0;
  EXPECT_TRUE(reader.Read(L"N", number));
  EXPECT_TRUE(reader.Read(L"N", length));
  EXPECT_EQ(number, 12);
  EXPECT_EQ(length, 1.5F);
}

TEST(RecordReader, MovesItsCursorByHand) {
  const DocumentPointer document = LoadText("<R><A/><B/></R>");
  RecordReader reader(document->GetRootNode());
  EXPECT_FALSE(reader.AtEnd());
  EXPECT_TRUE(reader.Is(L"A"));
  EXPECT_FALSE(reader.Is(L"B"));
  EXPECT_EQ(reader.Take(L"B"), nullptr);
  EXPECT_STREQ(reader.Current()->GetNodeName(), L"A");
  reader.Next();
  EXPECT_STREQ(reader.Take(L"B")->GetNodeName(), L"B");
  EXPECT_TRUE(reader.AtEnd());
  EXPECT_EQ(reader.Current(), nullptr);
  EXPECT_FALSE(reader.Is(L"B"));
  EXPECT_EQ(reader.Take(L"B"), nullptr);
  reader.Next();
  reader.StepOver(L"B");
  EXPECT_TRUE(reader.AtEnd());
}

/// An object of two records: the reference that makes it, and its data, in any order.
struct Thing {
  int Value = 0;

  static Thing* Resolve(zebxmln::CXMLNode* reference, CIDManager& ids,
                        std::vector<std::unique_ptr<Thing>>& made) {
    const int id = StringToInt(reference->GetNodeText());
    if (void* known = ids.GetObjectFromID(id)) return static_cast<Thing*>(known);
    made.push_back(std::make_unique<Thing>());
    ids.SetObjectWithID(id, made.back().get());
    return made.back().get();
  }
};

TEST(RecordReader, ReferenceAndDataMeetInOneObjectInBothOrders) {
  for (const char* text :
       {"<R><ThingID>5</ThingID><Thing><ThingID>5</ThingID><Value>9</Value></Thing></R>",
        "<R><Thing><ThingID>5</ThingID><Value>9</Value></Thing><ThingID>5</ThingID></R>"}) {
    const DocumentPointer document = LoadText(text);
    CIDManager ids;
    std::vector<std::unique_ptr<Thing>> made;
    Thing* referred = nullptr;
    for (RecordReader reader(document->GetRootNode()); !reader.AtEnd(); reader.Next()) {
      if (reader.Is(L"ThingID")) {
        referred = Thing::Resolve(reader.Current(), ids, made);
      } else {
        RecordReader record(reader.Current());
        Thing* thing = Thing::Resolve(record.Take(L"ThingID"), ids, made);
        record.Read(L"Value", thing->Value);
      }
    }
    ASSERT_EQ(made.size(), 1U);
    ASSERT_NE(referred, nullptr);
    EXPECT_EQ(referred->Value, 9);
  }
}

TEST(RecordReader, AnIdentifierThatIsNoNumberIsIdentifierZero) {
  const DocumentPointer document = LoadText("<R><ThingID>abc</ThingID></R>");
  CIDManager ids;
  std::vector<std::unique_ptr<Thing>> made;
  Thing* thing = Thing::Resolve(document->GetRootNode()->GetFirstChildNode(), ids, made);
  EXPECT_EQ(ids.GetObjectFromID(0), thing);
}

}  // namespace
