#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include "files/environment_language.h"
#include "files/system_language.h"

namespace zel {

bool systemSpeaksEnglish() {
  if (const auto english = environmentSpeaksEnglish()) return *english;
  constexpr LANGID kPrimaryLanguage = 0x3FF;
  return (GetUserDefaultUILanguage() & kPrimaryLanguage) == LANG_ENGLISH;
}

}  // namespace zel
