#pragma once

#include <functional>

namespace zel {

/// Called now and then in long work on a picture. Pending events may run in it, which leave that
/// picture alone.
using Pause = std::function<void()>;

/// The same, where the work is given up when it answers false.
using GoesOn = std::function<bool()>;

}  // namespace zel
