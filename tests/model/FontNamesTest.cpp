// Files hold the unique name of a font, memory holds the name that users of the machine know.

#include "model/FontNames.h"

#include "fonts/FontInformation.h"
#include "fonts/Fonts.h"
#include "fonts/GlobalFontHandler.h"
#include "model/Text.h"
#include "model/ValueHolder.h"
#include "support/LoadedReport.h"
#include "support/ScopedFontPool.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using zebtest::LoadedReport;

/// The records of one text of every kind in a zone: placed, in a table cell, and only defined.
const std::string kZone =
    "<TxID>2</TxID><VHID>3</VHID><FormulaVHID>4</FormulaVHID><SumVHID>5</SumVHID><DynVHID>6</DynVHID>"
    "<CopyVHID>7</CopyVHID><TableCellID>8</TableCellID><VHID>9</VHID><TxID>10</TxID>"
    "<DefinedFormulaVHID>11</DefinedFormulaVHID>";

std::string Text(int id, const std::string& font) {
  return zebtest::TextRecord(id, "", "<FontName>" + font + "</FontName>");
}

std::string Field(int id, const std::string& font) {
  return "<ValueHolder><VHID>" + std::to_string(id) + "</VHID>" + Text(id, font) +
         "<InternalKey/></ValueHolder>";
}

std::string Outer(const std::string& name, int id, const std::string& font) {
  return "<" + name + ">" + Field(id, font) + "</" + name + ">";
}

std::string Cell(int id) {
  const std::string number = std::to_string(id);
  return "<TableCell><TableCellID>" + number + "</TableCellID><Placeable><PlID>" + number +
         "</PlID></Placeable></TableCell>";
}

std::string Report(const std::string& font) {
  return zebtest::ReportOfOneZone(
      kZone, Field(3, font) + Outer("FormulaValueHolder", 4, font) + Outer("SumValueHolder", 5, font) +
                 Outer("DynValueHolder", 6, font) + Outer("CopyValueHolder", 7, font) + Field(9, font) +
                 Outer("FormulaValueHolder", 11, font) + Text(2, font) + Text(10, font) + Cell(8));
}

/// A page with one text of each kind, and a cell with a text and a field.
std::string Layout(const std::string& font) {
  return zebtest::LayoutOfOnePage(Field(3, font) + Outer("FormulaValueHolder", 4, font) +
                                  Outer("SumValueHolder", 5, font) + Outer("DynValueHolder", 6, font) +
                                  Text(2, font) + Cell(8) + Text(10, font) + Field(9, font));
}

/// The texts of the zone: text, field, formula, sum, dynamic field, copied field.
std::vector<CText*> PlacedTexts(CReportZone& zone) {
  std::vector<CText*> texts = {zone.GetTextElementAt(0)};
  for (int i = 0; i < zone.GetValueHolderCount(); ++i) texts.push_back(zone.GetValueHolderAt(i));
  return texts;
}

std::vector<CText*> CellTexts(const CTableCell& cell) {
  std::vector<CText*> texts;
  for (int i = 0; i < cell.GetCellElementCount(); ++i) {
    texts.push_back(dynamic_cast<CText*>(cell.GetCellElementAt(i)));
  }
  return texts;
}

std::vector<CText*> PageTexts(CLayoutPage& page) {
  std::vector<CText*> texts;
  for (int i = 0; i < page.GetLayoutContentCount(); ++i) {
    if (auto* text = dynamic_cast<CText*>(page.GetLayoutContentAt(i))) texts.push_back(text);
  }
  return texts;
}

const CTableCell& CellOf(CLayoutPage& page) {
  for (int i = 0;; ++i) {
    if (auto* cell = dynamic_cast<CTableCell*>(page.GetLayoutContentAt(i))) return *cell;
  }
}

