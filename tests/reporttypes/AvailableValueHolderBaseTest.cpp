#include "reporttypes/AvailableValueHolderBase.h"

#include "model/ReportZone.h"
#include "reporttypes/DoubleElement.h"
#include "support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cwchar>
#include <memory>
#include <string>
#include <type_traits>

namespace {

/// A supplier that keeps its text in the room of the base class.
class TextSupplier : public CAvailableValueHolderBase {
 public:
  static constexpr std::size_t Room = std::extent_v<decltype(m_szValueText)>;

  const wchar_t* GetValueAsText() override { return m_szValueText; }
  void CallGetValue() override { std::wcscpy(m_szValueText, L"Müller & Söhne"); }

  const wchar_t* Text() const { return m_szValueText; }
  void Clear() { m_szValueText[0] = L'\0'; }
};

}  // namespace

TEST(AvailableValueHolderBase, GivesNoText) {
  CAvailableValueHolderBase supplier;
  EXPECT_EQ(supplier.GetValueAsText(), nullptr);
  supplier.CallGetValue();
}

TEST(AvailableValueHolderBase, GivesANewNumberAtEachCall) {
  CAvailableValueHolderBase supplier;
  const std::unique_ptr<CDoubleElement> first(supplier.GetValueAsDouble());
  const std::unique_ptr<CDoubleElement> second(supplier.GetValueAsDouble());
  EXPECT_NE(first.get(), second.get());
  EXPECT_EQ(first->GetDouble(), 0.0);
  EXPECT_EQ(first->GetPrecision(), 2);
}

// A supplier that overrides nothing of the numbers.
TEST(AvailableValueHolderBase, GivesItsNumberToDerivedClassesToo) {
  TextSupplier supplier;
  CAvailableValueHolderBase& base = supplier;
  const std::unique_ptr<CDoubleElement> first(base.GetValueAsDouble());
  const std::unique_ptr<CDoubleElement> second(base.GetValueAsDouble());
  EXPECT_NE(first.get(), second.get());
  EXPECT_EQ(first->GetDouble(), 0.0);
  EXPECT_EQ(first->GetPrecision(), 2);
}

TEST(AvailableValueHolderBase, HasRoomForTheTextOfADerivedClass) {
  TextSupplier supplier;
  static_assert(TextSupplier::Room == 1024);
  supplier.CallGetValue();
  const TextSupplier copy = supplier;
  TextSupplier assigned;
  assigned = supplier;
  supplier.Clear();
  EXPECT_STREQ(copy.Text(), L"Müller & Söhne") << "the text is copied too";
  EXPECT_STREQ(assigned.Text(), L"Müller & Söhne");
}

TEST(AvailableValueHolderBase, VirtualOperationsStandInTheirOrder) {
  static_assert(std::has_virtual_destructor_v<CAvailableValueHolderBase>);
  EXPECT_EQ(zebtest::VirtualSlot(&CAvailableValueHolderBase::GetValueAsText), 2U);
  EXPECT_EQ(zebtest::VirtualSlot(&CAvailableValueHolderBase::GetValueAsDouble), 3U);
  EXPECT_EQ(zebtest::VirtualSlot(&CAvailableValueHolderBase::CallGetValue), 4U);
}

TEST(AvailableValueHolderBase, KeepsItsTexts) {
  CAvailableValueHolderBase supplier;
  supplier.SetInternalKey(L"AD.Name");
  supplier.SetExternalKey(L"NAME1");
  supplier.SetExternalDescription(L"Name des Empfängers");
  const CAvailableValueHolderBase copy = supplier;
  supplier.SetInternalKey(L"x");
  EXPECT_STREQ(copy.GetInternalKey(), L"AD.Name") << "a copy has texts of its own";
  EXPECT_STREQ(copy.GetExternalKey(), L"NAME1");
  EXPECT_STREQ(copy.GetExternalDescription(), L"Name des Empfängers");
  supplier = copy;
  EXPECT_STREQ(supplier.GetInternalKey(), L"AD.Name");
}

