#include "platform/xdg/recent_bookmarks.h"

#include <algorithm>
#include <charconv>

#include "platform/xdg/xml_tags.h"

namespace zel {
namespace {

using Kind = XmlTag::Kind;

class Reading {
 public:
  Reading(std::string_view text, std::string_view program)
      : text_(text), program_(program), tags_(text) {}

  std::optional<RecentBookmarks> run() {
    while (const auto tag = tags_.next()) {
      if (tag->kind == Kind::end)
        end(*tag, tags_.open().size() + 1);
      else
        start(*tag, tags_.open().size() + (tag->kind == Kind::empty ? 1 : 0));
    }
    if (!tags_.isWhole() || !is_list_) return std::nullopt;
    return std::move(found_);
  }

 private:
  std::string_view textOf(const XmlTag& tag) const {
    return text_.substr(tag.begin, tag.end - tag.begin);
  }

  /// The depth of an element is 1 for the list itself.
  void start(const XmlTag& tag, std::size_t depth) {
    const std::string_view name = tag.localName();
    if (depth == 1) is_list_ = name == "xbel" && tag.kind == Kind::start;
    if (depth == 2) {
      is_in_bookmark_ = name == "bookmark";
      if (is_in_bookmark_) startBookmark(tag);
    }
    if (depth > 2 && is_in_bookmark_) startInside(tag, depth);
    if (tag.kind == Kind::empty && depth == 4) is_desktops_ = false;
  }

  void startBookmark(const XmlTag& tag) {
    const std::string_view text = textOf(tag);
    RecentBookmark bookmark;
    bookmark.path = pathOfAddress(attributeOf(text, "href"));
    bookmark.used = std::max(attributeOf(text, "modified"), attributeOf(text, "visited"));
    bookmark.start_tag = bookmark.whole = {tag.begin, tag.end};
    found_.bookmarks.push_back(std::move(bookmark));
  }

  void startInside(const XmlTag& tag, std::size_t depth) {
    RecentBookmark& bookmark = found_.bookmarks.back();
    const std::string_view name = tag.localName();
    const std::string_view text = textOf(tag);
    if (depth == 4)
      is_desktops_ = name == "metadata" && attributeOf(text, "owner") == kDesktopOwner;
    if (!is_desktops_) return;
    if (depth == 5 && name == "mime-type") bookmark.mime_type = attributeOf(text, "type");
    if (depth == 5 && name == "private") bookmark.is_private = true;
    if (depth != 6 || name != "application" || attributeOf(text, "name") != program_) return;
    const std::string count = attributeOf(text, "count");
    bookmark.is_ours = true;
    bookmark.own_count = 0;
    std::from_chars(count.data(), count.data() + count.size(), bookmark.own_count);
    bookmark.own_application = {tag.begin, tag.end};
    is_own_application_ = tag.kind == Kind::start;
  }

  void end(const XmlTag& tag, std::size_t depth) {
    if (depth == 1) found_.list_end = tag.begin;
    if (depth < 2 || !is_in_bookmark_) return;
    RecentBookmark& bookmark = found_.bookmarks.back();
    const std::string_view name = tag.localName();
    if (depth == 2) {
      bookmark.bookmark_end = tag.begin;
      bookmark.whole.end = tag.end;
    }
    if (depth == 3 && name == "info") bookmark.info_end = tag.begin;
    if (depth == 4 && is_desktops_) bookmark.metadata_end = tag.begin;
    if (depth == 5 && is_desktops_ && name == "applications") bookmark.applications_end = tag.begin;
    if (depth == 6 && is_own_application_) bookmark.own_application.end = tag.end;
    if (depth == 6) is_own_application_ = false;
    if (depth == 4) is_desktops_ = false;
  }

  std::string_view text_;
  std::string_view program_;
  XmlTags tags_;
  bool is_list_ = false;
  bool is_in_bookmark_ = false;
  bool is_desktops_ = false;  // inside of the metadata that the desktop owns
  bool is_own_application_ = false;
  RecentBookmarks found_;
};

/// The value of a hexadecimal digit, or 16.
unsigned digitOf(char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const char lower = static_cast<char>(c >= 'A' && c <= 'F' ? c - 'A' + 'a' : c);
  return static_cast<unsigned>(std::min<std::size_t>(kDigits.find(lower), 16));
}

}  // namespace

std::optional<RecentBookmarks> readRecentBookmarks(std::string_view list,
                                                   std::string_view program) {
  return Reading(list, program).run();
}

std::optional<std::string> pathOfAddress(std::string_view address) {
  for (const std::string_view start : {"file://localhost", "file://"}) {
    if (!address.starts_with(start)) continue;
    address.remove_prefix(start.size());
    std::string path;
    for (std::size_t i = 0; i < address.size(); ++i) {
      const std::string_view digits = address.substr(i + 1, 2);
      if (address[i] == '%' && digits.size() == 2 && digitOf(digits[0]) < 16 &&
          digitOf(digits[1]) < 16) {
        path += static_cast<char>(digitOf(digits[0]) * 16 + digitOf(digits[1]));
        i += 2;
      } else {
        path += address[i];
      }
    }
    const bool is_path = path.starts_with('/') && path.find('\0') == std::string::npos;
    return is_path ? std::optional(path) : std::nullopt;
  }
  return std::nullopt;
}

std::string addressOfPath(std::string_view path) {
  constexpr std::string_view kPlain =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string address = "file://";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (kPlain.find(c) != std::string_view::npos)
      address += c;
    else
      address.append("%").append(1, kDigits[byte >> 4]).append(1, kDigits[byte & 15]);
  }
  return address;
}

}  // namespace zel
