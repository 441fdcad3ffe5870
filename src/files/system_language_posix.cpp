#include "files/environment_language.h"
#include "files/system_language.h"

namespace zel {

bool systemSpeaksEnglish() { return environmentSpeaksEnglish().value_or(false); }

}  // namespace zel
