#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

namespace zel {

/// The exit statuses of every command.
inline constexpr int kExitDone = 0;
inline constexpr int kExitFailed = 1;  // a document refused, a file not written, a range refused
inline constexpr int kExitUsage = 2;   // the command line is wrong
inline constexpr int kExitInterrupted = 130;  // Ctrl-C

/// Where a command reads and writes, and how it writes numbers.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;
  bool decimal_point = false;

  /// Number text, with a decimal point where that is wanted.
  std::string number(double value) const;

  /// Says a message of the program on standard error, translated, and returns kExitFailed.
  int fail(std::string_view spanish) const;

  /// Says that standard input cannot be read, and returns kExitFailed.
  int failReading() const;
};

/// One of two texts of the command line's own, by the current language.
std::string_view inLanguage(std::string_view spanish, std::string_view english);

/// The two digits of a control character's number: "1b" for Esc.
std::string hexadecimal(char32_t control);

/// A text on one line, in UTF-8 whatever it holds: a line break becomes "\n", a tab "\t", a
/// backslash "\\", another control character "\x" and the two digits of its number. What is not
/// UTF-8 shows as U+FFFD.
std::string onOneLine(std::string_view text);

/// Writes the same without making a copy of it.
void writeOnOneLine(std::string_view text, std::ostream& out);

}  // namespace zel
