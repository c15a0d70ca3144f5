#pragma once

#include <memory>

class CIDManager;
class CReportLayout;

namespace zeb {

/// Hands the objects that only relations of a file named, and that no list took, to the list that the root element
/// clears. Does so at the end of its scope, also where a failure passes.
class UnownedObjects {
 public:
  /// @param ids the identifiers of the file that is read in the scope
  explicit UnownedObjects(CIDManager& ids) : m_IDs(ids) {}
  ~UnownedObjects();
  UnownedObjects(const UnownedObjects&) = delete;
  UnownedObjects& operator=(const UnownedObjects&) = delete;

 private:
  CIDManager& m_IDs;  // observer
};

/// A layout that is being read. Where a failure passes, it ends with all that the file has put into it: also with the
/// elements of its table cells, which no page owns.
class LayoutInReading {
 public:
  LayoutInReading();
  ~LayoutInReading();
  LayoutInReading(const LayoutInReading&) = delete;
  LayoutInReading& operator=(const LayoutInReading&) = delete;

  CReportLayout* operator->() const { return m_pLayout.get(); }
  /// Gives the layout to the caller.
  CReportLayout* Release() { return m_pLayout.release(); }

 private:
  std::unique_ptr<CReportLayout> m_pLayout;
};

}  // namespace zeb
