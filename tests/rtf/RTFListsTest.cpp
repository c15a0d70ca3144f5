#include "rtf/ParserProbe.h"
#include "rtf/RTFListLevelEntry.h"
#include "rtf/RTFListTableEntry.h"
#include "rtf/RecordingHandler.h"

#include <gtest/gtest.h>

#include <string>

// Lists, their levels and overrides. That each is freed once is for the memory checkers to see.
namespace {

using zebtest::RTFReading;

std::string Repeat(const std::string& text, int count) {
  std::string repeated;
  for (int index = 0; index < count; ++index) repeated += text;
  return repeated;
}

/// A document with one list (id 7), its override (number 1) and a body.
std::string Document(const std::string& list, const std::string& body) {
  return R"({\rtf1{\*\listtable{\list)" + list +
         R"(\listid7}}{\*\listoverridetable{\listoverride\listid7\ls1}})" + body + "}";
}

/// The list that the last run names; null if it names none.
CRTFListTableEntry* List(const RTFReading& reading) { return reading.Runs().back().m_Context.List; }
CRTFListLevelEntry* Level(const RTFReading& reading) { return reading.Runs().back().m_Context.Level; }

/// Reads one level with these keywords.
CRTFListLevelEntry LevelOf(const std::string& keywords) {
  const RTFReading reading(Document("{\\listlevel" + keywords + "}", R"(\ls1\ilvl0 x)"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_NE(Level(reading), nullptr);
  return Level(reading) != nullptr ? *Level(reading) : CRTFListLevelEntry();
}

TEST(RTFLists, AParagraphRefersToAListByItsOverride) {
  const RTFReading reading(Document(R"({\listlevel})", R"(a\par\ls1 b\par\ilvl0 c)"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Outline(), L"[a]P[b]P[c]");
  EXPECT_EQ(reading.Runs()[0].m_Context.List, nullptr);
  EXPECT_EQ(reading.Runs()[0].m_Context.Level, nullptr);
  ASSERT_NE(reading.Runs()[1].m_Context.List, nullptr);
  EXPECT_EQ(reading.Runs()[1].m_Context.List->GetListId(), 7);
  EXPECT_EQ(reading.Runs()[1].m_Context.Level, nullptr);
  EXPECT_EQ(reading.Runs()[2].m_Context.List, reading.Runs()[1].m_Context.List);
  EXPECT_EQ(reading.Runs()[2].m_Context.Level, List(reading)->GetListLevelEntryAt(0));
}

TEST(RTFLists, ReferencesEndWithTheirGroup) {
  const RTFReading reading(Document(R"({\listlevel})", R"({\ls1\ilvl0 a}b)"));
  EXPECT_NE(reading.Runs()[0].m_Context.List, nullptr);
  EXPECT_NE(reading.Runs()[0].m_Context.Level, nullptr);
  EXPECT_EQ(reading.Runs()[1].m_Context.List, nullptr);
  EXPECT_EQ(reading.Runs()[1].m_Context.Level, nullptr);
}

TEST(RTFLists, FixedAReferenceWithoutAnOverrideEndsTheReading) {
  EXPECT_EQ(RTFReading(R"({\rtf1\ls5 x})").Result(), 5);
  EXPECT_EQ(RTFReading(Document("", R"(\ls5 x)")).Result(), 5);
}

TEST(RTFLists, FixedAnOverrideWithoutAListEndsTheReading) {
  const RTFReading reading(
      R"({\rtf1{\*\listtable{\list\listid7}}{\*\listoverridetable{\listoverride\listid8\ls1}}a\par\ls1 x})");
  EXPECT_EQ(reading.Result(), 5);
  EXPECT_EQ(reading.Outline(), L"[a]P");
}

TEST(RTFLists, AReferenceElsewhereDoesNothing) {
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\bkmkstart\ls5 x}{\listtext\ls5}{\pict\ls5}{\*\listtable\ls5}})").Result(),
            0);
}

