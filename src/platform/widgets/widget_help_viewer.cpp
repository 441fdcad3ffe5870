#include "platform/widgets/widget_help_viewer.h"

#include <utility>

#include "app/desktop.h"
#include "platform/widgets/help_files.h"
#include "platform/widgets/help_window.h"

namespace zel {

WidgetHelpViewer::WidgetHelpViewer(std::vector<std::string> folders)
    : folders_(std::move(folders)) {}

WidgetHelpViewer::~WidgetHelpViewer() = default;

void WidgetHelpViewer::show(const std::string& help_file, int command) {
  if (command == kHelpClose && window_) window_->close();
  if (command != kHelpTopics) return;
  if (!window_) window_ = std::make_unique<HelpWindow>();
  if (const auto file = readHelpFile(folders_, help_file))
    window_->showFile(*file);
  else
    window_->showMissing(help_file);
}

}  // namespace zel
