#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/services.h"

namespace zel {

/// The desktop's file dialogs over the active window.
class WidgetFileDialogs : public FileDialogs {
 public:
  /// The boxes, which outlive the dialogs, tell of what is wrong with a choice.
  explicit WidgetFileDialogs(MessageBoxes& boxes) : boxes_(boxes) {}

  std::optional<std::string> askOpen(std::string_view filter, const std::string& proposal) override;
  /// A name without a dot gets the ending of the filter.
  std::optional<std::string> askSave(std::string_view filter, const std::string& proposal) override;

 private:
  enum class Mode { open, save };

  static std::optional<std::string> ask(std::string_view filter, Mode mode,
                                        const std::string& proposal);
  bool mayOpen(const std::string& path);
  bool maySave(const std::string& path);

  MessageBoxes& boxes_;
};

}  // namespace zel
