#include "rtf/RTFKeywordTable.h"

#include "rtf/ParserProbe.h"
#include "rtf/RTFParser.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Parser = CRTFParser;
using zebtest::ParserProbe;

struct Expected {
  std::string m_strKeyword;
  int m_iDefault = 0;
  int m_iPassDefault = 0;
  int m_iKind = 0;
  int m_iIndex = 0;
};

std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

constexpr const char* kSkipped =
    "author buptim comment creatim doccomm footer footerf footerl footerr footnote ftncn ftnsep ftnsepc "
    "header "
    "headerf headerl headerr info keywords operator printim private1 revtim rxe subject tc title txe xe";

// Destinations by IDEST; those of number 1 are skipped whole.
const char* const kDestinations[] = {
    "pict",     kSkipped,    "fonttbl",   "",          "stylesheet",   "",
    "colortbl", "pn",        "bkmkstart", "bkmkend",   "pntext",       "pntxtb",
    "pntxta",   "listtable", "listlevel", "leveltext", "levelnumbers", "listoverridetable",
    "listtext",
};

// Property keywords, a line for each IPROP from 0: `keyword:value` takes the parameter and the value without one,
// `keyword=value` takes the value always.
const char* const kProperties[] = {
    "b:1",
    "i:1",
    "ul:1 ulnone=0",
    "super:1 up:1",
    "sub:1 dn:1",
    "nosupersub:0",
    "li:0",
    "ri:0",
    "fi:0",
    "cols:1",
    "pgnx:0",
    "pgny:0",
    "paperw:12240",
    "paperh:15480",
    "margl:1800",
    "margr:1800",
    "margt:1440",
    "margb:1440",
    "pgnstart=1",
    "sbknone=0 sbkcol=1 sbkeven=2 sbkodd=3 sbkpage=4",
    "pgndec=0 pgnucrm=1 pgnlcrm=2 pgnucltr=3 pgnlcltr=4",
    "facingp=1",
    "landscape=1",
    "qc=2 ql=0 qr=1 qj=3",
    "pard:0",
    "pndec:1",
    "pnlvlblt:1",
    "",
    "",
    "deff:0",
    "fs:22",
    "fcharset:0",
    "f:0",
    "rtf:0",
    "uc:0",
    "par:0",
    "u:0",
    "line:0",
    "s:0",
    "cf:0",
    "cb:0",
    "red:0",
    "green:0",
    "blue:0",
    "deftab=720",
    "tx:0",
    "tqr=1 tqc=2 tqdec=3",
    "intbl=1",
    "trowd:0",
    "trleft:0",
    "trhdr=1",
    "trbrdrt=1",
    "trbrdrb=1",
    "trbrdrl=1",
    "trbrdrr=1",
    "trbrdrh=1",
    "trbrdrv=1",
    "clbrdrt=1",
    "clbrdrb=1",
    "clbrdrl=1",
    "clbrdrr=1",
    "row:0",
    "cell:0",
    "cellx:0",
    "clvertalt:1",
    "clvertalc:1",
    "clvertalb:1",
    "brdrs:0",
    "brdrw:0",
    "jpegblip=1",
    "emfblip=1",
    "pngblip=1",
    "shppict:0",
    "nonshppict:0",
    "list:0",
    "listsimple:0",
    "listhybrid:0",
    "levelnfc:0",
    "levelnfcn:0",
    "leveljc:0",
    "levelnfcn:0",
    "levelfollow:0",
    "levelstartat:0",
    "levelspace:0",
    "levelindent:0",
    "listname:0",
    "listid:0",
    "listoverride:0",
    "listoverridecount:0",
    "ls:0",
    "ilvl:0",
    "listoverrideformat:0",
    "listoverridestartat:0",
    "chshdng:0",
    "chcfpat:0",
    "chcbpat:0",
    "shading:0",
    "cfpat:0",
    "cbpat:0",
    "picw:0",
    "pich:0",
    "picwgoal:0",
    "pichgoal:0",
    "picscalex:0",
    "picscaley:0",
    "ansicpg:0",
};

std::vector<Expected> ExpectedRows() {
  std::vector<Expected> rows = {
      {"", 0, 0, 0, 10},          {"", 0, 0, 0, 10},   {"tab", 0, 0, 0, 9}, {"ldblquote", 0, 0, 0, 34},
      {"rdblquote", 0, 0, 0, 34}, {"{", 0, 0, 0, 123}, {"}", 0, 0, 0, 125}, {"\\", 0, 0, 0, 92},
      {"bin", 0, 0, 3, 0},        {"'", 0, 0, 3, 1},   {"*", 0, 0, 3, 2},
  };
  int dest = 0;
  for (const char* keywords : kDestinations) {
    for (const std::string& keyword : WordsOf(keywords)) rows.push_back({keyword, 0, 0, 1, dest});
    ++dest;
  }
  int prop = 0;
  for (const char* keywords : kProperties) {
    for (const std::string& word : WordsOf(keywords)) {
      const std::size_t mark = word.find_first_of(":=");
      rows.push_back(
          {word.substr(0, mark), std::stoi(word.substr(mark + 1)), word[mark] == '=' ? 1 : 0, 2, prop});
    }
    ++prop;
  }
  return rows;
}

bool IsRow(const Parser::KeywordRow& row, const Expected& expected) {
  return row.Keyword == expected.m_strKeyword && row.Default == expected.m_iDefault &&
         row.PassDefault == expected.m_iPassDefault && row.Kind == expected.m_iKind &&
         row.Index == expected.m_iIndex;
}

