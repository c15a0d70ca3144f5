#include "model/Text.h"

#include "model/Border.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using zebtest::LoadRecord;
using zebtest::SaveRecord;

constexpr const char* kHead = "<Text><TxID>0</TxID><Placeable><PlID>0</PlID></Placeable>";
constexpr const char* kFont = "<FontName>Helvetica</FontName><FontSize>12.0</FontSize>";

std::string DefaultWith(const std::string& tail) { return kHead + std::string(kFont) + tail + "</Text>"; }

TEST(Text, HasTheDefaults) {
  const CText text;
  EXPECT_STREQ(text.GetTextContent(), L"");
  EXPECT_STREQ(text.GetFontName(), L"Helvetica");
  EXPECT_STREQ(text.GetTextEncoding(), L"");
  EXPECT_EQ(text.GetFontSize(), 12.0F);
  EXPECT_FALSE(text.GetUnderline());
  EXPECT_FALSE(text.GetOverline());
  EXPECT_FALSE(text.GetStrikeout());
  EXPECT_EQ(text.GetOrientation(), 0);
  EXPECT_EQ(text.GetLineSpacing(), 12.0F);
  EXPECT_EQ(text.GetBold(), 400);
  EXPECT_FALSE(text.GetItalic());
}

TEST(Text, DefaultWritesIdentifiersAndFont) {
  CText text;
  EXPECT_EQ(SaveRecord(text), DefaultWith(""));
}

TEST(Text, WritesEveryFieldInItsOrderAndReadsItBack) {
  CText text;
  text.SetWidth(5.0F);
  text.SetTextContent(L" Gr\u00fc\u00dfe <&> \u0416 ");
  text.SetFontName(L"DejaVu Sans");
  text.SetFontSize(10.5F);
  text.SetUnderline(true);
  text.SetOverline(true);
  text.SetStrikeout(true);
  text.SetOrientation(static_cast<DOMOrientation>(3));
  text.SetLineSpacing(14.0F);
  text.SetTextEncoding(L"iso8859-15");
  text.SetBold(700);
  text.SetItalic(true);
  const std::string record = SaveRecord(text);
  EXPECT_EQ(record,
            "<Text><TxID>0</TxID><Placeable><PlID>0</PlID><Width>5.0</Width></Placeable>"
            "<TextContent> Gr\xC3\xBC\xC3\x9F"
            "e &lt;&amp;&gt; \xD0\x96 </TextContent>"
            "<FontName>DejaVu Sans</FontName><FontSize>10.5</FontSize><Underline>1</Underline>"
            "<Overline>1</Overline><Strikeout>1</Strikeout><Orientation>3</Orientation>"
            "<LineSpacing>14.0</LineSpacing><TextEncoding>iso8859-15</TextEncoding><Bold>700</Bold>"
            "<Italic>1</Italic></Text>");

  CText loaded;
  LoadRecord(loaded, record);
  EXPECT_EQ(loaded.GetWidth(), 5.0F);
  EXPECT_STREQ(loaded.GetTextContent(), text.GetTextContent());
  EXPECT_STREQ(loaded.GetFontName(), L"DejaVu Sans");
  EXPECT_EQ(loaded.GetFontSize(), 10.5F);
  EXPECT_TRUE(loaded.GetUnderline());
  EXPECT_TRUE(loaded.GetOverline());
  EXPECT_TRUE(loaded.GetStrikeout());
  EXPECT_EQ(loaded.GetOrientation(), 3);
  EXPECT_EQ(loaded.GetLineSpacing(), 14.0F);
  EXPECT_STREQ(loaded.GetTextEncoding(), L"iso8859-15");
  EXPECT_EQ(loaded.GetBold(), 700);
  EXPECT_TRUE(loaded.GetItalic());
}

TEST(Text, EachOptionIsWrittenAlone) {
  const auto saved = [](auto change) {
    CText text;
    change(text);
    return SaveRecord(text);
  };
  EXPECT_EQ(saved([](CText& text) { text.SetUnderline(true); }), DefaultWith("<Underline>1</Underline>"));
  EXPECT_EQ(saved([](CText& text) { text.SetOverline(true); }), DefaultWith("<Overline>1</Overline>"));
  EXPECT_EQ(saved([](CText& text) { text.SetStrikeout(true); }), DefaultWith("<Strikeout>1</Strikeout>"));
  EXPECT_EQ(saved([](CText& text) { text.SetOrientation(static_cast<DOMOrientation>(-1)); }),
            DefaultWith("<Orientation>-1</Orientation>"));
  EXPECT_EQ(saved([](CText& text) { text.SetTextEncoding(L"x"); }),
            DefaultWith("<TextEncoding>x</TextEncoding>"));
  EXPECT_EQ(saved([](CText& text) { text.SetItalic(true); }), DefaultWith("<Italic>1</Italic>"));
  EXPECT_EQ(saved([](CText& text) { text.SetFontName(L""); }),
            kHead + std::string("<FontName/><FontSize>12.0</FontSize></Text>"));
}

TEST(Text, BoldIsAWeightWrittenUnless400) {
  for (const auto& [weight, tail] :
       {std::pair{700, "<Bold>700</Bold>"}, std::pair{0, "<Bold>0</Bold>"}, std::pair{1, "<Bold>1</Bold>"},
        std::pair{-400, "<Bold>-400</Bold>"}, std::pair{400, ""}}) {
    CText text;
    text.SetBold(weight);
    const std::string record = SaveRecord(text);
    EXPECT_EQ(record, DefaultWith(tail));
    CText loaded;
    LoadRecord(loaded, record);
    EXPECT_EQ(loaded.GetBold(), weight);
  }
}

