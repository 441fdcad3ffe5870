#pragma once

#include <string>

/// "config.ini": the language and the confirm-deletion setting, kept between runs.
namespace zel {

inline constexpr const char* kConfigFile = "config.ini";

struct Configuration {
  bool confirm_deletion = false;

  bool operator==(const Configuration&) const = default;
};

enum class ConfigRead {
  missing,  // first start: nothing is set, and an empty file is there now
  read,
  damaged,  // a line is missing (the language is set when the first one is there), or what stands
            // at the path cannot be read
};

/// Sets the current language and the configuration from the file.
ConfigRead readConfig(const std::string& path, Configuration& configuration);

/// Writes the current language and the configuration. Returns what writeTextFile returns.
bool writeConfig(const std::string& path, const Configuration& configuration);

}  // namespace zel
