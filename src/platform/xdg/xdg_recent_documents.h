#pragma once

#include <cstddef>
#include <string>

#include "app/services.h"

namespace zel {

/// The free desktop's list of recent documents, "recently-used.xbel" in the folder of the user's
/// data (XDG_DATA_HOME). It is read anew each time, because all programs write it.
class XdgRecentDocuments : public RecentDocuments {
 public:
  explicit XdgRecentDocuments(std::string data_folder);

  std::vector<std::string> list() override;
  /// The list is replaced whole. One that is none, or is too long, stays as it is.
  void add(const std::string& path) override;

  /// In bytes; a longer list is not looked at.
  static constexpr std::size_t kLongestList = std::size_t{4} << 20;
  /// So many documents are looked for at the most: those that are gone are not offered.
  static constexpr std::size_t kMostLooks = 100;

 private:
  std::string data_folder_;
  std::string path_;
};

}  // namespace zel
