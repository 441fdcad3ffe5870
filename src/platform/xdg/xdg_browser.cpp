#include "platform/xdg/xdg_browser.h"

#include <utility>

namespace zel {

XdgBrowser::XdgBrowser(Launcher launcher) : launcher_(std::move(launcher)) {}

bool XdgBrowser::start() { return isInstalled("xdg-open"); }

bool XdgBrowser::navigate(const std::string& address) { return launcher_("xdg-open", {address}); }

}  // namespace zel
