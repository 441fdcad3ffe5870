#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace zel::test {

/// Sets an environment variable (null: takes it away) and puts the earlier text back at the end.
class EnvironmentGuard {
 public:
  EnvironmentGuard(const char* name, const char* value) : name_(name) {
    if (const char* const before = std::getenv(name)) before_ = before;
    set(value);
  }
  EnvironmentGuard(const EnvironmentGuard&) = delete;
  EnvironmentGuard& operator=(const EnvironmentGuard&) = delete;
  ~EnvironmentGuard() { set(before_ ? before_->c_str() : nullptr); }

 private:
  void set(const char* value) const {
#ifdef _WIN32
    // An empty text takes a variable away.
    ::_putenv_s(name_.c_str(), value == nullptr ? "" : value);
#else
    if (value == nullptr)
      ::unsetenv(name_.c_str());
    else
      ::setenv(name_.c_str(), value, 1);
#endif
  }

  std::string name_;
  std::optional<std::string> before_;
};

}  // namespace zel::test
