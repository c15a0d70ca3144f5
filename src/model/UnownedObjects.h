#pragma once

#include <memory>

class CIDManager;
class CReportLayout;
class CReportRootElement;

namespace zeb {

/// Hands the objects that a file made, and that no list took or kept, to the list that the root element clears: those
/// that only relations named, and defined formulas of a zone whose second record names others. Does so at the end of
/// its scope, also where a failure passes.
class UnownedObjects {
 public:
  /// @param root gets the document of the file
  /// @param ids the identifiers of the file that is read in the scope
  UnownedObjects(const CReportRootElement& root, CIDManager& ids) : m_Root(root), m_IDs(ids) {}
  ~UnownedObjects();
  UnownedObjects(const UnownedObjects&) = delete;
  UnownedObjects& operator=(const UnownedObjects&) = delete;

 private:
  const CReportRootElement& m_Root;  // observer
  CIDManager& m_IDs;                 // observer
};

/// A layout that is being read. Where a failure passes, it ends with all that the file has put into it: also with the
/// elements of its table cells, which no page owns, and the characters of its fonts.
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
