#include "fonts/CIDMapping.h"

#include <gtest/gtest.h>

#include <climits>
#include <map>
#include <random>
#include <string>

namespace {

void Load(CIDMapping& mapping, std::string text) {
  mapping.LoadCMap(reinterpret_cast<unsigned char*>(text.data()), static_cast<int>(text.size()));
}

CIDMapping Loaded(const std::string& text) {
  CIDMapping mapping;
  Load(mapping, text);
  return mapping;
}

/// A CMap with one section of the kind ("cidrange", "bfchar", ...).
CIDMapping Section(const std::string& kind, const std::string& groups) {
  return Loaded("1 begin" + kind + "\n" + groups + "\nend" + kind + "\n");
}

TEST(CIDMapping, AnEmptyMappingAnswersMinusOne) {
  const CIDMapping mapping;
  EXPECT_EQ(mapping.GetCIDFromCode(0), -1);
  EXPECT_EQ(mapping.GetCodeFromCID(0), -1);
  EXPECT_STREQ(mapping.GetCMapName(), "");
  EXPECT_STREQ(mapping.GetRegistry(), "");
  EXPECT_STREQ(mapping.GetOrdering(), "");
  EXPECT_STREQ(mapping.GetUsedCMap(), "");
  EXPECT_EQ(mapping.GetWMode(), 0);
  EXPECT_EQ(mapping.GetCodeSpaceLow(), 0);
  EXPECT_EQ(mapping.GetCodeSpaceHigh(), 0);
}

TEST(CIDMapping, ARangeMapsItsEndsAndNothingBeside) {
  const CIDMapping mapping = Section("cidrange", "<00> <ff> 1");
  EXPECT_EQ(mapping.GetCIDFromCode(0), 1);
  EXPECT_EQ(mapping.GetCIDFromCode(0x80), 0x81);
  EXPECT_EQ(mapping.GetCIDFromCode(255), 256);
  EXPECT_EQ(mapping.GetCIDFromCode(256), -1);
  EXPECT_EQ(mapping.GetCIDFromCode(-1), -1);
  EXPECT_EQ(mapping.GetCodeFromCID(0), -1);
  EXPECT_EQ(mapping.GetCodeFromCID(1), 0);
  EXPECT_EQ(mapping.GetCodeFromCID(256), 255);
  EXPECT_EQ(mapping.GetCodeFromCID(257), -1);
}

TEST(CIDMapping, ReadsTheNamesOfARealHead) {
  const CIDMapping mapping = Loaded(R"(%!PS-Adobe-3.0 Resource-CMap
/CIDInit /ProcSet findresource begin
12 dict begin
begincmap
/GB-EUC-H usecmap
/CIDSystemInfo 3 dict dup begin
  /Registry (Adobe) def
  /Ordering (GB1) def
  /Supplement 0 def
end def
/CMapName /GB-EUC-V def
/CMapType 1 def
/WMode 1 def
1 begincodespacerange
  <A1A1> <FEFE>
endcodespacerange
2 begincidrange
<a1a2> <a1a2> 575
<a1a3> <a1a3> 574
endcidrange
endcmap
CMapName currentdict /CMap defineresource pop)");
  EXPECT_STREQ(mapping.GetCMapName(), "GB-EUC-V");
  EXPECT_STREQ(mapping.GetRegistry(), "Adobe");
  EXPECT_STREQ(mapping.GetOrdering(), "GB1");
  EXPECT_STREQ(mapping.GetUsedCMap(), "GB-EUC-H");
  EXPECT_EQ(mapping.GetWMode(), 1);
  EXPECT_EQ(mapping.GetCodeSpaceLow(), 0xA1A1);
  EXPECT_EQ(mapping.GetCodeSpaceHigh(), 0xFEFE);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA1A2), 575);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA1A3), 574);
  EXPECT_EQ(mapping.GetCodeFromCID(574), 0xA1A3);
}

TEST(CIDMapping, NamesOfAnotherFormAreNotStored) {
  EXPECT_STREQ(Loaded("/CMapName GB-EUC-H def").GetCMapName(), "");
  EXPECT_STREQ(Loaded("/Registry /Adobe def").GetRegistry(), "");
  EXPECT_STREQ(Loaded("/Ordering <00> def").GetOrdering(), "");
  EXPECT_STREQ(Loaded("/Registry (Adobe").GetRegistry(), "");
  EXPECT_STREQ(Loaded("/Registry (").GetRegistry(), "");
  EXPECT_STREQ(Loaded("/Registry () /Ordering (x)").GetRegistry(), "");
  EXPECT_STREQ(Loaded("GB-EUC-H usecmap").GetUsedCMap(), "");
}

