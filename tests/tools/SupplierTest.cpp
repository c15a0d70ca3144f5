// The data supplier of the examples: what it computes of the samples, against numbers that were worked out by hand.

#include "ReportRun.h"
#include "Utf8.h"
#include "support/Files.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using supplier::PrintedZone;

const std::filesystem::path kInvoice = std::filesystem::path(ZEB_EXAMPLES) / "invoice" / "data.json";

std::vector<PrintedZone> PrintInvoice() { return supplier::ReportRun(kInvoice, ZEB_SHARE).Print(); }

std::vector<PrintedZone> PrintSample(const char* sample) {
  return supplier::ReportRun(std::filesystem::path(ZEB_EXAMPLES) / sample / "data.json", ZEB_SHARE).Print();
}

struct ExpectedPosition {
  double betrag;   // FX.Betrag, two decimals
  double rabatt;   // FX.Rabatt, two decimals
  double netto;    // FX.Netto: both of the above are rounded before
  double gewicht;  // FX.Gewicht, three decimals
  double palette;  // FX.Palette, three decimals
};

// Worked out with decimal numbers; ties go away from zero.
constexpr std::array<ExpectedPosition, 40> kPositions = {{
    // clang-format off
    {119.75, 5.99, 113.76, 62.500, 0.063},  // 25 * 4.79 = 119.75; of it 5 % = 5.9875; 25 * 2.5 kg; 25 / 400 = 0.0625
    {249.38, 0, 249.38, 157.500, 0.031},  // 12.5 * 19.95 = 249.375; 12.5 * 12.6 kg; 12.5 / 400 = 0.03125
    {42.72, 4.27, 38.45, 0.576, 0.120},  // 48 * 0.89 = 42.72; of it 10 % = 4.272; 48 * 0.012 kg; 48 / 400 = 0.12
    {34.90, 0, 34.90, 0.850, 0.025},  // 10 * 3.49 = 34.9; 10 * 0.085 kg; 10 / 400 = 0.025
    {34.50, 0, 34.50, 0.660, 0.015},  // 6 * 5.75 = 34.5; 6 * 0.11 kg; 6 / 400 = 0.015
    {13.00, 0, 13.00, 0.320, 0.050},  // 20 * 0.65 = 13; 20 * 0.016 kg; 20 / 400 = 0.05
    {91.60, 11.45, 80.15, 19.600, 0.100},  // 40 * 2.29 = 91.6; of it 12.5 % = 11.45; 40 * 0.49 kg; 40 / 400 = 0.1
    {65.70, 8.21, 57.49, 12.300, 0.075},  // 30 * 2.19 = 65.7; of it 12.5 % = 8.2125; 30 * 0.41 kg; 30 / 400 = 0.075
    {31.92, 0, 31.92, 3.360, 0.020},  // 8 * 3.99 = 31.92; 8 * 0.42 kg; 8 / 400 = 0.02
    {97.35, 2.92, 94.43, 9.150, 0.038},  // 15 * 6.49 = 97.35; of it 3 % = 2.9205; 15 * 0.61 kg; 15 / 400 = 0.0375
    {44.75, 0, 44.75, 2.650, 0.013},  // 5 * 8.95 = 44.75; 5 * 0.53 kg; 5 / 400 = 0.0125
    {59.60, 0, 59.60, 1.120, 0.010},  // 4 * 14.9 = 59.6; 4 * 0.28 kg; 4 / 400 = 0.01
    {18.96, 0, 18.96, 0.816, 0.060},  // 24 * 0.79 = 18.96; 24 * 0.034 kg; 24 / 400 = 0.06
    {51.75, 0, 51.75, 1.620, 0.008},  // 3 * 17.25 = 51.75; 3 * 0.54 kg; 3 / 400 = 0.0075
    {25.20, 0, 25.20, 2.160, 0.015},  // 6 * 4.2 = 25.2; 6 * 0.36 kg; 6 / 400 = 0.015
    {44.10, 0, 44.10, 0.840, 0.018},  // 7 * 6.3 = 44.1; 7 * 0.12 kg; 7 / 400 = 0.0175
    {35.10, 1.76, 33.34, 0.936, 0.045},  // 18 * 1.95 = 35.1; of it 5 % = 1.755; 18 * 0.052 kg; 18 / 400 = 0.045
    {29.60, 0, 29.60, 1.240, 0.010},  // 4 * 7.4 = 29.6; 4 * 0.31 kg; 4 / 400 = 0.01
    {27.50, 0, 27.50, 0.310, 0.025},  // 10 * 2.75 = 27.5; 10 * 0.031 kg; 10 / 400 = 0.025
    {107.50, 8.06, 99.44, 0.950, 0.013},  // 5 * 21.5 = 107.5; of it 7.5 % = 8.0625; 5 * 0.19 kg; 5 / 400 = 0.0125
    {80.91, 16.18, 64.73, 5.130, 0.023},  // 9 * 8.99 = 80.91; of it 20 % = 16.182; 9 * 0.57 kg; 9 / 400 = 0.0225
    {112.50, 0, 112.50, 14.100, 0.015},  // 6 * 18.75 = 112.5; 6 * 2.35 kg; 6 / 400 = 0.015
    {59.80, 0, 59.80, 8.200, 0.005},  // 2 * 29.9 = 59.8; 2 * 4.1 kg; 2 / 400 = 0.005
    {24.50, 0, 24.50, 1.950, 0.003},  // 1 * 24.5 = 24.5; 1 * 1.95 kg; 1 / 400 = 0.0025
    {57.24, 5.72, 51.52, 7.200, 0.090},  // 36 * 1.59 = 57.24; of it 10 % = 5.724; 36 * 0.2 kg; 36 / 400 = 0.09
    {47.40, 0, 47.40, 13.800, 0.008},  // 3 * 15.8 = 47.4; 3 * 4.6 kg; 3 / 400 = 0.0075
    {259.60, 0, 259.60, 3.400, 0.010},  // 4 * 64.9 = 259.6; 4 * 0.85 kg; 4 / 400 = 0.01
    {378.00, 30.24, 347.76, 4.800, 0.005},  // 2 * 189 = 378; of it 8 % = 30.24; 2 * 2.4 kg; 2 / 400 = 0.005
    {194.70, 0, 194.70, 0.420, 0.015},  // 6 * 32.45 = 194.7; 6 * 0.07 kg; 6 / 400 = 0.015
    {95.88, 0, 95.88, 0.132, 0.030},  // 12 * 7.99 = 95.88; 12 * 0.011 kg; 12 / 400 = 0.03
    {35.85, 0, 35.85, 1.740, 0.008},  // 3 * 11.95 = 35.85; 3 * 0.58 kg; 3 / 400 = 0.0075
    {98.00, 0, 98.00, 2.600, 0.005},  // 2 * 49 = 98; 2 * 1.3 kg; 2 / 400 = 0.005
    {638.00, 95.70, 542.30, 35.000, 0.005},  // 2 * 319 = 638; of it 15 % = 95.7; 2 * 17.5 kg; 2 / 400 = 0.005
    {75.60, 0, 75.60, 4.400, 0.005},  // 2 * 37.8 = 75.6; 2 * 2.2 kg; 2 / 400 = 0.005
    {129.50, 0, 129.50, 9.800, 0.003},  // 1 * 129.5 = 129.5; 1 * 9.8 kg; 1 / 400 = 0.0025
    {34.25, 0, 34.25, 0.450, 0.013},  // 5 * 6.85 = 34.25; 5 * 0.09 kg; 5 / 400 = 0.0125
    {52.80, 0, 52.80, 13.800, 0.005},  // 2 * 26.4 = 52.8; 2 * 6.9 kg; 2 / 400 = 0.005
    {22.90, 0, 22.90, 2.100, 0.003},  // 1 * 22.9 = 22.9; 1 * 2.1 kg; 1 / 400 = 0.0025
    {123.92, 0, 123.92, 8.000, 0.020},  // 8 * 15.49 = 123.92; 8 * 1 kg; 8 / 400 = 0.02
    {101.50, 0, 101.50, 0.000, 0.004},  // 1.75 * 58 = 101.5; 1.75 * 0 kg; 1.75 / 400 = 0.004375
    // clang-format on
}};

