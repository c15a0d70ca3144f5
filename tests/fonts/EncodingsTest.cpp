#include "fonts/Encodings.h"

#include "fonts/EncodingInformation.h"
#include "fonts/EncodingTables.h"
#include "fonts/PDFCharCollName.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace {

/// A list that can give up what it owns.
class OpenEncodings : public CEncodings {
 public:
  using CEncodings::CEncodings;

  int GetCharCollNameCount() const { return static_cast<int>(m_rgpCharCollNames.size()); }
  void ClearWinAnsiFlag() { m_bWinAnsiAdded = false; }
  void Forget() {
    m_rgpEncodings.clear();
    m_rgpCharCollNames.clear();
  }
};

void Empty(CEncodings& encodings) {
  while (encodings.GetEncodingCount() > 0) {
    const std::unique_ptr<CEncodingInformation> removed(encodings.GetEncodingAt(0));
    encodings.RemoveEncodingAt(0);
  }
}

std::unique_ptr<CEncodingInformation> Named(CEncodings& encodings, const wchar_t* name) {
  auto encoding = std::make_unique<CEncodingInformation>(&encodings);
  encoding->SetInternalName(name);
  return encoding;
}

TEST(Encodings, HoldsTheCMapsThenTheTwoSingleByteEncodings) {
  struct Collection {
    CFontMetrics::CharColl value;
    std::vector<const wchar_t*> names;
  };
  const std::vector<Collection> collections = {
      {CFontMetrics::CharCollGB1,
       {L"GB-EUC-H", L"GB-EUC-V", L"GBpc-EUC-H", L"GBpc-EUC-V", L"GBK-EUC-H", L"GBK-EUC-V", L"GBKp-EUC-H",
        L"GBKp-EUC-V", L"GBK2K-H", L"GBK2K-V", L"UniGB-UCS2-H", L"UniGB-UCS2-V"}},
      {CFontMetrics::CharCollCNS1,
       {L"B5pc-H", L"B5pc-V", L"HKscs-B5-H", L"HKscs-B5-V", L"ETen-B5-H", L"ETen-B5-V", L"ETenms-B5-H",
        L"ETenms-B5-V", L"CNS-EUC-H", L"CNS-EUC-V", L"UniCNS-UCS2-H", L"UniCNS-UCS2-V"}},
      {CFontMetrics::CharCollJapan1,
       {L"83pv-RKSJ-H", L"90ms-RKSJ-H", L"90ms-RKSJ-V", L"90msp-RKSJ-H", L"90msp-RKSJ-V", L"90pv-RKSJ-H",
        L"Add-RKSJ-H", L"Add-RKSJ-V", L"EUC-H", L"EUC-V", L"Ext-RKSJ-H", L"Ext-RKSJ-V", L"H", L"V",
        L"UniJIS-UCS2-H", L"UniJIS-UCS2-V", L"UniJIS-UCS2-HW-H", L"UniJIS-UCS2-HW-V"}},
      {CFontMetrics::CharCollKorea1,
       {L"KSC-EUC-H", L"KSC-EUC-V", L"KSCms-UHC-H", L"KSCms-UHC-V", L"KSCms-UHC-HW-H", L"KSCms-UHC-HW-V",
        L"KSCpc-EUC-H", L"UniKS-UCS2-H", L"UniKS-UCS2-V"}},
      {CFontMetrics::CharCollIdentity, {L"Identity-H", L"Identity-V"}},
  };
  CEncodings encodings(nullptr);
  int index = 0;
  for (const Collection& collection : collections) {
    for (const wchar_t* name : collection.names) {
      const CEncodingInformation* entry = encodings.GetEncodingAt(index++);
      EXPECT_STREQ(entry->GetInternalName(), name);
      EXPECT_EQ(entry->GetCharColl(), collection.value) << index;
      EXPECT_STREQ(entry->GetPDFName(), L"");
      EXPECT_TRUE(entry->GetStandardEncoding());
      EXPECT_EQ(entry->GetUnicodeAt(65), 0);
      EXPECT_STREQ(entry->GetCharNameAt(65), L"");
    }
  }
  EXPECT_EQ(index, 53);
  EXPECT_EQ(encodings.GetEncodingCount(), 55);
  EXPECT_STREQ(encodings.GetEncodingAt(53)->GetInternalName(), L"winansi1252");
  EXPECT_STREQ(encodings.GetEncodingAt(54)->GetInternalName(), L"fontspecific");
}

