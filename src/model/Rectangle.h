#pragma once

#include "model/Placeable.h"

/// A placed rectangle; its look lies in border and colours of the base.
class ZEB_EXPORT CRectangle : public CPlaceable {
 public:
  CRectangle();
  CRectangle(const CRectangle& other);
  ~CRectangle() override;

  /// Reads the record from `node`, which is the `Rectangle` element. Always true.
  bool Load(zebxmln::CXMLNode* node, CIDManager& idManager) override;
  /// Adds a `Rectangle` element to `node`. Always true.
  bool Save(zebxmln::CXMLNode* node, CIDManager& idManager) override;

  CRectangle& operator=(const CRectangle& other);
};
