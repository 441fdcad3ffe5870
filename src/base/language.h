#pragma once

#include <string>
#include <string_view>

/// The language of the program and the translation of its messages. A message is written in
/// Spanish where it arises and translated at the moment it is shown.
namespace zel {

/// "ES" or "EN", process-wide like a locale; any other code behaves as Spanish for messages.
const std::string& CurrentLanguage();
void SetCurrentLanguage(std::string_view code);

/// The text in the current language; a text that has no translation comes back unchanged.
std::string Localize(std::string_view text);

/// The English text of the first row of the message table whose Spanish text is exactly `text`;
/// `text` itself when no row matches.
std::string SpanishToEnglish(std::string_view text);

/// Localize, then every "%1" replaced by the argument.
std::string LocalizeWithArg(std::string_view text, std::string_view argument);

}  // namespace zel
