// Reads the published CMap files as Debian's poppler-data installs them, and compares every code of the predefined ones with what a reading
// line by line finds: these files have one group on each line.

#include "fonts/CIDMapping.h"
#include "fonts/PredefinedCMaps.h"
#include "support/Files.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>
#include <unordered_map>
#include <vector>

namespace {

namespace fs = std::filesystem;

const fs::path kFolder = "/usr/share/poppler/cMap";

struct Expected {
  std::unordered_map<int, int> codeToCID;
  std::unordered_map<int, int> cidToCode;
  std::string usedCMap;
  std::string ordering;
  int wMode = 0;

  void Add(int low, int high, int cid) {
    for (int code = low; code <= high; ++code, ++cid) {
      codeToCID.emplace(code, cid);
      cidToCode.emplace(cid, code);
    }
  }
};

/// The last eight digits count: the text of a ligature is longer.
int Hex(const std::string& token) {
  const std::string digits = token.substr(1, token.size() - 2);
  const std::size_t dropped = digits.size() > 8 ? digits.size() - 8 : 0;
  return static_cast<int>(static_cast<unsigned>(std::stoul(digits.substr(dropped), nullptr, 16)));
}

std::vector<std::string> Words(const std::string& line) {
  std::istringstream in(line.substr(0, line.find('%')));
  std::vector<std::string> words;
  for (std::string word; in >> word;) words.push_back(word);
  return words;
}

void AddGroup(Expected& expected, const std::string& section, const std::vector<std::string>& words) {
  if (words.size() < 2 || words[0].size() != words[1].size()) return;
  const bool hexValue = words.back().starts_with('<');
  if (section == "endbfchar") {
    expected.Add(Hex(words[0]), Hex(words[0]), Hex(words[1]));
  } else if (words.size() == 3) {
    expected.Add(Hex(words[0]), Hex(words[1]), hexValue ? Hex(words[2]) : std::stoi(words[2]));
  }
}

Expected ReadLineByLine(const std::string& text) {
  Expected expected;
  std::string section;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    const std::vector<std::string> words = Words(line);
    if (words.empty()) continue;
    if (words.back() == "begincidrange" || words.back() == "beginbfrange" || words.back() == "beginbfchar") {
      section = "end" + words.back().substr(5);
    } else if (words[0] == section) {
      section.clear();
    } else if (!section.empty()) {
      AddGroup(expected, section, words);
    } else if (words.back() == "usecmap" && words.size() == 2) {
      expected.usedCMap = words[0].substr(1);
    } else if (words.size() == 3 && words[0] == "/WMode") {
      expected.wMode = std::stoi(words[1]);
    } else if (words.size() == 3 && words[0] == "/Ordering") {
      expected.ordering = words[1].substr(1, words[1].size() - 2);
    }
  }
  return expected;
}

CIDMapping Load(const std::vector<fs::path>& files) {
  CIDMapping mapping;
  for (const fs::path& file : files) {
    std::vector<unsigned char> bytes = zebtest::ReadBytes(file);
    mapping.LoadCMap(bytes.data(), static_cast<int>(bytes.size()));
  }
  return mapping;
}

class CMapFiles : public testing::Test {
 protected:
  void SetUp() override {
    if (!fs::exists(kFolder)) GTEST_SKIP() << "the package poppler-data is not installed";
  }
};

/// How many entries of the expected map the reader answers differently.
template <typename Answer>
long Differences(const std::unordered_map<int, int>& expected, Answer answer) {
  return std::count_if(expected.begin(), expected.end(),
                       [&](const auto& pair) { return answer(pair.first) != pair.second; });
}

void ExpectWhatItsLinesSay(const fs::path& file) {
  SCOPED_TRACE(file.string());
  const std::string text = zebtest::ReadFile(file);
  const Expected expected = ReadLineByLine(text);
  const CIDMapping mapping = Load({file});
  EXPECT_NE(text.find("/CMapName /" + std::string(mapping.GetCMapName())), std::string::npos);
  EXPECT_EQ(mapping.GetUsedCMap(), expected.usedCMap);
  EXPECT_EQ(mapping.GetOrdering(), expected.ordering);
  EXPECT_EQ(mapping.GetWMode(), expected.wMode);
  EXPECT_EQ(Differences(expected.codeToCID, [&](int code) { return mapping.GetCIDFromCode(code); }), 0);
  EXPECT_EQ(Differences(expected.cidToCode, [&](int cid) { return mapping.GetCodeFromCID(cid); }), 0);
  for (int code = 0; code < 0x10000; code += 7) {
    const auto found = expected.codeToCID.find(code);
    ASSERT_EQ(mapping.GetCIDFromCode(code), found == expected.codeToCID.end() ? -1 : found->second) << code;
  }
}

