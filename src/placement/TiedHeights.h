#pragma once

#include "placement/HeightGroupIndex.h"
#include "placement/ObjectNumbers.h"

#include <vector>

namespace zeb {

/// The height groups of a zone while its order is calculated.
///
/// By the rules of the order, every object that is looked at follows its references to their end and on the way
/// joins each object whose height is adjusted with its reference. What is behind an object that was looked at
/// before has been followed already, but following it again is not without effect: an object that has come into an
/// earlier group by its reference takes those along that are tied to it, one step each time that they are followed.
/// Following everything again would take quadratic time; this class finds on a road of references the uneven ties
/// alone, those whose two objects have different first groups. Joining the objects of an even tie does nothing.
///
/// As long as no object has come from one group into an earlier one, all ties are even, and no search is needed.
/// After that the roads are kept as a link-cut tree (Sleator and Tarjan): each road that is followed becomes one
/// splay tree in the order from its end to its start, in which each entry knows whether a tie below it is uneven.
/// So following a road again takes logarithmic time, averaged, and as much for each object that changes its group.
class TiedHeights {
 public:
  using Number = ObjectNumbers::Number;

  TiedHeights(HeightGroupIndex::Groups& groups, HeightGroupIndex& index, const ObjectNumbers& numbers)
      : m_rGroups(groups), m_rIndex(index), m_rNumbers(numbers) {}

  /// Makes room for so many objects.
  void Reserve(std::size_t count) { m_Stops.reserve(count); }
  /// Joins two objects: adds to the first group that holds one of them the other one, else makes a new group.
  void Join(Number element, Number reference);
  /// The road goes on from an object, which has not been followed before, to its reference.
  void GoOn(Number element, Number reference, bool adjustHeight);
  /// The road ends at the object, with joining it and its reference.
  void EndWithJoining(Number element, Number reference);
  /// Follows the road from an object that has been followed to the end before: does what joining the objects of
  /// each tie on it does, one after the other.
  void FollowAgain(Number start);

 private:
  static constexpr Number kNone = ObjectNumbers::kNone;

  /// What is known of an object.
  struct Stop {
    int group = HeightGroupIndex::kNoGroup;  // the first that holds the object
    Number goesTo = kNone;                   // the reference, if the road goes on to it
    Number joinedAtEnd = kNone;              // the reference, if the road ends with joining it
    bool adjustHeight = false;  // whether it is joined with the reference that the road goes on to
  };

  /// Its entry in a splay tree. The parent of a root is where the road of its entries goes on.
  struct Node {
    Number parent = kNone;
    Number left = kNone;   // towards the end of the road
    Number right = kNone;  // towards its start
    Number last =
        kNone;  // of the entries of this subtree, the one nearest to the end of the road; kNone: itself
    Number first = kNone;  // the one nearest to its start; kNone: itself
    bool uneven = false;   // whether a tie between entries of this subtree is uneven
  };

  void Enter(int group, Number object);
  void BeginSearching();
  Number EndOf(Number root) const;
  Number StartOf(Number root) const;
  bool IsRoot(Number stop) const;
  bool IsUneven(Number stop, Number reference) const;
  Number FirstUneven(Number root) const;
  void Expose(Number stop);
  void Splay(Number stop);
  void Rotate(Number stop);
  void Update(Number stop);

  HeightGroupIndex::Groups& m_rGroups;  // the zone's
  HeightGroupIndex& m_rIndex;           // the zone's
  const ObjectNumbers& m_rNumbers;
  std::vector<Stop> m_Stops;
  std::vector<Node> m_Nodes;  // empty until a tie may be uneven
  bool m_bUnevenPossible = false;
};

}  // namespace zeb