TEST(CIDMapping, TheTokenBehindANameIsNotLookedAtAgain) {
  // `/Ordering` is the value of `/CMapName` here, so what follows is no ordering.
  const CIDMapping mapping = Loaded("/CMapName /Ordering (GB1)");
  EXPECT_STREQ(mapping.GetCMapName(), "Ordering");
  EXPECT_STREQ(mapping.GetOrdering(), "");
}

// The token behind an entry that was taken is a new previous one, and only a current one begins a section.
TEST(CIDMapping, FixedTheTokenBehindAnEntryBeginsNoSection) {
  const std::string section = " begincidrange <05> <05> 6 endcidrange";
  for (const char* head : {"/WMode 1", "/A usecmap", "/Registry (A)", "/Ordering (A)", "/CMapName /A"}) {
    EXPECT_EQ(Loaded(head + section).GetCIDFromCode(5), -1) << head;
    EXPECT_EQ(Loaded(head + (" x" + section)).GetCIDFromCode(5), 6) << head;
  }
  EXPECT_EQ(Loaded("/WMode /WMode 1").GetWMode(), 0);
}

TEST(CIDMapping, BfSectionsEndAtTheirEndWords) {
  EXPECT_EQ(Loaded("1 beginbfchar <05> <41> endbfchar x /WMode 1").GetWMode(), 1);
  EXPECT_EQ(Loaded("1 beginbfchar <05> <41> endbfchar x").GetCIDFromCode(5), 0x41);
  EXPECT_EQ(Loaded("1 beginbfrange <05> <05> <41> endbfrange x /WMode 1").GetWMode(), 1);
  EXPECT_EQ(Loaded("1 beginbfrange <05> <05> <41> endbfrange x").GetCIDFromCode(5), 0x41);
}

TEST(CIDMapping, FixedTheCIDOfARangeIsDecimalAlways) {
  EXPECT_EQ(Section("cidrange", "<00> <00> <41>").GetCIDFromCode(0), 0);
}

TEST(CIDMapping, ASectionWordBehindANameBeginsTheSection) {
  const CIDMapping mapping = Loaded("/CMapName begincidrange <00> <00> 7 endcidrange");
  EXPECT_STREQ(mapping.GetCMapName(), "");
  EXPECT_EQ(mapping.GetCIDFromCode(0), 7);
}

TEST(CIDMapping, FixedWModeTakesASectionWordAsItsValue) {
  const CIDMapping mapping = Loaded("/WMode begincidrange <00> <00> 7 endcidrange");
  EXPECT_EQ(mapping.GetWMode(), 0);
  EXPECT_EQ(mapping.GetCIDFromCode(0), -1);
}

TEST(CIDMapping, UsecmapComesBeforeWMode) {
  const CIDMapping mapping = Loaded("/WMode usecmap /WMode 1");
  EXPECT_STREQ(mapping.GetUsedCMap(), "WMode");
  EXPECT_EQ(mapping.GetWMode(), 1);
}

TEST(CIDMapping, WModeIsReadAsTheIntegerThatTheTokenBeginsWith) {
  EXPECT_EQ(Loaded("/WMode 1x").GetWMode(), 1);
  EXPECT_EQ(Loaded("/WMode -3").GetWMode(), -3);
  EXPECT_EQ(Loaded("/WMode +3").GetWMode(), 3);
  EXPECT_EQ(Loaded("/WMode x").GetWMode(), 0);
  EXPECT_EQ(Loaded("/WMode 99999999999").GetWMode(), INT_MAX);
  EXPECT_EQ(Loaded("/WMode -99999999999").GetWMode(), INT_MIN);
}

TEST(CIDMapping, AnIntegerHasOneSignAtMost) {
  EXPECT_EQ(Loaded("/WMode +-3").GetWMode(), 0);
  EXPECT_EQ(Loaded("/WMode -+3").GetWMode(), 0);
  EXPECT_EQ(Loaded("/WMode ++3").GetWMode(), 0);
  EXPECT_EQ(Section("cidrange", "<00> <00> +-3").GetCIDFromCode(0), 0);
}

