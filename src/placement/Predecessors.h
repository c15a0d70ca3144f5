#pragma once

#include "platform/Export.h"

#include <unordered_map>
#include <vector>

class CPlaceable;

/// The objects of a page whose relation names one certain object, in the order in which they were met.
/// Owns none of them; a copy names the same objects.
class ZEB_EXPORT CPredecessors {
 public:
  CPredecessors();
  CPredecessors(const CPredecessors& other);
  virtual ~CPredecessors();
  CPredecessors& operator=(const CPredecessors& other);

  /// Appends the object unless it is listed already.
  void AddPredecessor(CPlaceable* predecessor);
  /// The object's index, -1 if it is not listed.
  int GetIndex(CPlaceable* predecessor) const;
  /// The object at the index, which is not checked.
  CPlaceable* GetPredecessorAt(int index) const;
  int GetPredecessorCount() const;
  void ClearPredecessors();

 private:
  std::vector<CPlaceable*> m_rgpPredecessors;             // observer
  std::unordered_map<const CPlaceable*, int> m_mapIndex;  // of the foremost entries of a long list
};
