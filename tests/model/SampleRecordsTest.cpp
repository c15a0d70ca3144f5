#include "model/CopyValueHolder.h"
#include "model/DynamicValueHolder.h"
#include "model/FormulaValueHolder.h"
#include "model/Line.h"
#include "model/ObjectBinding.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportRootElement.h"
#include "model/SumValueHolder.h"
#include "model/TableCell.h"
#include "placement/PlaceableRelation.h"
#include "support/RecordFixture.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <regex>
#include <string>
#include <vector>

// The records of the sample reports, which were not written by this library, survive loading and saving to the letter.

namespace {

using zebxmln::CXMLNode;

using Maker = std::unique_ptr<CPlaceable> (*)();

template <class Object>
std::unique_ptr<CPlaceable> Make() {
  return std::make_unique<Object>();
}

const std::map<std::wstring, Maker> kMakers = {
    {L"ValueHolder", Make<CValueHolder>},
    {L"FormulaValueHolder", Make<CFormulaValueHolder>},
    {L"SumValueHolder", Make<CSumValueHolder>},
    {L"DynValueHolder", Make<CDynamicValueHolder>},
    {L"CopyValueHolder", Make<CCopyValueHolder>},
    {L"Text", Make<CText>},
    {L"Picture", Make<CPicture>},
    {L"Rectangle", Make<CRectangle>},
    {L"Line", Make<CLine>},
    {L"TableCell", Make<CTableCell>},
};

/// A file without indentation and without the numbers of identifiers, which each saving gives anew.
std::string Comparable(const std::string& text) {
  static const std::regex kIdentifier(
      "<(VHID|TxID|PlID|PlRelID|PicID|RectID|LineID|TableCellID|ZoneID)>[0-9]+<");
  return std::regex_replace(std::regex_replace(text, std::regex("\n *"), ""), kIdentifier, "<$1>#<");
}

std::string RecordsOf(const std::string& text) {
  const std::string comparable = Comparable(text);
  const std::string zoneEnd = "</ReportZone>";
  const std::size_t begin = comparable.rfind(zoneEnd) + zoneEnd.size();
  return comparable.substr(begin, comparable.rfind("</") - begin);
}

std::string LoadedAndSaved(const std::string& path) {
  const zebtest::DocumentPtr source(zebxmln::CXMLManager::GetInstance().LoadDocument(
      zebtest::Widen(path).c_str(), true, false, nullptr, false, false));
  const zebtest::DocumentPtr target(zebxmln::CXMLManager::GetInstance().CreateDocument(L"Record", nullptr));
  CXMLNode* const root = target->CreateRootNode(L"Root");
  CIDManager loadIDs;
  CIDManager saveIDs;
  std::vector<std::unique_ptr<CPlaceable>> objects;
  for (CXMLNode** node = source->GetRootNode()->GetChildNodes(); *node != nullptr; ++node) {
    const std::wstring name = (*node)->GetNodeName();
    if (const auto maker = kMakers.find(name); maker != kMakers.end()) {
      objects.push_back(maker->second());
      objects.back()->Load(*node, loadIDs);
      objects.back()->Save(root, saveIDs);
    } else if (name == L"PlRel") {
      const int id = std::stoi((*node)->GetFirstChildNode()->GetNodeText());
      auto* const relation = zeb::FindObject<CPlaceableRelation>(zeb::IDBinding(loadIDs), id);
      if (relation == nullptr) continue;
      relation->Load(*node, loadIDs);
      relation->Save(root, saveIDs);
    }
  }
  const zebtest::TempDir dir;
  target->SaveDocumentToFile(dir.WideFile("saved.xml").c_str(), true);
  EXPECT_TRUE(zeb::IDBinding(loadIDs).UnownedNamedByRelations().empty());
  return Comparable(zebtest::CompactXML(zebtest::ReadFile(dir.File("saved.xml"))));
}

class SampleRecords : public ::testing::TestWithParam<const char*> {
 protected:
  ~SampleRecords() override { CReportRootElement::ClearDeletedObjects(); }
};

TEST_P(SampleRecords, SurviveLoadingAndSaving) {
  const std::string path = std::string(ZEB_EXAMPLES) + "/" + GetParam() + "/report.xml";
  const std::string records = RecordsOf(zebtest::ReadFile(path));
  ASSERT_GT(records.size(), 1000U);
  EXPECT_EQ(LoadedAndSaved(path), records);
}

INSTANTIATE_TEST_SUITE_P(Model, SampleRecords, ::testing::Values("invoice", "statement"),
                         [](const auto& report) { return std::string(report.param); });

}  // namespace
