#pragma once

#include "model/Placeable.h"

/// A placed line, with two switches for how far it reaches.
class ZEB_EXPORT CLine : public CPlaceable {
 public:
  CLine();
  CLine(const CLine& other);
  ~CLine() override;

  /// Reads the record from `node`, which is the `Line` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `Line` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  CLine& operator=(const CLine& other);

  bool GetExtendToReportZoneEnd() const { return m_bExtendToReportZoneEnd; }
  void SetExtendToReportZoneEnd(bool extend) { m_bExtendToReportZoneEnd = extend; }
  bool GetExtendToLayoutFooter() const { return m_bExtendToLayoutFooter; }
  void SetExtendToLayoutFooter(bool extend) { m_bExtendToLayoutFooter = extend; }

 private:
  bool m_bExtendToReportZoneEnd = false;
  bool m_bExtendToLayoutFooter = false;
};