void ExpectFont(const std::vector<CText*>& texts, std::size_t count, const wchar_t* font) {
  EXPECT_EQ(texts.size(), count);
  for (const CText* text : texts) EXPECT_STREQ(text->GetFontName(), font);
}

int CountOf(const std::string& file, const std::string& font) {
  const std::string element = "<FontName>" + font + "</FontName>";
  int count = 0;
  for (auto at = file.find(element); at != std::string::npos; at = file.find(element, at + 1)) ++count;
  return count;
}

/// A font that users know as "Muster".
CFontMetrics& AddSample(CGlobalFontHandler& handler) {
  auto* const font = new CFontInformation(handler.GetFonts());
  handler.GetFonts()->AddFont(font);
  CFontMetrics& metrics = *font->GetFontMetrics();
  metrics.SetBaseFont(L"Sample");
  metrics.AddLocalizedFontName(L"Muster");
  return metrics;
}

/// A font that the pool knows: the name "Muster" of files becomes "Sample" in memory.
void PoolSample() {
  unsigned char byte = 0;
  CFontPool::GetInstance().SetFontData(L"Sample", L"", 400, false, &byte, 1, {L"Muster"});
}

TEST(FontNames, ALoadedNameIsExchangedInMemory) {
  CGlobalFontHandler handler;
  AddSample(handler);
  CText text;
  text.SetFontName(L"Sample");
  zeb::LocalizeFontName(handler, text);
  EXPECT_STREQ(text.GetFontName(), L"Muster");
  zeb::UniqueFontNames(handler).Apply(text);
  EXPECT_STREQ(text.GetFontName(), L"Sample");
}

TEST(FontNames, ANameWithoutAnotherStays) {
  CGlobalFontHandler handler;
  CText text;
  text.SetFontName(L"No such font at all");
  for (int i = 0; i < 2; ++i) {
    zeb::LocalizeFontName(handler, text);
    zeb::UniqueFontNames(handler).Apply(text);
    EXPECT_STREQ(text.GetFontName(), L"No such font at all");
  }
}

CText TextOf(const wchar_t* font, int bold = 400) {
  CText text;
  text.SetFontName(font);
  text.SetBold(bold);
  return text;
}

TEST(FontNames, ASavingAsksOnceForANameThatNobodyKnows) {
  const zebtest::ScopedFontPool pool;
  CGlobalFontHandler handler;
  zeb::UniqueFontNames saving(handler);
  CText first = TextOf(L"Muster");
  saving.Apply(first);
  PoolSample();
  CText second = TextOf(L"Muster");
  saving.Apply(second);
  EXPECT_STREQ(second.GetFontName(), L"Muster");
  zeb::UniqueFontNames(handler).Apply(second);
  EXPECT_STREQ(second.GetFontName(), L"Sample") << "the next saving asks again";
}

TEST(FontNames, FixedAnAnswerForOneStyleHoldsForAllInASaving) {
  const zebtest::ScopedFontPool pool;
  CGlobalFontHandler handler;
  CFontMetrics& metrics = AddSample(handler);
  metrics.SetFontFamilyName(L"MUSTER");
  metrics.SetBold(700);
  metrics.AddLocalizedFontName(L"muster");
  zeb::UniqueFontNames saving(handler);
  CText normal = TextOf(L"MUSTER");
  saving.Apply(normal);
  EXPECT_STREQ(normal.GetFontName(), L"MUSTER");
  CText bold = TextOf(L"MUSTER", 700);
  saving.Apply(bold);
  EXPECT_STREQ(bold.GetFontName(), L"Sample");
  CText again = TextOf(L"MUSTER");
  saving.Apply(again);
  EXPECT_STREQ(again.GetFontName(), L"Sample");
}

