// Writes the example documents with the program's own builders and document writer.
// Usage: make_examples FOLDER
#include <array>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>

#include "engine/engine.h"
#include "files/document.h"
#include "graphs/graph_builders.h"

namespace zel {
namespace {

constexpr std::int32_t rgb(int red, int green, int blue) {
  return red | green << 8 | blue << 16;
}

/// Colours that people with any colour vision can tell apart.
constexpr std::array<std::int32_t, 7> kPalette = {
    rgb(0, 114, 178),   rgb(213, 94, 0),   rgb(0, 158, 115), rgb(204, 121, 167),
    rgb(230, 159, 0), rgb(86, 180, 233), rgb(90, 60, 140)};

Field field(std::string_view text) { return {std::string(text), "campo"}; }

/// One example document in the making.
class Example {
 public:
  explicit Example(MainView view) : view_(std::move(view)) {}

  Example& add(char letter, const GraphFields& fields) {
    const std::int32_t colour = kPalette[static_cast<std::size_t>(letter - 'a') % kPalette.size()];
    std::string message;
    if (acceptGraph(graphs_, engine_, letter, colour, fields, message) != Accepted::stored)
      problem_ += std::string(1, letter) + ": " + message + "\n";
    return *this;
  }

  Example& function(char letter, std::string_view formula) {
    return add(letter, FunctionFields{field(formula)});
  }
  Example& family(char letter, std::string_view formula, std::string_view first,
                  std::string_view last, std::string_view step) {
    return add(letter, FamilyFields{field(formula), field(first), field(last), field(step)});
  }
  Example& parametric(char letter, std::string_view x, std::string_view y, std::string_view first,
                      std::string_view last, std::string_view step) {
    return add(letter,
               ParametricFields{field(x), field(y), field(first), field(last), field(step)});
  }

  bool write(const std::string& path) const {
    if (problem_.empty() && writeDocument(path, view_, graphs_).written) return true;
    std::cerr << path << ": " << problem_ << '\n';
    return false;
  }

 private:
  MainView view_;
  GraphTable graphs_;
  Engine engine_{[this](char letter) { return graphs_.codeOf(letter); }};
  std::string problem_;
};

MainView view(std::string_view xi, std::string_view xf, std::string_view yi, std::string_view yf,
              bool proportional = false) {
  MainView view;
  view.xi = xi;
  view.xf = xf;
  view.yi = yi;
  view.yf = yf;
  view.proporcional = proportional;
  return view;
}

bool writeAllKinds(const std::string& path) {
  return Example(view("-10", "10", "-7,5", "7,5", true))
      .function('a', "3*sen(60*x)")
      .add('b', CircumferenceFields{field("-5"), field("4"), field("2,5")})
      .add('c', EllipseFields{field("5"), field("4"), field("4"), field("2")})
      .add('d', ParabolaFields{field("0"), field("-5"), field("2")})
      .add('e', HyperbolaFields{field("0"), field("0"), field("6"), field("7")})
      .parametric('f', "6+2*cos(t)*sen(3*t)", "-4+2*sen(t)*sen(3*t)", "0", "360", "3")
      .family('g', "-5+p*(x+7)/8", "-3", "3", "1")
      .write(path);
}

bool writeWaves(const std::string& path) {
  return Example(view("-360", "720", "-3", "3"))
      .function('a', "sen(x)")
      .function('b', "cos(x)/2")
      .function('c', "2*sen(x/2)*exp(-x/500)")
      .function('d', "sen(x)+sen(3*x)/3+sen(5*x)/5+sen(7*x)/7")
      .write(path);
}

bool writeConics(const std::string& path) {
  return Example(view("-12", "12", "-9", "9", true))
      .add('a', CircumferenceFields{field("0"), field("0"), field("8")})
      .add('b', EllipseFields{field("0"), field("0"), field("8"), field("4")})
      .add('c', HyperbolaFields{field("0"), field("0"), field("3"), field("5")})
      .add('d', ParabolaFields{field("0"), field("-6"), field("4")})
      .add('e', CircumferenceFields{field("-8"), field("6"), field("3")})
      .write(path);
}

bool writeCurves(const std::string& path) {
  return Example(view("-8", "8", "-6", "6", true))
      .parametric('a', "5*sen(3*t)", "4*sen(2*t)", "0", "360", "1")
      .parametric('b', "t*cos(t)/200", "t*sen(t)/200", "0", "1080", "4")
      .parametric('c', "2*cos(t)+cos(2*t)-5", "2*sen(t)-sen(2*t)+3", "0", "360", "5")
      .write(path);
}

bool writeFamilies(const std::string& path) {
  return Example(view("-10", "10", "-10", "10"))
      .family('a', "p*x^2/10", "-3", "3", "0,5")
      .family('b', "raiz2(p^2-x^2)", "1", "9", "1")
      .family('c', "p*sen(36*x)-6", "0,5", "3", "0,5")
      .write(path);
}

bool writeAlphabet(const std::string& path) {
  Example example(view("-13", "13", "-8", "8"));
  for (int i = 0; i < GraphTable::kSlots; ++i) {
    const std::string shift = std::to_string(i - 13);
    example.function(static_cast<char>('a' + i),
                     "7*exp(-((x-(" + shift + "))^2))*cos(30*x)+(" + shift + ")/3");
  }
  return example.write(path);
}

/// Calls go to later letters, since letters are expanded once, from "a" to "z"; what is called is
/// declared first.
bool writeCalls(const std::string& path) {
  return Example(view("-6", "6", "-6", "6"))
      .function('f', "x^2/4-2")
      .function('d', "(f(x))*sen(90*x)")
      .function('c', "(d(x+1))/2+x/3")
      .function('b', "abs(f(x))")
      .write(path);
}

/// In a picture 800 pixels wide every sample is a multiple of 1/16, so that 7 is hit exactly; the
/// range begins beside the grid of its marks.
bool writeOddities(const std::string& path) {
  MainView odd = view("2,25", "14,75", "-6", "6");
  odd.definicion = 25;
  return Example(odd)
      .function('a', "inv(x-7)")
      .function('b', "1/(x-11)-2")
      .function('c', "ln(x-9)+2")
      .function('d', "x/2*x-x")
      .function('e', "-x^2/20-1")
      .write(path);
}

}  // namespace
}  // namespace zel

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_examples FOLDER\n";
    return 2;
  }
  const std::string folder = std::string(argv[1]) + "/";
  using namespace zel;
  const bool all_written =
      writeAllKinds(folder + "all_kinds.zel") && writeWaves(folder + "waves.zel") &&
      writeConics(folder + "conics.zel") && writeCurves(folder + "curves.zel") &&
      writeFamilies(folder + "families.zel") && writeAlphabet(folder + "alphabet.zel") &&
      writeCalls(folder + "calls.zel") && writeOddities(folder + "oddities.zel");
  return all_written ? 0 : 1;
}
