#pragma once

#include <string>
#include <vector>

namespace zebreport {

/// The number as files keep it, with at most six decimals and a decimal point whatever the locale: 12, 0.5.
std::wstring Number(float value);

/// The number with as few digits as give the very same number when they are read again, with a decimal point whatever
/// the locale.
std::wstring ExactNumber(double value);

/// The text in quotes on one line: line ends, tabs, quotes and backslashes are escaped.
std::wstring Quoted(const std::wstring& text);

/// The text as it is, or as Quoted does it where it would not be seen as one text on its line: empty, with blanks at its
/// ends, with line ends, tabs or quotes.
std::wstring QuotedIfNeeded(const std::wstring& text);

/// The name with an ellipsis for what is behind its first 60 characters, for findings, which repeat names.
std::wstring CutName(const std::wstring& name);

/// As Quoted, but cut to a length that fits beside other words, with three points at the end.
std::wstring QuotedShort(const std::wstring& text);

/// The first 255 characters of a name that a file may repeat at will: so output grows with the file, not with its square.
std::wstring Beginning(const wchar_t* text);

/// The parts with ", " between them.
std::wstring Joined(const std::vector<std::wstring>& parts);

/// The names with ", " between them, each as QuotedIfNeeded does it, and in quotes too if it holds a comma.
std::wstring JoinedNames(std::vector<std::wstring> names);

/// Collects lines, indented by two spaces per level.
class Lines {
 public:
  explicit Lines(std::wstring& text) : m_text(text) {}

  void Add(int level, const std::wstring& line);

 private:
  std::wstring& m_text;
};

}  // namespace zebreport
