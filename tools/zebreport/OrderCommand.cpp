#include "Commands.h"
#include "Failure.h"
#include "LoadedReport.h"
#include "Names.h"
#include "TextFormat.h"
#include "Utf8.h"

namespace zebreport {

namespace {

/// Writes the order of placing, zone by zone and page by page.
class OrderWriter {
 public:
  OrderWriter(const CReportRootElement& report, std::wstring& text) : m_names(report), m_lines(text) {}

  /// @throws CKXException if the objects cannot be ordered; the order is then written as far as it came
  void AddZone(CReportZone& zone) {
    m_place = Names::OfZone(zone);
    m_lines.Add(0, m_place);
    zone.CalculateOrderedElements(true);
    AddOrder(zone);
    for (int i = 0; i < zone.GetHeightElementsCount(); ++i) AddHeights(zone.GetHeightElementsAt(i));
  }

  /// @throws CKXException if the objects cannot be ordered
  void AddPage(CLayoutPage& page, int index) {
    m_place = Names::OfPage(index);
    m_lines.Add(0, m_place);
    page.CalculateOrderedElements();
    AddOrder(page);
    for (int i = 0; i < page.GetLayoutContentCount(); ++i) AddPredecessors(page, page.GetLayoutContentAt(i));
  }

  /// The zone or page that was written last.
  const std::wstring& Place() const { return m_place; }

 private:
  template <typename Ordered>
  void AddOrder(Ordered& ordered) {
    for (int i = 0; i < ordered.GetOrderedElementCount(); ++i) {
      m_lines.Add(1, std::to_wstring(i + 1) + L". " + m_names.Of(ordered.GetOrderedElementAt(i), m_place));
    }
  }

  void AddHeights(CAdjustHeightElements* group) {
    if (group == nullptr) return;
    std::vector<std::wstring> members;
    for (int i = 0; i < group->GetElementCount(); ++i) {
      members.push_back(m_names.Of(group->GetElementAt(i), m_place));
    }
    m_lines.Add(1, L"of one height: " + Joined(members));
  }

  void AddPredecessors(const CLayoutPage& page, CPlaceable* object) {
    const CPredecessors* predecessors = object == nullptr ? nullptr : page.GetPredecessorsAt(object);
    if (predecessors == nullptr) return;
    std::vector<std::wstring> members;
    for (int i = 0; i < predecessors->GetPredecessorCount(); ++i) {
      members.push_back(m_names.Of(predecessors->GetPredecessorAt(i), m_place));
    }
    m_lines.Add(1, L"tied to " + m_names.Of(object, m_place) + L": " + Joined(members));
  }

  Names m_names;
  Lines m_lines;
  std::wstring m_place;
};

void AddAll(const LoadedReport& loaded, OrderWriter& writer) {
  CReportDocument& document = *loaded.Root().GetReportDocument();
  for (int i = 0; i < document.GetReportZoneCount(); ++i) {
    if (CReportZone* zone = document.GetReportZoneAt(i)) writer.AddZone(*zone);
  }
  const CReportLayout* layout = loaded.Root().GetReportLayout();
  if (layout == nullptr) return;
  for (int i = 0; i < layout->GetPageCount(); ++i) {
    if (CLayoutPage* page = layout->GetPageAt(i)) writer.AddPage(*page, i);
  }
}

}  // namespace

int RunOrder(ArgumentReader& arguments, std::wstring& output) {
  const auto layout = arguments.TakeOption(L"--layout", 1);
  const std::wstring report = arguments.TakeRest({L"report file"}).front();
  LoadedReport loaded;
  loaded.LoadWithLayout(ToPath(report), layout.has_value() ? std::optional(layout->front()) : std::nullopt);
  output += loaded.DescribeFiles();
  OrderWriter writer(loaded.Root(), output);
  try {
    AddAll(loaded, writer);
  } catch (const CKXException&) {
    throw Failure(report + L": the objects of " + writer.Place() +
                  L" are tied to each other in a circle; untie one of them.");
  }
  return 0;
}

}  // namespace zebreport