TEST_F(CMapFiles, EveryPredefinedCMapGivesWhatItsLinesSay) {
  std::map<std::string, fs::path> files;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kFolder)) {
    files[entry.path().filename().string()] = entry.path();
  }
  for (const zeb::PredefinedCMap& cmap : zeb::kPredefinedCMaps) {
    const std::wstring name = cmap.name;
    const fs::path file = files[std::string(name.begin(), name.end())];
    ASSERT_FALSE(file.empty()) << testing::PrintToString(name);
    ExpectWhatItsLinesSay(file);
  }
}

// The larger files differ from the predefined CMaps in their numbers only.
TEST_F(CMapFiles, EveryOtherFileOfUpTo40KilobytesIsRead) {
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator(kFolder)) {
    if (!entry.is_regular_file() || entry.file_size() > 40000) continue;
    const std::string text = zebtest::ReadFile(entry.path());
    const CIDMapping mapping = Load({entry.path()});
    EXPECT_NE(text.find("/CMapName /" + std::string(mapping.GetCMapName())), std::string::npos)
        << entry.path();
    EXPECT_STRNE(mapping.GetRegistry(), "") << entry.path();
  }
}

TEST_F(CMapFiles, KnownCodesOfSimplifiedChinese) {
  const CIDMapping mapping = Load({kFolder / "Adobe-GB1" / "GB-EUC-H"});
  EXPECT_EQ(mapping.GetCIDFromCode(0x20), 7716);
  EXPECT_EQ(mapping.GetCIDFromCode(0x21), 814);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA1A1), 96);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA1FE), 96 + 0x5D);
  EXPECT_EQ(mapping.GetCIDFromCode(0xF2A1), 7139);
  EXPECT_EQ(mapping.GetCodeFromCID(96), 0xA1A1);
  EXPECT_STREQ(mapping.GetRegistry(), "Adobe");
}

TEST_F(CMapFiles, AVerticalCMapWithTheOneThatItUses) {
  const CIDMapping vertical = Load({kFolder / "Adobe-GB1" / "GB-EUC-V"});
  EXPECT_STREQ(vertical.GetUsedCMap(), "GB-EUC-H");
  EXPECT_EQ(vertical.GetWMode(), 1);
  EXPECT_EQ(vertical.GetCIDFromCode(0xA1A1), -1);
  const CIDMapping both = Load({kFolder / "Adobe-GB1" / "GB-EUC-V", kFolder / "Adobe-GB1" / "GB-EUC-H"});
  EXPECT_EQ(both.GetCIDFromCode(0xA1A1), 96);
  EXPECT_EQ(both.GetCIDFromCode(0xA1A2), 575);  // the vertical form, read first
}

TEST_F(CMapFiles, KnownCodesOfTraditionalChinese) {
  const CIDMapping mapping = Load({kFolder / "Adobe-CNS1" / "ETen-B5-H"});
  EXPECT_EQ(mapping.GetCIDFromCode(0x20), 13648);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA140), 99);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA440), 595);
  EXPECT_EQ(mapping.GetCIDFromCode(0xA4A1), 658);
  EXPECT_EQ(mapping.GetCodeFromCID(595), 0xA440);
}

TEST_F(CMapFiles, IdentityMapsEveryCodeToItself) {
  const CIDMapping mapping = Load({kFolder / "Identity-H"});
  for (const int code : {0, 1, 0xFF, 0x100, 0x1234, 0xFFFF}) {
    EXPECT_EQ(mapping.GetCIDFromCode(code), code);
    EXPECT_EQ(mapping.GetCodeFromCID(code), code);
  }
  EXPECT_EQ(mapping.GetCIDFromCode(0x10000), -1);
  EXPECT_EQ(mapping.GetCodeSpaceHigh(), 0xFFFF);
}

}  // namespace
