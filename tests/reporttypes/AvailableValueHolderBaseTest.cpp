#include "reporttypes/AvailableValueHolderBase.h"

#include "model/ReportZone.h"
#include "reporttypes/DoubleElement.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

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
  EXPECT_EQ(CDoubleElement(7.0, 1).GetPrecision(), 1);
}
