#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

inline constexpr std::string_view kBookmarkSpace =
    "http://www.freedesktop.org/standards/desktop-bookmarks";
inline constexpr std::string_view kMimeSpace =
    "http://www.freedesktop.org/standards/shared-mime-info";
inline constexpr std::string_view kDesktopOwner = "http://freedesktop.org";

/// From the first character to the one behind the last.
struct TextSpan {
  std::size_t begin = 0;
  std::size_t end = 0;
};

/// An entry of the desktop's list of recent documents, and where its pieces lie in the list's text.
/// An element without an end tag of its own has no place where something could be put into it.
struct RecentBookmark {
  std::optional<std::string> path;  // of a local file, the system's bytes
  std::string used;                 // the later one of "modified" and "visited"
  std::string mime_type;
  bool is_private = false;
  bool is_ours = false;  // the program is registered in it
  int own_count = 0;     // how often the program has used it

  TextSpan whole;
  TextSpan start_tag;
  TextSpan own_application;
  std::optional<std::size_t> applications_end;  // where the end tag begins, as with the others
  std::optional<std::size_t> metadata_end;      // of what the desktop owns
  std::optional<std::size_t> info_end;
  std::optional<std::size_t> bookmark_end;
};

struct RecentBookmarks {
  std::vector<RecentBookmark> bookmarks;
  std::size_t list_end = 0;  // where the end tag of the list begins
};

/// Reads a list; `program` is the name under which the program registers. Nothing for a text that
/// is no list from its beginning to its end.
std::optional<RecentBookmarks> readRecentBookmarks(std::string_view list, std::string_view program);

/// The path that the address of a local file means; nothing for any other address.
std::optional<std::string> pathOfAddress(std::string_view address);
std::string addressOfPath(std::string_view path);

}  // namespace zel
