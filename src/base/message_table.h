#pragma once

#include <span>
#include <string_view>

namespace zel {

struct MessageRow {
  std::string_view spanish;
  std::string_view english;
};

/// Every translated message, in look-up order: the first row with a Spanish text wins. The wording
/// of both columns is part of the program's behaviour, odd forms included.
std::span<const MessageRow> messageTable();

/// The long texts, which more than one place needs.
namespace messages {
extern const std::string_view kRangeTooClose;
extern const std::string_view kSelfTestFailed;
extern const std::string_view kStartupFailedLong;
}  // namespace messages

}  // namespace zel