TEST(RTFLists, TheFirstEntryOfANumberIsFound) {
  const RTFReading reading(
      R"({\rtf1{\*\listtable{\list\listhybrid\listid1}{\list\listsimple\listid2}{\list\listhybrid\listid2}})"
      R"({\*\listoverridetable{\listoverride\listid2\ls1}{\listoverride\listid1\ls1}}\ls1 x})");
  ASSERT_NE(List(reading), nullptr);
  EXPECT_EQ(List(reading)->GetListId(), 2);
  EXPECT_EQ(List(reading)->GetLevelCount(), 1);
}

TEST(RTFLists, FixedIlvl9DoesNothing) {
  const RTFReading reading(Document(Repeat(R"({\listlevel})", 9), R"(\ls1\ilvl8\ilvl9 x)"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Level(reading), List(reading)->GetListLevelEntryAt(8));
}

TEST(RTFLists, IlvlNeedsAList) {
  const RTFReading reading(Document(R"({\listlevel})", R"(\ilvl0 x)"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(Level(reading), nullptr);
}

TEST(RTFLists, ALevelThatIsNotThereIsNone) {
  const RTFReading reading(Document(R"({\listlevel})", R"(\ls1\ilvl0\ilvl5 x)"));
  EXPECT_EQ(Level(reading), nullptr);
}

TEST(RTFLists, CountsLevelsAsTheKeywordsSay) {
  EXPECT_EQ(List(RTFReading(Document(R"({\listlevel})", R"(\ls1 x)")))->GetLevelCount(), 1);
}

TEST(RTFLists, HybridListsHaveNineLevelsAndSimpleOnesOne) {
  {
    const RTFReading reading(Document(R"(\listhybrid)", R"(\ls1 x)"));
    EXPECT_EQ(List(reading)->GetLevelCount(), 9);
  }
  const RTFReading reading(Document(R"(\listhybrid\listsimple0)", R"(\ls1 x)"));
  EXPECT_EQ(List(reading)->GetLevelCount(), 1);
}

TEST(RTFLists, ATenthLevelIsRefused) {
  const RTFReading reading(
      Document(Repeat(R"({\listlevel\levelnfc1})", 9) + R"({\listlevel\levelnfc2})", R"(\ls1 x)"));
  EXPECT_EQ(reading.Result(), 0);
  for (int index = 0; index < 9; ++index) {
    ASSERT_NE(List(reading)->GetListLevelEntryAt(index), nullptr);
    EXPECT_EQ(List(reading)->GetListLevelEntryAt(index)->GetLevelnfc(), 1);
  }
}

TEST(RTFLists, EveryLevelKeywordSetsItsValue) {
  EXPECT_EQ(LevelOf("").GetLevelnfc(), 0);
  EXPECT_EQ(LevelOf(R"(\levelnfc23)").GetLevelnfc(), 23);
  EXPECT_EQ(LevelOf(R"(\levelnfcn4)").GetLevelnfc(), 4);
  EXPECT_EQ(LevelOf(R"(\levelnfc4\levelnfcn)").GetLevelnfc(), 0);
  EXPECT_EQ(LevelOf(R"(\levelnfc258)").GetLevelnfc(), 2);
  EXPECT_EQ(LevelOf(R"(\leveljc2)").GetLeveljc(), 2);
  EXPECT_EQ(LevelOf(R"(\levelfollow1)").GetLevelfollow(), 1);
  EXPECT_EQ(LevelOf(R"(\levelstartat65535)").GetLevelstartat(), 65535);
  EXPECT_EQ(LevelOf(R"(\levelstartat65537)").GetLevelstartat(), 1);
  EXPECT_EQ(LevelOf(R"(\levelspace360)").GetLevelspace(), 360);
  EXPECT_EQ(LevelOf(R"(\levelindent720)").GetLevelindent(), 720);
}

TEST(RTFLists, FixedLeveljcnIsUnknown) {
  EXPECT_EQ(LevelOf(R"(\leveljc1\leveljcn2)").GetLeveljc(), 1);
  EXPECT_EQ(LevelOf(R"(\leveljc1\leveljcn2)").GetLevelnfc(), 0);
}

TEST(RTFLists, ALevelTakesTheFormattingOfItsGroup) {
  const CRTFListLevelEntry level = LevelOf(R"(\b\fs30\li720\fi360\jclisttab\tx720)");
  EXPECT_EQ(level.GetCharProps().Bold, 1);
  EXPECT_EQ(level.GetCharProps().FontSize, 30);
  EXPECT_EQ(level.GetParProps().LeftIndent, 720);
  EXPECT_EQ(level.GetParProps().FirstIndent, 360);
  EXPECT_EQ(level.GetParProps().TabCount, 1);
}

TEST(RTFLists, FixedPlainLevelTextsStayEmpty) {
  const CRTFListLevelEntry level = LevelOf(R"({\leveltext\'02\'00.;}{\levelnumbers\'01;})");
  EXPECT_STREQ(level.GetLeveltext(), L"");
  EXPECT_STREQ(level.GetLevelnumbers(), L"");
}

TEST(RTFLists, FixedUnicodeOfALevelTextIsKept) {
  const CRTFListLevelEntry level = LevelOf(R"({\leveltext\'01\u8226 x;}{\levelnumbers\u65?;})");
  EXPECT_STREQ(level.GetLeveltext(), L"\x2022");
  EXPECT_STREQ(level.GetLevelnumbers(), L"A");
}

TEST(RTFLists, LevelTextsBelongIntoALevel) {
  const RTFReading reading(R"({\rtf1{\leveltext a}{\levelnumbers b}c})");
  EXPECT_EQ(reading.Text(), L"abc");
}

TEST(RTFLists, ListKeywordsMeanNothingElsewhere) {
  for (const char* const keyword :
       {"list", "listsimple", "listhybrid", "listid7", "levelnfc1", "levelnfcn1", "leveljc1", "levelfollow1",
        "levelstartat1", "levelspace1", "levelindent1", "listoverride", "listoverridecount1", "ilvl1",
        "listname", "listoverrideformat"}) {
    const RTFReading reading(std::string("{\\rtf1\\") + keyword + " x{\\*\\bkmkstart\\" + keyword + " y}}");
    EXPECT_EQ(reading.Result(), 0) << keyword;
    EXPECT_EQ(reading.Outline(), L"[x]") << keyword;
    EXPECT_EQ(List(reading), nullptr) << keyword;
    EXPECT_EQ(Level(reading), nullptr) << keyword;
  }
}

TEST(RTFLists, KeywordsMeanNothingInTheOtherTables) {
  const RTFReading reading(
      R"({\rtf1{\*\listtable{\list{\listlevel\levelnfc1\listid9\listhybrid\ls4\ilvl3\listoverridecount5\list})"
      R"(\levelnfc5\ls4\ilvl2\listoverridecount6\listoverride\listid7}}{\*\listoverridetable{\listoverride)"
      R"(\listid7\ls1\listhybrid\listsimple\levelnfc3\ilvl1\list}}\ls1\ilvl0 x})");
  EXPECT_EQ(reading.Result(), 0);
  ASSERT_NE(List(reading), nullptr);
  EXPECT_EQ(List(reading)->GetListId(), 7);
  EXPECT_EQ(List(reading)->GetLevelCount(), 1);
  EXPECT_EQ(List(reading)->GetLs(), 0);
  ASSERT_NE(Level(reading), nullptr);
  EXPECT_EQ(Level(reading)->GetLevelnfc(), 1);
}

TEST(RTFLists, OverrideKeywordsSetTheOverride) {
  zebtest::ParserProbe probe(
      R"({\*\listoverridetable{\listoverride\listid7\listoverridecount3\ls4}{\listoverride\listid8}})");
  EXPECT_EQ(probe.RtfParse(), 0);
  ASSERT_EQ(probe.m_ListOverrides.size(), 2U);
  EXPECT_EQ(probe.m_ListOverrides[0]->GetListId(), 7);
  EXPECT_EQ(probe.m_ListOverrides[0]->GetLevelCount(), 3);
  EXPECT_EQ(probe.m_ListOverrides[0]->GetLs(), 4);
  EXPECT_EQ(probe.m_ListOverrides[1]->GetListId(), 8);
  EXPECT_EQ(probe.m_ListOverrides[1]->GetLevelCount(), 1);
  EXPECT_EQ(probe.m_ListOverrides[1]->GetLs(), 0);
  EXPECT_TRUE(probe.m_Lists.empty());
}

// The search leaves the list that it looked at last as the current one.
TEST(RTFLists, FixedAReferenceWithoutAListTakesTheLastOne) {
  zebtest::ParserProbe probe(R"({\rtf1{\*\listtable{\list\listid1}{\list\listid2}})"
                             R"({\*\listoverridetable{\listoverride\listid3\ls1}}\ls1 x})");
  EXPECT_EQ(probe.RtfParse(), 5);
  ASSERT_EQ(probe.m_Lists.size(), 2U);
  EXPECT_EQ(probe.m_pCurList, probe.m_Lists[1]);
}

TEST(RTFLists, TableKeywordsNeedAList) {
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\listtable\listsimple\listhybrid\listid1})"
                       R"({\*\listoverridetable\listid1\listoverridecount3\ls1}})")
                .Result(),
            0);
  EXPECT_EQ(RTFReading(R"({\rtf1{\listlevel\levelnfc1{\leveltext\u65?}}x})").Result(), 0);
}

