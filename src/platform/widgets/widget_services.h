#pragma once

#include <string>

#include "platform/widgets/help_files.h"
#include "platform/widgets/qt_texts.h"
#include "platform/widgets/widget_clipboard.h"
#include "platform/widgets/widget_colour_dialog.h"
#include "platform/widgets/widget_file_dialogs.h"
#include "platform/widgets/widget_help_viewer.h"
#include "platform/widgets/widget_input_boxes.h"
#include "platform/widgets/widget_message_boxes.h"
#include "platform/widgets/widget_printer.h"

namespace zel {

/// The services that are windows. Needs the application, and must not outlive it.
struct WidgetServices {
  explicit WidgetServices(const std::string& program_folder) : help(helpFolders(program_folder)) {}

  QtTexts texts;
  WidgetMessageBoxes boxes;
  WidgetFileDialogs files{boxes};
  WidgetColourDialog colours;
  WidgetHelpViewer help;
  WidgetInputBoxes inputs;
  WidgetClipboard clipboard;
  WidgetPrinter printer;
};

}  // namespace zel
