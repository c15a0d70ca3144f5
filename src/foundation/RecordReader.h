#pragma once

#include <string>
#include <string_view>

namespace zebxmln {
class CXMLNode;
}

namespace zeb {

class RecordWalk;

/// Name of an element. Made from a literal, so that `data()` is terminated.
using ElementName = std::wstring_view;

/// The cursor over a record's children: the one way in which records are read.
///
/// Fields are asked for in their fixed order. A field that stands at the cursor is taken and the cursor moves on;
/// one that does not leaves cursor and value as they are. So an element that is absent keeps its default, and one
/// out of its place silently ends the matching.
class RecordReader {
 public:
  explicit RecordReader(zebxmln::CXMLNode* record);

  bool AtEnd() const;
  /// Whether the element at the cursor has the name.
  bool Is(ElementName name) const;
  /// As Is, for an element without which nothing more of the record is read.
  bool Requires(ElementName name) const;
  /// The element at the cursor, null at the end.
  zebxmln::CXMLNode* Current() const;
  /// Moves on by one, whatever stands there; nothing at the end.
  void Next();
  /// The element at the cursor if it has the name, and the cursor moves on; null otherwise.
  zebxmln::CXMLNode* Take(ElementName name);
  /// Accepts an element and keeps nothing of it.
  void StepOver(ElementName name);

  /// Reads a field if it stands at the cursor, through the conversions of files.
  /// @return whether it stood there
  bool Read(ElementName name, std::wstring& value);
  bool Read(ElementName name, int& value);
  bool Read(ElementName name, float& value);
  bool Read(ElementName name, bool& value);

 private:
  /// Take, for an element that is read as a text.
  zebxmln::CXMLNode* TakeText(ElementName name);

  zebxmln::CXMLNode** m_ppCursor;  // observer
  RecordWalk* m_pWalk;             // observer: null unless somebody listens to the reading
};

}  // namespace zeb
