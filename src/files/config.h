#pragma once

#include <string>

/// "config.ini": the language and the confirm-deletion setting, kept between runs.
namespace zel {

inline constexpr const char* kConfigPath = "config.ini";  // in the current folder

struct Configuration {
  bool confirm_deletion = false;

  bool operator==(const Configuration&) const = default;
};

enum class ConfigRead {
  missing,  // first start: nothing is set, and an empty file is there now
  read,
  damaged,  // a line is missing; the language is set when the first one is there
};

/// Sets the current language and the configuration from the file.
ConfigRead readConfig(Configuration& configuration);

/// Writes the current language and the configuration. Returns what writeTextFile returns.
bool writeConfig(const Configuration& configuration);

}  // namespace zel
