#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// A tag, and where it lies in its text.
struct XmlTag {
  enum class Kind { start, end, empty };

  Kind kind = Kind::start;
  std::string_view name;  // with its prefix
  std::size_t begin = 0;
  std::size_t end = 0;  // behind the ">"

  /// The name without its prefix.
  std::string_view localName() const;
};

/// Reads the tags of an XML text one after the other, in time that grows with the text alone, and
/// keeps count of the elements that are open. It knows no entities but those of XML itself; a text
/// that declares others is refused, and so is one whose tags do not belong together.
class XmlTags {
 public:
  /// The text outlives this.
  explicit XmlTags(std::string_view text) : text_(text) {}

  /// The next tag; nothing at the end, and where the text is refused.
  std::optional<XmlTag> next();

  /// Whether the text was read to its end, and is one whole element.
  bool isWhole() const { return is_at_end_ && open_.empty() && has_root_; }

  /// The elements that are open: a start tag's own is the last of them, an end tag's no longer.
  const std::vector<std::string_view>& open() const { return open_; }

 private:
  std::optional<XmlTag> readTag(std::size_t begin);
  bool take(const XmlTag& tag);
  bool skipPast(std::size_t begin, std::string_view ending);

  std::string_view text_;
  std::size_t place_ = 0;
  std::vector<std::string_view> open_;
  bool has_root_ = false;
  bool is_at_end_ = false;
};

/// Where the value of an attribute lies in a start tag's text, without its quotes.
struct XmlValue {
  std::size_t begin = 0;
  std::size_t size = 0;
};

/// Nothing where the tag has no such attribute, or before it something that is none.
std::optional<XmlValue> findAttribute(std::string_view tag, std::string_view name);

/// The value with its character references replaced; empty where there is none.
std::string attributeOf(std::string_view tag, std::string_view name);

/// A text as it stands in an attribute in double quotes.
std::string xmlEscaped(std::string_view text);

}  // namespace zel
