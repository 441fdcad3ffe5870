#include "drive_fixture.h"

namespace zel::test {
namespace {

class DriveToolbar : public DriveTest {};

TEST_F(DriveToolbar, TheActiveGraphGoesRoundBothWays) {
  const std::string document =
      plane(block('b', 'F', "x") + block('f', 'F', "1") + block('z', 'F', "2"));
  const Driven driven =
      drive(document, repeated("CmdGrafSiguiente", 4) + repeated("CmdGrafAnterior", 5));
  const char* letters[] = {"b", "f", "z", "b", "f", "b", "z", "f", "b", "z"};
  ASSERT_EQ(driven.objects.size(), 10u);
  for (std::size_t i = 0; i < 10; ++i) {
    EXPECT_EQ(driven.objects[i]["active"], letters[i]) << i;
    EXPECT_EQ(driven.objects[i]["redraws"], 1) << i;
  }
  EXPECT_FALSE(driven.last().contains("progress"));
}

TEST_F(DriveToolbar, TheOnlyGraphStaysActive) {
  for (const char* command : {"CmdGrafSiguiente", "CmdGrafAnterior"})
    EXPECT_EQ(after(plane(block('h', 'F', "x")), command)["active"], "h");
}

TEST_F(DriveToolbar, AGraphOfTheListIsChosenByItsLetter) {
  const std::string document = plane(block('b', 'F', "x") + block('f', 'F', "1"));
  const Json object = after(document, "Recorrer\nchoose f");
  EXPECT_EQ(object["active"], "f");
  EXPECT_EQ(object["mode"], "NORMAL");
  EXPECT_EQ(object["redraws"], 1);
  EXPECT_EQ(after(document, "choose z")["active"], "b");
  EXPECT_EQ(drive(document, "choose\nchoose bf\nchoose b f").err.size(),
            3 * std::string("línea 1: se espera: choose LETTER\n").size());
}

TEST_F(DriveToolbar, TheNumbersAreTheyOnlyWhileTheyAreShown) {
  const Driven driven =
      drive(planeOf("x"), "move none 6500 4000\nCmdNumeros\nleave\nkey 78\nCopiar_Con_Numeros");
  ASSERT_EQ(driven.objects.size(), 6u);
  EXPECT_FALSE(driven.objects[1].contains("numbers"));
  const Json& shown = driven.objects[2];
  EXPECT_EQ(shown["coordinates"], "X=1  Y=1");
  const Json seven = {{"text", "7"}, {"x", 9455}, {"y", 4565}};
  EXPECT_THAT(shown["numbers"], ::testing::Contains(seven));
  EXPECT_EQ(driven.objects[3]["coordinates"], nullptr);
  EXPECT_FALSE(driven.objects[4].contains("coordinates"));
  EXPECT_EQ(
      driven.last()["messages"],
      Json({information("Se ha copiado el gráfico de funciones al Portapapeles de Windows.")}));
}

TEST_F(DriveToolbar, TheTraceFollowsTheNewActiveGraph) {
  const Json object = after(plane(block('b', 'F', "x") + block('f', 'F', "1")),
                            "Recorrer_Adelante\nCmdGrafSiguiente\nRecorrer_Adelante");
  EXPECT_EQ(object["panels"], panels("X=1", "Y=1"));
}

TEST_F(DriveToolbar, AParametricCurveDisablesTraceAndValue) {
  const std::string document = plane(parametric('a') + block('b', 'F', "x"));
  const Json disabled = {{"Recorrer", false}, {"Calcular_Y", false}};
  const Json enabled = {{"Recorrer", true}, {"Calcular_Y", true}};
  const Driven driven = drive(document,
                              "Zoom_a_Medida\nRecorrer\nanswer 1\nCalcular_Y\n"
                              "CmdGrafSiguiente\nCalcular_Y\nCmdGrafSiguiente\n");
  EXPECT_EQ(driven.objects[0]["enabled"], disabled);
  EXPECT_EQ(driven.objects[2]["mode"], "ZOOM");
  EXPECT_EQ(driven.objects[4]["messages"], Json::array());
  EXPECT_EQ(driven.objects[5]["enabled"], enabled);
  EXPECT_EQ(driven.objects[6]["messages"], Json({information("X=1\r\nY=1")}));
  EXPECT_EQ(driven.objects[7]["enabled"], disabled);
  EXPECT_EQ(after(document, "Recorrer_Adelante")["mode"], "NORMAL");
  EXPECT_EQ(after(document, "Recorrer_Atras")["mode"], "NORMAL");
}

TEST_F(DriveToolbar, TheCodeOfTheActiveGraphIsShownForACapitalC) {
  const std::string document = planeOf("raiz2(x^2+1)");
  EXPECT_EQ(after(document, "key 67")["messages"], Json({information("7@(x^2+1)")}));
  EXPECT_EQ(after(document, "lang EN\nkey 67")["messages"],
            Json({information("7@(x^2+1)", "Information")}));
  EXPECT_EQ(after(plane(parametric('a')), "key 67")["messages"], Json({information("")}));
}

TEST_F(DriveToolbar, OtherKeysDoNothingToAPictureThatIsDrawn) {
  const Driven driven = drive(planeOf("x"),
                              "Recorrer\nkey 27\nkey 32\nkey 99\nkey 13\nkey 0\n"
                              "key 1114111\n");
  ASSERT_EQ(driven.objects.size(), 8u);
  for (std::size_t i = 2; i < 8; ++i) EXPECT_EQ(driven.objects[i], driven.objects[1]) << i;
}

TEST_F(DriveToolbar, PlusAndMinusZoomAsTheButtonsDo) {
  EXPECT_EQ(after(planeOf("x"), "Recorrer\nkey 43"), after(planeOf("x"), "Recorrer\nAcercar"));
  EXPECT_EQ(after(planeOf("x"), "Recorrer\nkey 45"), after(planeOf("x"), "Recorrer\nAlejar"));
}

TEST_F(DriveToolbar, ACopyIsTold) {
  EXPECT_EQ(
      after(planeOf("x"), "Copiar_Grafico")["messages"],
      Json({information("Se ha copiado el gráfico de funciones al Portapapeles de Windows.")}));
  EXPECT_EQ(after(planeOf("x"), "Copiar_Grafico", {"--lang", "EN"})["messages"],
            Json({information("Graphic was copied to clipboard.", "Information")}));
}

TEST_F(DriveToolbar, MessagesAreThoseSinceTheLastObject) {
  const Driven driven = drive(planeOf("x"), "key 67\nParar\n");
  EXPECT_EQ(driven.objects[0]["messages"], Json::array());
  EXPECT_EQ(driven.objects[1]["messages"].size(), 1u);
  EXPECT_EQ(driven.objects[2]["messages"], Json::array());
}

TEST_F(DriveToolbar, PrintingLeavesThePlotUntilTheNextCommand) {
  const Driven driven = drive(planeOf("x"), "Recorrer_Adelante\nImprimir\nImprimir\nDerecha\n");
  EXPECT_EQ(driven.objects[2]["closed_to"], "print");
  EXPECT_EQ(driven.objects[3]["closed_to"], "print");
  EXPECT_EQ(driven.objects[4]["closed_to"], nullptr);
  EXPECT_EQ(driven.objects[4]["xi"], -8);
  EXPECT_EQ(driven.objects[4]["mode"], "RECORRIDO");
}

TEST_F(DriveToolbar, ConfiguringClosesThePlotForGood) {
  const Driven driven =
      drive(planeOf("x"),
            "Derecha\nRecorrer\nConfigurar\nDerecha\nParar\nresize 400 300\nkey 67\n"
            "Copiar_Grafico\nImprimir\nanswer 1\nCalcular_Y\ndown left 9 9\n"
            "up left 9 9\ndown right 9 9\nCmdGrafSiguiente\nlang EN\n");
  EXPECT_EQ(driven.status, 0);
  ASSERT_EQ(driven.objects.size(), 17u);
  EXPECT_EQ(driven.objects[3]["closed_to"], "main");
  EXPECT_EQ(driven.objects[3]["xi"], -8);
  EXPECT_EQ(driven.objects[3]["messages"], Json::array());
  for (std::size_t i = 4; i < driven.objects.size(); ++i)
    EXPECT_EQ(driven.objects[i], driven.objects[3]) << i;
}

class DriveValue : public DriveTest {};

TEST_F(DriveValue, ShowsTheValueAndAsksAgainUntilAnEmptyAnswer) {
  const Json object = after(planeOf("x^2"),
                            "answer 2\nanswer abc\nanswer -0.50\nanswer ,5\nanswer 1E2\nanswer\n"
                            "answer 7\nCalcular_Y");
  EXPECT_EQ(object["messages"],
            Json({information("X=2\r\nY=4"), information("X=-0.50\r\nY=0,25"),
                  information("X=,5\r\nY=0,25"), information("X=1E2\r\nY=10000")}));
  EXPECT_EQ(object["mode"], "NORMAL");
  EXPECT_EQ(object["panels"], kWholeRange);
  EXPECT_EQ(object["redraws"], 1);
}

TEST_F(DriveValue, AnswersThatAreLeftWaitForTheNextTime) {
  const Driven driven =
      drive(planeOf("x^2"), "answer 1\nanswer \nanswer 2\nCalcular_Y\nCalcular_Y\nCalcular_Y\n");
  EXPECT_EQ(driven.objects[4]["messages"], Json({information("X=1\r\nY=1")}));
  EXPECT_EQ(driven.objects[5]["messages"], Json({information("X=2\r\nY=4")}));
  EXPECT_EQ(driven.objects[6]["messages"], Json::array());
}

TEST_F(DriveValue, AnAnswerIsTakenWithItsBlanks) {
  EXPECT_EQ(after(planeOf("x^2"), "answer  1\nanswer 1 \nanswer 1 2\nCalcular_Y")["messages"],
            Json::array());
}

TEST_F(DriveValue, TellsWhyThereIsNoValue) {
  EXPECT_EQ(after(planeOf("1/x"), "answer 0\nCalcular_Y")["messages"],
            Json({information("X=0\r\nY= DESCONOCIDO\r\nCausa: Error: Operador /: El denominador "
                              "debe ser distinto de cero.")}));
  EXPECT_EQ(after(planeOf("1/x"), "answer 0\nCalcular_Y", {"--lang", "EN"})["messages"],
            Json({information("X=0\r\nY= UNKNOWN\r\nReason: Error: Operador /: denominator cannot "
                              "be zero.",
                              "Information")}));
}

TEST_F(DriveValue, AFamilyIsEvaluatedAtItsPresentMember) {
  EXPECT_EQ(after(plane(family('a', "p*x", "0", "2")),
                  clickAt(3, 3.25) + "answer 5\nCalcular_Y")["messages"],
            Json({information("X=5\r\nY=5")}));
}

TEST_F(DriveValue, AValueOutsideTheViewCountsToo) {
  EXPECT_EQ(after(planeOf("x^2"), "answer 1000\nCalcular_Y")["messages"],
            Json({information("X=1000\r\nY=1000000")}));
}

}  // namespace
}  // namespace zel::test
