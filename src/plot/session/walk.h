#pragma once

#include <cstddef>
#include <functional>
#include <utility>

#include "engine/engine.h"

namespace zel {

/// A walk over many evaluations that a user waits for: a trace, a search, a pick. It lets pending
/// events run wherever the evaluations since the last time have come to Engine::kMostWork.
class Walk {
 public:
  /// `look` lets pending events run and says whether the walk goes on.
  Walk(Engine& engine, std::function<bool()> look) : engine_(engine), look_(std::move(look)) {}

  /// To be asked after each evaluation. False when the walk has to end where it is.
  bool goesOn() {
    work_ += engine_.costOfLast();
    if (work_ < Engine::kMostWork) return true;
    work_ = 0;
    is_ended_ = !look_();
    return !is_ended_;
  }
  /// Whether it was ended so: it came to nothing then.
  bool isEnded() const { return is_ended_; }

 private:
  Engine& engine_;
  std::function<bool()> look_;
  std::size_t work_ = 0;
  bool is_ended_ = false;
};

}  // namespace zel
