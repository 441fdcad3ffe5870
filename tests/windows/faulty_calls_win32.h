#pragma once

#include <functional>
#include <limits>
#include <string_view>

namespace zel::test {

/// What happens to the calls of this program that touch a file, counted from 1.
struct Fault {
  static constexpr int kForGood = std::numeric_limits<int>::max();

  int first = 0;                     // the first call that it happens to; 0 for none
  int last = 0;                      // and the last one
  unsigned long error = 0;           // what they fail with
  std::string_view only = {};        // the function whose calls count; empty for all of them
  std::function<void()> event = {};  // what happens instead, and the call goes through
  bool is_behind = false;            // the event comes after the call
  bool sees_links = false;           // files are said to be links; no call fails for it
};

/// Counts from now on.
void beginFaults(const Fault& fault);

/// Stops counting. The number of calls.
int endFaults();

}  // namespace zel::test
