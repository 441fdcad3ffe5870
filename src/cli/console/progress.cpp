#include "cli/console/progress.h"

#include <algorithm>
#include <ostream>

#include "cli/console/terminal.h"

namespace zel {
namespace {

constexpr auto kSilence = std::chrono::seconds(1);
constexpr auto kPause = std::chrono::milliseconds(100);

}  // namespace

Progress::Progress(std::ostream& err)
    : err_(err), shows_(errorIsTerminal()), next_(Clock::now() + kSilence) {}

void Progress::clear() {
  if (width_ > 0) err_ << '\r' << std::string(width_, ' ') << '\r' << std::flush;
  width_ = 0;
}

bool Progress::isDue() {
  const auto now = Clock::now();
  if (now < next_) return false;
  next_ = now + kPause;
  return true;
}

void Progress::write(const std::string& text) {
  const std::size_t gap = width_ > text.size() ? width_ - text.size() : 0;
  err_ << '\r' << text << std::string(gap, ' ') << std::flush;
  width_ = std::max(width_, text.size());
}

}  // namespace zel