TEST(RTFLists, FixedListoverridestartatEndsTheReading) {
  EXPECT_EQ(
      RTFReading(R"({\rtf1{\*\listoverridetable{\listoverride{\lfolevel\listoverridestartat}}}})").Result(),
      5);
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\unknown\listoverridestartat}})").Result(), 0);
}

// The keyword of a following list, the end of the table: both put the current list into the table.
TEST(RTFLists, FixedListsEnterTheTableWithTheNextOrTheTablesEnd) {
  const RTFReading reading(
      R"({\rtf1{\*\listtable\list\listid1\list\listid2}{\*\listoverridetable\listoverride\listid1\ls1)"
      R"(\listoverride\listid2\ls2}\ls1 a\par\ls2 b})");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Runs()[0].m_Context.List->GetListId(), 1);
  EXPECT_EQ(reading.Runs()[1].m_Context.List->GetListId(), 2);
}

// Inside of a body group the current list is one of the table already, and is put there once more.
TEST(RTFLists, TakesAListThatIsInTheTableTwice) {
  const RTFReading reading(Document(
      R"({\listlevel})",
      R"(\ls1{\*\listtable{\list{\listlevel}\listid8}}{\*\listoverridetable{\listoverride\listid8\ls2}})"
      R"(\ls2 x)"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(List(reading)->GetListId(), 8);
}

TEST(RTFLists, TakesALevelThatIsInTwoSlots) {
  const RTFReading reading(R"({\rtf1{\*\listtable\list\listhybrid\listid1{\listlevel\levelnfc1)"
                           R"({\listtable{\listlevel\levelnfc2}}}})"
                           R"({\*\listoverridetable\listoverride\listid1\ls1}\ls1 x})");
  EXPECT_EQ(reading.Result(), 0);
  ASSERT_NE(List(reading), nullptr);
  ASSERT_NE(List(reading)->GetListLevelEntryAt(0), nullptr);
  EXPECT_EQ(List(reading)->GetListLevelEntryAt(0)->GetLevelnfc(), 2);
  EXPECT_EQ(List(reading)->GetListLevelEntryAt(1), List(reading)->GetListLevelEntryAt(0));
}

TEST(RTFLists, TakesLevelsAndListsThatBelongNowhere) {
  for (const char* const body :
       {R"({\listlevel})", R"({\listlevel{\listlevel}})", R"(\listlevel\listlevel x)",
        R"({\*\listtable\list\pict})", R"({\*\listtable\list{\*\listoverridetable\listoverride}})",
        R"({\*\listoverridetable{\listlevel}})",
        R"({\*\listtable\list{\listlevel{\leveltext\listlevel}}})"}) {
    EXPECT_EQ(RTFReading(std::string("{\\rtf1 ") + body + "}").Result(), 0) << body;
  }
  EXPECT_EQ(RTFReading(R"({\rtf1{\*\listtable{\list{\listlevel{\leveltext)").Result(), 3);
}

TEST(RTFLists, ChangesTheNumberOfAListThatIsInTheTable) {
  const RTFReading reading(
      Document("", R"(\ls1{\*\listtable\listid9}{\*\listoverridetable{\listoverride\listid9\ls2}}\ls2 x)"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(List(reading)->GetListId(), 9);
  EXPECT_EQ(RTFReading(Document("", R"(\ls1{\*\listtable\listid9}\ls1 x)")).Result(), 5);
}

/// The list text of level 0 after a paragraph with it.
std::wstring ListText(const std::string& follow, const std::string& text) {
  const RTFReading reading(
      Document("{\\listlevel\\levelfollow" + follow + "}", "{\\ls1\\ilvl0{\\listtext\\f3 " + text + "}x}"));
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(reading.Text(), L"x");
  if (Level(reading) == nullptr) return L"no level";
  EXPECT_EQ(Level(reading)->GetFontListText().FontId, 3);
  return Level(reading)->GetListText();
}

TEST(RTFLists, KeepsTheListTextWithWhatFollowsIt) {
  EXPECT_EQ(ListText("0", "1."), L"1.\t");
  EXPECT_EQ(ListText("0", R"(1.\tab)"), L"1.\t");
  EXPECT_EQ(ListText("0", ""), L"");
  EXPECT_EQ(ListText("1", "1."), L"1. ");
  EXPECT_EQ(ListText("1", "1. "), L"1. ");
  EXPECT_EQ(ListText("1", ""), L"");
  EXPECT_EQ(ListText("2", "1."), L"1.");
  EXPECT_EQ(ListText("0", R"(\u8226?)"), L"\x2022\t");
}

TEST(RTFLists, AListTextWithoutALevelIsDropped) {
  const RTFReading reading(
      Document(R"({\listlevel\levelfollow2})", R"({\listtext 1.}\ls1\ilvl0{\listtext 2.}x)"));
  EXPECT_EQ(reading.Text(), L"x");
  EXPECT_STREQ(Level(reading)->GetListText(), L"2.");
}

TEST(RTFLists, AListTextEndsItsFontWithItsGroup) {
  const RTFReading reading(Document(R"({\listlevel})", R"(\ls1\ilvl0{\listtext\f3\b 1.}x)"));
  EXPECT_EQ(reading.Outline(), L"[x]");
  EXPECT_EQ(reading.Runs()[0].m_State.FontProps.FontId, 0);
}

// Thousands of lists and as many references: no reference walks through the tables.
TEST(RTFLists, TakesListTablesOfAnySize) {
  constexpr int kLists = 20000;
  std::string lists;
  std::string overrides;
  std::string body;
  for (int id = 0; id < kLists; ++id) {
    const std::string number = std::to_string(id);
    lists += "\\list\\listid" + number;
    overrides += "\\listoverride\\listid" + number + "\\ls" + number;
    body += "\\ls" + std::to_string(kLists - 1 - id % 10) + " x";
  }
  const RTFReading reading("{\\rtf1{\\*\\listtable" + lists + "}{\\*\\listoverridetable" + overrides + "}" +
                           body + "}");
  EXPECT_EQ(reading.Result(), 0);
  EXPECT_EQ(List(reading)->GetListId(), kLists - 10);
}

}  // namespace