/// Whether the object is visible; fails the test if it has no condition.
bool IsVisible(const PrintedZone& zone, const std::wstring& object) {
  for (const supplier::Visibility& condition : zone.conditions) {
    if (condition.object == object) return condition.isVisible;
  }
  ADD_FAILURE() << "no condition";
  return false;
}

/// The text with one place of it changed, which must be there.
std::string Changed(std::string text, const std::string& from, const std::string& to) {
  const std::size_t place = text.find(from);
  EXPECT_NE(place, std::string::npos) << from;
  return place == std::string::npos ? text : text.replace(place, from.size(), to);
}

double Printed(const PrintedZone& zone, const wchar_t* key) { return zone.results.at(key).printed; }

}  // namespace

TEST(Supplier, PrintsEachZoneOnceForEachRow) {
  const std::vector<PrintedZone> zones = PrintInvoice();
  ASSERT_EQ(zones.size(), 45U);
  EXPECT_EQ(zones[0].name, L"Kopf");
  EXPECT_EQ(zones[1].name, L"PositionsKopf");
  for (std::size_t i = 2; i < 42; ++i) EXPECT_EQ(zones[i].name, L"Position");
  EXPECT_EQ(zones[42].name, L"Text");
  EXPECT_EQ(zones[43].name, L"Summe");
  EXPECT_EQ(zones[44].name, L"Fuss");
}

