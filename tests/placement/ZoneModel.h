#pragma once

#include "model/LayoutPage.h"
#include "model/Line.h"
#include "model/Picture.h"
#include "model/Rectangle.h"
#include "model/ReportZone.h"
#include "model/TableCell.h"
#include "model/ValueHolder.h"
#include "placement/AdjustHeightElements.h"
#include "placement/PlaceableRelation.h"
#include "placement/Predecessors.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

/// Ties an object to another one, as the owner of a new relation. The one before is freed.
inline void Tie(CPlaceable& object, CPlaceable* reference, bool adjustHeight = false) {
  delete object.GetPlaceableRelation();
  object.SetPlaceableRelation(
      CPlaceableRelation::CreatePlRel(RelationPointUpperLeft, RelationPointUpperLeft, 0, 0, reference));
  object.GetPlaceableRelation()->SetAdjustHeight(adjustHeight);
}

/// A zone with its protected operations within reach.
class OpenZone : public CReportZone {
 public:
  using CReportZone::AddRelationsToOrderVector;
};

/// A page with its protected operations within reach.
class OpenPage : public CLayoutPage {
 public:
  OpenPage() : CLayoutPage(nullptr) {}
  using CLayoutPage::AddRelationsToOrderVector;
};

/// Names of objects, so that an expectation is one line.
class NamedObjects : public testing::Test {
 protected:
  template <class T>
  T* Named(T* object, const std::string& name) {
    m_Names[object] = name;
    return object;
  }

  /// An object that no zone and no page owns.
  CPlaceable* Foreign(const std::string& name) {
    m_Foreign.push_back(std::make_unique<CText>());
    return Named<CPlaceable>(m_Foreign.back().get(), name);
  }

  /// The object that stands for a zone.
  CPlaceable* ZoneObject() {
    m_Foreign.push_back(std::make_unique<CPlaceable>());
    m_Foreign.back()->SetIsZoneObject(true);
    return Named(m_Foreign.back().get(), "zone");
  }

  template <class Owner>
  std::string OrderOf(Owner& owner) {
    std::string order;
    for (int i = 0; i < owner.GetOrderedElementCount(); ++i) Add(order, owner.GetOrderedElementAt(i));
    return order;
  }

  std::string GroupsOf(const CReportZone& zone) {
    std::string groups;
    for (int i = 0; i < zone.GetHeightElementsCount(); ++i) {
      const CAdjustHeightElements* group = zone.GetHeightElementsAt(i);
      groups += i == 0 ? "" : " | ";
      std::string elements;
      for (int k = 0; k < group->GetElementCount(); ++k) Add(elements, group->GetElementAt(k));
      groups += elements;
    }
    return groups;
  }

  std::string PredecessorsOf(const CLayoutPage& page, CPlaceable* object) {
    const CPredecessors* predecessors = page.GetPredecessorsAt(object);
    if (predecessors == nullptr) return "none";
    std::string names;
    for (int i = 0; i < predecessors->GetPredecessorCount(); ++i)
      Add(names, predecessors->GetPredecessorAt(i));
    return names;
  }

 private:
  void Add(std::string& names, const CPlaceable* object) {
    if (!names.empty()) names += ' ';
    names += m_Names.count(object) != 0 ? m_Names[object] : "?";
  }

  std::map<const CPlaceable*, std::string> m_Names;
  std::vector<std::unique_ptr<CPlaceable>> m_Foreign;
};
