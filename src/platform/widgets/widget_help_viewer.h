#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/services.h"

namespace zel {

class HelpWindow;

/// The help viewer: a window of our own that reads the help file. It knows the commands for the
/// topics and for closing; any other command does nothing.
class WidgetHelpViewer : public HelpViewer {
 public:
  /// The folders are where help files are looked for, in this order.
  explicit WidgetHelpViewer(std::vector<std::string> folders);
  ~WidgetHelpViewer() override;

  void show(const std::string& help_file, int command) override;

 private:
  std::vector<std::string> folders_;
  std::unique_ptr<HelpWindow> window_;  // once it has been wanted
};

}  // namespace zel
