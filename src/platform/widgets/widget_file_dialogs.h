#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/services.h"

namespace zel {

/// The desktop's file dialogs over the active window. Each begins in the folder of the last choice,
/// the first one in the folder that was the current one when this was made.
class WidgetFileDialogs : public FileDialogs {
 public:
  /// The boxes, which outlive the dialogs, tell of what is wrong with a choice.
  explicit WidgetFileDialogs(MessageBoxes& boxes);

  std::optional<std::string> askOpen(std::string_view filter) override;
  /// A name without a dot gets the ending of the filter.
  std::optional<std::string> askSave(std::string_view filter) override;

 private:
  enum class Mode { open, save };

  std::optional<std::string> ask(std::string_view filter, Mode mode, const std::string& proposal);
  bool mayOpen(const std::string& path);
  bool maySave(const std::string& path);

  MessageBoxes& boxes_;
  std::string folder_;
};

}  // namespace zel
