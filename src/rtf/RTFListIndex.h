#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

class CRTFListTableEntry;

namespace zeb {

/// Finds the first entry with a given number in a vector of list entries, without a walk through all of them. The
/// vector only grows; the index is told of each number that changes.
class RTFListIndex {
 public:
  using Number = int (CRTFListTableEntry::*)() const;

  /// @param getNumber which number of an entry counts
  explicit RTFListIndex(Number getNumber) : m_GetNumber(getNumber) {}

  /// The number of an entry has changed.
  void ChangeNumber(const CRTFListTableEntry* entry);
  /// The position of the first entry with the number.
  std::optional<std::size_t> Find(const std::vector<CRTFListTableEntry*>& entries, int number);

 private:
  struct Place {
    std::size_t position;
    int number;
  };

  void Append(const CRTFListTableEntry* entry, std::size_t position);

  Number m_GetNumber;
  std::size_t m_Known = 0;  // how many entries have been taken in
  std::unordered_map<const CRTFListTableEntry*, Place> m_Places;
  std::map<int, std::set<std::size_t>> m_Positions;  // by number, no set is empty
};

}  // namespace zeb