// A vertical tab is white space to a number, but it does not separate tokens.
TEST(CIDMapping, AVerticalTabBeforeAnIntegerIsPassedOver) {
  EXPECT_EQ(Loaded("/WMode \v7").GetWMode(), 7);
  EXPECT_EQ(Loaded("/WMode \v\v-7").GetWMode(), -7);
  EXPECT_EQ(Section("cidrange", "<00> <00> \v7").GetCIDFromCode(0), 7);
}

TEST(CIDMapping, TokensOfUnequalLengthAreIgnored) {
  EXPECT_EQ(Section("cidrange", "<00> <00ff> 1").GetCIDFromCode(0), -1);
  EXPECT_EQ(Section("cidrange", "<00> <00ff> 1 <01> <01> 5").GetCIDFromCode(1), 5);
}

TEST(CIDMapping, HalfBytesAndEmptyCodesAreIgnored) {
  EXPECT_EQ(Section("cidrange", "<0> <0> 1").GetCIDFromCode(0), -1);
  EXPECT_EQ(Section("cidrange", "<> <> 1").GetCIDFromCode(0), -1);
  EXPECT_EQ(Section("cidrange", "<000> <000> 1").GetCIDFromCode(0), -1);
  EXPECT_EQ(Section("cidrange", "00 00 1").GetCIDFromCode(0), -1);
  EXPECT_EQ(Section("cidrange", "<00> 0000 1").GetCIDFromCode(0), -1);
}

TEST(CIDMapping, CodesOfOneToFourBytesAreRead) {
  const CIDMapping mapping =
      Section("cidrange", "<41> <41> 1 <8140> <8140> 2 <010203> <010203> 3 <0001F600> <0001F600> 4");
  EXPECT_EQ(mapping.GetCIDFromCode(0x41), 1);
  EXPECT_EQ(mapping.GetCIDFromCode(0x8140), 2);
  EXPECT_EQ(mapping.GetCIDFromCode(0x010203), 3);
  EXPECT_EQ(mapping.GetCIDFromCode(0x1F600), 4);
}

TEST(CIDMapping, HexadecimalDigitsAreOfEitherCase) {
  EXPECT_EQ(Section("cidrange", "<aBcD> <AbCd> 1").GetCIDFromCode(0xABCD), 1);
}

TEST(CIDMapping, HexadecimalValuesAreReadAsFarAsTheyGo) {
  EXPECT_EQ(Section("cidrange", "<4x> <4y> 9").GetCIDFromCode(4), 9);
  EXPECT_EQ(Section("cidrange", "<zz> <zz> 9").GetCIDFromCode(0), 9);
  EXPECT_EQ(Section("cidrange", "<  41> <  41> 9").GetCIDFromCode(0x41), 9);
  EXPECT_EQ(Section("cidrange", "<0x41> <0X41> 9").GetCIDFromCode(0x41), 9);
  EXPECT_EQ(Section("cidrange", "<-003> <-002> 9").GetCIDFromCode(-2), 10);
}

TEST(CIDMapping, OfMoreThanEightDigitsTheLastEightCount) {
  EXPECT_EQ(Section("cidrange", "<1234567800000041> <1234567800000041> 9").GetCIDFromCode(0x41), 9);
}

TEST(CIDMapping, TheLastCodeSpaceRangeRemains) {
  const CIDMapping mapping = Section("codespacerange", "<00> <80> <8140> <9FFC>");
  EXPECT_EQ(mapping.GetCodeSpaceLow(), 0x8140);
  EXPECT_EQ(mapping.GetCodeSpaceHigh(), 0x9FFC);
  EXPECT_EQ(mapping.GetCIDFromCode(0), -1);
}

TEST(CIDMapping, AFailedCodeSpaceGroupChangesNothing) {
  const CIDMapping mapping = Section("codespacerange", "<01> <80> <8140> <9F>");
  EXPECT_EQ(mapping.GetCodeSpaceLow(), 1);
  EXPECT_EQ(mapping.GetCodeSpaceHigh(), 0x80);
}

TEST(CIDMapping, BfRangesCountAsCidRanges) {
  const CIDMapping mapping = Section("bfrange", "<0001> <0003> <0020> <0010> <0011> 100");
  EXPECT_EQ(mapping.GetCIDFromCode(1), 0x20);
  EXPECT_EQ(mapping.GetCIDFromCode(3), 0x22);
  EXPECT_EQ(mapping.GetCIDFromCode(0x11), 101);
}