TEST(RTFKeywordTable, HasOneRowForEachKeywordAndItsDoubles) {
  const std::vector<Expected> expected = ExpectedRows();
  ASSERT_EQ(expected.size(), 176U);
  ASSERT_EQ(zeb::kRTFKeywordTable.size(), 176U);
  for (const Expected& row : expected) {
    EXPECT_EQ(std::count_if(zeb::kRTFKeywordTable.begin(), zeb::kRTFKeywordTable.end(),
                            [&](const Parser::KeywordRow& found) { return IsRow(found, row); }),
              row.m_strKeyword.empty() ? 2 : 1)
        << row.m_strKeyword;
  }
}

TEST(RTFKeywordTable, FindsTheFirstRowOfEveryKeyword) {
  for (const Parser::KeywordRow& row : zeb::kRTFKeywordTable) {
    int first = 0;
    while (std::strcmp(zeb::kRTFKeywordTable[static_cast<std::size_t>(first)].Keyword, row.Keyword) != 0)
      ++first;
    EXPECT_EQ(zeb::FindRTFKeyword(row.Keyword), first) << row.Keyword;
  }
}

TEST(RTFKeywordTable, FixedSecondRowOfLevelnfcnIsNeverFound) {
  const int found = zeb::FindRTFKeyword("levelnfcn");
  ASSERT_GE(found, 0);
  EXPECT_EQ(zeb::kRTFKeywordTable[static_cast<std::size_t>(found)].Index, 78);
}

TEST(RTFKeywordTable, KnowsNothingElse) {
  std::set<std::string> known;
  for (const Expected& row : ExpectedRows()) known.insert(row.m_strKeyword);
  // Every keyword with its last letter left out, one appended, and in capital letters.
  for (const std::string& keyword : known) {
    std::string upper = keyword;
    for (char& letter : upper)
      letter = static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 32 : letter);
    for (const std::string& changed :
         {keyword.substr(0, keyword.empty() ? 0 : keyword.size() - 1), keyword + "x", upper}) {
      EXPECT_EQ(zeb::FindRTFKeyword(changed) >= 0, known.count(changed) == 1) << changed;
    }
  }
}

TEST(RTFKeywordTable, ComparesKeywordsWhole) {
  using std::string_view_literals::operator""sv;
  for (const std::string_view keyword :
       {"\0b"sv, "b\0"sv, "\0"sv, "listover"sv, "listoverride\0"sv, "listoverridexable"sv,
        "Xistoverridetable"sv, "errideb"sv, "overridetable"sv, "\0\0\0\0\0\0\0\0b"sv}) {
    EXPECT_EQ(zeb::FindRTFKeyword(keyword), -1) << keyword;
  }
  EXPECT_EQ(zeb::FindRTFKeyword(std::string(65536, 'b') + "b"), -1);
}

TEST(RTFKeywordTable, FixedPlainSectdAndLeveljcnAreUnknown) {
  for (const char* keyword : {"plain", "sectd", "leveljcn", "private", "emdash", "\n", "~", "-"}) {
    EXPECT_EQ(zeb::FindRTFKeyword(keyword), -1) << keyword;
  }
}

TEST(RTFKeywordTable, IsCopiedIntoEachParser) {
  const ParserProbe probe;
  ASSERT_EQ(probe.m_KeywordCount, 176);
  for (std::size_t row = 0; row < zeb::kRTFKeywordTable.size(); ++row) {
    EXPECT_STREQ(probe.m_pKeywordTable[row].Keyword, zeb::kRTFKeywordTable[row].Keyword);
    EXPECT_EQ(probe.m_pKeywordTable[row].Index, zeb::kRTFKeywordTable[row].Index);
  }
}

TEST(RTFKeywordTable, RowsOfAParserAreFoundByTheirBuiltInKeyword) {
  ParserProbe probe("\\bold \\b \n");
  Parser::KeywordRow& row = probe.m_pKeywordTable[zeb::FindRTFKeyword("b")];
  row.Keyword = "bold";
  row.Default = 5;
  EXPECT_EQ(probe.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(probe.m_CharProps.Bold, 5);
  ParserProbe renamed("\\bold \n");
  renamed.m_pKeywordTable[zeb::FindRTFKeyword("b")].Keyword = "bold";
  EXPECT_EQ(renamed.RtfParse(), Parser::rtfOK);
  EXPECT_EQ(renamed.m_CharProps.Bold, 0);
}

TEST(RTFKeywordTable, CharacterKeywordsAreCharacters) {
  zebtest::RTFReading reading("{\\rtf1 a\\tab b\\ldblquote c\\rdblquote d\\{\\}\\\\}");
  EXPECT_EQ(reading.Text(), L"a\tb\"c\"d{}\\");
}

TEST(RTFKeywordTable, CharacterKeywordsOfSkippedGroupsAreDropped) {
  EXPECT_EQ(zebtest::RTFReading("{a{\\*\\unk\\tab\\{\\}\\\\\\ldblquote}b}").Outline(), L"[a][b]");
}

TEST(RTFKeywordTable, FixedBackslashBeforeALineEndIsDropped) {
  EXPECT_EQ(zebtest::RTFReading("{a\\\nb\\\r\nc}").Text(), L"abc");
}

TEST(RTFKeywordTable, SkippedDestinationsLoseTheirText) {
  for (const std::string& keyword : WordsOf(kSkipped)) {
    zebtest::RTFReading reading("{a{\\" + keyword + " lost{lost}}b}");
    EXPECT_EQ(reading.Result(), Parser::rtfOK) << keyword;
    // The digit of private1 is a parameter, so that this keyword is never found.
    EXPECT_EQ(reading.Text(), keyword == "private1" ? L"alostlostb" : L"ab") << keyword;
  }
}

}  // namespace
