#include "base/message_table.h"
#include "cli/console/line_reader.h"
#include "cli/drive/drive_window.h"
#include "drive_fixture.h"

namespace zel::test {
namespace {

class DriveCommand : public DriveTest {};

TEST_F(DriveCommand, PrintsTheDocumentedObjectOnOneLine) {
  const Run result = run({"drive", planeOf("x")});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  const std::string object =
      R"|({"mode":"NORMAL","xi":-12,"xf":12,"yi":-9,"yf":9,"active":"a",)|"
      R"|("panels":[" Xmin=-12  "," XMAX=12  "," Ymin=-9  "," YMAX=9  "],)|"
      R"|("cursor":null,"slope":null,"trace_x":0,"p":0,"zoom_rectangle":null,)|"
      R"|("pointer":"default","zoom_pressed":false,)|"
      R"|("enabled":{"Recorrer":true,"Calcular_Y":true},"redraws":1,)|"
      R"|("progress":[[" [GRAFICANDO]... a(x)"," (1 de 1)","",""]],)|"
      R"|("messages":[],"closed_to":null})|";
  EXPECT_EQ(result.out, object + "\n");
}

TEST_F(DriveCommand, PrintsAnObjectAtTheStartAndAfterEachCommand) {
  const Driven driven = drive(planeOf("x"), "Derecha\n\n  \t\r\nParar\r\n  Izquierda \nParar");
  EXPECT_EQ(driven.status, 0);
  EXPECT_EQ(driven.err, "");
  ASSERT_EQ(driven.objects.size(), 5u);
  EXPECT_EQ(driven.objects[1]["xi"], -8);
  EXPECT_EQ(driven.objects[3]["xi"], -12);
  EXPECT_EQ(driven.objects[3]["redraws"], 3);
}

TEST_F(DriveCommand, ListsTheProgressOnlyWhereSomethingWasDrawn) {
  const std::string document = plane(block('a', 'F', "x") + block('f', 'F', "x^2"));
  const Driven driven = drive(document, "Parar\nArriba\nlang EN\nAbajo\nRecorrer\n");
  const Json spanish = {panels(" [GRAFICANDO]... a(x)", " (1 de 2)"),
                        panels(" [GRAFICANDO]... f(x)", " (6 de 2)")};
  const Json english = {panels(" [GRAPHING]... a(x)", " (1 de 2)"),
                        panels(" [GRAPHING]... f(x)", " (6 de 2)")};
  EXPECT_EQ(driven.objects[0]["progress"], spanish);
  EXPECT_FALSE(driven.objects[1].contains("progress"));
  EXPECT_EQ(driven.objects[2]["progress"], spanish);
  EXPECT_FALSE(driven.objects[3].contains("progress"));
  EXPECT_EQ(driven.objects[4]["progress"], english);
  EXPECT_FALSE(driven.objects[5].contains("progress"));
}

TEST_F(DriveCommand, PlotsADocumentWithoutGraphs) {
  const Json start = after(plane(""), "");
  EXPECT_EQ(start["active"], nullptr);
  EXPECT_EQ(start["progress"], Json::array());
  EXPECT_EQ(start["enabled"], Json({{"Recorrer", true}, {"Calcular_Y", true}}));
  for (const char* command : {"CmdGrafSiguiente", "CmdGrafAnterior", "Recorrer", "Recorrer_Atras",
                              "Recorrer_Adelante", "answer 1\nCalcular_Y", "key 67"}) {
    const Json object = after(plane(""), command);
    EXPECT_EQ(object["mode"], "NORMAL") << command;
    EXPECT_EQ(object["active"], nullptr) << command;
    EXPECT_EQ(object["messages"], Json::array()) << command;
  }
  EXPECT_EQ(after(plane(""), clickAt(0, 0))["mode"], "NORMAL");
}

TEST_F(DriveCommand, TheActiveGraphAtTheStartIsTheFirstOrTheOneThatIsNamed) {
  const std::string document = plane(block('d', 'F', "x") + block('k', 'F', "x"));
  EXPECT_EQ(after(document, "")["active"], "d");
  const Json named = after(document, "", {"--active", "k"});
  EXPECT_EQ(named["active"], "k");
  EXPECT_EQ(named["panels"], kWholeRange);
  EXPECT_EQ(named["redraws"], 1);
}

TEST_F(DriveCommand, RefusesAnActiveGraphThatIsNotThere) {
  const std::string document = planeOf("x");
  const Run unused = run({"drive", document, "--active", "b"});
  EXPECT_EQ(unused.status, 1);
  EXPECT_EQ(unused.out, "");
  EXPECT_EQ(unused.err, "No hay un gráfico b\n");
  EXPECT_EQ(run({"drive", document, "--active", "b", "--lang", "EN"}).err, "There is no graph b\n");
  for (const char* no_letter : {"A", "ab", "", "1", "ñ"})
    EXPECT_EQ(run({"drive", document, "--active", no_letter}).status, 2) << no_letter;
}

TEST_F(DriveCommand, TakesTheOptionsOfRender) {
  const Json object =
      after(planeOf("x"), "Recorrer_Adelante",
            {"--width", "400", "--height", "200", "--range", "-10", "10", "0", "4.0", "--quality",
             "10", "--marks", "1", "0", "--proportional", "yes"});
  EXPECT_EQ(rangeOf(object), std::vector<double>({-10, 10, -3, 7}));
  EXPECT_EQ(object["trace_x"], 0.5);  // 4 * 10 samples
  for (const std::vector<std::string>& more :
       std::vector<std::vector<std::string>>{{"--width", "0"},
                                             {"--width", "32768"},
                                             {"--width", "32767", "--height", "32767"},
                                             {"--range", "1", "2", "3"},
                                             {"--range", "1", "2", "3", "q"},
                                             {"--quality", "1,5"},
                                             {"--marks", "1"},
                                             {"--proportional", "maybe"},
                                             {"-o", "x.svg"}}) {
    std::vector<std::string> arguments = {"drive", planeOf("x")};
    arguments.insert(arguments.end(), more.begin(), more.end());
    EXPECT_EQ(run(arguments).status, 2) << ::testing::PrintToString(more);
  }
  EXPECT_EQ(run({"drive"}).status, 2);
}

TEST_F(DriveCommand, RefusesADocumentAsTheOtherCommandsDo) {
  const Run missing = run({"drive", path("no/such.zel")}, "Derecha\n");
  EXPECT_EQ(missing.status, 1);
  EXPECT_EQ(missing.out, "");
  EXPECT_EQ(missing.err, "Error: No se pudo abrir el archivo.\n");
  const Run no_number = run({"drive", writeDocument("n.zel", "xi=abc\r\n", ""), "--lang", "EN"});
  EXPECT_EQ(no_number.status, 1);
  EXPECT_EQ(no_number.out, "");
  EXPECT_EQ(no_number.err, "No valid definitions or range.\n");
}

TEST_F(DriveCommand, WhatTheOptionsSayIsNotReadInTheDocument) {
  const std::string document =
      writeDocument("n.zel", "xi=a\r\nxf=\r\nyi=b\r\nyf=\r\nescala_x=c\r\nescala_y=d\r\n", "");
  const std::vector<std::string> range = {"--range", "1", "2", "3", "4"};
  const std::vector<std::string> marks = {"--marks", "1", "1"};
  std::vector<std::string> both = range;
  both.insert(both.end(), marks.begin(), marks.end());
  EXPECT_EQ(drive(document, "", range).status, 1);
  EXPECT_EQ(drive(document, "", marks).status, 1);
  EXPECT_EQ(rangeOf(after(document, "", both)), std::vector<double>({1, 2, 3, 4}));
}

TEST_F(DriveCommand, ARefusedRangeClosesTheWindowAndTheRestIsStillAnswered) {
  struct Row {
    std::vector<std::string> range;
    std::string message;
  };
  const Row rows[] = {{{"-1e300", "1e300", "-1e300", "1e300"}, kTooLarge},
                      {{"0", "1", "2", "2"}, kFailed}};
  for (const Row& row : rows) {
    std::vector<std::string> more = {"--range"};
    more.insert(more.end(), row.range.begin(), row.range.end());
    Driven driven = drive(planeOf("x"), "Derecha\nanswer 1\nCalcular_Y\nlang EN\n", more);
    EXPECT_EQ(driven.status, 1);
    EXPECT_EQ(driven.err, "");
    ASSERT_EQ(driven.objects.size(), 5u);
    EXPECT_EQ(driven.objects[0]["messages"], Json({attention(row.message)}));
    for (const Json& object : driven.objects) EXPECT_EQ(object["closed_to"], "main");
    EXPECT_EQ(driven.last()["messages"], Json::array());
    EXPECT_EQ(rangeOf(driven.last()), rangeOf(driven.objects[0]));
    more.insert(more.end(), {"--lang", "EN"});
    EXPECT_EQ(drive(planeOf("x"), "", more).last()["messages"],
              Json({attention(SpanishToEnglish(row.message), "ZEL - NOTIFY")}));
  }
}

TEST_F(DriveCommand, ARangeThatIsTooCloseIsReportedWithTheActiveGraph) {
  const std::string document = planeOf("x");
  EXPECT_EQ(drive(document, "", {"--range", "3", "3", "0", "1"}).last()["messages"],
            Json({report("Operación cancelada.\r\nCausa: " + std::string(messages::kRangeTooClose) +
                             "\r\nDetalle: gráfico activo a",
                         "ZEL - Reporte de errores criticos")}));
  const Driven english = drive(document, "", {"--range", "3", "3", "0", "1", "--lang", "EN"});
  EXPECT_EQ(english.status, 1);
  EXPECT_EQ(english.last()["closed_to"], "main");
  EXPECT_EQ(english.last()["messages"],
            Json({report("Cancelled operation.\r\nReason: Cannot graph because interval range is "
                         "too small.\r\nDetail: active graphic a",
                         "ZEL - Critical error report")}));
}

TEST_F(DriveCommand, ALineThatIsNoCommandIsComplainedOfAndAnsweredAllTheSame) {
  const char* lines[] = {"derecha",
                         "Derecha 1",
                         "Parar Parar",
                         "CmdGrafAnterior x",
                         "down",
                         "down none 1 2",
                         "down left 1",
                         "down left 1 2 3",
                         "down left 1 q",
                         "down left 1 1e999",
                         "middle 1 1",
                         "move up 1 1",
                         "up none 1 1",
                         "up right",
                         "key",
                         "key C",
                         "key -1",
                         "key 67,0",
                         "key 1114112",
                         "key 67 67",
                         "resize 800",
                         "resize 800 600 1",
                         "resize -1 600",
                         "resize 32768 600",
                         "resize 80.5 600",
                         "lang",
                         "lang es",
                         "lang FR",
                         "lang ES EN",
                         "Answer 1"};
  for (const std::string line : lines) {
    const Driven driven = drive(planeOf("x"), "Recorrer\n" + line + "\nParar\n");
    EXPECT_EQ(driven.status, 1) << line;
    EXPECT_TRUE(driven.err.starts_with("línea 2: ")) << driven.err;
    EXPECT_EQ(std::ranges::count(driven.err, '\n'), 1) << driven.err;
    ASSERT_EQ(driven.objects.size(), 4u) << line;
    EXPECT_EQ(driven.objects[2], driven.objects[1]) << line;
    EXPECT_EQ(driven.last()["mode"], "NORMAL");
  }
}

TEST_F(DriveCommand, SaysWhatWouldHaveBeenRight) {
  const Driven driven = drive(planeOf("x"), "foo\n\nlang EN\nfoo\ndown a\nDerecha 2\n");
  EXPECT_EQ(driven.err,
            "línea 1: orden desconocida\n"
            "line 4: unknown command\n"
            "line 5: expected: down left|right X Y\n"
            "line 6: expected: Derecha\n");
}

TEST_F(DriveCommand, TakesLinesUpToTheirBound) {
  const std::string longest = "answer " + std::string(LineReader::kMaxLine - 7, '1');
  EXPECT_EQ(drive(planeOf("x"), longest).status, 0);
  const Driven longer = drive(planeOf("x"), longest + "1\nDerecha\n");
  EXPECT_EQ(longer.status, 1);
  EXPECT_EQ(longer.err, "línea 1: línea demasiado larga\n");
  ASSERT_EQ(longer.objects.size(), 3u);
  EXPECT_EQ(longer.last()["xi"], -8);
}

TEST_F(DriveCommand, TakesAnswersUpToTheirBound) {
  const std::string half = "answer " + std::string(DriveWindow::kMostAnswers / 2 - 1, 'q') + "\n";
  EXPECT_EQ(drive(planeOf("x"), half + half).status, 0);
  const Driven full = drive(planeOf("x"), half + half + "answer 1\nCalcular_Y\nanswer 1\n");
  EXPECT_EQ(full.status, 1);
  EXPECT_TRUE(full.err.starts_with("línea 3: ")) << full.err;
  EXPECT_EQ(std::ranges::count(full.err, '\n'), 1) << full.err;
}

TEST_F(DriveCommand, NumbersReadBackToTheSameDouble) {
  const std::vector<double> range = {-1e-7, 0.1, -1.0 / 3, 1e15 + 0.5};
  std::vector<std::string> more = {"--range"};
  for (const double value : range) {
    char text[32];
    std::snprintf(text, sizeof text, "%.17g", value);
    more.emplace_back(text);
  }
  EXPECT_EQ(rangeOf(after(planeOf("x"), "", more)), range);
}

TEST_F(DriveCommand, WholeNumbersAreIntegersAndZeroHasNoSign) {
  const Run result = run({"drive", planeOf("x"), "--range", "-0", "4e9", "-9007199254740991", "2"});
  EXPECT_NE(result.out.find(R"("xi":0,"xf":4000000000,"yi":-9007199254740991,"yf":2,)"),
            std::string::npos)
      << result.out;
}

TEST_F(DriveCommand, EscapesTheControlCharactersOfADocument) {
  const Run result = run({"drive", planeOf("x+\x07\x7f\x9d\xe9")}, "key 67\n");
  EXPECT_NE(result.out.find("\"text\":\"x+\\u0007\\u007f\\u009dé\""), std::string::npos)
      << result.out;
}

TEST_F(DriveCommand, SaysThatAPictureIsTooNarrowForASample) {
  const Driven driven = drive(planeOf("x"), "", {"--width", "99"});
  EXPECT_EQ(driven.status, 1);
  EXPECT_EQ(driven.err,
            "La imagen es demasiado angosta para una muestra: necesita 100 píxeles de ancho.\n");
  EXPECT_EQ(driven.last()["closed_to"], "main");
}

}  // namespace
}  // namespace zel::test