TEST(CIDMapping, FixedAnArrayInABfRangeCountsAsZeroAndItsContentAsGroups) {
  const CIDMapping mapping =
      Section("bfrange", "<0001> <0002> [ <0041> <0043> <0061> ] <0007> <0007> <0008> <0009>");
  EXPECT_EQ(mapping.GetCIDFromCode(1), 0);
  EXPECT_EQ(mapping.GetCIDFromCode(2), 1);
  EXPECT_EQ(mapping.GetCIDFromCode(0x41), 0x61);
  EXPECT_EQ(mapping.GetCIDFromCode(0x43), 0x63);
  // The closing bracket is the first token of a group that fails; what follows is out of step by one.
  EXPECT_EQ(mapping.GetCIDFromCode(7), -1);
}

TEST(CIDMapping, BfCharsMapSingleCodes) {
  const CIDMapping mapping = Section("bfchar", "<0005> <0041> <06> <42>");
  EXPECT_EQ(mapping.GetCIDFromCode(5), 0x41);
  EXPECT_EQ(mapping.GetCIDFromCode(6), 0x42);
  EXPECT_EQ(mapping.GetCodeFromCID(0x41), 5);
}

TEST(CIDMapping, FixedABfCharWithAValueOfAnotherLengthIsIgnored) {
  EXPECT_EQ(Section("bfchar", "<05> <0041>").GetCIDFromCode(5), -1);
  EXPECT_EQ(Section("bfchar", "<0005> <00660069>").GetCIDFromCode(5), -1);
}

TEST(CIDMapping, SectionsThatAreNotKnownAreNotRead) {
  EXPECT_EQ(Section("cidchar", "<05> 7").GetCIDFromCode(5), -1);
  EXPECT_EQ(Section("notdefrange", "<00> <1f> 7").GetCIDFromCode(5), -1);
}

TEST(CIDMapping, ASectionEndsAtItsOwnEndWordOnly) {
  const CIDMapping mapping =
      Loaded("1 begincidrange endbfrange <01> <01> 2 <03> <03> 4 endcidrange <05> <05> 6");
  // The foreign end word is the first token of a group, so the groups are out of step.
  EXPECT_EQ(mapping.GetCIDFromCode(1), -1);
  EXPECT_EQ(mapping.GetCIDFromCode(5), -1);
}

TEST(CIDMapping, TheEndWordEndsAGroupAtAnyOfItsTokens) {
  for (const char* cut : {"", "<01>", "<01> <01>"}) {
    const CIDMapping mapping = Loaded("1 begincidrange <00> <00> 3 " + std::string(cut) +
                                      " endcidrange 1 begincidrange <09> <09> 8 endcidrange");
    EXPECT_EQ(mapping.GetCIDFromCode(0), 3) << cut;
    EXPECT_EQ(mapping.GetCIDFromCode(1), -1) << cut;
    EXPECT_EQ(mapping.GetCIDFromCode(9), 8) << cut;
  }
}

TEST(CIDMapping, TheEndOfTheDataEndsASection) {
  EXPECT_EQ(Loaded("1 begincidrange <00> <00> 3").GetCIDFromCode(0), 3);
  EXPECT_EQ(Loaded("1 begincidrange <00> <00>").GetCIDFromCode(0), -1);
}

TEST(CIDMapping, FixedTheFirstTokenOfAllBeginsNoSection) {
  EXPECT_EQ(Loaded("begincidrange <00> <00> 3 endcidrange").GetCIDFromCode(0), -1);
}

TEST(CIDMapping, FixedTheTokenBehindASectionBeginsNoSection) {
  const CIDMapping mapping =
      Loaded("1 begincidrange <00> <00> 3 endcidrange begincidrange <01> <01> 4 endcidrange");
  EXPECT_EQ(mapping.GetCIDFromCode(0), 3);
  EXPECT_EQ(mapping.GetCIDFromCode(1), -1);
}

