#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace zebtest {

/// Sets an environment variable for a scope (an empty optional removes it) and puts the previous value back.
class ScopedEnvironment {
 public:
  ScopedEnvironment(const char* name, const std::optional<std::string>& value) : m_name(name) {
    if (const char* before = std::getenv(name)) m_before = before;
    Put(value);
  }
  ScopedEnvironment(const ScopedEnvironment&) = delete;
  ScopedEnvironment& operator=(const ScopedEnvironment&) = delete;
  ~ScopedEnvironment() { Put(m_before); }

 private:
  void Put(const std::optional<std::string>& value) const {
#if defined(_WIN32)
    _putenv_s(m_name.c_str(), value.value_or("").c_str());
#else
    if (value) {
      setenv(m_name.c_str(), value->c_str(), 1);
    } else {
      unsetenv(m_name.c_str());
    }
#endif
  }

  std::string m_name;
  std::optional<std::string> m_before;
};

}  // namespace zebtest
