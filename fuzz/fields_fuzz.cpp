// What a user types: keys through the filter of numeric boxes, boxes as they are read, the checks
// of fields, and graphs of each kind accepted or refused, beside a second reading of the rules.
// The first line is the keys, the second the kind of graph, and then comes a line for each field.
#include <array>
#include <vector>

#include "app/editor/field_text.h"
#include "app/editor/graph_editing.h"
#include "app/editor/key_filter.h"
#include "app/main_commands.h"
#include "base/code_page.h"
#include "base/language.h"
#include "base/utf8.h"
#include "files/document.h"
#include "fuzz.h"
#include "support/plain_number.h"

namespace zel::fuzz {
namespace {

constexpr std::size_t kMostFields = 5;

class OneBox : public FormControls {
 public:
  explicit OneBox(std::string_view text) : text_(text) {}
  std::optional<std::string> controlText(std::string_view name) const override {
    return name == "box" ? std::optional(text_) : std::nullopt;
  }

 private:
  std::string text_;
};

void checkReading(std::string_view typed) {
  std::string expected;
  for (const char character : typed)
    if (std::string_view("=<>").find(character) == std::string_view::npos) expected += character;
  while (expected.starts_with(' ')) expected.erase(0, 1);
  while (expected.ends_with(' ')) expected.pop_back();
  const std::string read = ReadFieldText(OneBox(typed), "box");
  require(read == expected, "a box is read without relations and blanks at its ends", typed);
  require(ReadFieldText(OneBox(read), "box") == read, "and a second reading changes nothing",
          typed);
  require(ReadFieldText(OneBox(typed), "other").empty(), "a box that is not there is empty");
}

void checkKeys(std::string_view keys, bool refuse_minus) {
  std::string box;
  for (const char typed : keys) {
    char32_t key = static_cast<unsigned char>(typed);
    FilterNumericKey(key, box, refuse_minus);
    require(key == 0 || key == static_cast<unsigned char>(typed), "a key passes or is swallowed");
    const bool is_letter = (typed >= 'a' && typed <= 'z') || (typed >= 'A' && typed <= 'Z');
    if (key == 0) {
      require(is_letter || std::string_view(" -,.\0", 5).find(typed) != std::string_view::npos,
              "what may be part of a number passes", keys);
      continue;
    }
    box += typed;
  }
  const auto count = [&](std::string_view of) {
    int found = 0;
    for (const char character : box) found += of.find(character) != std::string_view::npos ? 1 : 0;
    return found;
  };
  require(count("E") <= 1 && !box.starts_with('E'), "one E that is not the first", box);
  require(count(",.") <= 1, "one separator", box);
  require(count("-") <= (refuse_minus ? 0 : 1), "one minus at the most", box);
  require(count(" abcdefghijklmnopqrstuvwxyzABCDFGHIJKLMNOPQRSTUVWXYZ") == 0, "no letter", box);
}

bool isDistance(const Field& field) {
  const auto value = test::plainFiniteNumber(field.text);
  return value && *value >= 0;
}

std::string complaint(const char* about, const std::vector<Field>& fields,
                      bool (*passes)(const Field&)) {
  std::string list;
  for (const Field& field : fields)
    if (!passes(field)) list += field.label + "\r\n";
  return list.empty() ? list : about + ("\r\n" + list);
}

/// The checks of a conic in their order: the numeric one replaces what the first one said.
std::string complaints(const std::vector<Field>& distances, const std::vector<Field>& all,
                       const Field* low, const Field* high) {
  std::string message = complaint(
      "Los valores de distancia deben ser números positivos en los siguientes campos:", distances,
      isDistance);
  if (!message.empty()) message += "\r\n";
  const std::string numeric =
      complaint("Los siguientes campos deben contener valores numéricos:", all,
                [](const Field& field) { return test::isPlainNumber(field.text); });
  if (!numeric.empty()) message = numeric;
  if (low == nullptr) return message;
  const auto from = test::plainFiniteNumber(low->text);
  const auto to = test::plainFiniteNumber(high->text);
  if (from && to && *to > *from) return message;
  return message + "\r\nLos siguientes campos deben contener valores numéricos crecientes:\r\n" +
         low->label + "\r\n" + high->label;
}

using Texts = std::array<Field, kMostFields>;

/// What must be said of a conic's fields; nothing for other kinds.
std::optional<std::string> expectedMessage(char kind, const Texts& f) {
  switch (kind) {
    case 'C': return complaints({f[2]}, {f[0], f[1], f[2]}, nullptr, nullptr);
    case 'P': return complaints({f[2]}, {f[0], f[1], f[2]}, nullptr, nullptr);
    case 'E': return complaints({f[2], f[3]}, {f[0], f[1], f[2], f[3]}, &f[3], &f[2]);
    case 'H': return complaints({f[2], f[3]}, {f[0], f[1], f[2], f[3]}, &f[2], &f[3]);
    default: return std::nullopt;
  }
}

GraphFields fieldsOf(char kind, const Texts& f) {
  switch (kind) {
    case 'C': return CircumferenceFields{f[0], f[1], f[2]};
    case 'P': return ParabolaFields{f[0], f[1], f[2]};
    case 'E': return EllipseFields{f[0], f[1], f[2], f[3]};
    case 'H': return HyperbolaFields{f[0], f[1], f[2], f[3]};
    case 'T': return ParametricFields{f[0], f[1], f[2], f[3], f[4]};
    case 'Z': return FamilyFields{f[0], f[1], f[2], f[3]};
    default: return FunctionFields{f[0]};
  }
}

/// A graph that was accepted can be changed again and outlives a save.
void checkStored(GraphTable& graphs, Engine& engine, char kind) {
  const GraphDef def = *graphs.graph('m');
  require(def.defined && def.tipo == kind, "the graph is in the table");
  const GraphFields shown = zel::fieldsOf(def);
  GraphTable others;
  std::string message;
  const Accepted again = acceptGraph(others, engine, 'm', def.color, shown, message);
  const GraphDef same = *others.graph('m');
  if (kind != 'P') {  // its fields are computed anew
    require(again == Accepted::stored, "its fields are accepted again", message);
    require(same.ecuacion == def.ecuacion && same.codigo == def.codigo, "and give the same graph");
  }
  const auto bytes = documentBytes(MainView(), graphs);
  require(bytes.has_value(), "it can be saved", def.ecuacion);
  MainView view;
  DocumentHeader header;
  GraphTable loaded;
  require(loadDocumentBytes(*bytes, view, loaded, header, message), "and loaded");
  require(documentBytes(MainView(), loaded) == bytes, "and saved again as it was", *bytes);
}

void checkAccept(char kind, const Texts& texts) {
  GraphTable graphs;
  Engine engine([&graphs](char letter) { return graphs.codeOf(letter); });
  std::string message = "old";
  const Accepted accepted = acceptGraph(graphs, engine, 'm', 255, fieldsOf(kind, texts), message);
  const auto expected = expectedMessage(kind, texts);
  if (expected) require(message == *expected, "what is said of the fields", message);
  require((accepted == Accepted::refused) == !message.empty(), "who is refused is told", message);
  require(accepted != Accepted::failed || kind == 'P', "only a parabola has no value");
  if (accepted == Accepted::stored) return checkStored(graphs, engine, kind);
  require(!graphs.graph('m')->defined && graphs.count() == 0, "nothing is stored");
}

void checkMarks(const std::string& x, const std::string& y) {
  const auto marks = readScaleMarks(x, y);
  const auto isRead = [](const std::string& text) {
    const std::size_t first = text.find_first_not_of(' ');
    return text.empty() ||
           (first != std::string::npos && test::plainFiniteNumber(std::string_view(text).substr(
                                              first, text.find_last_not_of(' ') - first + 1)));
  };
  require(marks.has_value() == (isRead(x) && isRead(y)), "scales are numbers or nothing", x);
}

}  // namespace
}  // namespace zel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zel::fuzz;
  zel::SetCurrentLanguage("ES");
  Input input(data, size);
  const std::string_view keys = input.line();
  checkKeys(keys, keys.starts_with('-'));
  const auto kind = input.line();
  Texts texts;
  char label = 'A';
  for (zel::Field& field : texts) {
    const std::string typed = zel::fromCodePage(input.line());
    checkReading(typed);
    // A box holds no control characters.
    field = {zel::holdsControl(typed) ? "1" : ReadFieldText(OneBox(typed), "box"), {label++}};
  }
  checkAccept(
      kind.empty() || zel::kEditorKinds.find(kind[0]) == std::string_view::npos ? 'F' : kind[0],
      texts);
  checkMarks(texts[0].text, texts[1].text);
  return 0;
}
