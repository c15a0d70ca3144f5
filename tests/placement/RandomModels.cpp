#include "RandomModels.h"

#include <algorithm>
#include <set>

ModelShape RandomShape(std::mt19937& random, int maxObjects, int maxCells) {
  const auto below = [&random](int limit) {
    return std::uniform_int_distribution<int>(0, limit - 1)(random);
  };
  const auto oneOf = [&below](std::initializer_list<int> shares) {
    return *(shares.begin() + below(static_cast<int>(shares.size())));
  };
  ModelShape shape;
  shape.objects = 1 + below(maxObjects);
  shape.cells = below(2) == 0 ? 0 : below(maxCells + 1);
  shape.foreign = below(4);
  shape.untiedShare = oneOf({0, 5, 20, 50});
  shape.zoneShare = oneOf({0, 5, 20});
  shape.nullShare = oneOf({0, 5});
  shape.selfShare = oneOf({0, 0, 3, 10});
  shape.chainShare = oneOf({0, 30, 60, 95});
  shape.hubShare = oneOf({0, 20, 50});
  shape.adjustShare = oneOf({0, 50, 90, 100, 100});
  shape.repeatShare = oneOf({0, 10, 40});
  shape.circles = below(3) == 0;
  return shape;
}

RandomObjects::RandomObjects(std::mt19937& random, const ModelShape& shape)
    : m_Random(random), m_Shape(shape) {}

CPlaceable* RandomObjects::MakeObject() {
  switch (Below(5)) {
    case 0:
      return new CText;
    case 1:
      return new CValueHolder;
    case 2:
      return new CPicture;
    case 3:
      return new CRectangle;
    default:
      return new CLine;
  }
}

void RandomObjects::TieAll(const std::vector<CPlaceable*>& objects, CPlaceable* anchor) {
  for (std::size_t i = 0; i < objects.size(); ++i) {
    if (Chance(m_Shape.untiedShare)) continue;
    Tie(*objects[i], RandomTarget(objects, i, anchor), Chance(m_Shape.adjustShare));
  }
}

CPlaceable* RandomObjects::RandomTarget(const std::vector<CPlaceable*>& objects, std::size_t index,
                                        CPlaceable* anchor) {
  if (Chance(m_Shape.zoneShare)) return anchor;
  if (Chance(m_Shape.nullShare)) return nullptr;
  if (Chance(m_Shape.selfShare)) return objects[index];
  // Without circles ties lead to objects made earlier alone; the first one is then tied to the anchor.
  if (Chance(m_Shape.chainShare)) return index == 0 ? anchor : objects[index - 1];
  const auto count = static_cast<int>(m_Shape.circles ? objects.size() : index);
  if (count == 0) return anchor;
  if (Chance(m_Shape.hubShare)) return objects[static_cast<std::size_t>(Below(std::min(3, count)))];
  return objects[static_cast<std::size_t>(Below(count))];
}

RandomZone::RandomZone(std::mt19937& random, const ModelShape& shape) : RandomObjects(random, shape) {
  m_pZoneObject->SetIsZoneObject(true);
  for (int i = 0; i < shape.objects; ++i) m_All.push_back(MakeObject());
  for (int i = 0; i < shape.foreign; ++i) {
    m_Foreign.emplace_back(MakeObject());
    m_All.push_back(m_Foreign.back().get());
  }
  for (int i = 0; i < shape.cells; ++i) {
    auto* cell = new CTableCell;
    // Few numbers, so that cells share their places.
    cell->SetTableID(Below(2));
    cell->SetRowIndex(Below(3) - (Chance(10) ? 1 : 0));
    cell->SetColIndex(Below(3));
    m_Cells.push_back(cell);
    m_All.push_back(cell);
  }
  // A cell of another zone, which may have the place of one of ours.
  if (shape.cells > 0) {
    auto cell = std::make_unique<CTableCell>();
    cell->SetTableID(Below(3));
    cell->SetRowIndex(Below(3));
    cell->SetColIndex(Below(3));
    m_All.push_back(cell.get());
    m_Foreign.push_back(std::move(cell));
  }
  std::shuffle(m_All.begin(), m_All.end(), m_Random);
  TieAll(m_All, m_pZoneObject.get());

  std::vector<CPlaceable*> objects = m_All;
  if (Chance(70)) std::shuffle(objects.begin(), objects.end(), m_Random);
  std::set<const CPlaceable*> elsewhere(m_Cells.begin(), m_Cells.end());
  for (const auto& foreign : m_Foreign) elsewhere.insert(foreign.get());
  for (CPlaceable* object : objects) {
    if (elsewhere.count(object) == 0) Place(object);
  }
  std::shuffle(m_Cells.begin(), m_Cells.end(), m_Random);
  for (CTableCell* cell : m_Cells) m_Zone.AddTableCell(cell);
}

