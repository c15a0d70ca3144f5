#pragma once

#include "foundation/RecordReader.h"

namespace zeb {

/// The mirror of RecordReader: appends a record's fields as child elements, in the order of the calls.
class RecordWriter {
 public:
  /// Fills an element that exists already.
  explicit RecordWriter(zebxmln::CXMLNode* record);
  /// Adds a new element `name` under `parent` and fills it.
  RecordWriter(zebxmln::CXMLNode* parent, ElementName name);

  zebxmln::CXMLNode* Node() const;
  /// Adds an element without text and gives it, for a member that fills it itself.
  zebxmln::CXMLNode* Add(ElementName name);

  void Write(ElementName name, const std::wstring& value);
  void Write(ElementName name, const wchar_t* value);
  void Write(ElementName name, int value);
  void Write(ElementName name, float value);
  void Write(ElementName name, bool value);

  /// Writes the field only if it differs from its default (floats: exact comparison).
  void WriteUnless(ElementName name, int value, int defaultValue);
  void WriteUnless(ElementName name, float value, float defaultValue);
  void WriteUnless(ElementName name, bool value, bool defaultValue);
  void WriteUnlessEmpty(ElementName name, const std::wstring& value);

 private:
  zebxmln::CXMLNode* m_pNode;  // observer
};

}  // namespace zeb
