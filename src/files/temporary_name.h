#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// The names of the files that become another one's newer version.
namespace zel {

/// ".zel-", 16 random hexadecimal digits that nobody can foresee, and ".tmp"; empty where the
/// system gives no random numbers.
std::string newTemporaryName();

/// The bytes of such a name.
inline constexpr std::size_t kTemporaryNameSize = 25;

/// Whether a name, without its folder, is one of these.
bool isTemporaryName(std::string_view name);

}  // namespace zel
