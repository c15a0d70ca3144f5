#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zebreport {

/// The arguments of one command. A command takes its options first and then the rest.
class ArgumentReader {
 public:
  explicit ArgumentReader(std::vector<std::wstring> arguments);

  /// Takes an option and the `count` values behind it, wherever they stand; nothing if the option is not there.
  /// @throws UsageFailure if a value is missing
  std::optional<std::vector<std::wstring>> TakeOption(const std::wstring& name, std::size_t count);

  /// Takes every occurrence of an option and the one value behind each.
  /// @param what what the value is, for the user
  /// @throws UsageFailure if a value is missing
  std::vector<std::wstring> TakeEach(const std::wstring& name, const std::wstring& what);

  /// Takes the first argument, the command; "help" if there is none.
  std::wstring TakeFirst();

  /// Takes the first argument that is left.
  /// @param what what it is, for the user
  /// @throws UsageFailure if there is none
  std::wstring TakeNext(const std::wstring& what);

  /// Takes all that is left.
  /// @param names what each argument is; all of them are needed
  /// @throws UsageFailure if there are more or fewer arguments, or an option that nobody has taken
  std::vector<std::wstring> TakeRest(const std::vector<std::wstring>& names);

  /// As TakeRest, with any number of arguments behind the named ones.
  std::vector<std::wstring> TakeRestAndMore(const std::vector<std::wstring>& names);

 private:
  std::vector<std::wstring> m_arguments;
};

}  // namespace zebreport