TEST(Supplier, ComputesTheFormulasOfEachPosition) {
  const std::vector<PrintedZone> zones = PrintInvoice();
  for (std::size_t i = 0; i < kPositions.size(); ++i) {
    SCOPED_TRACE(i + 1);
    const PrintedZone& zone = zones.at(i + 2);
    const ExpectedPosition& expected = kPositions.at(i);
    ASSERT_EQ(zone.results.size(), 5U);
    EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Betrag"), expected.betrag);
    EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Rabatt"), expected.rabatt);
    EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Netto"), expected.netto);
    EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Gewicht"), expected.gewicht);
    EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Palette"), expected.palette);
  }
}

// Betrag: two decimals by its round key. Gewicht: three by PL.NksGewicht of the data. Palette: three by PL.Nks3.
TEST(Supplier, TakesDecimalsFromTheRoundKey) {
  const PrintedZone zone = PrintInvoice().at(2);
  EXPECT_EQ(zone.results.at(L"FX.Betrag").decimals, 2);
  EXPECT_EQ(zone.results.at(L"FX.Gewicht").decimals, 3);
  EXPECT_EQ(zone.results.at(L"FX.Palette").decimals, 3);
}

// A position without discount prints no discount, and one without weight no weight; both formulas ask for that.
TEST(Supplier, PrintsNoZeroWhereTheFormulaSaysSo) {
  const std::vector<PrintedZone> zones = PrintInvoice();
  const std::set<std::size_t> discounted = {1, 3, 7, 8, 10, 17, 20, 21, 25, 28, 33};
  for (std::size_t position = 1; position <= 40; ++position) {
    SCOPED_TRACE(position);
    const PrintedZone& zone = zones.at(position + 1);
    EXPECT_EQ(zone.results.at(L"FX.Rabatt").isEmpty, !discounted.contains(position));
    EXPECT_EQ(zone.results.at(L"FX.Gewicht").isEmpty, position == 40);
    EXPECT_FALSE(zone.results.at(L"FX.Netto").isEmpty);
    EXPECT_FALSE(zone.results.at(L"FX.Betrag").isEmpty);
  }
}

TEST(Supplier, EvaluatesTheConditionsOfEachPosition) {
  const std::vector<PrintedZone> zones = PrintInvoice();
  const std::set<std::size_t> discounted = {1, 3, 7, 8, 10, 17, 20, 21, 25, 28, 33};
  for (std::size_t position = 1; position <= 40; ++position) {
    SCOPED_TRACE(position);
    const PrintedZone& zone = zones.at(position + 1);
    ASSERT_EQ(zone.conditions.size(), 4U);
    EXPECT_EQ(IsVisible(zone, L"Pos mod 2 == 0"), position % 2 == 0) << "every second row is shaded";
    EXPECT_EQ(IsVisible(zone, L"Rabatt"), discounted.contains(position));
    EXPECT_EQ(IsVisible(zone, L"abzüglich Rabatt:"), discounted.contains(position));
    EXPECT_EQ(IsVisible(zone, L"FX.Rabatt"), discounted.contains(position));
  }
}

