#include "cli/cli_fixture.h"

namespace zel::test {
namespace {

class RenderCommand : public CliTest {
 protected:
  std::string svg(const std::string& document, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"render", document, "-o", path("out.svg")};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Run result = run(arguments);
    EXPECT_EQ(result.status, 0) << result.err;
    return bytesOf(path("out.svg"));
  }

  /// The refusal that a render ends with.
  std::string refusal(const std::string& document, const std::vector<std::string>& more = {}) {
    std::vector<std::string> arguments = {"render", document, "-o", path("refused.svg")};
    arguments.insert(arguments.end(), more.begin(), more.end());
    const Run result = run(arguments);
    EXPECT_EQ(result.status, 1);
    EXPECT_FALSE(std::filesystem::exists(path("refused.svg")));
    return result.err;
  }

  std::string line = writeDocument("line.zel",
                                   "xi=0\r\nxf=8\r\nyi=0\r\nyf=6\r\ndefinicion=1\r\n"
                                   "escala_x=0\r\nescala_y=\r\n",
                                   block('a', 'F', "x/2"));
};

TEST_F(RenderCommand, WritesTheDocumentedSvg) {
  const std::string text = svg(line);
  EXPECT_NE(text.find("viewBox=\"0 0 12000 9000\""), std::string::npos);
  EXPECT_NE(text.find("<g id=\"axes\">\n"
                      "<line x1=\"0\" y1=\"0\" x2=\"0\" y2=\"9000\"/>\n"
                      "<line x1=\"0\" y1=\"9000\" x2=\"12000\" y2=\"9000\"/>\n</g>\n"
                      "<g id=\"graph-a\" stroke=\"#ff0000\">\n"
                      "<polyline points=\"0,9000 1500,8250 3000,7500 4500,6750 6000,6000 7500,5250 "
                      "9000,4500 10500,3750 12000,3000\"/>\n</g>\n"),
            std::string::npos)
      << text;
}

TEST_F(RenderCommand, TakesItsOptionsInThePlaceOfTheDocument) {
  const std::string text =
      svg(line, {"--width", "400", "--height", "200", "--range", "-1", "1", "-,5", "0.5",
                 "--quality", "1", "--marks", "1", "0", "--proportional", "no"});
  EXPECT_NE(text.find("viewBox=\"0 0 6000 3000\""), std::string::npos);
  EXPECT_NE(text.find("<g id=\"axes\">\n"
                      "<line x1=\"3000\" y1=\"0\" x2=\"3000\" y2=\"3000\"/>\n"
                      "<line x1=\"0\" y1=\"1500\" x2=\"6000\" y2=\"1500\"/>\n"
                      "<line x1=\"0\" y1=\"1460\" x2=\"0\" y2=\"1540\"/>\n"
                      "<line x1=\"3000\" y1=\"1460\" x2=\"3000\" y2=\"1540\"/>\n"
                      "<line x1=\"6000\" y1=\"1460\" x2=\"6000\" y2=\"1540\"/>\n</g>\n"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("points=\"0,3000 1500,2250 3000,1500 4500,750 6000,0\""), std::string::npos)
      << text;
}

TEST_F(RenderCommand, HoldsTheQualityOfTheDocumentAsTheSliderDoes) {
  const auto document = [&](const std::string& quality) {
    return writeDocument("q.zel", "xi=0\r\nxf=8\r\nyi=0\r\nyf=6\r\ndefinicion=" + quality + "\r\n",
                         block('a', 'F', "x/2"));
  };
  const std::string lowest = svg(document("1"));
  const std::string highest = svg(document("100"));
  EXPECT_EQ(svg(document("-5")), lowest);
  EXPECT_EQ(svg(document("0")), lowest);
  EXPECT_EQ(svg(document("30000")), highest);
  EXPECT_NE(svg(document("2")), lowest);
}

TEST_F(RenderCommand, TakesAnySixteenBitQualityAsItIs) {
  EXPECT_EQ(refusal(line, {"--quality", "0"}),
            "Error: No se puede graficar con la ecuación y rango elegidos.\n");
  EXPECT_EQ(refusal(line, {"--quality", "5000"}),
            "Error: No se puede graficar con la ecuación y rango elegidos.\n");
  EXPECT_NE(svg(line, {"--quality", "-1"}).find("points=\"0,9000 0,9000\""), std::string::npos);
  EXPECT_EQ(run({"render", line, "-o", path("o.svg"), "--quality", "32768"}).status, 2);
  EXPECT_EQ(run({"render", line, "-o", path("o.svg"), "--quality", "1,5"}).status, 2);
}

TEST_F(RenderCommand, ReadsIntegersAsDecimals) {
  EXPECT_NE(svg(line, {"--width", "0100", "--height", "+8"}).find("viewBox=\"0 0 1500 120\""),
            std::string::npos);
  for (const char* width : {"0x100", "0b11", "1'000", "100,5", "99999999999", "1e999", "nan", ""})
    EXPECT_EQ(run({"render", line, "-o", path("o.svg"), "--width", width}).status, 2) << width;
}

TEST_F(RenderCommand, SaysThatAPictureIsTooNarrowForASample) {
  EXPECT_EQ(refusal(line, {"--width", "99"}),
            "La imagen es demasiado angosta para una muestra: necesita 100 píxeles de ancho.\n");
  EXPECT_EQ(refusal(line, {"--width", "1", "--lang", "EN"}),
            "The picture is too narrow for a sample: it needs 100 pixels of width.\n");
  EXPECT_NE(svg(line, {"--width", "100"}), "");
}

TEST_F(RenderCommand, ReadsTheScalesOfTheDocumentAsTheMainWindowDoes) {
  const auto document = [&](const std::string& scale) {
    return writeDocument(
        "s.zel",
        "xi=0\r\nxf=8\r\nyi=0\r\nyf=6\r\ndefinicion=1\r\nescala_y=0\r\nescala_x=" + scale + "\r\n",
        block('a', 'F', "x/2"));
  };
  const std::string by_two = svg(document("2"));
  EXPECT_NE(by_two.find("<line x1=\"3000\" y1=\"8960\""), std::string::npos) << by_two;
  EXPECT_EQ(svg(document("  2 ")), by_two);
  EXPECT_EQ(svg(document("  0 ")), svg(document("")));
  EXPECT_EQ(refusal(document("0,0")),
            "Error: No se puede graficar con la ecuación y rango elegidos.\n");
  EXPECT_EQ(refusal(document("   ")), "Datos no válidos en declaraciones y/o rango.\n");
}

TEST_F(RenderCommand, ReadsTheRangeOfTheDocumentAsTheMainWindowDoes) {
  const auto document = [&](const std::string& xi) {
    return writeDocument("r.zel", "xi=" + xi + "\r\nxf=8\r\n", block('a', 'F', "x/2"));
  };
  const std::string plain = svg(document("-5"));
  EXPECT_EQ(svg(document(" -5  ")), plain);
  EXPECT_EQ(svg(document("=-5")), plain);
}

TEST_F(RenderCommand, WritesSvgToStandardOutput) {
  const CurrentFolderGuard current{std::filesystem::path(path("")).parent_path()};
  const std::string text = svg(line);
  const Run result = run({"render", "-", "-o", "-"}, bytesOf(line));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, text);
  EXPECT_FALSE(std::filesystem::exists("-"));
}

TEST_F(RenderCommand, PrintsTheMessageOfARefusedRange) {
  EXPECT_EQ(refusal(line, {"--range", "1", "1", "0", "1", "--lang", "EN"}),
            "Cannot graph because interval range is too small.\n");
  EXPECT_EQ(refusal(line, {"--range", "-1e300", "1e300", "-1e300", "1e300"}),
            "Error: Los valores del rango son demasiado elevados.\n");
  EXPECT_EQ(refusal(line, {"--range", "0", "1", "2", "2"}),
            "Error: No se puede graficar con la ecuación y rango elegidos.\n");
  EXPECT_EQ(refusal(line, {"--range", "0", "1", "2", "2", "--lang", "EN"}),
            "Error: Cannot graph using selected function and range.\n");
}

TEST_F(RenderCommand, RefusesADocumentWhoseFieldsAreNoNumbers) {
  EXPECT_EQ(refusal(writeDocument("n.zel", "xi=abc\r\n", block('a', 'F', "x"))),
            "Datos no válidos en declaraciones y/o rango.\n");
  EXPECT_EQ(refusal(writeDocument("n.zel", "escala_y=abc\r\n", block('a', 'F', "x"))),
            "Datos no válidos en declaraciones y/o rango.\n");
}

TEST_F(RenderCommand, RefusesAWrongCommandLine) {
  for (const std::vector<std::string>& more : std::vector<std::vector<std::string>>{
           {"-o", path("x.gif")},
           {"-o", path("svg")},
           {},
           {"-o", path("x.svg"), "--width", "0"},
           {"-o", path("x.svg"), "--width", "32768"},
           {"-o", path("x.svg"), "--width", "32767", "--height", "32767"},
           {"-o", path("x.svg"), "--range", "1", "2", "3"},
           {"-o", path("x.svg"), "--range", "1", "2", "3", "q"},
           {"-o", path("x.svg"), "--marks", "1"},
           {"-o", path("x.svg"), "--proportional", "maybe"}}) {
    std::vector<std::string> arguments = {"render", line};
    arguments.insert(arguments.end(), more.begin(), more.end());
    EXPECT_EQ(run(arguments).status, 2) << ::testing::PrintToString(more);
  }
}

TEST_F(RenderCommand, TakesPicturesUpToTheirBoundToThePixel) {
  EXPECT_NE(svg(line, {"--width", "16384", "--height", "8192"}), "");
  EXPECT_NE(svg(line, {"--width", "32767", "--height", "1"}), "");
  const Run larger =
      run({"render", line, "-o", path("larger.svg"), "--width", "16384", "--height", "8193"});
  EXPECT_EQ(larger.status, 2);
}

TEST_F(RenderCommand, SaysWhenItCannotWrite) {
  const Run result = run({"render", line, "-o", path("no/folder.svg")});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.err, "No se pudo salvar el archivo.\n");
}

