#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Files hold text in the Windows-1252 code page; the program holds it in UTF-8.
namespace zel {

/// A character that the code page lacks becomes "?", and so does each byte that is not UTF-8.
std::string toCodePage(std::string_view utf8);

/// The size of what toCodePage gives, in bytes.
std::size_t codePageSize(std::string_view utf8);
void appendToCodePage(std::string_view utf8, std::string& bytes);

/// Takes what toCodePage gives off the beginning of `bytes`. False where they begin otherwise.
/// Needs no memory.
bool takeCodePage(std::string_view utf8, std::string_view& bytes);

/// Whether fromCodePage(toCodePage(written)) is `read`; needs no memory.
bool isKeptByCodePage(std::string_view written, std::string_view read);

/// Never fails: the five bytes without a character become the control characters of their number,
/// which toCodePage turns back into the same bytes.
std::string fromCodePage(std::string_view bytes);

}  // namespace zel
