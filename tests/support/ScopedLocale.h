#pragma once

#include <clocale>
#include <string>

namespace zebtest {

/// Sets a locale category for a scope and puts the previous one back at its end.
/// A machine need not have a locale: `Ok()` says whether it was set; skip the test if not.
class ScopedLocale {
 public:
  ScopedLocale(int category, const char* name)
      : m_category(category), m_before(std::setlocale(category, nullptr)) {
    m_ok = std::setlocale(category, name) != nullptr;
  }
  ScopedLocale(const ScopedLocale&) = delete;
  ScopedLocale& operator=(const ScopedLocale&) = delete;
  ~ScopedLocale() { std::setlocale(m_category, m_before.c_str()); }

  bool Ok() const { return m_ok; }

 private:
  int m_category;
  std::string m_before;
  bool m_ok = false;
};

/// Name of a locale whose decimal mark is a comma.
inline constexpr const char* kCommaLocale = "de_DE.UTF-8";

}  // namespace zebtest
