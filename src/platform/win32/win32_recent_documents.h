#pragma once

#include "app/services.h"

namespace zel {

/// The recent documents of Windows: links to them in a folder of the user's, which the shell makes.
class Win32RecentDocuments : public RecentDocuments {
 public:
  /// Looks at no more than kMostLinks links, those that were written last.
  std::vector<std::string> list() override;
  void add(const std::string& path) override;

  static constexpr std::size_t kMostLinks = 200;
};

}  // namespace zel
