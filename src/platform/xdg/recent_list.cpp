// A list is changed by putting pieces into its text: a new entry before the end of the list, or,
// where the document has one, new times into its start tag and the program's own line among those
// of the programs that use it. The pieces say themselves what their prefixes mean, because a list
// may have named them otherwise.
#include "platform/xdg/recent_list.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "base/text.h"
#include "platform/xdg/recent_bookmarks.h"
#include "platform/xdg/xml_tags.h"

namespace zel {
namespace {

std::string attribute(std::string_view name, std::string_view value) {
  return " " + std::string(name) + "=\"" + xmlEscaped(value) + "\"";
}

std::string application(const RecentKind& kind, int count, const std::string& now) {
  return "<bookmark:application" + attribute("xmlns:bookmark", kBookmarkSpace) +
         attribute("name", kind.program) + attribute("exec", "'" + kind.command + "'") +
         attribute("modified", now) + attribute("count", std::to_string(count)) + "/>\n";
}

std::string applications(const std::string& inside) {
  return "<bookmark:applications" + attribute("xmlns:bookmark", kBookmarkSpace) + ">\n" + inside +
         "</bookmark:applications>\n";
}

std::string metadata(const RecentKind& kind, const std::string& inside) {
  return "<metadata" + attribute("owner", kDesktopOwner) + ">\n<mime:mime-type" +
         attribute("xmlns:mime", kMimeSpace) + attribute("type", kind.mime_type) + "/>\n" + inside +
         "</metadata>\n";
}

std::string info(const std::string& inside) { return "<info>\n" + inside + "</info>\n"; }

std::string bookmark(const std::string& path, const RecentKind& kind, const std::string& now) {
  return "  <bookmark" + attribute("href", addressOfPath(path)) + attribute("added", now) +
         attribute("modified", now) + attribute("visited", now) + ">\n" +
         info(metadata(kind, applications(application(kind, 1, now)))) + "  </bookmark>\n";
}

/// The start tag with this value of an attribute, which is added where it is missing.
std::string withAttribute(std::string tag, std::string_view name, const std::string& value) {
  if (const auto old = findAttribute(tag, name))
    return tag.replace(old->begin, old->size, xmlEscaped(value));
  const std::size_t end = tag.size() - (tag.ends_with("/>") ? 2 : 1);
  return tag.insert(end, attribute(name, value));
}

/// The text of an entry with the program's line in it.
std::string withUse(std::string_view list, const RecentBookmark& entry, const std::string& path,
                    const RecentKind& kind, const std::string& now) {
  if (!entry.bookmark_end) return bookmark(path, kind, now);
  constexpr int kMost = std::numeric_limits<int>::max();  // others may have written any number
  const int count = std::clamp(entry.own_count, 0, kMost - 1) + 1;
  const std::string line = application(kind, count, now);
  TextSpan place = entry.own_application;
  std::string piece = line.substr(0, line.size() - 1);
  if (!entry.is_ours) {
    if (entry.applications_end) {
      place.begin = *entry.applications_end;
      piece = line;
    } else if (entry.metadata_end) {
      place.begin = *entry.metadata_end;
      piece = applications(line);
    } else if (entry.info_end) {
      place.begin = *entry.info_end;
      piece = metadata(kind, applications(line));
    } else {
      place.begin = *entry.bookmark_end;
      piece = info(metadata(kind, applications(line)));
    }
    place.end = place.begin;
  }
  std::string tag(list.substr(entry.start_tag.begin, entry.start_tag.end - entry.start_tag.begin));
  for (const char* name : {"modified", "visited"}) tag = withAttribute(tag, name, now);
  return tag + std::string(list.substr(entry.start_tag.end, place.begin - entry.start_tag.end)) +
         piece + std::string(list.substr(place.end, entry.whole.end - place.end));
}

/// The list with another text in one place.
std::string with(std::string_view list, TextSpan place, const std::string& piece) {
  return std::string(list.substr(0, place.begin)) + piece + std::string(list.substr(place.end));
}

std::string newList(const std::string& inside) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<xbel version=\"1.0\"" +
         attribute("xmlns:bookmark", kBookmarkSpace) + attribute("xmlns:mime", kMimeSpace) + ">\n" +
         inside + "</xbel>\n";
}

}  // namespace

std::vector<std::string> documentsOnList(std::string_view list, const RecentKind& kind) {
  auto found = readRecentBookmarks(list, kind.program);
  if (!found) return {};
  std::erase_if(found->bookmarks, [&](const RecentBookmark& entry) {
    const bool is_document = entry.path && (entry.mime_type == kind.mime_type ||
                                            toLower(*entry.path).ends_with(kind.ending));
    return !is_document || (entry.is_private && !entry.is_ours);
  });
  std::ranges::stable_sort(found->bookmarks, std::greater(), &RecentBookmark::used);
  std::vector<std::string> paths;
  for (RecentBookmark& entry : found->bookmarks) paths.push_back(std::move(*entry.path));
  return paths;
}

std::optional<std::string> withDocument(std::string_view list, const std::string& path,
                                        const RecentKind& kind, const std::string& now) {
  if (list.empty()) return newList(bookmark(path, kind, now));
  const auto found = readRecentBookmarks(list, kind.program);
  if (!found) return std::nullopt;
  const auto entry = std::ranges::find(found->bookmarks, path, &RecentBookmark::path);
  if (entry != found->bookmarks.end())
    return with(list, entry->whole, withUse(list, *entry, path, kind, now));
  return with(list, {found->list_end, found->list_end}, bookmark(path, kind, now));
}

}  // namespace zel
