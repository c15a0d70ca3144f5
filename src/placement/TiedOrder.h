#pragma once

#include "placement/ObjectNumbers.h"

#include <vector>

namespace zeb {

/// An order while it is calculated: a chain of objects, into which each is put once, at its place among those that
/// are there. Every operation takes constant time, averaged over a calculation.
///
/// The siblings of an object are those that stand behind it in an unbroken row and are tied to it. The order knows
/// the last one of each row, so that nobody has to go along it. An object enters a row when it is put there, or
/// when the object that it is tied to is put in front of it, and leaves the row when another object breaks it. As
/// nothing ever leaves the order, a broken row never closes again: each object enters and leaves at most once.
class TiedOrder {
 public:
  using Number = ObjectNumbers::Number;
  static constexpr Number kNone = ObjectNumbers::kNone;

  /// Makes room for so many objects.
  void Reserve(std::size_t count) { m_Entries.reserve(count); }
  bool IsListed(Number object) const { return object < m_Entries.size() && m_Entries[object].listed; }

  // Each puts an object that is not listed yet; `tiedTo` is the object that its relation names, kNone without one.
  void Append(Number object, Number tiedTo);
  void PutFirst(Number object, Number tiedTo);
  void PutInFrontOf(Number listed, Number object, Number tiedTo);
  void PutBehind(Number listed, Number object, Number tiedTo);
  /// Puts the object behind the siblings of `tiedTo`, which is listed, and over one object more: over the one
  /// behind them if that is tied to something else.
  // Fixed behaviour: the first object with another reference is passed over, not stopped at.
  void PutBehindSiblings(Number object, Number tiedTo);

  std::vector<CPlaceable*> Elements(const ObjectNumbers& numbers) const;

 private:
  struct Entry {
    Number previous = kNone;
    Number next = kNone;
    Number tiedTo = kNone;
    Number rowOf = kNone;        // the object in whose row this one stands
    Number lastSibling = kNone;  // the end of this object's own row
    bool listed = false;
  };

  void Put(Number previous, Number next, Number object, Number tiedTo);
  void EnterRow(Number object);
  void BreakRowAt(Number sibling);
  void GatherRow(Number object);

  std::vector<Entry> m_Entries;
  Number m_First = kNone;
  Number m_Last = kNone;
  std::size_t m_Count = 0;
};

}  // namespace zeb
