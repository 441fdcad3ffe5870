#pragma once

#include <cerrno>
#include <string>

/// File descriptors of POSIX systems.
namespace zel {

/// A call that is interrupted so often in a row has failed.
inline constexpr int kMostInterruptions = 100;

/// Calls again while a signal interrupts the call.
template <class Call>
auto retried(Call call) {
  auto result = call();
  for (int i = 0; i < kMostInterruptions && result < 0 && errno == EINTR; ++i) result = call();
  return result;
}

/// Owns a file descriptor.
class Descriptor {
 public:
  explicit Descriptor(int number = kNone) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  explicit operator bool() const { return number_ >= 0; }
  int number() const { return number_; }

  /// Owns this one instead.
  void reset(int number);

  /// Returns 0 or the error. An interrupted close has closed all the same.
  int close();

 private:
  static constexpr int kNone = -1;

  int number_;
};

/// Negative, with errno, when it cannot be opened. `permissions` are those of a file that is made.
int openFile(const std::string& path, int flags, unsigned permissions = 0);

}  // namespace zel