// The column Netto adds up to 3657.23, the column Gewicht to 416.480.
//   tax     3657.23 * 19 / 100 = 694.8737 -> 694.87
//   total   3657.23 + 694.87   = 4352.10
//   Skonto  4352.10 * 2 / 100  = 87.042   -> 87.04
TEST(Supplier, ComputesSumsAndWhatFollowsFromThem) {
  const PrintedZone zone = PrintInvoice().at(43);
  double netto = 0;
  double gewicht = 0;
  for (const ExpectedPosition& position : kPositions) {
    netto += position.netto;
    gewicht += position.gewicht;
  }
  EXPECT_NEAR(netto, 3657.23, 1e-9);
  EXPECT_NEAR(gewicht, 416.48, 1e-9);
  ASSERT_EQ(zone.results.size(), 6U);
  EXPECT_DOUBLE_EQ(Printed(zone, L"SU.Netto"), 3657.23);
  EXPECT_DOUBLE_EQ(Printed(zone, L"SU.Gewicht"), 416.48);
  EXPECT_DOUBLE_EQ(Printed(zone, L"FX.MwSt"), 694.87);
  EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Gesamt"), 4352.10);
  EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Skonto"), 87.04);
  EXPECT_DOUBLE_EQ(Printed(zone, L"FX.Worte"), 4352.10);
}

TEST(Supplier, EvaluatesTheConditionsOfTheOtherZones) {
  const std::vector<PrintedZone> zones = PrintInvoice();
  ASSERT_EQ(zones[0].conditions.size(), 1U);
  EXPECT_FALSE(IsVisible(zones[0], L"AD.Land")) << "the receiver lives in Deutschland";
  EXPECT_TRUE(zones[1].conditions.empty());
  ASSERT_EQ(zones[42].conditions.size(), 1U);
  EXPECT_FALSE(IsVisible(zones[42], L"Der Rechnungsbetrag wird von Ihrem Konto eingezogen."))
      << "it is paid by Überweisung";
  ASSERT_EQ(zones[43].conditions.size(), 3U);
  EXPECT_TRUE(IsVisible(zones[43], L"Skonto bei Zahlung binnen"));
  EXPECT_TRUE(IsVisible(zones[43], L"PL.SkontoTage"));
  EXPECT_TRUE(IsVisible(zones[43], L"FX.Skonto"));
  ASSERT_EQ(zones[44].conditions.size(), 1U);
  EXPECT_FALSE(IsVisible(zones[44], L"Steuerschuldnerschaft des Leistungsempfängers (§ 13b UStG)."))
      << "the rate is 19";
}

// A running sum has its own row in it: 0 - 184.30 = -184.30, then -184.30 - 96.45 = -280.75. Over all rows the column
// Soll adds up to 9922.97, Haben to 19225.89.
//   running sum at the end  19225.89 - 9922.97            = 9302.92
//   average of a day        19225.89 / 30 = 640.863       -> 640.86
//   balance                 12480.35 + 19225.89 - 9922.97 = 21783.27, in a table cell
TEST(Supplier, ComputesRunningSumsAndThoseOfTheFooterOfTheStatement) {
  const std::vector<PrintedZone> zones = PrintSample("statement");
  ASSERT_EQ(zones.size(), 49U);
  EXPECT_DOUBLE_EQ(Printed(zones[2], L"SU.Saldo"), -184.30);
  EXPECT_DOUBLE_EQ(Printed(zones[3], L"SU.Saldo"), -280.75);
  EXPECT_DOUBLE_EQ(Printed(zones[46], L"SU.Saldo"), 9302.92);
  const PrintedZone& footer = zones[47];
  EXPECT_EQ(footer.name, L"Saldo");
  EXPECT_DOUBLE_EQ(Printed(footer, L"SU.Soll"), 9922.97);
  EXPECT_DOUBLE_EQ(Printed(footer, L"SU.Haben"), 19225.89);
  EXPECT_DOUBLE_EQ(Printed(footer, L"SU.HabenSeite"), 19225.89);
  EXPECT_DOUBLE_EQ(Printed(footer, L"FX.Tagesschnitt"), 640.86);
  EXPECT_DOUBLE_EQ(Printed(footer, L"FX.Endsaldo"), 21783.27);
}

