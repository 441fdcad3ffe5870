#pragma once

#include <string>
#include <string_view>

/// Small helpers for UTF-8 text. "Case" is that of the letters of the Windows-1252 code page, which
/// is all that documents can hold; a "blank" is the character " " and nothing else.
namespace zel {

/// Of files and of messages.
inline constexpr std::string_view kLineBreak = "\r\n";

std::string toLower(std::string_view text);

/// Upper case of the letters "a" to "z" alone.
std::string toUpperAscii(std::string_view text);

/// Whether `part` occurs in `text` when case is ignored; the empty text occurs everywhere.
bool containsIgnoringCase(std::string_view text, std::string_view part);

/// Every occurrence from left to right, never looking into what was put in. An empty `from`
/// replaces nothing.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);
/// replaceAll in the text itself: without a second copy where `to` is no longer than `from`.
void replaceWithin(std::string& text, std::string_view from, std::string_view to);
std::string replaceAllIgnoringCase(std::string_view text, std::string_view from,
                                   std::string_view to);

std::string_view trimBlanks(std::string_view text);

/// Without any "=", "<" and ">", and then without blanks at its ends: what a field or the label
/// beside it says.
std::string stripRelationSigns(std::string_view text);

}  // namespace zel
