#pragma once

#include "platform/Export.h"

#include <string>

/// One entry of a zone's order as a data supplier sees it: a value holder by its key, a plain text by its
/// content, or any other element.
class ZEB_EXPORT CReportOrderedElement {
 public:
  /// A value holder with an empty key.
  CReportOrderedElement();
  CReportOrderedElement(const CReportOrderedElement& other);
  virtual ~CReportOrderedElement();
  CReportOrderedElement& operator=(const CReportOrderedElement& other);

  bool IsValueHolder() const;
  bool IsText() const;
  /// Neither a value holder nor a text.
  bool IsOtherElement() const;

  /// The internal key that was set last; valid until the next set operation on this object.
  const wchar_t* GetValueHolderKey() const;
  /// The text that was set last; valid until the next set operation on this object.
  const wchar_t* GetTextContent() const;

  /// Makes this a value holder. A null key changes nothing.
  void SetValueHolderKey(const wchar_t* key);
  /// Makes this a text. A null text changes nothing.
  void SetTextContent(const wchar_t* text);
  /// Makes this an element of another kind.
  // Fixed behaviour: key and text stay.
  void SetOtherElement();

 private:
  std::wstring m_strValueHolderKey;
  std::wstring m_strTextContent;
  int m_iElementKind = 0;
};
