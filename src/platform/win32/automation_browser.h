#pragma once

#include <optional>
#include <string>

#include "app/services.h"
#include "platform/win32/com_dispatch.h"

namespace zel {

/// The browser that Windows drives through its automation object. What cannot be done fails
/// quietly.
class AutomationBrowser : public Browser {
 public:
  explicit AutomationBrowser(std::string program_id = "InternetExplorer.Application");

  bool start() override;
  bool makeVisible() override;
  bool navigate(const std::string& address) override;
  bool isBusy() override;

 private:
  std::string program_id_;
  std::optional<ComSession> session_;
  ComObject browser_;
};

}  // namespace zel