TEST(CIDMapping, TheFirstMappingOfACodeStays) {
  const CIDMapping mapping = Section("cidrange", "<10> <20> 100 <18> <28> 500");
  EXPECT_EQ(mapping.GetCIDFromCode(0x18), 108);
  EXPECT_EQ(mapping.GetCIDFromCode(0x20), 116);
  EXPECT_EQ(mapping.GetCIDFromCode(0x21), 509);
  EXPECT_EQ(mapping.GetCIDFromCode(0x28), 516);
  // The other direction by itself: the CIDs 500 to 508 have codes although these codes have other CIDs.
  EXPECT_EQ(mapping.GetCodeFromCID(500), 0x18);
  EXPECT_EQ(mapping.GetCodeFromCID(516), 0x28);
}

TEST(CIDMapping, OfTwoCodesWithOneCIDTheFirstReadIsAnswered) {
  const CIDMapping mapping = Section("cidrange", "<20> <20> 1 <10> <10> 1");
  EXPECT_EQ(mapping.GetCIDFromCode(0x10), 1);
  EXPECT_EQ(mapping.GetCIDFromCode(0x20), 1);
  EXPECT_EQ(mapping.GetCodeFromCID(1), 0x20);
}

TEST(CIDMapping, ARangeOverEarlierOnesFillsWhatIsLeft) {
  CIDMapping mapping;
  mapping.AddCIDs(10, 12, 100);
  mapping.AddCIDs(20, 20, 200);
  mapping.AddCIDs(5, 25, 1000);
  mapping.AddCIDs(0, 30, 5000);
  EXPECT_EQ(mapping.GetCIDFromCode(4), 5004);
  EXPECT_EQ(mapping.GetCIDFromCode(5), 1000);
  EXPECT_EQ(mapping.GetCIDFromCode(9), 1004);
  EXPECT_EQ(mapping.GetCIDFromCode(10), 100);
  EXPECT_EQ(mapping.GetCIDFromCode(12), 102);
  EXPECT_EQ(mapping.GetCIDFromCode(13), 1008);
  EXPECT_EQ(mapping.GetCIDFromCode(19), 1014);
  EXPECT_EQ(mapping.GetCIDFromCode(20), 200);
  EXPECT_EQ(mapping.GetCIDFromCode(21), 1016);
  EXPECT_EQ(mapping.GetCIDFromCode(25), 1020);
  EXPECT_EQ(mapping.GetCIDFromCode(26), 5026);
  EXPECT_EQ(mapping.GetCIDFromCode(30), 5030);
  EXPECT_EQ(mapping.GetCIDFromCode(31), -1);
}

TEST(CIDMapping, ACommentInsideASectionIsPassedOver) {
  const CIDMapping mapping = Section("cidrange", "<01> % a comment <07> <07> 8\n<02> 3");
  EXPECT_EQ(mapping.GetCIDFromCode(1), 3);
  EXPECT_EQ(mapping.GetCIDFromCode(2), 4);
  EXPECT_EQ(mapping.GetCIDFromCode(7), -1);
}

TEST(CIDMapping, Byte255EndsTheParse) {
  const CIDMapping mapping =
      Loaded("x begincidrange <01> <01> 2 \xff <03> <03> 4 endcidrange x /WMode 1 begincidrange <05> <05> 6");
  EXPECT_EQ(mapping.GetCIDFromCode(1), 2);
  EXPECT_EQ(mapping.GetCIDFromCode(3), -1);
  EXPECT_EQ(mapping.GetCIDFromCode(5), -1);
  EXPECT_EQ(mapping.GetWMode(), 0);
}

TEST(CIDMapping, FixedByte255InAStringOrACommentEndsTheParse) {
  EXPECT_EQ(Loaded("/Registry (A\xff) /WMode 1").GetWMode(), 0);
  EXPECT_EQ(Loaded("% \xff\n /WMode 1").GetWMode(), 0);
}

TEST(CIDMapping, LoadingAgainAdds) {
  CIDMapping mapping = Loaded("/CMapName /First x begincidrange <01> <02> 10 endcidrange");
  Load(mapping, "/CMapName /Second x begincidrange <02> <03> 20 endcidrange");
  EXPECT_STREQ(mapping.GetCMapName(), "Second");
  EXPECT_EQ(mapping.GetCIDFromCode(1), 10);
  EXPECT_EQ(mapping.GetCIDFromCode(2), 11);
  EXPECT_EQ(mapping.GetCIDFromCode(3), 21);
}

