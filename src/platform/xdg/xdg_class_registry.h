#pragma once

#include <set>
#include <string>
#include <vector>

#include "app/services.h"
#include "base/dictionary.h"
#include "platform/xdg/launcher.h"

namespace zel {

/// A class registry on the free desktop. Its entries are kept as given, a line `key=value` each, in
/// "zel/classes" below the user's data folder. When all four entries of a document type have been
/// set, the desktop is told of the type; the command and the icon that the entries name are those
/// of another platform, so the program's real path and the built-in icons take their place.
class XdgClassRegistry : public ClassRegistry {
 public:
  /// The folder is the one of the user's data (XDG_DATA_HOME). Without a launcher the desktop is
  /// told nothing, and the entries are only kept.
  XdgClassRegistry(std::string data_folder, std::string program_path, Launcher launcher = launch);

  Key createKey(const std::string& name) override;
  void setValue(Key key, const std::string& subkey, const std::string& value) override;

 private:
  void keepEntries() const;
  void publishCompleteTypes();

  std::string data_folder_;
  std::string program_path_;
  Launcher launcher_;
  std::vector<std::string> keys_;  // a key is its place, counted from 1
  KeyedDictionary<std::string> entries_;
  std::set<std::string> news_;  // the entries set since a type was published
};

}  // namespace zel
