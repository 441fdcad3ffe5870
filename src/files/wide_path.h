#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace zel {

/// A path as the calls of Windows take it. What would pass the bound of 260 letters, which systems
/// keep where nobody has lifted it, is the whole path in the form that no bound holds for. It takes
/// no memory from the heap: what is asked about a file is answered when there is none any more.
class WidePath {
 public:
  /// From UTF-8; empty for a text that is no path.
  explicit WidePath(std::string_view utf8);

  bool isEmpty() const { return text_.front() == L'\0'; }
  const wchar_t* c_str() const { return text_.data(); }

 private:
  static constexpr std::size_t kSize = 32768;  // of the longest path, with its end

  /// Where a file beside it, under a temporary name, would pass the bound.
  void liftBound();

  std::array<wchar_t, kSize> text_;
};

}  // namespace zel