void ExpectTable(const CEncodingInformation& encoding, const zeb::EncodingTable& table) {
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(encoding.GetUnicodeAt(code), table[static_cast<std::size_t>(code)].unicode) << code;
    EXPECT_STREQ(encoding.GetCharNameAt(code), table[static_cast<std::size_t>(code)].name) << code;
  }
}

TEST(Encodings, TheWinAnsiEntry) {
  CEncodings encodings(nullptr);
  const CEncodingInformation* entry = encodings.FindEncoding(L"winansi1252");
  ASSERT_NE(entry, nullptr);
  EXPECT_STREQ(entry->GetPDFName(), L"WinAnsiEncoding");
  EXPECT_TRUE(entry->GetStandardEncoding());
  EXPECT_EQ(entry->GetCharColl(), static_cast<CFontMetrics::CharColl>(-1));
  ExpectTable(*entry, zeb::kWinAnsiEncoding);
}

TEST(Encodings, TheCP1250EntryIsAddedOnceOnDemand) {
  CEncodings encodings(nullptr);
  EXPECT_EQ(encodings.FindEncoding(L"winansi1250"), nullptr);
  encodings.AddCP1250Encoding();
  encodings.AddCP1250Encoding();
  EXPECT_EQ(encodings.GetEncodingCount(), 56);
  const CEncodingInformation* entry = encodings.GetEncodingAt(55);
  EXPECT_STREQ(entry->GetInternalName(), L"winansi1250");
  EXPECT_STREQ(entry->GetPDFName(), L"");
  EXPECT_TRUE(entry->GetStandardEncoding());
  ExpectTable(*entry, zeb::kCP1250Encoding);
}

TEST(Encodings, TheFontSpecificEntryMapsEveryCodeToItself) {
  CEncodings encodings(nullptr);
  const CEncodingInformation* entry = encodings.FindEncoding(L"fontspecific");
  ASSERT_NE(entry, nullptr);
  EXPECT_STREQ(entry->GetPDFName(), L"FontSpecific");
  EXPECT_TRUE(entry->GetStandardEncoding());
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(entry->GetUnicodeAt(code), code);
    EXPECT_STREQ(entry->GetCharNameAt(code), L"");
  }
}

TEST(Encodings, TheStandardContentsAreAddedOnce) {
  OpenEncodings encodings(nullptr);
  encodings.AddCMaps();
  encodings.AddCharCollNames();
  encodings.AddWinAnsiEncoding();
  encodings.AddFontSpecificEncoding();
  EXPECT_EQ(encodings.GetEncodingCount(), 55);
  EXPECT_EQ(encodings.GetCharCollNameCount(), 5);
}

TEST(Encodings, NamesAreFoundCaseSensitively) {
  CEncodings encodings(nullptr);
  EXPECT_NE(encodings.FindEncoding(L"winansi1252"), nullptr);
  EXPECT_EQ(encodings.FindEncoding(L"WinAnsi1252"), nullptr);
  EXPECT_EQ(encodings.FindEncoding(L"winansi125"), nullptr);
  EXPECT_EQ(encodings.FindEncoding(L""), nullptr);
  EXPECT_EQ(encodings.FindEncoding(nullptr), nullptr);
  EXPECT_EQ(encodings.FindEncoding(L"H"), encodings.GetEncodingAt(36));
}

TEST(Encodings, TheFirstOfTwoEntriesWithOneNameWins) {
  CEncodings encodings(nullptr);
  const CEncodingInformation* standard = encodings.FindEncoding(L"winansi1252");
  encodings.AddEncoding(Named(encodings, L"winansi1252").release());
  EXPECT_EQ(encodings.GetEncodingCount(), 56);
  EXPECT_EQ(encodings.FindEncoding(L"winansi1252"), standard);
}

