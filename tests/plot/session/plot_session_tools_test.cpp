#include <gmock/gmock.h>

#include "plot/session/session_tools_fixture.h"

/// The modes and the tools of a session: who enters and leaves what, and what is shown then.
namespace zel::test {
namespace {

using ::testing::ElementsAre;

TEST_F(SessionTools, TheFirstGraphInLetterOrderIsActiveWhenAViewIsOpened) {
  EXPECT_EQ(session.activeGraph(), 'a');
  session.activateNext();
  EXPECT_EQ(session.activeGraph(), 'c');
  openAndDraw();
  EXPECT_EQ(session.activeGraph(), 'a');
}

TEST_F(SessionTools, TheActiveGraphGoesRound) {
  session.activateNext();
  session.activateNext();
  EXPECT_EQ(session.activeGraph(), 'a');
  session.activatePrevious();
  EXPECT_EQ(session.activeGraph(), 'c');
  graphs.freeGraph('a');
  session.activateNext();
  EXPECT_EQ(session.activeGraph(), 'c');
}

TEST_F(SessionTools, AnotherActiveGraphEndsTheTraceWithoutARedraw) {
  session.execute(PlotCommand::recorrer);
  session.activateNext();
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_FALSE(session.cursor());
  EXPECT_EQ(shown(), range());
  EXPECT_EQ(listener.drawn, 1);
}

TEST_F(SessionTools, RecorrerTracesFromTheLeftEnd) {
  session.execute(PlotCommand::recorrer);
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  EXPECT_EQ(session.tracePosition(), -4);
  EXPECT_EQ(shown(), "X=-4|Y=-4||");
  expectCursor({150, 1350});
}

TEST_F(SessionTools, TheTraceStepsForwardAndBack) {
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(shown(), "X=1|Y=1||");
  session.execute(PlotCommand::recorrer_atras);
  EXPECT_EQ(shown(), "X=0|Y=0||");
  EXPECT_EQ(session.cursor()->slope, Slope::decreciente_izq);
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(session.cursor()->slope, Slope::creciente_der);
}

TEST_F(SessionTools, TheFirstTracePointHasNoSlope) {
  session.execute(PlotCommand::recorrer);
  EXPECT_EQ(session.cursor()->slope, Slope::igual);
}

TEST_F(SessionTools, TheFirstTracePointOnAnotherGraphHasNoSlope) {
  session.execute(PlotCommand::recorrer_adelante);
  session.activateNext();
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(shown(), "X=2|Y=0||");
  EXPECT_EQ(session.cursor()->slope, Slope::igual);
  session.execute(PlotCommand::recorrer_atras);
  EXPECT_EQ(session.cursor()->slope, Slope::decreciente_izq);
  session.mouseDown(MouseButton::left, {1350, 300});  // near "a" at x = 4
  EXPECT_EQ(session.activeGraph(), 'a');
  EXPECT_EQ(session.cursor()->slope, Slope::igual);
}

TEST_F(SessionTools, TheSlopeGoesOnWhereTheActiveGraphIsTheSame) {
  session.choose('c');
  session.execute(PlotCommand::recorrer);
  EXPECT_EQ(shown(), "X=-3|Y=5||");
  session.choose('c');
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(shown(), "X=-2|Y=0||");
  EXPECT_EQ(session.cursor()->slope, Slope::decreciente_der);
}

TEST_F(SessionTools, AGraphThatIsChosenBecomesTheActiveOneWithoutARedraw) {
  session.execute(PlotCommand::recorrer);
  session.choose('c');
  EXPECT_EQ(session.activeGraph(), 'c');
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_EQ(shown(), range());
  EXPECT_EQ(listener.drawn, 1);
}

TEST_F(SessionTools, ALetterWithoutAGraphIsNotChosen) {
  session.execute(PlotCommand::recorrer);
  for (const char letter : {'b', 'A', '\0'}) session.choose(letter);
  EXPECT_EQ(session.activeGraph(), 'a');
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  session.close();
  session.choose('c');
  EXPECT_EQ(session.activeGraph(), 'a');
}

TEST_F(SessionTools, TheSlopeStandsWhereItIsNotCutOff) {
  session.execute(PlotCommand::recorrer);
  session.execute(PlotCommand::recorrer_atras);
  expectCursor({0, 1500});
  EXPECT_EQ(session.cursor()->slope, Slope::decreciente_der);
  for (int i = 0; i < 10; ++i) session.execute(PlotCommand::recorrer_adelante);
  expectCursor({1500, 0});
  EXPECT_EQ(session.cursor()->slope, Slope::creciente_izq);
}

TEST_F(SessionTools, ATraceBeyondTheRangeEndsInNormal) {
  for (int i = 0; i < 5; ++i) session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(session.tracePosition(), 5);
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_FALSE(session.cursor());
  EXPECT_EQ(session.tracePosition(), 5);
  EXPECT_EQ(shown(), range());
}

TEST_F(SessionTools, PararHidesTheCursorAndShowsTheRange) {
  session.execute(PlotCommand::recorrer);
  session.execute(PlotCommand::parar);
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_FALSE(session.cursor());
  EXPECT_EQ(shown(), range());
}

TEST_F(SessionTools, APanKeepsTheTracePointWhileItIsInView) {
  session.execute(PlotCommand::recorrer_adelante);
  session.execute(PlotCommand::derecha);
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  EXPECT_EQ(shown(), "X=1|Y=1||");
  EXPECT_EQ(session.cursor()->slope, Slope::igual);
  EXPECT_EQ(listener.drawn, 2);
  for (int i = 0; i < 3; ++i) session.execute(PlotCommand::derecha);
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_EQ(session.tracePosition(), 1);
}

TEST_F(SessionTools, ARedrawKeepsTheTracePoint) {
  session.execute(PlotCommand::recorrer_adelante);
  session.redraw();
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  EXPECT_EQ(shown(), "X=1|Y=1||");
}

TEST_F(SessionTools, AfterAPanTheTraceOfAFamilyGoesOnAlongTheMemberThatWasPicked) {
  graphs.clearGraphs();
  addGraph('b', FamilyFields{field("P*x/4"), field("0"), field("2"), field("1")});
  openAndDraw();
  session.mouseDown(MouseButton::left, {900, 715});  // x = 1, y = 0.23
  EXPECT_EQ(shown(), "X=2|Y=0,5|P=1|");
  session.execute(PlotCommand::derecha);
  EXPECT_EQ(shown(), "X=2|Y=0,5|P=1|");
  session.redraw();
  EXPECT_EQ(shown(), "X=2|Y=0,5|P=1|");
  session.execute(PlotCommand::recorrer_adelante);
  EXPECT_EQ(shown(), "X=3|Y=0,75|P=1|");
}

TEST_F(SessionTools, ADrawingThatIsGivenUpPutsTheParameterBack) {
  graphs.clearGraphs();
  addGraph('b', FamilyFields{field("P*x/4"), field("5"), field("9"), field("1")});
  engine.SetP(3);
  screen.on_events = [&](std::size_t) {
    if (engine.GetP() == 7) session.close();
  };
  openAndDraw();
  EXPECT_FALSE(session.isOpen());
  EXPECT_EQ(engine.GetP(), 3);
}

TEST_F(SessionTools, AMemberThatIsPickedInsideOfADrawingStaysPicked) {
  graphs.clearGraphs();
  addGraph('b', FamilyFields{field("P*x/4"), field("0"), field("2"), field("1")});
  addFunction('d', "x+4");
  bool has_redrawn = false;
  screen.on_events = [&](std::size_t) {
    if (engine.GetP() != 1 || has_redrawn) return;
    has_redrawn = true;
    session.redraw();
    session.mouseDown(MouseButton::left, {900, 680});  // x = 1, y = 0.47
  };
  openAndDraw();
  EXPECT_EQ(session.activeGraph(), 'b');
  EXPECT_EQ(engine.GetP(), 2);
}

TEST_F(SessionTools, APanKeepsTheModeZoom) {
  session.execute(PlotCommand::zoom_a_medida);
  session.execute(PlotCommand::arriba);
  EXPECT_EQ(session.mode(), PlotMode::zoom);
  EXPECT_EQ(session.view().yi, -5 + 10.0 / 6);
}

TEST_F(SessionTools, AZoomEndsAnyMode) {
  for (const PlotCommand entered : {PlotCommand::recorrer, PlotCommand::zoom_a_medida}) {
    for (const PlotCommand zoom : {PlotCommand::acercar, PlotCommand::alejar}) {
      session.execute(entered);
      session.execute(zoom);
      EXPECT_EQ(session.mode(), PlotMode::normal);
      EXPECT_FALSE(session.cursor());
      EXPECT_EQ(shown(), range());
    }
  }
}

TEST_F(SessionTools, TheKeysPlusAndMinusZoom) {
  session.keyPressed('+');
  EXPECT_DOUBLE_EQ(session.view().xf, 10.0 / 3);
  session.keyPressed('-');
  EXPECT_DOUBLE_EQ(session.view().xf, 40.0 / 9);
}

TEST_F(SessionTools, TheWheelZoomsAboutThePlaceUnderIt) {
  session.wheelTurned(Zoom::in, {0, 1500});
  EXPECT_DOUBLE_EQ(session.view().xi, -5);
  EXPECT_DOUBLE_EQ(session.view().yi, -5);
  EXPECT_DOUBLE_EQ(session.view().xf, -5 + 20.0 / 3);
  EXPECT_EQ(session.mode(), PlotMode::normal);
}

TEST_F(SessionTools, TheRightButtonTogglesTheModeZoom) {
  session.execute(PlotCommand::recorrer);
  session.mouseDown(MouseButton::right, {100, 100});
  EXPECT_EQ(session.mode(), PlotMode::zoom);
  EXPECT_FALSE(session.cursor());
  session.mouseDown(MouseButton::right, {100, 100});
  EXPECT_EQ(session.mode(), PlotMode::normal);
}

TEST_F(SessionTools, InModeZoomTheStatusFollowsTheMouse) {
  session.mouseMove(MouseButton::none, {900, 600});
  EXPECT_EQ(shown(), range());
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseMove(MouseButton::none, {900, 600});
  EXPECT_EQ(shown(), "X=1|Y=1||");
}

TEST_F(SessionTools, AClickTracesTheNearestGraphFromThere) {
  session.mouseDown(MouseButton::left, {750, 1300});  // x = 0, y = -3.67
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  EXPECT_EQ(session.activeGraph(), 'c');
  EXPECT_EQ(shown(), "X=1|Y=-3||");
}

TEST_F(SessionTools, AClickWhereNothingIsPickedSetsNormal) {
  session.execute(PlotCommand::recorrer);
  session.mouseDown(MouseButton::left, {750, 1600});
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_FALSE(session.cursor());
  EXPECT_EQ(session.activeGraph(), 'a');
  EXPECT_EQ(shown(), range());
}

TEST_F(SessionTools, TheTraceOfAFamilyTellsItsParameter) {
  addGraph('b', FamilyFields{field("P*x"), field("0"), field("2"), field("0,5")});
  session.redraw();
  session.mouseDown(MouseButton::left, {900, 530});  // x = 1, y = 1.47
  EXPECT_EQ(session.activeGraph(), 'b');
  EXPECT_EQ(shown(), "X=2|Y=3|P=1,5|");
}

TEST_F(SessionTools, TheSearchShowsBothSidesOfTheTurn) {
  session.activateNext();
  session.execute(PlotCommand::recorrer);
  session.execute(PlotCommand::buscar_max_min);
  EXPECT_EQ(shown(), "Posible Min|X=0,5|Y=-3,75|");
  expectCursor({750, 1350});
  EXPECT_EQ(session.tracePosition(), 0.5);
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
}

TEST_F(SessionTools, ASearchThatFindsNothingLeavesTheCursor) {
  session.execute(PlotCommand::recorrer);
  const auto before = session.cursor();
  session.execute(PlotCommand::buscar_max_min);
  EXPECT_EQ(shown(), "No se encuentran MÁXIMOS ni Mínimos.|||");
  EXPECT_EQ(session.cursor(), before);
  EXPECT_EQ(session.tracePosition(), -4);
}

TEST_F(SessionTools, TheSearchSpeaksTheUsersLanguage) {
  const LanguageGuard english("EN");
  session.execute(PlotCommand::buscar_max_min);
  EXPECT_EQ(shown(), "Cannot find maximun nor minimun values.|||");
  session.activateNext();
  session.execute(PlotCommand::buscar_max_min);
  EXPECT_EQ(screen.statuses.back().first, "Possible Min");
}

TEST_F(SessionTools, TheValueBoxAsksAgainUntilItIsCancelled) {
  session.activateNext();
  listener.answers = {"3", "tres", "2.5", "1E+999", ""};
  session.execute(PlotCommand::calcular_y);
  EXPECT_THAT(listener.informations,
              ElementsAre("X=3\r\nY=5", "X=2.5\r\nY=2,25",
                          "X=1E+999\r\nY= DESCONOCIDO\r\nCausa: Valores demasiado grandes para "
                          "operar."));
  EXPECT_EQ(listener.asked.size(), 5);
  EXPECT_EQ(listener.asked[0],
            "Cálculo de un valor específico|Gráfico: c(x)=x^2-4\r\n"
            "Ingrese un valor de X para evaluar la función.\r\n"
            "Para salir presione 'Cancelar'.");
}

TEST_F(SessionTools, AnUndefinedValueIsToldWithItsCause) {
  addFunction('a', "1/x");
  std::string cause;
  double y = 0;
  ASSERT_FALSE(engine.Evaluate(0, y, graph('a').codigo, cause));
  listener.answers = {"0"};
  session.execute(PlotCommand::calcular_y);
  EXPECT_THAT(listener.informations, ElementsAre("X=0\r\nY= DESCONOCIDO\r\nCausa: " + cause));
}

TEST_F(SessionTools, TheValueBoxEndsWithTheSession) {
  listener.answers = {"a", "b"};
  listener.on_ask = [&] { session.close(); };
  session.execute(PlotCommand::calcular_y);
  EXPECT_EQ(listener.asked.size(), 1);
}

TEST_F(SessionTools, AParametricCurveIsNeitherTracedNorAskedFor) {
  graphs.rebuildGraph('a', "x=t y=t", "", 0, 'T', nullptr);
  EXPECT_FALSE(session.isEnabled(PlotCommand::recorrer));
  EXPECT_FALSE(session.isEnabled(PlotCommand::calcular_y));
  EXPECT_TRUE(session.isEnabled(PlotCommand::recorrer_adelante));
  session.execute(PlotCommand::recorrer);
  session.execute(PlotCommand::calcular_y);
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_TRUE(listener.asked.empty());
  session.activateNext();
  EXPECT_TRUE(session.isEnabled(PlotCommand::recorrer));
}

TEST_F(SessionTools, OnlyACapitalCShowsTheCode) {
  session.activateNext();
  session.keyPressed('c');
  EXPECT_TRUE(listener.informations.empty());
  session.keyPressed('C');
  EXPECT_THAT(listener.informations, ElementsAre("x^2-4"));
}

TEST_F(SessionTools, CopyingAndPrintingAreTheWindows) {
  session.execute(PlotCommand::copiar_grafico);
  EXPECT_EQ(listener.copies, "p");
  EXPECT_THAT(listener.informations,
              ElementsAre("Se ha copiado el gráfico de funciones al Portapapeles de Windows."));
  session.execute(PlotCommand::imprimir);
  EXPECT_EQ(listener.prints, 1);
  session.execute(PlotCommand::configurar);
  EXPECT_EQ(listener.returns, 1);
}

TEST_F(SessionTools, NothingOfThisWorksWithoutAPicture) {
  session.close();
  const std::size_t statuses = screen.statuses.size();
  for (std::size_t i = 0; i < kPlotCommandKeys.size(); ++i)
    session.execute(static_cast<PlotCommand>(i));
  session.mouseDown(MouseButton::left, {700, 700});
  session.mouseDown(MouseButton::right, {700, 700});
  session.mouseMove(MouseButton::left, {700, 700});
  session.mouseUp(MouseButton::left, {700, 700});
  session.wheelTurned(Zoom::in, {700, 700});
  session.activateNext();
  session.activatePrevious();
  session.keyPressed('C');
  EXPECT_EQ(screen.statuses.size(), statuses);
  EXPECT_EQ(listener.returns + listener.prints, 0);
  EXPECT_EQ(listener.copies, "");
  EXPECT_TRUE(listener.informations.empty());
}

TEST_F(SessionTools, ADocumentWithoutGraphsCanBeLookedAt) {
  graphs.clearGraphs();
  openAndDraw();
  EXPECT_EQ(session.activeGraph(), std::nullopt);
  for (const PlotCommand command :
       {PlotCommand::recorrer, PlotCommand::recorrer_atras, PlotCommand::calcular_y})
    session.execute(command);
  session.activateNext();
  session.keyPressed('C');
  session.mouseDown(MouseButton::left, {700, 700});
  EXPECT_EQ(session.mode(), PlotMode::normal);
  EXPECT_TRUE(listener.informations.empty());
  EXPECT_TRUE(listener.asked.empty());
}

TEST_F(SessionTools, AViewBeyondTheLargestNumberFailsLikeADrawing) {
  show(-8e307, 8e307, -5, 5);
  openAndDraw();
  ASSERT_EQ(listener.returns, 0);
  session.execute(PlotCommand::alejar);
  session.execute(PlotCommand::alejar);
  session.execute(PlotCommand::alejar);
  EXPECT_THAT(listener.messages, ElementsAre(kFailed));
  EXPECT_EQ(listener.returns, 1);
  EXPECT_TRUE(isFinite(session.view()));
}

TEST_F(SessionTools, ZoomingInIsRefusedInTheEnd) {
  for (int i = 0; i < 200 && listener.returns == 0; ++i) session.wheelTurned(Zoom::in, {1500, 0});
  EXPECT_EQ(listener.returns, 1);
  EXPECT_EQ(listener.messages.size(), 1);
}

/// A family whose members can be counted while it is drawn.
class SessionToolsInDrawing : public PlotSessionTest {
 protected:
  void drawWith(const std::function<void()>& user) {
    addGraph('a', FamilyFields{field("P"), field("0"), field("4"), field("1")});
    screen.on_events = [this, user](std::size_t run) {
      if (run == 2) user();
    };
    openAndDraw();
  }
};

TEST_F(SessionToolsInDrawing, ClicksAndTraceStepsAreIgnored) {
  drawWith([&] {
    session.mouseDown(MouseButton::right, {700, 700});
    EXPECT_EQ(session.mode(), PlotMode::normal);
    session.execute(PlotCommand::recorrer_adelante);
    EXPECT_EQ(session.mode(), PlotMode::recorrido);
    EXPECT_FALSE(session.cursor());
  });
  EXPECT_EQ(picture.pieces().size(), 5);
}

TEST_F(SessionToolsInDrawing, APressThatIsIgnoredTakesItsReleaseWithIt) {
  bool is_second = false;
  drawWith([&] {
    if (!is_second) return;
    session.mouseDown(MouseButton::left, {100, 100});
    session.mouseMove(MouseButton::left, {900, 900});
    session.mouseUp(MouseButton::left, {900, 900});
  });
  session.execute(PlotCommand::zoom_a_medida);
  session.mouseDown(MouseButton::left, {600, 450});
  session.mouseMove(MouseButton::left, {1050, 750});
  is_second = true;
  screen.event_runs = 0;
  session.mouseUp(MouseButton::left, {1050, 750});
  EXPECT_EQ(session.view().xi, -1);
  EXPECT_EQ(session.view().xf, 2);
  EXPECT_EQ(listener.drawn, 2);
}

/// A user who clicks once while a function of many samples is being drawn.
class ClicksInAFunction : public PlotSessionTest {
 protected:
  void clickWhileDrawing(char letter, Point place) {
    viewport.view.definicion = 2000;
    screen.on_events = [this, letter, place, clicked = false](std::size_t) mutable {
      const bool is_drawn =
          !screen.statuses.empty() &&
          screen.statuses.back().first.find(std::string(1, letter) + "(x)") != std::string::npos;
      if (clicked || !is_drawn) return;
      clicked = true;
      session.mouseDown(MouseButton::left, place);
    };
    openAndDraw();
  }
};

TEST_F(ClicksInAFunction, StillTraceWhereTheyWereWhenItIsDrawn) {
  addFunction('c', "ln(x)");  // not defined where a trace begins otherwise
  addFunction('d', "x");
  clickWhileDrawing('d', {1050, 450});
  EXPECT_EQ(session.mode(), PlotMode::recorrido);
  EXPECT_TRUE(session.cursor());
  EXPECT_NEAR(session.tracePosition(), 2, 0.01);
}

TEST_F(ClicksInAFunction, SetTheMemberThatIsFollowedFromThen) {
  addFamilyAndFunction();
  engine.SetP(1);
  clickWhileDrawing('d', {900, 450});
  EXPECT_EQ(engine.GetP(), 2);
}

TEST_F(SessionToolsInDrawing, PararDoesNotStopIt) {
  drawWith([&] { session.execute(PlotCommand::parar); });
  EXPECT_EQ(picture.pieces().size(), 5);
}

TEST_F(SessionToolsInDrawing, APanBeginsAnew) {
  drawWith([&] { session.execute(PlotCommand::derecha); });
  EXPECT_EQ(picture.texts(), drawnFresh(session.view(), viewport.size));
  EXPECT_EQ(listener.drawn, 1);
}

}  // namespace
}  // namespace zel::test
