// A damage is what files go through: an end that is missing, lines lost, doubled or in another
// place, numbers that are none, control characters and other bytes, other line breaks and other
// encodings. Three of them at the most, so that many documents can still be read.

#include "support/damaged_documents.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace zel::test {
namespace {

constexpr std::string_view kLineBreak = "\r\n";

std::string block(const std::string& name, const std::string& kind, const std::string& pairs) {
  return "[GRAFICO]\r\n[PROPIEDADES]\r\nnombre=" + name + "\r\ncarpeta=\r\ncodigo=1*x\r\ncolor=7" +
         "\r\necuacion=Sen(x)*P\r\ntipo=" + kind + "\r\n \r\n[PARAMETROS]\r\n" + pairs +
         " \r\n \r\n";
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(kLineBreak, begin), text.size());
    lines.push_back(text.substr(begin, end - begin));
    begin = end + kLineBreak.size();
  }
  return lines;
}

std::string textOf(const std::vector<std::string>& lines, std::string_view line_break) {
  std::string text = lines.empty() ? std::string() : lines.front();
  for (std::size_t i = 1; i < lines.size(); ++i) text.append(line_break).append(lines[i]);
  return text;
}

constexpr auto kNumbers = std::to_array<std::string_view>({"",
                                                           " ",
                                                           "0",
                                                           "-0",
                                                           "1",
                                                           "+1",
                                                           "0,5",
                                                           "1,5",
                                                           "2.5",
                                                           "-2,5",
                                                           ",",
                                                           "-",
                                                           "1e2",
                                                           "1E-2",
                                                           "1e",
                                                           "32767,5",
                                                           "32768",
                                                           "-32768,5",
                                                           "-32769",
                                                           "1e999",
                                                           "-1e-999",
                                                           "inf",
                                                           "nan",
                                                           "0x10",
                                                           "1 ",
                                                           " 1",
                                                           "1_0",
                                                           "1.000,5",
                                                           "--1",
                                                           "\xBD",
                                                           "700",
                                                           "-3",
                                                           "2147483647",
                                                           "2147483647,5",
                                                           "2147483648",
                                                           "-2147483649",
                                                           "a",
                                                           "1\t",
                                                           "99999999999999999999"});

}  // namespace

const std::string& DamagedDocuments::sound() {
  static const std::string text =
      "Archivo creado con ZEL - https://zel.example/\r\n"
      "Advertencia: Se recomienda no modificar estos valores.\r\n\r\n"
      "[PRINCIPAL]\r\nversion=2.8\r\n01.versiones_compatibles=2.0\r\n"
      "09.versiones_compatibles=2.8\r\nsistema=Windows\r\nusuario=a=\xF1\r\n \r\n"
      "[VISTA PRINCIPAL]\r\nxi=-10\r\nxf=10\r\nyi=-2,5\r\nyf=1E2\r\ndefinicion=5\r\n"
      "proporcional=1\r\nescala_x=1\r\nescala_y=\r\n \r\n"
      "[GRAFICOS PRINCIPAL]\r\n" +
      block("a", "F", "") +
      block("b", "C", "h=0\r\nk=0\r\nr=3\r\ncodigo1=7@(9-x^2)\r\ncodigo2=-7@(9-x^2)\r\n") +
      block("c", "T", "ecuacion_xt=Cos(t)\r\necuacion_yt=t\r\ncodigo_xt=stale\r\n") +
      block("d", "Z", "parametro=P\r\ninicio=0\r\nfin=2\r\nvariacion=1\r\n") +
      block("e", "P", "h=0\r\n") + block("f", "\xF1", "x=\x80\r\n") + block("z", "", "") + " ";
  return text;
}

std::string DamagedDocuments::document(std::size_t number) {
  if (number < sound().size()) return sound().substr(0, number);
  random_.seed(static_cast<std::mt19937::result_type>(number));
  std::string text = sound();
  for (std::size_t damages = 1 + below(3); damages > 0; --damages) text = damaged(text);
  return text;
}

std::string DamagedDocuments::damaged(const std::string& text) {
  switch (below(8)) {
    case 0: return text.substr(0, below(text.size() + 1));
    case 1:
    case 2:
    case 3: return damagedLines(text);
    case 4: return damagedNumber(text);
    case 5: return damagedEncoding(text);
    default: return damagedBytes(text);
  }
}

std::string DamagedDocuments::damagedLines(const std::string& text) {
  std::vector<std::string> lines = linesOf(text);
  const auto at = [&](std::size_t place) {
    return lines.begin() + static_cast<std::ptrdiff_t>(place);
  };
  const std::size_t one = below(lines.size());
  const std::size_t other = below(lines.size());
  switch (below(7)) {
    case 0: lines.erase(at(one)); break;
    case 1: lines.insert(at(one), lines[one]); break;
    case 2: std::swap(lines[one], lines[other]); break;
    case 3: lines.insert(at(one), std::string(lines[other])); break;
    case 4: lines[one] += below(2) == 0 ? " " : "="; break;
    case 5: lines.erase(at(std::min(one, other)), at(std::max(one, other))); break;
    default: lines[one].insert(0, below(2) == 0 ? " " : std::string(5000, 'x')); break;
  }
  return textOf(lines, kLineBreak);
}

std::string DamagedDocuments::damagedNumber(const std::string& text) {
  constexpr std::array<std::string_view, 8> kKeys = {
      "definicion=", "proporcional=", "color=", "color=", "xi=", "nombre=", "inicio=", "escala_y="};
  std::vector<std::string> lines = linesOf(text);
  const std::string_view key = kKeys[below(kKeys.size())];
  const std::size_t first = below(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::string& line = lines[(first + i) % lines.size()];
    if (!line.starts_with(key)) continue;
    line = std::string(key).append(kNumbers[below(kNumbers.size())]);
    break;
  }
  return textOf(lines, kLineBreak);
}

std::string DamagedDocuments::damagedBytes(std::string text) {
  constexpr std::string_view kControls("\0\r\n\t\x1A\x1B\x7F\x81\x9D", 9);
  const std::size_t place = below(text.size() + 1);
  switch (below(4)) {
    case 0: return text.insert(place, 1, kControls[below(kControls.size())]);
    case 1: return text.erase(place, 1 + below(3));
    default:
      if (place < text.size()) text[place] = static_cast<char>(random_());
      return text;
  }
}

std::string DamagedDocuments::damagedEncoding(const std::string& text) {
  switch (below(6)) {
    case 0: return "\xEF\xBB\xBF" + text;
    case 1: return textOf(linesOf(text), "\n");
    case 2: return textOf(linesOf(text), "\r");
    case 3: {  // two bytes a character
      std::string wide = "\xFF\xFE";
      for (const char character : text) wide += {character, '\0'};
      return wide;
    }
    case 4: {  // the accents in another code page
      std::string other = text;
      std::ranges::replace(other, '\xF1', '\xA4');
      return other + "\x1A";
    }
    default: {
      std::string capitals = text;
      for (char& character : capitals)
        if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 0x20);
      return capitals;
    }
  }
}

}  // namespace zel::test
