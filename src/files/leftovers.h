#pragma once

#include <cstddef>
#include <filesystem>

namespace zel {

/// The names of a folder that are looked at; leftovers among later ones stay.
inline constexpr std::size_t kMostNamesLookedAt = 10000;

/// Takes away the temporary files that killed saves left in the folder of this file: regular files
/// of the name that only they have, the user's own ones, which no running save holds. What cannot
/// be taken away stays.
void removeLeftovers(const std::filesystem::path& file);

}  // namespace zel
