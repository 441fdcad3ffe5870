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
};

/// One of two texts of the command line's own, by the current language.
std::string_view inLanguage(std::string_view spanish, std::string_view english);

/// A message on one line: a line break becomes "\n", a tab "\t", a backslash "\\".
std::string onOneLine(std::string_view message);

/// A text that is a line by itself: a line break inside becomes a blank.
std::string asLine(std::string_view text);

/// A field between tabs: what would break the line becomes a blank; a backslash stays.
std::string asField(std::string_view text);

}  // namespace zel
