#pragma once

namespace zel {

/// Turns of a wheel as whole notches. A touchpad tells a notch in many small parts.
class WheelNotches {
 public:
  static constexpr int kNotch = 120;  // eighths of a degree

  /// The notches that are full with this turn; below 0 towards the user. What is left of a notch
  /// waits for the next turn, and is forgotten when the wheel turns back.
  int turn(int eighths) {
    if ((eighths < 0) != (left_ < 0)) left_ = 0;
    left_ += eighths;
    const int notches = left_ / kNotch;
    left_ -= notches * kNotch;
    return notches;
  }

 private:
  int left_ = 0;
};

}  // namespace zel
