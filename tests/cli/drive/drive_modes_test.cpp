#include "drive_fixture.h"

namespace zel::test {
namespace {

class DriveModes : public DriveTest {};

constexpr const char* kZoom = "Zoom_a_Medida\n";
constexpr const char* kTrace = "Recorrer\n";

TEST_F(DriveModes, EachModeIsEnteredAndLeftAsListed) {
  const std::string click = clickAt(1, 1);
  const std::string empty_click = "down left -5 4500\nup left -5 4500\n";
  const struct {
    std::string script;
    std::string mode;
  } rows[] = {
      {"", "NORMAL"},
      {"Parar", "NORMAL"},
      {"Recorrer", "RECORRIDO"},
      {"Recorrer_Atras", "RECORRIDO"},
      {"Recorrer_Adelante", "RECORRIDO"},
      {"Buscar_Max_Min", "RECORRIDO"},
      {click, "RECORRIDO"},
      {empty_click, "NORMAL"},
      {kZoom, "ZOOM"},
      {"down right 1 1", "ZOOM"},
      {"up right 1 1", "NORMAL"},
      {"move none 100 100", "NORMAL"},
      {"Acercar", "NORMAL"},
      {"Derecha", "NORMAL"},

      {kTrace + std::string("Parar"), "NORMAL"},
      {kTrace + std::string("Acercar"), "NORMAL"},
      {kTrace + std::string("Alejar"), "NORMAL"},
      {kTrace + std::string("resize 400 300"), "NORMAL"},
      {kTrace + std::string("resize 60 60"), "RECORRIDO"},
      {kTrace + std::string("CmdGrafSiguiente"), "NORMAL"},
      {kTrace + std::string("CmdGrafAnterior"), "NORMAL"},
      {kTrace + std::string("Recorrer_Atras"), "NORMAL"},  // off the range
      {kTrace + empty_click, "NORMAL"},
      {kTrace + std::string(kZoom), "ZOOM"},
      {kTrace + std::string("down right 1 1"), "ZOOM"},
      {kTrace + std::string("Izquierda\nAbajo"), "RECORRIDO"},
      {kTrace + std::string("Buscar_Max_Min"), "RECORRIDO"},
      {kTrace + std::string("answer 1\nCalcular_Y"), "RECORRIDO"},
      {kTrace + std::string("Copiar_Grafico"), "RECORRIDO"},
      {kTrace + std::string("Imprimir\nkey 67"), "RECORRIDO"},
      {kTrace + std::string("key 27\nkey 32"), "RECORRIDO"},
      {kTrace + click, "RECORRIDO"},

      {kZoom + std::string(kZoom), "NORMAL"},
      {kZoom + std::string("down right 1 1"), "NORMAL"},
      {"down right 1 1\nup right 1 1\ndown right 1 1\nup right 1 1", "NORMAL"},
      {kZoom + std::string("Parar"), "NORMAL"},
      {kZoom + std::string("Acercar"), "NORMAL"},
      {kZoom + std::string("Alejar"), "NORMAL"},
      {kZoom + std::string("resize 400 300"), "NORMAL"},
      {kZoom + std::string("CmdGrafSiguiente"), "NORMAL"},
      {kZoom + std::string("CmdGrafAnterior"), "NORMAL"},
      {kZoom + std::string("Recorrer"), "RECORRIDO"},
      {kZoom + std::string("Recorrer_Atras"), "RECORRIDO"},
      {kZoom + std::string("Recorrer_Adelante"), "RECORRIDO"},
      {kZoom + std::string("Buscar_Max_Min"), "RECORRIDO"},
      {kZoom + std::string("Derecha\nIzquierda\nArriba\nAbajo"), "ZOOM"},
      {kZoom + click, "ZOOM"},
      {kZoom + empty_click, "ZOOM"},
      {kZoom + std::string("Copiar_Grafico\nImprimir\nkey 67\nkey 27"), "ZOOM"},
  };
  for (const auto& row : rows) {
    const Json object = after(planeOf("x"), row.script);
    const bool is_zoom = row.mode == "ZOOM";
    EXPECT_EQ(object["mode"], row.mode) << row.script;
    EXPECT_EQ(object["pointer"], is_zoom ? "cross" : "default") << row.script;
    EXPECT_EQ(object["zoom_pressed"], is_zoom) << row.script;
    if (row.mode != "RECORRIDO") {
      EXPECT_EQ(object["cursor"], nullptr) << row.script;
    }
    EXPECT_EQ(object["slope"].is_null(), object["cursor"].is_null()) << row.script;
  }
}

TEST_F(DriveModes, NormalAndZoomShowTheRangeAndHideTheCursor) {
  const std::string traced = "Recorrer_Adelante\n";
  EXPECT_EQ(after(planeOf("x"), traced)["panels"], panels("X=0,5", "Y=0,5"));
  for (const char* command : {"Parar", "Zoom_a_Medida", "down right 5 5", "CmdGrafSiguiente"}) {
    const Json object = after(planeOf("x"), traced + command);
    EXPECT_EQ(object["panels"], kWholeRange) << command;
    EXPECT_EQ(object["cursor"], nullptr) << command;
    EXPECT_EQ(object["trace_x"], 0.5) << command;
    EXPECT_EQ(object["redraws"], 1) << command;
  }
}

TEST_F(DriveModes, ZoomShowsThePlaneUnderTheMouse) {
  EXPECT_EQ(after(planeOf("x"), "Zoom_a_Medida\nmove none 1000 2250")["panels"],
            panels("X=-10", "Y=4,5"));
  EXPECT_EQ(after(planeOf("x"), "Zoom_a_Medida\nmove left -250,5 9000.25")["panels"],
            panels("X=-12,501", "Y=-9,0005"));
  EXPECT_EQ(after(planeOf("x"), "move none 1000 2250")["panels"], kWholeRange);
  EXPECT_EQ(after(planeOf("x"), "Recorrer_Adelante\nmove left 1000 2250")["panels"],
            panels("X=0,5", "Y=0,5"));
}

TEST_F(DriveModes, TheRectangleGrowsToTheRightAndDownwardsWhereverTheMouseGoes) {
  const Driven driven = drive(planeOf("x"),
                              "Zoom_a_Medida\ndown left 1000 1000\nmove none 5000 5000\n"
                              "move left 400 1600\nmove left 1600 700\nmove left 1000 1000\n"
                              "move left 3000 2500\nup left 3000 2500\n");
  EXPECT_EQ(driven.objects[1]["zoom_rectangle"], nullptr);
  EXPECT_EQ(driven.objects[2]["zoom_rectangle"], Json({1000, 1000, 1, 1}));
  EXPECT_EQ(driven.objects[3]["zoom_rectangle"], Json({1000, 1000, 1, 1}));
  EXPECT_EQ(driven.objects[4]["zoom_rectangle"], Json({1000, 1000, 600, 600}));
  EXPECT_EQ(driven.objects[5]["zoom_rectangle"], Json({1000, 1000, 600, 300}));
  EXPECT_EQ(driven.objects[6]["zoom_rectangle"], Json({1000, 1000, 0, 0}));
  EXPECT_EQ(driven.objects[7]["zoom_rectangle"], Json({1000, 1000, 2000, 1500}));
  EXPECT_EQ(driven.objects[7]["panels"], panels("X=-6", "Y=4"));
  EXPECT_EQ(driven.objects[8]["zoom_rectangle"], nullptr);
  EXPECT_EQ(driven.objects[8]["mode"], "ZOOM");
  EXPECT_EQ(driven.objects[8]["redraws"], 2);
  EXPECT_EQ(rangeOf(driven.objects[8]), std::vector<double>({-10, -6, 4, 7}));
  EXPECT_EQ(driven.objects[8]["panels"],
            panels(" Xmin=-10  ", " XMAX=-6  ", " Ymin=4  ", " YMAX=7  "));
}

TEST_F(DriveModes, TheGrownRectangleIsTheNewViewAndTheNextOneFollowsAtOnce) {
  const std::string backwards =
      "Zoom_a_Medida\ndown left 1000 1000\nmove left 400 1600\nup left 400 1600\n";
  const Json first = after(planeOf("x"), backwards);
  EXPECT_EQ(rangeOf(first), std::vector<double>({-10, 1600 / 500.0 - 12, 9 - 1600 / 500.0, 7}));
  const std::string twice =
      "Zoom_a_Medida\ndown left 3000 2250\nmove left 9000 6750\nup left 9000 6750\n"
      "down left 3000 2250\nmove left 9000 6750\nup left 9000 6750\n";
  const Json second = after(planeOf("x"), twice);
  EXPECT_EQ(rangeOf(second), std::vector<double>({-3, 3, -2.25, 2.25}));
  EXPECT_EQ(second["redraws"], 3);
}

TEST_F(DriveModes, ARectangleCountsFrom51TwipsOnBothSides) {
  const struct {
    const char* corner;
    bool is_applied;
  } rows[] = {{"1050 5000", false}, {"5000 1050", false}, {"1050 1050", false},
              {"1051 1050", false}, {"1050 1051", false}, {"1051 1051", true},
              {"949 1051", true},   {"1050,5 1051", true}};
  for (const auto& row : rows) {
    const std::string corner = row.corner;
    const Json object = after(planeOf("x"), "Zoom_a_Medida\ndown left 1000 1000\nmove left " +
                                                corner + "\nup left " + corner);
    EXPECT_EQ(object["redraws"], row.is_applied ? 2 : 1) << corner;
    EXPECT_EQ(object["xi"] != -12, row.is_applied) << corner;
    EXPECT_EQ(object["mode"], "ZOOM") << corner;
    EXPECT_EQ(object["zoom_rectangle"], nullptr) << corner;
  }
}

TEST_F(DriveModes, ARectangleIsDroppedByTheRightButtonAndByAnotherMode) {
  const std::string drag = "Zoom_a_Medida\ndown left 1000 1000\nmove left 4000 4000\n";
  for (const char* command : {"up right 4000 4000", "Parar", "Recorrer", "CmdGrafSiguiente"}) {
    const Json object = after(planeOf("x"), drag + command);
    EXPECT_EQ(object["zoom_rectangle"], nullptr) << command;
    EXPECT_EQ(object["redraws"], 1) << command;
  }
  for (const char* command : {"Parar", "Recorrer", "Zoom_a_Medida", "down right 4000 4000"}) {
    const Json object = after(planeOf("x"), drag + command + std::string("\nup left 4000 4000"));
    EXPECT_EQ(object["redraws"], 1) << command;
    EXPECT_EQ(object["xi"], -12) << command;
  }
}

TEST_F(DriveModes, ADragThatBeganInAnotherModeAppliesNothing) {
  const std::string drag = "move left 4000 4000\nup left 4000 4000\n";
  for (const std::string begins : {"Zoom_a_Medida\n", "down left 10 10\ndown right 10 10\n"}) {
    const Json object = after(planeOf("x"), begins + drag);
    EXPECT_EQ(object["mode"], "ZOOM");
    EXPECT_EQ(object["zoom_rectangle"], nullptr);
    EXPECT_EQ(object["redraws"], 1);
  }
  const std::string zooms = "Zoom_a_Medida\ndown left 1000 1000\n";
  EXPECT_EQ(after(planeOf("x"), zooms + drag)["redraws"], 2);
  EXPECT_EQ(after(planeOf("x"), zooms + drag + drag)["redraws"], 2);  // the old rectangle
}

}  // namespace
}  // namespace zel::test
