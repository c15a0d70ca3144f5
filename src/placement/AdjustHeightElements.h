#pragma once

#include "platform/Export.h"

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

class CPlaceable;
namespace zeb {
class HeightGroupIndex;
}

/// A group of objects of a zone that are drawn with one height: the largest that was reported for any of them.
/// Owns none of the objects; a copy names the same ones.
class ZEB_EXPORT CAdjustHeightElements {
 public:
  CAdjustHeightElements();
  CAdjustHeightElements(const CAdjustHeightElements& other);
  virtual ~CAdjustHeightElements();
  CAdjustHeightElements& operator=(const CAdjustHeightElements& other);

  /// Appends the object unless it is in the group already.
  void AddElement(CPlaceable* element);
  /// The object's index in the order of joining, -1 if it is not in the group.
  int FindElementIndex(CPlaceable* element);
  /// The object at the index, which is not checked.
  CPlaceable* GetElementAt(int index) const;
  int GetElementCount() const;

  /// Reports the height that an object needs. Heights only grow; an object of another group changes nothing.
  void SetElementHeight(CPlaceable* element, float height);
  /// The largest height reported so far, 0 before the first.
  float GetMaxHeight() const;

 private:
  friend class zeb::HeightGroupIndex;

  void AppendNewElement(CPlaceable* element);

  std::vector<CPlaceable*> m_rgpElements;                 // observer
  std::unordered_map<const CPlaceable*, int> m_mapIndex;  // of the foremost elements of a large group
  float m_fMaxHeight = 0.0F;
  // Grows with every change of this or another group of the zone, so that the zone's index of them never lies.
  std::shared_ptr<std::uint64_t> m_pChangeCount;
};
