// The optional CMap files of the reader, as Debian's poppler-data installs the published ones.

#include "foundation/KXException.h"
#include "foundation/KXExceptionHandler.h"
#include "rtf/RTFParser.h"
#include "support/Files.h"
#include "support/TempDir.h"
#include "support/WidePath.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

const fs::path kPublished = "/usr/share/poppler/cMap";

class OpenParser : public CRTFParser {
 public:
  OpenParser() : CRTFParser(nullptr, 0, nullptr, nullptr) {}

  using CRTFParser::m_BigFiveRead;
  using CRTFParser::m_CMaps;
  using CRTFParser::m_GB2312Read;
  using CRTFParser::ReadBigFiveMapping;
  using CRTFParser::ReadGB2312Mapping;
};

/// A folder that the exception handler names while a test runs.
class RTFMappingFiles : public testing::Test {
 protected:
  RTFMappingFiles() {
    CKXExceptionHandler& handler = CKXExceptionHandler::GetInstance();
    handler.SetExceptionPathName(zebtest::Widen(ZEB_SHARE).c_str());
    handler.SetExceptionPathName(m_Folder.WidePath().c_str());
  }
  ~RTFMappingFiles() override {
    CKXExceptionHandler::GetInstance().SetExceptionPathName(zebtest::Widen(ZEB_SHARE).c_str());
  }

  void Copy(const std::string& collection, const std::string& name) const {
    fs::copy_file(kPublished / collection / name, m_Folder.File(name));
  }

  zebtest::TempDir m_Folder;
};

template <class Read>
std::wstring MessageOf(Read read) {
  try {
    read();
  } catch (const CKXException& exception) {
    return exception.GetErrorMessage();
  }
  return {};
}

TEST_F(RTFMappingFiles, ReadsBigFiveIntoTheThirdAndFourthMap) {
  Copy("Adobe-CNS1", "ETen-B5-H");
  Copy("Adobe-CNS1", "Adobe-CNS1-UCS2");
  OpenParser parser;
  EXPECT_FALSE(parser.m_BigFiveRead);
  parser.ReadBigFiveMapping();
  EXPECT_TRUE(parser.m_BigFiveRead);
  EXPECT_FALSE(parser.m_GB2312Read);
  EXPECT_STREQ(parser.m_CMaps[2].GetCMapName(), "ETen-B5-H");
  EXPECT_STREQ(parser.m_CMaps[3].GetCMapName(), "Adobe-CNS1-UCS2");
  const int cid = parser.m_CMaps[2].GetCIDFromCode(0xA440);
  EXPECT_EQ(cid, 595);
  EXPECT_EQ(parser.m_CMaps[3].GetCIDFromCode(cid), 0x4E00);
  EXPECT_EQ(parser.m_CMaps[0].GetCIDFromCode(0xB0A1), -1);
}

TEST_F(RTFMappingFiles, ReadsGB2312IntoTheFirstAndSecondMap) {
  Copy("Adobe-GB1", "GB-EUC-H");
  Copy("Adobe-GB1", "Adobe-GB1-UCS2");
  OpenParser parser;
  EXPECT_FALSE(parser.m_GB2312Read);
  parser.ReadGB2312Mapping();
  EXPECT_TRUE(parser.m_GB2312Read);
  EXPECT_FALSE(parser.m_BigFiveRead);
  const int cid = parser.m_CMaps[0].GetCIDFromCode(0xB0A1);
  EXPECT_EQ(cid, 940);
  EXPECT_EQ(parser.m_CMaps[1].GetCIDFromCode(cid), 0x554A);
}

TEST_F(RTFMappingFiles, ReadsOnce) {
  Copy("Adobe-GB1", "GB-EUC-H");
  Copy("Adobe-GB1", "Adobe-GB1-UCS2");
  OpenParser parser;
  parser.ReadGB2312Mapping();
  fs::remove(m_Folder.File("GB-EUC-H"));
  EXPECT_EQ(MessageOf([&] { parser.ReadGB2312Mapping(); }), L"");
  Copy("Adobe-CNS1", "ETen-B5-H");
  Copy("Adobe-CNS1", "Adobe-CNS1-UCS2");
  parser.ReadBigFiveMapping();
  fs::remove(m_Folder.File("ETen-B5-H"));
  EXPECT_EQ(MessageOf([&] { parser.ReadBigFiveMapping(); }), L"");
}

TEST_F(RTFMappingFiles, ThrowsWithThePathOfAMissingFile) {
  OpenParser parser;
  const std::wstring folder = CKXExceptionHandler::GetInstance().GetExceptionNamePath();
  EXPECT_NE(MessageOf([&] { parser.ReadBigFiveMapping(); }).find(folder + L"ETen-B5-H"), std::wstring::npos);
  EXPECT_NE(MessageOf([&] { parser.ReadGB2312Mapping(); }).find(folder + L"GB-EUC-H"), std::wstring::npos);
  Copy("Adobe-GB1", "GB-EUC-H");
  EXPECT_NE(MessageOf([&] { parser.ReadGB2312Mapping(); }).find(folder + L"Adobe-GB1-UCS2"),
            std::wstring::npos);
  EXPECT_FALSE(parser.m_BigFiveRead);
  EXPECT_FALSE(parser.m_GB2312Read);
}

TEST_F(RTFMappingFiles, AFileThatIsNoCMapMapsNothing) {
  zebtest::WriteFile(m_Folder.File("GB-EUC-H"), "");
  zebtest::WriteFile(m_Folder.File("Adobe-GB1-UCS2"), "no CMap");
  OpenParser parser;
  parser.ReadGB2312Mapping();
  EXPECT_TRUE(parser.m_GB2312Read);
  EXPECT_EQ(parser.m_CMaps[0].GetCIDFromCode(0xB0A1), -1);
}

}  // namespace
