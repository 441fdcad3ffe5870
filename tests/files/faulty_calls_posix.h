#pragma once

namespace zel::test {

/// What happens to the calls of this program that touch a file, counted from 1.
struct Fault {
  int first = 0;        // the call that it happens to; 0 for none
  bool lasts = false;   // and all later ones
  int error = 0;        // what they fail with; 0 kills the process before the call
  int piece = 1 << 30;  // the most bytes that one call writes
};

/// Counts from now on. The calls of code that is linked to this program are caught, those of shared
/// libraries are not.
void beginFaults(const Fault& fault);

/// Stops counting. The number of calls.
int endFaults();

}  // namespace zel::test
