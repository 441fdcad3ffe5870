#pragma once

#include <string>
#include <string_view>

#include "base/language.h"

namespace zel::test {

/// Sets the current language and puts the earlier one back at the end.
class LanguageGuard {
 public:
  explicit LanguageGuard(std::string_view code) : before_(CurrentLanguage()) {
    SetCurrentLanguage(code);
  }
  LanguageGuard(const LanguageGuard&) = delete;
  LanguageGuard& operator=(const LanguageGuard&) = delete;
  ~LanguageGuard() { SetCurrentLanguage(before_); }

 private:
  std::string before_;
};

}  // namespace zel::test