// Ordered 200 + 400 + 100 + 12 + 6 + 25 + 40 + 150 = 933, delivered 200 + 400 + 80 + 12 + 4 + 25 + 40 + 120 = 881.
TEST(Supplier, ComputesTheSumInATableCellOfTheDeliveryNote) {
  const std::vector<PrintedZone> zones = PrintSample("legacy");
  ASSERT_EQ(zones.size(), 10U);
  EXPECT_DOUBLE_EQ(Printed(zones[1], L"SU.Laufend"), 200);
  EXPECT_DOUBLE_EQ(Printed(zones[3], L"SU.Laufend"), 680);
  EXPECT_DOUBLE_EQ(Printed(zones[3], L"FX.Rest"), 20);
  EXPECT_TRUE(zones[1].results.at(L"FX.Rest").isEmpty);
  EXPECT_DOUBLE_EQ(Printed(zones[1], L"FX.Defekt"), 2);
  EXPECT_DOUBLE_EQ(Printed(zones[9], L"SU.Bestellt"), 933);
  EXPECT_DOUBLE_EQ(Printed(zones[9], L"SU.Geliefert"), 881);
  EXPECT_DOUBLE_EQ(Printed(zones[9], L"FX.Komplett"), 0) << "less is delivered than ordered";
}

// The round key of a formula that no zone shows is among no zone's formula keys: Defekt is 2, with three decimals.
TEST(Supplier, OffersTheRoundKeysOfDefinedFormulas) {
  const std::filesystem::path sample = std::filesystem::path(ZEB_EXAMPLES) / "legacy";
  const zebtest::TempDir dir;
  std::string report = zebtest::ReadFile(sample / "report.xml");
  const std::size_t record = report.find("<InternalKey>FX.Defekt</InternalKey>");
  ASSERT_NE(record, std::string::npos);
  report = report.substr(0, record) + Changed(report.substr(record), "<RoundVHKey>PL.Nks0</RoundVHKey>",
                                              "<RoundVHKey>PL.NksX</RoundVHKey>");
  zebtest::WriteFile(dir.File("report.xml"), report);
  zebtest::WriteFile(dir.File("data.json"), Changed(zebtest::ReadFile(sample / "data.json"), "\"PL.Nks2\": 2",
                                                    "\"PL.Nks2\": 2, \"PL.NksX\": 3"));
  const supplier::Result defect =
      supplier::ReportRun(dir.File("data.json"), ZEB_SHARE).Print().at(1).results.at(L"FX.Defekt");
  EXPECT_EQ(defect.decimals, 3);
  EXPECT_DOUBLE_EQ(defect.printed, 2);
}

// Nor are the keys of the conditions of cells and of the texts in them.
TEST(Supplier, OffersWhatConditionsInCellsRead) {
  const zebtest::TempDir dir;
  std::string report = zebtest::ReadFile(kInvoice.parent_path() / "report.xml");
  const std::size_t text = report.find("<TextContent>abzüglich Rabatt:</TextContent>");
  ASSERT_NE(text, std::string::npos);
  const std::size_t condition = report.rfind("<Condition>", text);
  std::string changed = Changed(report.substr(condition), "Rabatt &gt; 0", "ZeigeRabatt &gt; 0");
  changed = Changed(changed, "<InternalKey>Rabatt<", "<InternalKey>ZeigeRabatt<");
  zebtest::WriteFile(dir.File("report.xml"), report.substr(0, condition) + changed);
  const std::string data = zebtest::ReadFile(kInvoice);
  for (const bool isShown : {true, false}) {
    const std::string value = isShown ? "1" : "0";
    zebtest::WriteFile(dir.File("data.json"),
                       Changed(data, "\"PL.Nks2\": 2", "\"PL.Nks2\": 2, \"ZeigeRabatt\": " + value));
    const PrintedZone zone = supplier::ReportRun(dir.File("data.json"), ZEB_SHARE).Print().at(3);
    EXPECT_EQ(IsVisible(zone, L"abzüglich Rabatt:"), isShown);
    EXPECT_FALSE(IsVisible(zone, L"FX.Rabatt")) << "the second position has no discount";
  }
}

