#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zebreport {

/// Writes one JSON value, indented by two spaces per level. The text becomes UTF-8 when the program writes it.
///
/// Members of objects are written with Key in front of each; the writer sets commas and line ends.
class JsonWriter {
 public:
  explicit JsonWriter(std::wstring& text) : m_text(text) {}

  void BeginObject() { Begin(L'{', L'}'); }
  void BeginArray() { Begin(L'[', L']'); }
  /// Ends the object or array that was begun last. The end of the outermost one ends the line.
  void End();

  /// Names the member whose value follows.
  JsonWriter& Key(std::wstring_view key);

  // Names of their own: a text would else convert to a truth value.
  void String(std::wstring_view text);
  void Integer(int value);
  /// As few digits as give the very same number; null for what is no finite number.
  void Number(double value);
  void Bool(bool value);
  void Null();

 private:
  void Begin(wchar_t open, wchar_t close);
  /// Comma, line end and indentation in front of a value.
  void Separate();
  void NewLine();

  struct Level {
    wchar_t close = L'}';
    bool isEmpty = true;
  };

  std::wstring& m_text;
  std::vector<Level> m_levels;
  bool m_afterKey = false;
};

}  // namespace zebreport
