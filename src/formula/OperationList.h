#pragma once

#include <array>
#include <cstddef>
#include <vector>

class Operation;

/// The list of operations that a parser walks, in order of precedence. Refers to the operations, which belong to
/// nobody. Lists of usual length live inside the object, so that a parser costs no allocation for them.
class OperationList {
 public:
  std::size_t size() const { return m_uCount; }
  bool empty() const { return m_uCount == 0; }
  Operation* operator[](std::size_t index) const { return begin()[index]; }
  Operation* const* begin() const { return m_rgpMore.empty() ? m_rgpFew.data() : m_rgpMore.data(); }
  Operation* const* end() const { return begin() + m_uCount; }

  /// The index of the first entry equal to `operation`, the list's size if there is none.
  std::size_t Find(const Operation* operation) const {
    std::size_t index = 0;
    while (index < m_uCount && begin()[index] != operation) ++index;
    return index;
  }

  void Insert(std::size_t index, Operation* operation) {
    if (m_rgpMore.empty() && m_uCount == m_rgpFew.size()) m_rgpMore.assign(begin(), end());
    if (m_rgpMore.empty()) {
      for (std::size_t i = m_uCount; i > index; --i) m_rgpFew[i] = m_rgpFew[i - 1];
      m_rgpFew[index] = operation;
    } else {
      m_rgpMore.insert(m_rgpMore.begin() + static_cast<std::ptrdiff_t>(index), operation);
    }
    ++m_uCount;
  }

  void Append(Operation* operation) {
    if (m_uCount < m_rgpFew.size() && m_rgpMore.empty()) {
      m_rgpFew[m_uCount++] = operation;
    } else {
      Insert(m_uCount, operation);
    }
  }

  void Remove(std::size_t index) {
    Operation** const entries = m_rgpMore.empty() ? m_rgpFew.data() : m_rgpMore.data();
    for (std::size_t i = index + 1; i < m_uCount; ++i) entries[i - 1] = entries[i];
    if (!m_rgpMore.empty()) m_rgpMore.pop_back();
    --m_uCount;
  }

 private:
  std::array<Operation*, 16> m_rgpFew{};  // observers; unused while m_rgpMore holds the entries
  std::vector<Operation*> m_rgpMore;      // observers
  std::size_t m_uCount = 0;
};
