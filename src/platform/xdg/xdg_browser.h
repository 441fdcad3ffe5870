#pragma once

#include <string>

#include "app/services.h"
#include "platform/xdg/launcher.h"

namespace zel {

/// The user's browser, by the desktop's own opener. It shows itself and is never busy for us.
class XdgBrowser : public Browser {
 public:
  explicit XdgBrowser(Launcher launcher = launch);

  /// Whether there is an opener.
  bool start() override;
  bool makeVisible() override { return true; }
  bool navigate(const std::string& address) override;
  bool isBusy() override { return false; }

 private:
  Launcher launcher_;
};

}  // namespace zel
