#pragma once

#include <functional>

namespace zel::test {

/// Which calls may fail, by the address that they return to; all of them at first.
extern bool (*may_fail)(const void* caller);

/// Runs an attempt in which operator new fails from its first-th call on (from 1), once or for
/// good. Returns the number of the calls; fewer than `first` when none has failed.
long withFailingMemory(long first, bool lasts, const std::function<void()>& attempt);

/// Lets each call of operator new in an attempt fail in turn, until one goes through untouched:
/// `attempt` runs with failing memory, and `look` behind it. Returns the number of failures.
long failEachAllocation(bool lasts, const std::function<void()>& attempt,
                        const std::function<void()>& look);

}  // namespace zel::test