TEST(CIDMapping, NoDataChangesNothing) {
  CIDMapping mapping;
  unsigned char byte = 'x';
  mapping.LoadCMap(nullptr, 10);
  mapping.LoadCMap(&byte, 0);
  mapping.LoadCMap(&byte, -1);
  EXPECT_EQ(mapping.GetCIDFromCode(0), -1);
}

TEST(CIDMapping, AnInvertedRangeIsEmpty) {
  EXPECT_EQ(Section("cidrange", "<02> <01> 5").GetCIDFromCode(2), -1);
  EXPECT_EQ(Section("cidrange", "<02> <01> 5").GetCodeFromCID(5), -1);
}

TEST(CIDMapping, CopiesAreDeep) {
  const CIDMapping source = Loaded("/CMapName /A x begincidrange <01> <01> 10 endcidrange");
  CIDMapping copy(source);
  CIDMapping assigned;
  assigned = source;
  copy.AddCIDs(2, 2, 20);
  assigned.AddCIDs(3, 3, 30);
  EXPECT_EQ(source.GetCIDFromCode(2), -1);
  EXPECT_EQ(source.GetCIDFromCode(3), -1);
  EXPECT_EQ(copy.GetCIDFromCode(1), 10);
  EXPECT_EQ(copy.GetCodeFromCID(20), 2);
  EXPECT_EQ(assigned.GetCIDFromCode(1), 10);
  EXPECT_STREQ(copy.GetCMapName(), "A");
}

// An attack: two dozen bytes that ask for four thousand million entries.
TEST(CIDMapping, AHugeRangeTakesNoMemoryToSpeakOf) {
  const CIDMapping mapping = Section("cidrange", "<00000000> <7fffffff> 0 <80000000> <ffffffff> 5");
  EXPECT_EQ(mapping.GetCIDFromCode(INT_MAX), INT_MAX);
  EXPECT_EQ(mapping.GetCIDFromCode(INT_MIN), 5);
  EXPECT_EQ(mapping.GetCIDFromCode(-6), INT_MAX);
  EXPECT_EQ(mapping.GetCIDFromCode(-5), -1);
}

TEST(CIDMapping, WhatExceedsTheLargestIntegerIsLeftOut) {
  const CIDMapping mapping = Section("cidrange", "<00> <ff> 2147483646");
  EXPECT_EQ(mapping.GetCIDFromCode(0), INT_MAX - 1);
  EXPECT_EQ(mapping.GetCIDFromCode(1), INT_MAX);
  EXPECT_EQ(mapping.GetCIDFromCode(2), -1);
  EXPECT_EQ(mapping.GetCodeFromCID(INT_MAX), 1);
}

TEST(CIDMapping, RandomRangesGiveWhatSingleEntriesWouldGive) {
  std::mt19937 random(20);
  for (int round = 0; round < 50; ++round) {
    CIDMapping mapping;
    std::map<int, int> codeToCID;
    std::map<int, int> cidToCode;
    for (int i = 0; i < 20; ++i) {
      const int low = static_cast<int>(random() % 200);
      const int count = static_cast<int>(random() % 40);
      const int cid = static_cast<int>(random() % 200);
      mapping.AddCIDs(low, low + count - 1, cid);
      for (int k = 0; k < count; ++k) {
        codeToCID.emplace(low + k, cid + k);
        cidToCode.emplace(cid + k, low + k);
      }
    }
    for (int key = -1; key < 250; ++key) {
      ASSERT_EQ(mapping.GetCIDFromCode(key), codeToCID.contains(key) ? codeToCID[key] : -1) << round;
      ASSERT_EQ(mapping.GetCodeFromCID(key), cidToCode.contains(key) ? cidToCode[key] : -1) << round;
    }
  }
}

// An attack: every range covers all that came before; walking over it each time would take hours.
TEST(CIDMapping, RangesOverManyEarlierOnesTakeTheTimeOfTheirNumber) {
  CIDMapping mapping;
  for (int i = 0; i < 60000; ++i) mapping.AddCIDs(4 * i, 4 * i, i);
  for (int i = 0; i < 60000; ++i) mapping.AddCIDs(0, 240000 + i, 7);
  EXPECT_EQ(mapping.GetCIDFromCode(4), 1);
  EXPECT_EQ(mapping.GetCIDFromCode(5), 12);
  EXPECT_EQ(mapping.GetCIDFromCode(240001), 240008);
}

}  // namespace
