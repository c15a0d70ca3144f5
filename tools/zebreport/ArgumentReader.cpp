#include "ArgumentReader.h"

#include "Failure.h"

#include <algorithm>
#include <utility>

namespace zebreport {

namespace {

[[noreturn]] void ThrowValueMissing(const std::wstring& option, const std::wstring& what) {
  throw UsageFailure(option + L" needs " + what + L" behind it; see zebreport help.");
}

}  // namespace

ArgumentReader::ArgumentReader(std::vector<std::wstring> arguments) : m_arguments(std::move(arguments)) {}

std::optional<std::vector<std::wstring>> ArgumentReader::TakeOption(const std::wstring& name,
                                                                    std::size_t count) {
  const auto option = std::find(m_arguments.begin(), m_arguments.end(), name);
  if (option == m_arguments.end()) return std::nullopt;
  const auto available = static_cast<std::size_t>(m_arguments.end() - option) - 1;
  if (available < count) {
    ThrowValueMissing(name, count == 1 ? L"a path" : std::to_wstring(count) + L" paths");
  }
  const auto end = option + 1 + static_cast<std::ptrdiff_t>(count);
  std::vector<std::wstring> values(option + 1, end);
  m_arguments.erase(option, end);
  return values;
}

std::vector<std::wstring> ArgumentReader::TakeEach(const std::wstring& name, const std::wstring& what) {
  std::vector<std::wstring> values;
  for (;;) {
    const auto option = std::find(m_arguments.begin(), m_arguments.end(), name);
    if (option == m_arguments.end()) return values;
    if (option + 1 == m_arguments.end()) {
      ThrowValueMissing(name, what);
    }
    values.push_back(option[1]);
    m_arguments.erase(option, option + 2);
  }
}

std::wstring ArgumentReader::TakeFirst() {
  if (m_arguments.empty()) return L"help";
  std::wstring first = m_arguments.front();
  m_arguments.erase(m_arguments.begin());
  return first == L"--help" || first == L"-h" ? L"help" : first;
}

std::wstring ArgumentReader::TakeNext(const std::wstring& what) {
  if (m_arguments.empty()) throw UsageFailure(L"the " + what + L" is missing; see zebreport help.");
  std::wstring next = m_arguments.front();
  m_arguments.erase(m_arguments.begin());
  return next;
}

std::vector<std::wstring> ArgumentReader::TakeRest(const std::vector<std::wstring>& names) {
  std::vector<std::wstring> rest = TakeRestAndMore(names);
  if (rest.size() > names.size()) {
    throw UsageFailure(L"the argument " + rest[names.size()] + L" is one too many; see zebreport help.");
  }
  return rest;
}

std::vector<std::wstring> ArgumentReader::TakeRestAndMore(const std::vector<std::wstring>& names) {
  for (const std::wstring& argument : m_arguments) {
    if (argument.starts_with(L"--")) {
      throw UsageFailure(L"the option " + argument + L" does not belong here; see zebreport help.");
    }
  }
  if (m_arguments.size() < names.size()) {
    throw UsageFailure(L"the " + names[m_arguments.size()] + L" is missing; see zebreport help.");
  }
  return std::exchange(m_arguments, {});
}

}  // namespace zebreport
