#include <utility>

#include "platform/win32/automation_browser.h"

namespace zel {

AutomationBrowser::AutomationBrowser(std::string program_id) : program_id_(std::move(program_id)) {}

bool AutomationBrowser::start() {
  if (!session_) session_.emplace();
  browser_ = ComObject::create(program_id_);
  return static_cast<bool>(browser_);
}

bool AutomationBrowser::makeVisible() { return browser_.setProperty("Visible", true); }

bool AutomationBrowser::navigate(const std::string& address) {
  return browser_.call("Navigate", {address}).has_value();
}

bool AutomationBrowser::isBusy() {
  const auto busy = browser_.property("Busy");
  const bool* const is_busy = busy ? std::get_if<bool>(&*busy) : nullptr;
  return is_busy && *is_busy;
}

}  // namespace zel
