#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>
#include <vector>

class CAdjustHeightElements;
class CPlaceable;

namespace zeb {

/// Knows for each object the first of a zone's height groups that holds it, so that neither joining objects nor
/// asking for a height goes through all groups.
///
/// The groups themselves belong to the zone and are handed in with each call. Callers may add objects to a group
/// behind the index's back: a count of changes, which all groups of a zone share, tells it to look again.
/// A copy serves the copy of the zone.
class HeightGroupIndex {
 public:
  using Groups = std::vector<CAdjustHeightElements*>;
  static constexpr int kNoGroup = -1;

  /// Index of the first group that holds the object, kNoGroup if none does.
  int FirstGroupOf(const Groups& groups, const CPlaceable* object);
  /// Adds to the first group that holds one of the objects the other one; without such a group makes a new one,
  /// of the element and the reference.
  void Join(Groups& groups, CPlaceable* element, CPlaceable* reference);
  /// Appends an empty group. For a calculation that knows the first groups itself.
  void AddGroup(Groups& groups);
  /// Appends an object that is not in the group. For a calculation that knows the first groups itself.
  static void AddNewElement(CAdjustHeightElements& group, CPlaceable* object);
  /// All groups have been deleted.
  void Clear();

 private:
  void Refresh(const Groups& groups);
  void Take(const Groups& groups, int group, CPlaceable* object);

  std::unordered_map<const CPlaceable*, int> m_FirstGroups;
  std::shared_ptr<std::uint64_t> m_pChangeCount = std::make_shared<std::uint64_t>(0);
  std::uint64_t m_KnownChanges = 0;
};

}  // namespace zeb
