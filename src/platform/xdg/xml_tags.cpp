// A tag ends at the first ">" that is in no quotes; comments, instructions and CDATA sections end
// at their own marks and are passed over. Each character is looked at once, whatever the text
// holds.
#include "platform/xdg/xml_tags.h"

#include <charconv>
#include <utility>

namespace zel {
namespace {

constexpr std::string_view kBlanks = " \t\r\n";

bool isBlank(char c) { return kBlanks.find(c) != std::string_view::npos; }

/// Behind the ">" of the tag that begins here.
std::size_t endOfTag(std::string_view text, std::size_t begin) {
  char quote = '\0';
  for (std::size_t i = begin; i < text.size(); ++i) {
    const char c = text[i];
    if (quote != '\0') {
      if (c == quote) quote = '\0';
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '>') {
      return i + 1;
    } else if (c == '<' && i > begin) {
      break;
    }
  }
  return std::string_view::npos;
}

void appendUtf8(std::string& text, unsigned code) {
  const auto byte = [&text](unsigned bits) { text += static_cast<char>(bits); };
  if (code < 0x80) {
    byte(code);
  } else if (code < 0x800) {
    byte(0xC0 | code >> 6);
    byte(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    byte(0xE0 | code >> 12);
    byte(0x80 | (code >> 6 & 0x3F));
    byte(0x80 | (code & 0x3F));
  } else {
    byte(0xF0 | (code >> 18 & 0x07));
    byte(0x80 | (code >> 12 & 0x3F));
    byte(0x80 | (code >> 6 & 0x3F));
    byte(0x80 | (code & 0x3F));
  }
}

/// What stands between "&" and ";". One that is not known stays as it is.
void appendReference(std::string& text, std::string_view name) {
  constexpr std::pair<std::string_view, char> kNamed[] = {
      {"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};
  for (const auto& [known, character] : kNamed)
    if (name == known) return text.push_back(character);
  const bool is_hex = name.starts_with("#x");
  unsigned code = 0;
  const char* const begin = name.data() + (is_hex ? 2 : 1);
  const char* const end = name.data() + name.size();
  if (name.starts_with("#") && begin < end &&
      std::from_chars(begin, end, code, is_hex ? 16 : 10).ptr == end && code < 0x110000)
    return appendUtf8(text, code);
  text.append("&").append(name).append(";");
}

std::string unescaped(std::string_view raw) {
  constexpr std::size_t kLongestReference = 10;
  std::string text;
  for (std::size_t i = 0; i < raw.size(); ++i) {
    const std::size_t length =
        raw[i] == '&' ? raw.substr(i + 1, kLongestReference).find(';') : std::string_view::npos;
    if (length == std::string_view::npos) {
      text += raw[i];
    } else {
      appendReference(text, raw.substr(i + 1, length));
      i += length + 1;
    }
  }
  return text;
}

}  // namespace

std::string_view XmlTag::localName() const { return name.substr(name.find(':') + 1); }

std::optional<XmlTag> XmlTags::next() {
  for (;;) {
    const std::size_t begin = text_.find('<', place_);
    if (begin == std::string_view::npos) {
      is_at_end_ = true;
      return std::nullopt;
    }
    const std::string_view rest = text_.substr(begin);
    bool passed = false;
    if (rest.starts_with("<?"))
      passed = skipPast(begin, "?>");
    else if (rest.starts_with("<!--"))
      passed = skipPast(begin + 4, "-->");
    else if (rest.starts_with("<![CDATA["))
      passed = skipPast(begin, "]]>");
    else if (!rest.starts_with("<!"))
      return readTag(begin);
    if (!passed) return std::nullopt;
  }
}

bool XmlTags::skipPast(std::size_t begin, std::string_view ending) {
  const std::size_t found = text_.find(ending, begin);
  place_ = found + ending.size();
  return found != std::string_view::npos;
}

std::optional<XmlTag> XmlTags::readTag(std::size_t begin) {
  XmlTag tag;
  tag.begin = begin;
  tag.end = endOfTag(text_, begin);
  if (tag.end == std::string_view::npos) return std::nullopt;
  place_ = tag.end;
  std::string_view inside = text_.substr(begin + 1, tag.end - begin - 2);
  if (inside.starts_with('/')) {
    tag.kind = XmlTag::Kind::end;
    inside.remove_prefix(1);
  } else if (inside.ends_with('/')) {
    tag.kind = XmlTag::Kind::empty;
    inside.remove_suffix(1);
  }
  tag.name = inside.substr(0, inside.find_first_of(kBlanks));
  return take(tag) ? std::optional(tag) : std::nullopt;
}

/// False for a tag that cannot stand here.
bool XmlTags::take(const XmlTag& tag) {
  if (tag.name.empty()) return false;
  if (tag.kind == XmlTag::Kind::end) {
    if (open_.empty() || open_.back() != tag.name) return false;
    open_.pop_back();
    return true;
  }
  if (open_.empty() && std::exchange(has_root_, true)) return false;
  if (tag.kind == XmlTag::Kind::start) open_.push_back(tag.name);
  return true;
}

std::optional<XmlValue> findAttribute(std::string_view tag, std::string_view name) {
  std::size_t place = tag.find_first_of(kBlanks);
  while (place != std::string_view::npos) {
    const std::size_t begin = tag.find_first_not_of(kBlanks, place);
    const std::size_t equals = tag.find('=', place);
    if (begin == std::string_view::npos || equals == std::string_view::npos) break;
    std::string_view found = tag.substr(begin, equals - begin);
    while (!found.empty() && isBlank(found.back())) found.remove_suffix(1);
    const std::size_t quote = tag.find_first_not_of(kBlanks, equals + 1);
    if (quote == std::string_view::npos || (tag[quote] != '"' && tag[quote] != '\'')) break;
    const std::size_t end = tag.find(tag[quote], quote + 1);
    if (end == std::string_view::npos) break;
    if (found == name) return XmlValue{quote + 1, end - quote - 1};
    place = end + 1;
  }
  return std::nullopt;
}

std::string attributeOf(std::string_view tag, std::string_view name) {
  const auto value = findAttribute(tag, name);
  return value ? unescaped(tag.substr(value->begin, value->size)) : "";
}

std::string xmlEscaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    switch (c) {
      case '&': escaped += "&amp;"; break;
      case '<': escaped += "&lt;"; break;
      case '>': escaped += "&gt;"; break;
      case '"': escaped += "&quot;"; break;
      case '\'': escaped += "&apos;"; break;
      default: escaped += c;
    }
  }
  return escaped;
}

}  // namespace zel