TEST(AvailableValueHolderBase, CutsWhatDoesNotFit) {
  CAvailableValueHolderBase supplier;
  const std::wstring text(2000, L'k');
  supplier.SetInternalKey(text.c_str());
  supplier.SetExternalKey(text.substr(0, 255).c_str());
  supplier.SetExternalDescription(text.c_str());
  EXPECT_EQ(supplier.GetInternalKey(), text.substr(0, 254));
  EXPECT_EQ(supplier.GetExternalKey(), text.substr(0, 254));
  EXPECT_EQ(supplier.GetExternalDescription(), text.substr(0, 1023));
  supplier.SetInternalKey(text.substr(0, 254).c_str());
  EXPECT_EQ(std::wstring(supplier.GetInternalKey()).size(), 254U);
}

// The key's text may stand anywhere: it is compared, not the pointer.
TEST(AvailableValueHolderBase, IsFoundByTheTextOfItsKey) {
  CReportZone zone;
  CAvailableValueHolderBase first;
  CAvailableValueHolderBase second;
  first.SetInternalKey(L"BE.Nummer");
  second.SetInternalKey(L"BE.Nummer");
  zone.AddAvailableValueHolder(&first);
  zone.AddAvailableValueHolder(&second);
  EXPECT_EQ(zone.GetAvailableValueHolder(std::wstring(L"BE.Nummer").c_str()), &first);
  EXPECT_EQ(zone.GetAvailableValueHolder(L"BE.Datum"), nullptr);
}

// The zone keeps no copy of the key: it looks into the object.
TEST(AvailableValueHolderBase, FixedKeyIsReadInTheObjectItself) {
  CReportZone zone;
  CAvailableValueHolderBase supplier;
  supplier.SetInternalKey(L"AD.Ort");
  zone.AddAvailableValueHolder(&supplier);
  supplier.SetInternalKey(L"AD.Land");
  EXPECT_EQ(zone.GetAvailableValueHolder(L"AD.Land"), &supplier);
  EXPECT_EQ(zone.GetAvailableValueHolder(L"AD.Ort"), nullptr);
}

TEST(AvailableValueHolderBase, IsNotOwnedByTheZone) {
  CAvailableValueHolderBase supplier;
  supplier.SetInternalKey(L"AD.Ort");
  {
    CReportZone zone;
    zone.AddAvailableValueHolder(&supplier);
  }
  EXPECT_STREQ(supplier.GetInternalKey(), L"AD.Ort");
}

TEST(AvailableValueHolderBase, IsFoundByTheExactKeyAmongMany) {
  CReportZone zone;
  CAvailableValueHolderBase suppliers[5];
  const wchar_t* const keys[] = {L"b", L"B", L"ab", L"", L"a"};
  for (int i = 0; i < 5; ++i) {
    suppliers[i].SetInternalKey(keys[i]);
    zone.AddAvailableValueHolder(&suppliers[i]);
  }
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(zone.GetAvailableValueHolder(std::wstring(keys[i]).c_str()), &suppliers[i]) << i;
  }
  EXPECT_EQ(zone.GetAvailableValueHolder(L"A"), nullptr);
}

TEST(DoubleElement, HasItsDefaultsAndKeepsItsValues) {
  CDoubleElement number;
  EXPECT_EQ(number.GetDouble(), 0.0);
  EXPECT_EQ(number.GetPrecision(), 2);
  number.SetValues(1.5, 4);
  EXPECT_EQ(number.GetDouble(), 1.5);
  EXPECT_EQ(number.GetPrecision(), 4);
  number.SetDouble(-2.25);
  number.SetPrecision(0);
  const CDoubleElement copy = number;
  EXPECT_EQ(copy.GetDouble(), -2.25);
  EXPECT_EQ(copy.GetPrecision(), 0);
  EXPECT_EQ(CDoubleElement(7.0, 1).GetDouble(), 7.0);
  EXPECT_EQ(CDoubleElement(7.0, 1).GetPrecision(), 1);
  CDoubleElement assigned;
  assigned = CDoubleElement(7.0, 1);
  EXPECT_EQ(assigned.GetDouble(), 7.0);
  EXPECT_EQ(assigned.GetPrecision(), 1);
  static_assert(std::has_virtual_destructor_v<CDoubleElement>);
}
