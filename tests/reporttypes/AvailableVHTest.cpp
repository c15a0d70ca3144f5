#include "reporttypes/AvailableVH.h"

#include "support/NodeRecord.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

using zebtest::LoadNode;
using zebtest::SaveNode;

namespace {

constexpr auto kGeneration1 =
    "<InternalName>K</InternalName><ExternalName>N</ExternalName>"
    "<ExternalDescription>D</ExternalDescription><AvailableValueHolderType>3</AvailableValueHolderType>";
constexpr auto kGeneration2 = "<Key>K</Key><Name>N</Name><Desc>D</Desc><Type>3</Type>";

CAvailableVH::AvailableValueHolderType Type(int type) {
  return static_cast<CAvailableVH::AvailableValueHolderType>(type);
}

void ExpectFields(const CAvailableVH& valueHolder, const wchar_t* key, const wchar_t* name,
                  const wchar_t* description, int type) {
  EXPECT_STREQ(valueHolder.GetInternalName(), key);
  EXPECT_STREQ(valueHolder.GetExternalName(), name);
  EXPECT_STREQ(valueHolder.GetExternalDescription(), description);
  EXPECT_EQ(valueHolder.GetValueHolderType(), type);
}

}  // namespace

TEST(AvailableVH, VirtualOperationsStandInTheirOrder) {
  static_assert(std::has_virtual_destructor_v<CAvailableVH>);
  EXPECT_EQ(zebtest::VirtualSlot(&CAvailableVH::Load), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CAvailableVH::Save), 3U);
  static_assert(std::is_same_v<decltype(&CAvailableVH::Load), bool (CAvailableVH::*)(zebxmln::CXMLNode*)>);
  static_assert(std::is_same_v<decltype(&CAvailableVH::Save), bool (CAvailableVH::*)(zebxmln::CXMLNode*)>);
}

TEST(AvailableVH, WritesAllFieldsAlways) {
  CAvailableVH valueHolder;
  ExpectFields(valueHolder, L"", L"", L"", 0);
  EXPECT_EQ(SaveNode(valueHolder), "<Key/><Name/><Desc/><Type>0</Type>");
}

TEST(AvailableVH, CarriesAnyType) {
  CAvailableVH valueHolder;
  valueHolder.SetVersionNr(2);
  for (const int type : {-2147483647, -1, 1, 8, 4711, 2147483647}) {
    valueHolder.SetValueHolderType(Type(type));
    const std::string saved = SaveNode(valueHolder);
    EXPECT_EQ(saved, "<Key/><Name/><Desc/><Type>" + std::to_string(type) + "</Type>");
    valueHolder.SetValueHolderType(Type(0));
    LoadNode(valueHolder, saved);
    EXPECT_EQ(valueHolder.GetValueHolderType(), type);
  }
}

TEST(AvailableVH, FixedWithoutVersionNumberReadsGeneration1) {
  CAvailableVH valueHolder;
  LoadNode(valueHolder, kGeneration2);
  ExpectFields(valueHolder, L"", L"", L"", 0);
  LoadNode(valueHolder, kGeneration1);
  ExpectFields(valueHolder, L"K", L"N", L"D", 3);
}

TEST(AvailableVH, ReadsTheNamesOfItsVersion) {
  for (const int version : {-1, 0, 1}) {
    CAvailableVH valueHolder;
    valueHolder.SetVersionNr(version);
    LoadNode(valueHolder, kGeneration2);
    ExpectFields(valueHolder, L"", L"", L"", 0);
    LoadNode(valueHolder, kGeneration1);
    ExpectFields(valueHolder, L"K", L"N", L"D", 3);
  }
  for (const int version : {2, 3}) {
    CAvailableVH valueHolder;
    valueHolder.SetVersionNr(version);
    LoadNode(valueHolder, kGeneration1);
    ExpectFields(valueHolder, L"", L"", L"", 0);
    LoadNode(valueHolder, kGeneration2);
    ExpectFields(valueHolder, L"K", L"N", L"D", 3);
  }
}

TEST(AvailableVH, FixedIsSavedInNewNamesWhateverItsVersion) {
  CAvailableVH valueHolder;
  valueHolder.SetVersionNr(1);
  LoadNode(valueHolder, kGeneration1);
  EXPECT_EQ(SaveNode(valueHolder), kGeneration2);
}

TEST(AvailableVH, ReadsEachFieldOnlyAtItsPlace) {
  CAvailableVH valueHolder;
  valueHolder.SetVersionNr(2);
  LoadNode(valueHolder, "<Key>K</Key><Type>3</Type>");
  ExpectFields(valueHolder, L"K", L"", L"", 3);
  CAvailableVH turned;
  turned.SetVersionNr(2);
  LoadNode(turned, "<Key>K</Key><Desc>D</Desc><Name>N</Name><Type>3</Type>");
  ExpectFields(turned, L"K", L"", L"D", 0);
  CAvailableVH unknown;
  unknown.SetVersionNr(2);
  LoadNode(unknown, "<Unknown/><Key>K</Key>");
  ExpectFields(unknown, L"", L"", L"", 0);
  CAvailableVH noNumber;
  noNumber.SetVersionNr(2);
  noNumber.SetValueHolderType(Type(5));
  LoadNode(noNumber, "<Type>date</Type>");
  EXPECT_EQ(noNumber.GetValueHolderType(), 0);
}

TEST(AvailableVH, CopiesHaveTextsOfTheirOwn) {
  CAvailableVH source;
  source.SetVersionNr(2);
  LoadNode(source, kGeneration2);
  CAvailableVH copy = source;
  CAvailableVH assigned;
  assigned = source;
  source.SetInternalName(L"other");
  source.SetExternalName(L"other");
  source.SetExternalDescription(L"other");
  source.SetValueHolderType(Type(1));
  for (CAvailableVH* each : {&copy, &assigned}) {
    ExpectFields(*each, L"K", L"N", L"D", 3);
    LoadNode(*each, "<Key>again</Key>");
    EXPECT_STREQ(each->GetInternalName(), L"again") << "the version number is copied too";
  }
}