TEST(Supplier, OffersWhatConditionsOfCellsRead) {
  const zebtest::TempDir dir;
  std::string report = zebtest::ReadFile(kInvoice.parent_path() / "report.xml");
  const std::size_t records = report.find("  <TableCell>");
  ASSERT_NE(records, std::string::npos);
  const std::size_t cell = report.find("</Placeable>", records);
  report.insert(
      cell,
      "<Condition><Formula>ZeigeZelle &gt; 0</Formula><KeyToType><InternalKey>ZeigeZelle</InternalKey>"
      "<VHType>2</VHType></KeyToType></Condition>");
  zebtest::WriteFile(dir.File("report.xml"), report);
  zebtest::WriteFile(dir.File("data.json"), Changed(zebtest::ReadFile(kInvoice), "\"PL.Nks2\": 2",
                                                    "\"PL.Nks2\": 2, \"ZeigeZelle\": 1"));
  const PrintedZone zone = supplier::ReportRun(dir.File("data.json"), ZEB_SHARE).Print().at(1);
  EXPECT_TRUE(IsVisible(zone, L"ZeigeZelle > 0"));
}

// Nor are those of the conditions of formulas that no zone shows; round keys that need no value are not asked for.
TEST(Supplier, OffersWhatDefinedFormulasNeedAndNoMore) {
  const supplier::ReportData data;
  supplier::RowSupplier rows(data);
  const std::unique_ptr<CFormulaValueHolder> formula = std::make_unique<CFormulaValueHolder>();
  const std::unique_ptr<CFormulaValueHolder> rounded = std::make_unique<CFormulaValueHolder>();
  const zebtest::TempDir dir;
  zebtest::WriteFile(dir.File("report.xml"),
                     "<ReportRootElement><ReportDocument><ZoneID>1</ZoneID></ReportDocument>"
                     "<ReportZone><ZoneID>1</ZoneID></ReportZone></ReportRootElement>");
  CReportValueHolders report;
  report.LoadReport(dir.WideFile("report.xml").c_str(), dir.WidePath().c_str(), L"");
  CReportZone& zone = *report.GetRootElement()->GetReportDocument()->GetReportZoneAt(0);
  auto* condition = new CCondition;
  condition->SetFormula(L"Zeige > 0");
  formula->SetCondition(condition);
  formula->SetFormula(L"Menge");
  rounded->SetFormula(L"Menge");
  rounded->SetRoundVHKey(L"PL.Nks6");
  zone.AddDefinedFormulaValueHolder(formula.get());
  zone.AddDefinedFormulaValueHolder(rounded.get());
  rows.OfferTo(report, {});
  EXPECT_NE(zone.GetAvailableValueHolder(L"Menge"), nullptr);
  EXPECT_NE(zone.GetAvailableValueHolder(L"Zeige"), nullptr);
  EXPECT_EQ(zone.GetAvailableValueHolder(L""), nullptr);
  EXPECT_EQ(zone.GetAvailableValueHolder(L"PL.Nks6"), nullptr);
  rounded->SetRoundVHKey(L"PL.Nks7");
  rows.OfferTo(report, {});
  EXPECT_NE(zone.GetAvailableValueHolder(L"PL.Nks7"), nullptr);
}

TEST(Supplier, LeavesAFormulaThatIsPlacedAndDefinedToItsZone) {
  const zebtest::TempDir dir;
  constexpr const char* kPlaced = "<FormulaVHID>63</FormulaVHID>";
  zebtest::WriteFile(dir.File("report.xml"),
                     Changed(zebtest::ReadFile(kInvoice.parent_path() / "report.xml"), kPlaced,
                             std::string(kPlaced) + "<FormulaVHID>64</FormulaVHID>"));
  zebtest::WriteFile(dir.File("data.json"), zebtest::ReadFile(kInvoice));
  supplier::ReportRun run(dir.File("data.json"), ZEB_SHARE);
  EXPECT_EQ(run.Print().size(), PrintSample("invoice").size());
}