TEST(Text, FixedFontSizeSetsTheLineSpacing) {
  CText text;
  text.SetLineSpacing(14.0F);
  text.SetFontSize(10.0F);
  EXPECT_EQ(text.GetFontSize(), 10.0F);
  EXPECT_EQ(text.GetLineSpacing(), 10.0F);
  text.SetLineSpacing(14.0F);
  EXPECT_EQ(text.GetFontSize(), 10.0F);
  EXPECT_EQ(text.GetLineSpacing(), 14.0F);
}

TEST(Text, ReadingAFontSizeSetsTheLineSpacing) {
  CText text;
  text.SetLineSpacing(20.0F);
  LoadRecord(text, "<Text><TxID>0</TxID><FontSize>9</FontSize></Text>");
  EXPECT_EQ(text.GetFontSize(), 9.0F);
  EXPECT_EQ(text.GetLineSpacing(), 9.0F);
}

TEST(Text, ReadingALineSpacingWithoutAFontSize) {
  CText text;
  LoadRecord(text, "<Text><TxID>0</TxID><LineSpacing>20</LineSpacing></Text>");
  EXPECT_EQ(text.GetFontSize(), 12.0F);
  EXPECT_EQ(text.GetLineSpacing(), 20.0F);
}

TEST(Text, FixedLineSpacingIsComparedWithATolerance) {
  CText text;
  text.SetFontSize(10.0F);
  text.SetLineSpacing(10.000001F);
  ASSERT_NE(text.GetLineSpacing(), 10.0F);
  const std::string record = SaveRecord(text);
  EXPECT_EQ(record, kHead + std::string("<FontName>Helvetica</FontName><FontSize>10.0</FontSize></Text>"));
  CText loaded;
  LoadRecord(loaded, record);
  EXPECT_EQ(loaded.GetLineSpacing(), 10.0F);

  for (const float spacing : {10.00002F, 9.99998F}) {
    text.SetLineSpacing(spacing);
    EXPECT_NE(SaveRecord(text).find("<LineSpacing>"), std::string::npos) << spacing;
  }
  text.SetFontSize(0.0F);
  text.SetLineSpacing(0.000009F);
  EXPECT_EQ(SaveRecord(text).find("<LineSpacing>"), std::string::npos);
  text.SetLineSpacing(-0.000011F);
  EXPECT_NE(SaveRecord(text).find("<LineSpacing>"), std::string::npos);
}

TEST(Text, ReadingEndsAtAnElementOutOfOrder) {
  CText text;
  LoadRecord(
      text,
      "<Text><TxID>0</TxID><FontSize>9</FontSize><FontName>Courier</FontName><Italic>1</Italic></Text>");
  EXPECT_EQ(text.GetFontSize(), 9.0F);
  EXPECT_STREQ(text.GetFontName(), L"Helvetica");
  EXPECT_FALSE(text.GetItalic());
}

TEST(Text, EmptyRecordKeepsTheDefaults) {
  CText text;
  LoadRecord(text, "<Text/>");
  EXPECT_EQ(SaveRecord(text), DefaultWith(""));
}

TEST(Text, EmptyFontNameIsReadAsEmpty) {
  CText text;
  LoadRecord(text, "<Text><FontName/></Text>");
  EXPECT_STREQ(text.GetFontName(), L"");
}

TEST(Text, BindsItsIdentifiers) {
  CIDManager ids;
  CText text;
  LoadRecord(text, "<Text><TxID>4</TxID><Placeable><PlID>5</PlID></Placeable></Text>", ids);
  EXPECT_EQ(ids.GetObjectFromID(4), &text);
  EXPECT_EQ(ids.GetObjectFromID(5), &text);
  CText other;
  LoadRecord(other, "<Text><TxID>4</TxID></Text>", ids);
  EXPECT_EQ(ids.GetObjectFromID(4), &text);
}

TEST(Text, FixedCopySharesWhatTheBaseOwns) {
  CText source;
  source.SetTextContent(L"content");
  source.SetFontName(L"Courier");
  source.SetTextEncoding(L"winansi1252");
  source.SetFontSize(9.0F);
  source.SetLineSpacing(11.0F);
  source.SetBold(700);
  source.SetUnderline(true);
  source.SetBorder(new CBorder);
  const CText copy(source);
  CText assigned;
  assigned = source;
  for (const CText* text : {&copy, const_cast<const CText*>(&assigned)}) {
    EXPECT_STREQ(text->GetTextContent(), L"content");
    EXPECT_STREQ(text->GetFontName(), L"Courier");
    EXPECT_STREQ(text->GetTextEncoding(), L"winansi1252");
    EXPECT_EQ(text->GetFontSize(), 9.0F);
    EXPECT_EQ(text->GetLineSpacing(), 11.0F);
    EXPECT_EQ(text->GetBold(), 700);
    EXPECT_TRUE(text->GetUnderline());
    EXPECT_EQ(text->GetBorder(), source.GetBorder());
  }
  // The strings are copies; the border is one object, which the copy alone owns in the end.
  source = CText();
  assigned = CText();
  EXPECT_STREQ(copy.GetTextContent(), L"content");
}

}  // namespace
