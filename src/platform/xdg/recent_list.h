#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The free desktop's list of recent documents as a text: XBEL with the desktop's bookmark
/// metadata. docs/main_window.md says what is read and written of it.
namespace zel {

/// What the program writes of itself and its documents.
struct RecentKind {
  std::string program;    // how it registers
  std::string command;    // that opens a document, with "%f" for it
  std::string mime_type;  // of its documents
  std::string ending;     // of their names, in lower case
};

/// The paths of the documents on the list that have this type or ending, the one used last first.
/// What is private to other programs is not among them. Nothing of a text that is no list.
std::vector<std::string> documentsOnList(std::string_view list, const RecentKind& kind);

/// The list with a document that was used now ("2026-01-31T12:00:00Z", UTC). Every character of it
/// stays, but for the times of the document's own entry and what the program wrote there before. An
/// empty text gives a list of one; a text that is no list gives nothing.
std::optional<std::string> withDocument(std::string_view list, const std::string& path,
                                        const RecentKind& kind, const std::string& now);

}  // namespace zel
