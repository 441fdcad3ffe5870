#pragma once

#include <string>
#include <string_view>

/// Texts as the calls of Windows take them.
namespace zel {

/// UTF-16; a byte that is not UTF-8 becomes the replacement character.
std::wstring toWide(std::string_view utf8);
std::string fromWide(std::wstring_view wide);

/// The system's ANSI code page; what it lacks becomes its default character.
std::string toAnsi(std::string_view utf8);

/// Whether that code page has it all.
bool fitsAnsi(std::string_view utf8);

}  // namespace zel