// Puts the object where an object of its class may stand, now and then for a second time.
void RandomZone::Place(CPlaceable* object) {
  if (!m_Cells.empty() && dynamic_cast<CText*>(object) != nullptr && Chance(40)) {
    m_Cells[static_cast<std::size_t>(Below(static_cast<int>(m_Cells.size())))]->AddCellElement(object);
    if (Chance(m_Shape.repeatShare)) m_Cells.front()->AddCellElement(nullptr);
    return;
  }
  const int times = Chance(m_Shape.repeatShare) ? 2 : 1;
  for (int i = 0; i < times; ++i) {
    if (auto* valueHolder = dynamic_cast<CValueHolder*>(object)) {
      m_Zone.AddValueHolder(valueHolder);
    } else if (auto* text = dynamic_cast<CText*>(object)) {
      m_Zone.AddTextElement(text);
    } else if (auto* picture = dynamic_cast<CPicture*>(object)) {
      m_Zone.AddPictureElement(picture);
    } else if (auto* rectangle = dynamic_cast<CRectangle*>(object)) {
      m_Zone.AddRectangleElement(rectangle);
    } else {
      m_Zone.AddLineElement(dynamic_cast<CLine*>(object));
    }
  }
  if (Chance(m_Shape.repeatShare)) m_Zone.AddTextElement(nullptr);
}

std::vector<CPlaceable*> RandomZone::Elements() {
  std::vector<CPlaceable*> elements;
  elements.reserve(m_All.size());
  for (int i = 0; i < m_Zone.GetTextElementCount(); ++i) elements.push_back(m_Zone.GetTextElementAt(i));
  for (int i = 0; i < m_Zone.GetValueHolderCount(); ++i) elements.push_back(m_Zone.GetValueHolderAt(i));
  for (int i = 0; i < m_Zone.GetPictureElementCount(); ++i) elements.push_back(m_Zone.GetPictureElementAt(i));
  for (int i = 0; i < m_Zone.GetRectangleElementCount(); ++i)
    elements.push_back(m_Zone.GetRectangleElementAt(i));
  for (int i = 0; i < m_Zone.GetLineElementCount(); ++i) elements.push_back(m_Zone.GetLineElementAt(i));
  return elements;
}

// An object that stands twice must be freed once: its second entry is emptied.
RandomZone::~RandomZone() {
  std::set<const CPlaceable*> seen;
  for (int i = 0; i < m_Zone.GetTextElementCount(); ++i) {
    if (!seen.insert(m_Zone.GetTextElementAt(i)).second) m_Zone.SetTextElementAt(nullptr, i);
  }
  for (int i = 0; i < m_Zone.GetValueHolderCount(); ++i) {
    if (!seen.insert(m_Zone.GetValueHolderAt(i)).second) m_Zone.SetValueHolderAt(nullptr, i);
  }
  for (int i = 0; i < m_Zone.GetPictureElementCount(); ++i) {
    if (!seen.insert(m_Zone.GetPictureElementAt(i)).second) m_Zone.SetPictureElementAt(nullptr, i);
  }
  for (int i = 0; i < m_Zone.GetRectangleElementCount(); ++i) {
    if (!seen.insert(m_Zone.GetRectangleElementAt(i)).second) m_Zone.SetRectangleElementAt(nullptr, i);
  }
  for (int i = 0; i < m_Zone.GetLineElementCount(); ++i) {
    if (!seen.insert(m_Zone.GetLineElementAt(i)).second) m_Zone.SetLineElementAt(nullptr, i);
  }
}

RandomPage::RandomPage(std::mt19937& random, const ModelShape& shape) : RandomObjects(random, shape) {
  for (int i = 0; i < shape.objects; ++i) m_All.push_back(MakeObject());
  std::vector<CPlaceable*> content = m_All;
  for (int i = 0; i < shape.foreign; ++i) {
    m_Foreign.emplace_back(MakeObject());
    m_All.push_back(m_Foreign.back().get());
  }
  std::shuffle(m_All.begin(), m_All.end(), m_Random);
  TieAll(m_All, m_Page.GetPaperObject());
  if (Chance(70)) std::shuffle(content.begin(), content.end(), m_Random);
  for (CPlaceable* object : content) {
    m_Page.AddLayoutContent(object);
    if (Chance(shape.repeatShare)) m_Page.AddLayoutContent(object);
    if (Chance(shape.repeatShare)) m_Page.AddLayoutContent(nullptr);
  }
}

std::vector<CPlaceable*> RandomPage::Elements() {
  std::vector<CPlaceable*> elements;
  elements.reserve(static_cast<std::size_t>(m_Page.GetLayoutContentCount()));
  for (int i = 0; i < m_Page.GetLayoutContentCount(); ++i) elements.push_back(m_Page.GetLayoutContentAt(i));
  return elements;
}

RandomPage::~RandomPage() {
  std::set<const CPlaceable*> seen;
  for (int i = 0; i < m_Page.GetLayoutContentCount(); ++i) {
    if (!seen.insert(m_Page.GetLayoutContentAt(i)).second) m_Page.SetLayoutContentAt(nullptr, i);
  }
}
