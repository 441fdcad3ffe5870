// A name has 64 random bits, four to a digit, from the system's own generator: nobody can put a
// file or a link there beforehand. Its form alone tells which files killed saves may have left.

#include "files/temporary_name.h"

#include <algorithm>
#include <exception>
#include <random>

namespace zel {
namespace {

constexpr std::string_view kStart = ".zel-";
constexpr std::string_view kEnd = ".tmp";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kRandomDigits = 16;
static_assert(kStart.size() + kRandomDigits + kEnd.size() == kTemporaryNameSize);

}  // namespace

std::string newTemporaryName() {
  try {
    std::random_device device;  // the system's own generator
    std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
    std::string name(kStart);
    for (std::size_t i = 0; i < kRandomDigits; ++i) name += kDigits[digit(device)];
    return name.append(kEnd);
  } catch (const std::exception&) {
    return {};
  }
}

bool isTemporaryName(std::string_view name) {
  if (name.size() != kTemporaryNameSize) return false;
  if (!name.starts_with(kStart) || !name.ends_with(kEnd)) return false;
  return std::ranges::all_of(name.substr(kStart.size(), kRandomDigits),
                             [](char c) { return kDigits.find(c) != std::string_view::npos; });
}

}  // namespace zel