TEST(Supplier, GivesTheSameAtASecondRun) {
  supplier::ReportRun run(kInvoice, ZEB_SHARE);
  run.Print();
  EXPECT_DOUBLE_EQ(run.Print().at(43).results.at(L"SU.Netto").printed, 3657.23);
}

TEST(Supplier, OffersTextsNumbersAndFiles) {
  const supplier::ReportData data = supplier::ReadReportData(kInvoice);
  supplier::RowSource source;
  source.global = &data.global;
  source.row = &data.zones.at(3).second.at(0);
  supplier::RowValue note(source, L"BE.Notiz");
  EXPECT_EQ(note.GetValueAsText(), nullptr) << "nothing was fetched yet";
  note.CallGetValue();
  EXPECT_STREQ(note.GetValueAsText(), L"note.rtf");
  supplier::RowValue rate(source, L"PL.MwSt-Satz");
  rate.CallGetValue();
  EXPECT_EQ(rate.GetValueAsText(), nullptr);
  const std::unique_ptr<CDoubleElement> number(rate.GetValueAsDouble());
  EXPECT_EQ(number->GetDouble(), 19.0);
  EXPECT_EQ(number->GetPrecision(), 0);
  supplier::RowValue unknown(source, L"FX.Netto");
  unknown.CallGetValue();
  EXPECT_FALSE(unknown.HasValue());
  const std::unique_ptr<CDoubleElement> nothing(unknown.GetValueAsDouble());
  EXPECT_EQ(nothing->GetDouble(), 0.0);
}

TEST(SupplierData, ReadsTheSamples) {
  for (const char* sample : {"invoice", "statement", "legacy"}) {
    const supplier::ReportData data =
        supplier::ReadReportData(std::filesystem::path(ZEB_EXAMPLES) / sample / "data.json");
    EXPECT_EQ(data.report, L"report.xml");
    EXPECT_FALSE(data.zones.empty());
  }
  const supplier::ReportData invoice = supplier::ReadReportData(kInvoice);
  ASSERT_EQ(invoice.zones.size(), 6U);
  EXPECT_EQ(invoice.zones[2].first, L"Position");
  ASSERT_EQ(invoice.zones[2].second.size(), 40U);
  const supplier::Value& price = invoice.zones[2].second[0].at(L"Preis");
  EXPECT_EQ(price.number, 4.79);
  EXPECT_EQ(price.decimals, 2);
  EXPECT_EQ(invoice.zones[0].second[0].at(L"AD.Firma").text, L"Gärtnerei Weißenböck & Co. KG");
}

TEST(SupplierData, RefusesOtherTextsWithTheirPlace) {
  const zebtest::TempDir dir;
  const std::filesystem::path file = dir.File("data.json");
  const auto failure = [&](const std::string& text) -> std::string {
    std::ofstream(file, std::ios::binary) << text;
    try {
      supplier::ReadReportData(file);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return {};
  };
  EXPECT_EQ(failure(R"({"report": "a\u00e4\ud83d\ude00\n", "zones": {"Z": []}})"), "");
  EXPECT_EQ(supplier::ReadReportData(file).report, supplier::FromUtf8("aä😀\n"));
  EXPECT_EQ(failure(""), "data, byte 0: a '{' is expected here");
  EXPECT_EQ(failure("{} x"), "data, byte 3: the end is expected here");
  EXPECT_EQ(failure(R"({"other": 1})"), "data, byte 9: report, layout, global or zones is expected here");
  EXPECT_EQ(failure(R"({"global": {"a": [1]}})"), "data, byte 17: a number is expected here");
  EXPECT_EQ(failure(R"({"report": "a)"), "data, byte 13: a closing quote is expected here");
  EXPECT_EQ(failure(R"({"report": "\ud83d"})"), "data, byte 18: a pair of surrogates is expected here");
  EXPECT_EQ(failure(R"({"report": "\u12)"),
            "data, byte 14: a code of four hexadecimal digits is expected here");
  EXPECT_EQ(failure(R"({"report": "\x"})"), "data, byte 14: an escape is expected here");
  EXPECT_EQ(failure("{\"report\": \"\xC3\"}"), "the text is no UTF-8");
  std::filesystem::remove(file);
  EXPECT_THROW(supplier::ReadReportData(file), std::runtime_error);
}
