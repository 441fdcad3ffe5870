#pragma once

namespace zel {

/// Whether the system's language is English: the first of the environment variables LC_ALL,
/// LC_MESSAGES and LANG that holds a text begins with "en". Where none does, Windows is asked for
/// the user's language, and other systems do not speak English.
bool systemSpeaksEnglish();

}  // namespace zel
