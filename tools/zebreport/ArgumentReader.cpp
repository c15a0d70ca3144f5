#include "ArgumentReader.h"

#include "Failure.h"

#include <algorithm>
#include <utility>

namespace zebreport {

ArgumentReader::ArgumentReader(std::vector<std::wstring> arguments) : m_arguments(std::move(arguments)) {}

std::optional<std::vector<std::wstring>> ArgumentReader::TakeOption(const std::wstring& name,
                                                                    std::size_t count) {
  const auto option = std::find(m_arguments.begin(), m_arguments.end(), name);
  if (option == m_arguments.end()) return std::nullopt;
  const auto available = static_cast<std::size_t>(m_arguments.end() - option) - 1;
  if (available < count) {
    throw UsageFailure(name + L" needs " +
                       (count == 1 ? std::wstring(L"a path") : std::to_wstring(count) + L" paths") +
                       L" behind it; see zebreport help.");
  }
  const auto end = option + 1 + static_cast<std::ptrdiff_t>(count);
  std::vector<std::wstring> values(option + 1, end);
  m_arguments.erase(option, end);
  return values;
}

std::wstring ArgumentReader::TakeFirst() {
  if (m_arguments.empty()) return L"help";
  std::wstring first = m_arguments.front();
  m_arguments.erase(m_arguments.begin());
  return first == L"--help" || first == L"-h" ? L"help" : first;
}

std::vector<std::wstring> ArgumentReader::TakeRest(const std::vector<std::wstring>& names) {
  for (const std::wstring& argument : m_arguments) {
    if (argument.starts_with(L"--")) {
      throw UsageFailure(L"the option " + argument + L" does not belong here; see zebreport help.");
    }
  }
  if (m_arguments.size() < names.size()) {
    throw UsageFailure(L"the " + names[m_arguments.size()] + L" is missing; see zebreport help.");
  }
  if (m_arguments.size() > names.size()) {
    throw UsageFailure(L"the argument " + m_arguments[names.size()] +
                       L" is one too many; see zebreport help.");
  }
  return std::exchange(m_arguments, {});
}

}  // namespace zebreport
