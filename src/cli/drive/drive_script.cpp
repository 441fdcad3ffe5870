#include "cli/drive/drive_script.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <vector>

#include "base/language.h"
#include "cli/console/console.h"
#include "cli/view_options.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::uint32_t kLastCharacter = 0x10FFFF;

/// The words between blanks.
std::vector<std::string_view> wordsOf(std::string_view text) {
  std::vector<std::string_view> words;
  for (;;) {
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    if (text.empty()) return words;
    words.push_back(text.substr(0, text.find_first_of(kBlanks)));
    text.remove_prefix(words.back().size());
  }
}

/// A whole number from 0 to `most`.
std::optional<std::uint32_t> readCount(std::string_view word, std::uint32_t most) {
  std::uint32_t value = 0;
  const char* const end = word.data() + word.size();
  const auto [stop, error] = std::from_chars(word.data(), end, value);
  if (error != std::errc() || stop != end || value > most) return std::nullopt;
  return value;
}

struct Mouse {
  MouseButton button = MouseButton::none;
  Point place;
};

std::optional<MouseButton> readButton(std::string_view word) {
  if (word == "none") return MouseButton::none;
  if (word == "left") return MouseButton::left;
  if (word == "right") return MouseButton::right;
  return std::nullopt;
}

std::optional<Mouse> readMouse(std::string_view arguments) {
  const auto words = wordsOf(arguments);
  if (words.size() != 3) return std::nullopt;
  const auto button = readButton(words[0]);
  const auto x = readNumber(words[1]);
  const auto y = readNumber(words[2]);
  if (!button || !x || !y) return std::nullopt;
  return Mouse{*button, {*x, *y}};
}

// Each is false when its arguments cannot be read.

bool next(DriveWindow& window, std::string_view arguments) {
  if (!wordsOf(arguments).empty()) return false;
  window.session().activateNext();
  return true;
}

bool previous(DriveWindow& window, std::string_view arguments) {
  if (!wordsOf(arguments).empty()) return false;
  window.session().activatePrevious();
  return true;
}

bool choose(DriveWindow& window, std::string_view arguments) {
  const auto words = wordsOf(arguments);
  if (words.size() != 1 || words[0].size() != 1) return false;
  window.session().choose(words[0][0]);
  return true;
}

bool numbers(DriveWindow& window, std::string_view arguments) {
  if (!wordsOf(arguments).empty()) return false;
  window.session().toggleNumbers();
  return true;
}

bool copyWithNumbers(DriveWindow& window, std::string_view arguments) {
  if (!wordsOf(arguments).empty()) return false;
  window.session().copyWithNumbers();
  return true;
}

bool leave(DriveWindow& window, std::string_view arguments) {
  if (!wordsOf(arguments).empty()) return false;
  window.session().mouseLeft();
  return true;
}

bool down(DriveWindow& window, std::string_view arguments) {
  const auto mouse = readMouse(arguments);
  if (!mouse || mouse->button == MouseButton::none) return false;
  window.session().mouseDown(mouse->button, mouse->place);
  return true;
}

bool move(DriveWindow& window, std::string_view arguments) {
  const auto mouse = readMouse(arguments);
  if (!mouse) return false;
  window.session().mouseMove(mouse->button, mouse->place);
  return true;
}

bool up(DriveWindow& window, std::string_view arguments) {
  const auto mouse = readMouse(arguments);
  if (!mouse || mouse->button == MouseButton::none) return false;
  window.session().mouseUp(mouse->button, mouse->place);
  return true;
}

bool key(DriveWindow& window, std::string_view arguments) {
  const auto words = wordsOf(arguments);
  if (words.size() != 1) return false;
  const auto code = readCount(words[0], kLastCharacter);
  if (!code) return false;
  window.session().keyPressed(static_cast<char32_t>(*code));
  return true;
}

bool resize(DriveWindow& window, std::string_view arguments) {
  const auto words = wordsOf(arguments);
  if (words.size() != 2) return false;
  const auto width = readCount(words[0], kLongestSide);
  const auto height = readCount(words[1], kLongestSide);
  if (!width || !height) return false;
  const auto size = PictureSize::ofPixels(static_cast<int>(*width), static_cast<int>(*height));
  if (PlotSession::takesSize(size)) window.session().resize(size);
  return true;
}

bool answer(DriveWindow& window, std::string_view arguments) {
  return window.queueAnswer(arguments);
}

bool lang(DriveWindow&, std::string_view arguments) {
  const auto words = wordsOf(arguments);
  if (words.size() != 1 || (words[0] != "ES" && words[0] != "EN")) return false;
  SetCurrentLanguage(words[0]);
  return true;
}

struct Verb {
  std::string_view name;
  std::string_view arguments;
  bool (*run)(DriveWindow& window, std::string_view arguments);
};

constexpr Verb kVerbs[] = {
    {"CmdGrafSiguiente", "", next},
    {"CmdGrafAnterior", "", previous},
    {"down", "left|right X Y", down},
    {"move", "none|left|right X Y", move},
    {"up", "left|right X Y", up},
    {"key", "CODE", key},
    {"resize", "PX PX", resize},
    {"answer", "TEXT", answer},
    {"lang", "ES|EN", lang},
    {"choose", "LETTER", choose},
    {"leave", "", leave},
    {"CmdNumeros", "", numbers},
    {"Copiar_Con_Numeros", "", copyWithNumbers},
};

std::string expected(std::string_view name, std::string_view arguments) {
  std::string text = std::string(inLanguage("se espera: ", "expected: ")) + std::string(name);
  if (!arguments.empty()) text += " " + std::string(arguments);
  return text;
}

}  // namespace

std::string runDriveLine(DriveWindow& window, std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
  const std::string_view name = line.substr(0, line.find_first_of(kBlanks));
  const std::string_view arguments = line.substr(std::min(name.size() + 1, line.size()));
  if (const auto command = plotCommand(name)) {
    if (!wordsOf(arguments).empty()) return expected(name, "");
    window.session().execute(*command);
    return {};
  }
  const auto* const verb = std::ranges::find(kVerbs, name, &Verb::name);
  if (verb == std::end(kVerbs))
    return std::string(inLanguage("orden desconocida", "unknown command"));
  return verb->run(window, arguments) ? "" : expected(name, verb->arguments);
}

}  // namespace zel
