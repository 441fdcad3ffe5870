#pragma once

#include <functional>
#include <string_view>

namespace zel::test {

/// What happens to the calls of this program that touch a file, counted from 1.
struct Fault {
  int first = 0;                     // the call that it happens to; 0 for none
  bool lasts = false;                // and all later ones
  int error = 0;                     // what they fail with; 0 kills the process before the call
  int piece = 1 << 30;               // the most bytes that one call writes
  std::string_view only = {};        // the function whose calls count; empty for all of them
  std::function<void()> event = {};  // what happens before the call, which then goes through
  std::string_view answer = {};      // what `only` gives, readlink or getxattr; empty for the truth
};

/// Counts from now on. The calls of code that is linked to this program are caught, those of shared
/// libraries are not.
void beginFaults(const Fault& fault);

/// Stops counting. The number of calls.
int endFaults();

/// The function whose call met the fault last; empty where none has since it began.
std::string_view faultyCall();

/// Lets each call of an attempt meet the fault in turn, until one has fewer calls: `prepare` runs
/// before each attempt, and `look` behind it.
void atEachCall(Fault fault, const std::function<void()>& prepare,
                const std::function<void()>& attempt, const std::function<void()>& look);

}  // namespace zel::test