TEST_F(RenderCommand, RefusesAPictureInThePlaceOfItsDocumentHoweverThatIsNamed) {
  const std::string document = write("d.svg", bytesOf(line));
  const std::string before = bytesOf(document);
  std::filesystem::create_directory(path("sub"));
  std::vector<std::string> names = {"d.svg", "./d.svg", "sub/../d.svg"};
  std::error_code error;
  std::filesystem::create_symlink("d.svg", path("link.svg"), error);
  if (!error) names.emplace_back("link.svg");
  for (const std::string& name : names) {
    const Run result = run({"render", document, "-o", path(name)});
    EXPECT_EQ(result.status, 2) << name;
    EXPECT_EQ(result.err,
              "-o: the picture of " + document + " would replace a document: " + path(name) + "\n");
    EXPECT_EQ(bytesOf(document), before) << name;
  }
}

TEST_F(RenderCommand, DrawsADocumentOverAnotherFileAndBetweenStandardStreams) {
  const std::string document = write("d.svg", bytesOf(line));
  write("other.svg", "older");
  EXPECT_EQ(run({"render", document, "-o", path("other.svg")}).status, 0);
  const Run result = run({"render", "-", "-o", "-"}, bytesOf(line));
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_EQ(result.out, bytesOf(path("other.svg")));
}

TEST_F(RenderCommand, DrawsEveryExample) {
  for (const auto& entry : std::filesystem::directory_iterator(ZEL_EXAMPLES_DIR)) {
    if (entry.path().extension() != ".zel") continue;
    EXPECT_NE(svg(entry.path().string()).find("<polyline"), std::string::npos) << entry.path();
  }
}

TEST_F(RenderCommand, ShowsTheGapThatAFaultLeavesInACurve) {
  const std::string text = svg(example("oddities.zel"));
  const std::size_t graph = text.find("graph-a");
  const std::string group = text.substr(graph, text.find("</g>", graph) - graph);
  std::size_t pieces = 0;
  for (std::size_t at = group.find("<polyline"); at != std::string::npos;
       at = group.find("<polyline", at + 1))
    ++pieces;
  EXPECT_EQ(pieces, 2u);
}

}  // namespace
}  // namespace zel::test