TEST(FontNames, TheStyleOfTheTextCounts) {
  CGlobalFontHandler handler;
  CFontMetrics& metrics = AddSample(handler);
  metrics.SetFontFamilyName(L"Samples");
  metrics.SetBold(700);
  metrics.SetItalic(true);
  CText text;
  text.SetFontName(L"Samples");
  zeb::LocalizeFontName(handler, text);
  EXPECT_STREQ(text.GetFontName(), L"Samples");
  CText styled;
  styled.SetFontName(L"SAMPLES");
  styled.SetBold(700);
  styled.SetItalic(true);
  zeb::LocalizeFontName(handler, styled);
  EXPECT_STREQ(styled.GetFontName(), L"Muster");
}

TEST(FontNames, EveryTextOfAReportIsLocalizedOnLoading) {
  const zebtest::ScopedFontPool pool;
  PoolSample();
  LoadedReport report;
  report.LoadReportText(Report("Muster"));
  CReportZone& zone = report.Zone(0);
  ExpectFont(PlacedTexts(zone), 6, L"Sample");
  ExpectFont(CellTexts(*zone.GetTableCellAt(0)), 2, L"Sample");
  EXPECT_STREQ(zone.GetDefinedFormulaValueHolderAt(0)->GetFontName(), L"Sample");
}

TEST(FontNames, FixedADefinedFormulaKeepsItsNameOnSaving) {
  LoadedReport report;
  report.LoadReportText(Report("Muster"));
  AddSample(*report.Document().GetFontHandler());
  const std::string file = report.SavedReport();
  EXPECT_EQ(CountOf(file, "Sample"), 8);
  EXPECT_EQ(CountOf(file, "Muster"), 1);
}

TEST(FontNames, FixedTextsOfAReportKeepTheUniqueNameAfterSaving) {
  LoadedReport report;
  report.LoadReportText(Report("Muster"));
  AddSample(*report.Document().GetFontHandler());
  report.SavedReport();
  CReportZone& zone = report.Zone(0);
  ExpectFont(PlacedTexts(zone), 6, L"Sample");
  ExpectFont(CellTexts(*zone.GetTableCellAt(0)), 2, L"Sample");
  EXPECT_STREQ(zone.GetDefinedFormulaValueHolderAt(0)->GetFontName(), L"Muster");
}

TEST(FontNames, ABuiltInFontKeepsItsNameThroughAFile) {
  LoadedReport report;
  report.LoadReportText(Report("helvetica-bold"));
  ExpectFont(PlacedTexts(report.Zone(0)), 6, L"helvetica-bold");
  EXPECT_EQ(CountOf(report.SavedReport(), "helvetica-bold"), 9);
}

TEST(FontNames, FixedTextsInCellsOfAPageAreNotLocalized) {
  const zebtest::ScopedFontPool pool;
  PoolSample();
  LoadedReport report;
  report.LoadLayoutText(Layout("Muster"));
  ExpectFont(PageTexts(report.Page(0)), 5, L"Sample");
  ExpectFont(CellTexts(CellOf(report.Page(0))), 2, L"Muster");
}

TEST(FontNames, FixedTextsInCellsOfAPageKeepTheirNameOnSaving) {
  LoadedReport report;
  report.LoadLayoutText(Layout("Muster"));
  AddSample(*report.Layout().GetFontHandler());
  const std::string file = report.SavedLayout();
  EXPECT_EQ(CountOf(file, "Sample"), 5);
  EXPECT_EQ(CountOf(file, "Muster"), 2);
  ExpectFont(PageTexts(report.Page(0)), 5, L"Sample");
  ExpectFont(CellTexts(CellOf(report.Page(0))), 2, L"Muster");
}

TEST(FontNames, DocumentAndLayoutAskTheirOwnFonts) {
  LoadedReport report;
  report.LoadReportText(Report("Muster"));
  report.LoadLayoutText(Layout("Muster"));
  AddSample(*report.Document().GetFontHandler());
  EXPECT_EQ(CountOf(report.SavedLayout(), "Sample"), 0);
  EXPECT_EQ(CountOf(report.SavedReport(), "Sample"), 8);
}

}  // namespace
