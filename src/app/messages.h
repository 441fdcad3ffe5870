#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "app/services.h"

/// The ways in which every window tells the user something.
namespace zel {

/// The text as it is, in a box with a stop icon; an empty text shows nothing.
void ShowAttention(MessageBoxes& boxes, std::string_view message);

/// The text translated, in a box with Cancel, Try Again and Continue and no icon: the buttons are
/// meant, and the answer is ignored. An empty text shows an empty box.
void ShowInformation(MessageBoxes& boxes, std::string_view message);

/// That an operation cannot be done, and its cause as it is; an empty cause shows nothing.
void ReportError(MessageBoxes& boxes, std::string_view cause);

/// Whether a text holds one of the three messages that users can do something about.
bool IsKnownUserError(std::string_view text);

/// That an operation was cancelled, with the text as its cause and the graph that was being drawn.
/// Shows nothing for a text that is no known user error: this is meant.
void ReportCriticalError(MessageBoxes& boxes, std::string_view text, std::optional<char> graph);

/// Why a plot was not drawn: a known user error as a critical one, any other as it is.
void ShowDrawingError(MessageBoxes& boxes, std::string_view message, std::optional<char> graph);

/// Why a file was not written, in the current language: the number of the system's error, or that
/// it could not be written alone where there is none.
std::string saveFailure(int error);

}  // namespace zel