TEST(Encodings, ARemovedEntryBelongsToTheCaller) {
  CEncodings encodings(nullptr);
  const std::unique_ptr<CEncodingInformation> removed(encodings.GetEncodingAt(0));
  encodings.RemoveEncodingAt(0);
  EXPECT_EQ(encodings.GetEncodingCount(), 54);
  EXPECT_STREQ(removed->GetInternalName(), L"GB-EUC-H");
  EXPECT_STREQ(encodings.GetEncodingAt(0)->GetInternalName(), L"GB-EUC-V");
}

TEST(Encodings, FixedAListThatWasEmptiedStaysEmpty) {
  CEncodings encodings(nullptr);
  Empty(encodings);
  EXPECT_EQ(encodings.FindEncoding(L"winansi1252"), nullptr);
  EXPECT_EQ(encodings.GetEncodingCount(), 0);
  encodings.AddWinAnsiEncoding();
  EXPECT_EQ(encodings.GetEncodingCount(), 0);
}

TEST(Encodings, AnEmptyListGetsTheWinAnsiEncodingWhileItsFlagIsClear) {
  OpenEncodings found(nullptr);
  Empty(found);
  found.ClearWinAnsiFlag();
  EXPECT_NE(found.FindEncoding(L"winansi1252"), nullptr);
  EXPECT_EQ(found.GetEncodingCount(), 1);
  OpenEncodings indexed(nullptr);
  Empty(indexed);
  indexed.ClearWinAnsiFlag();
  EXPECT_STREQ(indexed.GetEncodingAt(0)->GetInternalName(), L"winansi1252");
  EXPECT_EQ(indexed.GetEncodingCount(), 1);
}

TEST(Encodings, TheCharacterCollections) {
  struct Expected {
    const wchar_t* ordering;
    int supplement;
  };
  const std::vector<Expected> expected = {
      {L"GB1", 0}, {L"CNS1", 1}, {L"Japan1", 2}, {L"Korea1", 1}, {L"Identity", 0}};
  const CEncodings encodings(nullptr);
  for (int value = 0; value < 5; ++value) {
    const CPDFCharCollName* name = encodings.GetCharCollNameAt(static_cast<CFontMetrics::CharColl>(value));
    ASSERT_NE(name, nullptr) << value;
    EXPECT_EQ(name->GetCharColl(), value);
    EXPECT_STREQ(name->GetOrdering(), expected[static_cast<std::size_t>(value)].ordering);
    EXPECT_EQ(name->GetSupplement(), expected[static_cast<std::size_t>(value)].supplement) << value;
  }
  EXPECT_EQ(encodings.GetCharCollNameAt(static_cast<CFontMetrics::CharColl>(5)), nullptr);
  EXPECT_EQ(encodings.GetCharCollNameAt(static_cast<CFontMetrics::CharColl>(-1)), nullptr);
}

TEST(Encodings, FixedCopiesShareTheEntries) {
  OpenEncodings source(nullptr);
  OpenEncodings copy(source);
  EXPECT_EQ(copy.GetEncodingCount(), 55);
  EXPECT_EQ(copy.GetEncodingAt(3), source.GetEncodingAt(3));
  EXPECT_EQ(copy.GetCharCollNameAt(CFontMetrics::CharCollCNS1),
            source.GetCharCollNameAt(CFontMetrics::CharCollCNS1));
  copy.AddWinAnsiEncoding();
  EXPECT_EQ(copy.GetEncodingCount(), 55);
  copy.Forget();
  copy = source;
  EXPECT_EQ(copy.GetEncodingAt(53), source.FindEncoding(L"winansi1252"));
  copy.Forget();
}

TEST(PDFCharCollName, ItsDefaultsAndValues) {
  CPDFCharCollName name;
  EXPECT_EQ(name.GetCharColl(), static_cast<CFontMetrics::CharColl>(-1));
  EXPECT_STREQ(name.GetOrdering(), L"");
  EXPECT_EQ(name.GetSupplement(), 0);
  name.SetCharColl(CFontMetrics::CharCollKorea1);
  name.SetOrdering(L"Korea1");
  name.SetSupplement(7);
  const CPDFCharCollName copy = name;
  EXPECT_EQ(copy.GetCharColl(), CFontMetrics::CharCollKorea1);
  EXPECT_STREQ(copy.GetOrdering(), L"Korea1");
  EXPECT_EQ(copy.GetSupplement(), 7);
}

}  // namespace
