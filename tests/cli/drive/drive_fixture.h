#pragma once

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include "cli/cli_fixture.h"

namespace zel::test {

using Json = nlohmann::json;

/// Drives the plot of a document. Unless told otherwise the picture is 12000 x 9000 twips and shows
/// x from -12 to 12 and y from -9 to 9, 500 twips to a unit both ways, in 48 samples half a unit
/// apart: all numbers below are exact.
class DriveTest : public CliTest {
 protected:
  struct Driven {
    int status;
    std::vector<Json> objects;
    std::string err;

    const Json& last() const { return objects.back(); }
  };

  Driven drive(const std::string& document, const std::string& script,
               const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"drive", document};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Run result = run(arguments, script);
    Driven driven{result.status, {}, result.err};
    std::istringstream lines(result.out);
    for (std::string line; std::getline(lines, line);) driven.objects.push_back(Json::parse(line));
    if (driven.objects.empty()) driven.objects.emplace_back();  // for last()
    return driven;
  }

  /// The object after the last line of a script without faults.
  Json after(const std::string& document, const std::string& script,
             const std::vector<std::string>& more = {}) {
    const Driven driven = drive(document, script, more);
    EXPECT_EQ(driven.status, 0) << script;
    EXPECT_EQ(driven.err, "") << script;
    return driven.last();
  }

  std::string plane(const std::string& graphs) const {
    return writeDocument("plane.zel",
                         "xi=-12\r\nxf=12\r\nyi=-9\r\nyf=9\r\ndefinicion=6\r\n"
                         "escala_x=1\r\nescala_y=1\r\n",
                         graphs);
  }

  std::string planeOf(const std::string& formula) const { return plane(block('a', 'F', formula)); }

  static std::string family(char letter, const std::string& formula, const std::string& inicio,
                            const std::string& fin) {
    return block(letter, 'Z', formula,
                 "parametro=P\r\ninicio=" + inicio + "\r\nfin=" + fin + "\r\nvariacion=1\r\n");
  }

  static std::string parametric(char letter) {
    return block(letter, 'T', "[X(t)=t;Y(t)=t]",
                 "ecuacion_xt=t\r\necuacion_yt=t\r\ninicio=0\r\nfin=2\r\nvariacion=1\r\n");
  }

  /// The circle of radius 3 about the origin.
  static std::string circle(char letter) {
    return block(letter, 'C', std::string(1, letter) + "(0;0;3)",
                 "h=0\r\nk=0\r\nr=3\r\ncodigo1=7@(9-x^2)\r\ncodigo2=-7@(9-x^2)\r\n");
  }

  /// A click of the left button at a point of the plane, on the picture that is used here.
  static std::string clickAt(double x, double y) {
    const std::string place =
        std::to_string((x + 12) * 500) + " " + std::to_string((9 - y) * 500) + "\n";
    return "down left " + place + "up left " + place;
  }

  static std::vector<double> rangeOf(const Json& object) {
    return {object["xi"], object["xf"], object["yi"], object["yf"]};
  }

  static Json panels(const char* first, const char* second = "", const char* third = "",
                     const char* fourth = "") {
    return {first, second, third, fourth};
  }

  static Json information(const std::string& text, const std::string& title = "Información") {
    return {{"kind", "information"}, {"title", title}, {"text", text}};
  }

  static Json attention(const std::string& text, const std::string& title = "ZEL - ATENCIÓN") {
    return {{"kind", "attention"}, {"title", title}, {"text", text}};
  }

  static Json report(const std::string& text, const std::string& title) {
    return {{"kind", "report"}, {"title", title}, {"text", text}};
  }

  static std::string repeated(const std::string& line, int count) {
    std::string result;
    for (; count > 0; --count) result += line + "\n";
    return result;
  }

  inline static const Json kWholeRange =
      panels(" Xmin=-12  ", " XMAX=12  ", " Ymin=-9  ", " YMAX=9  ");
  inline static const std::string kTooLarge =
      "Error: Los valores del rango son demasiado elevados.";
  inline static const std::string kFailed =
      "Error: No se puede graficar con la ecuación y rango elegidos.";
};

}  // namespace zel::test
