#include <QAccessible>
#include <QHelpEvent>
#include <QListWidget>
#include <QToolBar>
#include <QToolTip>

#include "forms/plot/elided_label.h"
#include "forms/plot/plot_toolbar.h"
#include "forms/shown_tip.h"
#include "frm_grafico_fixture.h"
#include "support/patience.h"

/// The toolbar of the plot window and the row with the active graph.
namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GraficoToolbar : public GraficoTest {
 protected:
  QToolBar& toolbar() { return control<QToolBar>("Toolbar1"); }
  std::string graphText() { return fromQt(control<QLabel>("LblGrafico").text()); }
  void next() { control<QAbstractButton>("CmdGrafSiguiente").click(); }
  void previous() { control<QAbstractButton>("CmdGrafAnterior").click(); }

  static std::string name(QWidget& widget) {
    return fromQt(QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name));
  }
};

struct ToolbarRow {
  const char* key;
  const char* spanish;
  const char* english;
};

constexpr ToolbarRow kButtons[] = {
    {"Recorrer_Atras", "Recorrer hacia la Izquierda", "Step back"},
    {"Recorrer", "Recorrer Función", "Rove"},
    {"Recorrer_Adelante", "Recorrer hacia la Derecha", "Step forward"},
    {"Parar", "Detener", "Stop"},
    {"Configurar", "Configurar", "Configure"},
    {"Arriba", "Mover pantalla hacia Arriba", "Screen up"},
    {"Abajo", "Mover pantalla hacia Abajo", "Screen down"},
    {"Izquierda", "Mover pantalla a la Izquierda", "Screen left"},
    {"Derecha", "Mover pantalla a la Derecha", "Screen right"},
    {"Acercar", "Zoom Acercar", "Zoom(+)"},
    {"Alejar", "Zoom Alejar", "Zoom(-)"},
    {"Calcular_Y", "Consultar valores específicos de la función activa", "Calculate value"},
    {"Buscar_Max_Min", "Buscar Máximos y Mínimos hacia la derecha",
     "Find Maximun or Minimun value forward"},
    {"Zoom_a_Medida", "Zoom a medida", "Custom zoom"},
    {"Copiar_Grafico", "Copiar gráfico al Portapapeles de Windows", "Copy graphic to clipboard"},
    {"Imprimir", "Imprimir gráfico", "Print graphic"},
};

TEST_F(GraficoToolbar, HasSixteenButtonsInTheirOrderThatSayWhatTheyDo) {
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    open(view);
    std::size_t count = 0;
    for (QAction* const action : toolbar().actions()) {
      if (action->isSeparator()) continue;
      ASSERT_LT(count, std::size(kButtons));
      const ToolbarRow& row = kButtons[count++];
      const std::string expected = code == "ES" ? row.spanish : row.english;
      EXPECT_EQ(fromQt(action->objectName()), row.key);
      QToolButton& button = this->button(row.key);
      EXPECT_EQ(button.defaultAction(), action);
      EXPECT_EQ(fromQt(button.toolTip()), expected);
      EXPECT_EQ(name(button), expected);
      EXPECT_FALSE(button.icon().isNull()) << row.key;
      EXPECT_EQ(button.isCheckable(), row.key == std::string("Zoom_a_Medida"));
    }
    EXPECT_EQ(count, std::size(kButtons));
  }
}

TEST_F(GraficoToolbar, HasItsButtonsInGroups) {
  std::vector<int> groups = {0};
  for (const QAction* const action : toolbar().actions()) {
    if (action->isSeparator())
      groups.push_back(0);
    else
      ++groups.back();
  }
  EXPECT_THAT(groups, ElementsAre(4, 1, 4, 2, 2, 1, 2));
}

TEST_F(GraficoToolbar, OfAParametricGraphOffersNeitherRoveNorValues) {
  addParametric('a');
  addFunction('b', "x");
  openUsual();
  for (const ToolbarRow& row : kButtons) {
    const bool needs_x = row.key == std::string("Recorrer") || row.key == std::string("Calcular_Y");
    EXPECT_EQ(button(row.key).isEnabled(), !needs_x) << row.key;
  }
  next();
  for (const ToolbarRow& row : kButtons) EXPECT_TRUE(button(row.key).isEnabled()) << row.key;
}

TEST_F(GraficoToolbar, ShowsTheCustomZoomPressedWhileTheModeIsZoom) {
  addFunction('a', "x");
  openUsual();
  const auto isPressed = [&] {
    EXPECT_EQ(button("Zoom_a_Medida").isChecked(), window.session().mode() == PlotMode::zoom);
    return button("Zoom_a_Medida").isChecked();
  };
  EXPECT_FALSE(isPressed());
  click("Zoom_a_Medida");
  EXPECT_TRUE(isPressed());
  click("Zoom_a_Medida");
  EXPECT_FALSE(isPressed());
  mouseClick(at(0, 0), Qt::RightButton);
  EXPECT_TRUE(isPressed());
  click("Arriba");
  EXPECT_TRUE(isPressed());
  for (const char* key : {"Parar", "Acercar", "Alejar", "Recorrer"}) {
    mouseClick(at(0, 0), Qt::RightButton);
    if (!isPressed()) click("Zoom_a_Medida");
    click(key);
    EXPECT_FALSE(isPressed()) << key;
  }
  click("Zoom_a_Medida");
  resizeFor({420, 400});
  EXPECT_FALSE(isPressed());
}

TEST_F(GraficoToolbar, IsNotLeftPressedWhereNothingIsDrawn) {
  handViewOver(program.params, view, &caller);
  window.showForm();
  click("Zoom_a_Medida");
  EXPECT_FALSE(button("Zoom_a_Medida").isChecked());
  window.close();
}

TEST_F(GraficoToolbar, GivesTheKeysBackToThePictureAfterAClick) {
  addFunction('a', "x");
  openUsual();
  for (const char* key : {"Recorrer_Adelante", "Derecha", "Zoom_a_Medida"}) {
    window.setFocus();
    QTest::mouseClick(&button(key), Qt::LeftButton);
    EXPECT_TRUE(picture->hasFocus()) << key;
  }
  window.setFocus();
  QTest::mouseClick(&control<QAbstractButton>("CmdGrafSiguiente"), Qt::LeftButton);
  EXPECT_TRUE(picture->hasFocus());
}

TEST_F(GraficoToolbar, StaysUnderTheFingersOfWhoeverWalksOverItsButtons) {
  addFunction('a', "x");
  openUsual();
  QToolButton& right = button("Derecha");
  right.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&right, Qt::Key_Space);
  EXPECT_TRUE(right.hasFocus());
  expectView(-10 + 20.0 / 6, 10 + 20.0 / 6, -10, 10);
  QTest::keyClick(&right, Qt::Key_Right);
  EXPECT_TRUE(button("Acercar").hasFocus());
  expectView(-10 + 20.0 / 6, 10 + 20.0 / 6, -10, 10);
}

TEST_F(GraficoToolbar, CanBeReachedWithTheTabKey) {
  addFunction('a', "x");
  open(view);
  EXPECT_TRUE(picture->hasFocus());
  QTest::keyClick(picture, Qt::Key_Tab);
  EXPECT_TRUE(button("Recorrer_Atras").hasFocus());
  picture->setFocus();
  QTest::keyClick(picture, Qt::Key_Backtab);
  EXPECT_TRUE(control<QWidget>("CmdNumeros").hasFocus());
  addFunction('b', "-x");
  open(view);
  QTest::keyClick(picture, Qt::Key_Backtab);
  EXPECT_TRUE(control<QWidget>("LstGraficos").hasFocus());
  for (const ToolbarRow& row : kButtons) EXPECT_EQ(button(row.key).focusPolicy(), Qt::TabFocus);
}

TEST_F(GraficoToolbar, OpensNoMenu) {
  openUsual();
  for (QWidget* const target : {static_cast<QWidget*>(picture), static_cast<QWidget*>(&toolbar()),
                                static_cast<QWidget*>(&button("Parar"))}) {
    QTest::mouseClick(target, Qt::RightButton);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {5, 5}, target->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(target, &event);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  }
}

TEST_F(GraficoToolbar, ConfiguresInTheMainWindowWithTheViewAsItIs) {
  openUsual();
  click("Derecha");
  const ViewSettings shown = window.session().view();
  click("Configurar");
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(caller.shown, 1);
  EXPECT_EQ(viewIn(caller.received), shown);
  EXPECT_THAT(caller.received.keys(),
              ElementsAre("xi", "xf", "yi", "yf", "definicion", "llamador"));
}

TEST_F(GraficoToolbar, ANarrowWindowKeepsAllButtonsInItsExtension) {
  open(view);
  resizeFor({150, 200});
  EXPECT_TRUE(window.isVisible());
  EXPECT_FALSE(button("Imprimir").isVisible());
  EXPECT_TRUE(control<QToolButton>("qt_toolbar_ext_button").isVisible());
}

TEST_F(GraficoToolbar, GoesFromGraphToGraphRoundTheAlphabetWithoutARedraw) {
  addFunction('b', "x", 0x0000FF);
  addFunction('d', "x^2", 0x00FF00);
  addFamily('z');
  openUsual();
  EXPECT_EQ(graphText(), "b(x)=x");
  const auto colour = [&] {
    return control<QWidget>("LblColor").palette().color(QPalette::Window);
  };
  EXPECT_EQ(colour(), QColor(255, 0, 0));
  next();
  EXPECT_EQ(graphText(), "d(x)=x^2");
  EXPECT_EQ(colour(), QColor(0, 255, 0));
  next();
  EXPECT_EQ(window.session().activeGraph(), 'z');
  next();
  EXPECT_EQ(graphText(), "b(x)=x");
  previous();
  EXPECT_EQ(window.session().activeGraph(), 'z');
  previous();
  EXPECT_EQ(graphText(), "d(x)=x^2");
  EXPECT_EQ(begun, "");
}

TEST_F(GraficoToolbar, AnotherGraphEndsTheTrace) {
  addFunction('a', "x");
  openUsual();
  click("Recorrer");
  EXPECT_EQ(window.session().mode(), PlotMode::recorrido);
  next();
  EXPECT_EQ(window.session().mode(), PlotMode::normal);
  EXPECT_EQ(window.session().activeGraph(), 'a');
  EXPECT_EQ(panels().front(), " Xmin=-10  ");
}

TEST_F(GraficoToolbar, OffersNoOtherGraphWhereThereIsNone) {
  openUsual();
  EXPECT_EQ(graphText(), "");
  EXPECT_TRUE(control<QWidget>("LblColor").isHidden());
  for (const char* name : {"CmdGrafAnterior", "CmdGrafSiguiente"})
    EXPECT_FALSE(control<QAbstractButton>(name).isEnabled());
  for (const ToolbarRow& row : kButtons) {
    if (row.key == std::string("Configurar")) continue;
    click(row.key);
    EXPECT_TRUE(window.isVisible()) << row.key;
  }
}

TEST_F(GraficoToolbar, TheRowIsAsWideAsThePictureAndEndsALongTextInDots) {
  addFunction('a', "x+1+2+3+4+5+6+7+8+9+10+11+12+13+14+15+16+17+18+19+20+21+22+23+24+25+26+27+28");
  openUsual();
  auto& label = control<ElidedLabel>("LblGrafico");
  EXPECT_EQ(label.parentWidget()->width(), 400);
  EXPECT_TRUE(label.isElided());
  EXPECT_TRUE(shownTip(label.toolTip()).ends_with("+28"));
  EXPECT_TRUE(name(label).ends_with("+28"));
  resizeFor({1000, 400});
  EXPECT_EQ(label.parentWidget()->width(), 1000);
  EXPECT_FALSE(label.isElided());
  EXPECT_EQ(label.toolTip(), "");
}

/// A label lays out all of its text each time that it is measured or painted.
TEST_F(GraficoToolbar, TheRowTakesNoMoreThanAThousandCharactersOfAGraph) {
  const auto shown = [this](std::size_t length) {
    addFunction('a', std::string(length - 5, '1'));  // behind "a(x)="
    openUsual();
    return graphText();
  };
  EXPECT_EQ(shown(1000), "a(x)=" + std::string(995, '1'));
  EXPECT_EQ(shown(1001), "a(x)=" + std::string(995, '1') + "…");
}

TEST_F(GraficoToolbar, TheStepButtonsRepeatWhileTheyAreHeld) {
  addFunction('a', "x");
  openUsual();
  for (const auto& [key, direction] : {std::pair("Recorrer_Adelante", 1), {"Recorrer_Atras", -1}}) {
    const double before = window.session().tracePosition();
    QTest::mousePress(&button(key), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor(
        [&, step = direction] { return (window.session().tracePosition() - before) * step >= 2; },
        kPatience))
        << key;
    QTest::mouseRelease(&button(key), Qt::LeftButton);
    const double after = window.session().tracePosition();
    settle();
    EXPECT_EQ(window.session().tracePosition(), after);
  }
  for (const ToolbarRow& row : kButtons) {
    const bool steps = std::string(row.key).starts_with("Recorrer_");
    EXPECT_EQ(button(row.key).autoRepeat(), steps) << row.key;
    if (steps) {
      EXPECT_EQ(button(row.key).autoRepeatInterval(), PlotToolbar::kStepInterval);
    }
  }
}

TEST_F(GraficoToolbar, ATipNamesTheKeyBelowTheTextOfTheButton) {
  struct KeyRow {
    const char* name;
    const char* spanish;
    const char* english;
  };
  const KeyRow rows[] = {
      {"Recorrer_Atras", "Recorrer hacia la Izquierda\nTecla: Mayús+Izquierda",
       "Step back\nKey: Shift+Left"},
      {"Arriba", "Mover pantalla hacia Arriba\nTecla: Arriba", "Screen up\nKey: Up"},
      {"Acercar", "Zoom Acercar\nTecla: +", "Zoom(+)\nKey: +"},
      {"Imprimir", "Imprimir gráfico\nTecla: Ctrl+P", "Print graphic\nKey: Ctrl+P"},
      {"CmdGrafAnterior", "Gráfico anterior\nTecla: Re Pág", "Previous graph\nKey: Page Up"},
      {"Parar", "Detener", "Stop"},
  };
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    open(view);
    for (const KeyRow& row : rows) {
      auto& control = this->control<QWidget>(row.name);
      QHelpEvent event(QEvent::ToolTip, {3, 3}, control.mapToGlobal(QPoint(3, 3)));
      QApplication::sendEvent(&control, &event);
      EXPECT_EQ(fromQt(QToolTip::text()), code == "ES" ? row.spanish : row.english);
    }
  }
  QToolTip::hideText();
}

TEST_F(GraficoToolbar, TheListHasASwatchAndTheTextOfEveryGraph) {
  addFunction('b', "x", 0x0000FF);
  addFunction('d', "x^2", 0x00FF00);
  openUsual();
  auto& list = control<QListWidget>("LstGraficos");
  ASSERT_EQ(list.count(), 2);
  EXPECT_TRUE(list.isVisible());
  EXPECT_EQ(list.geometry().left(), picture->geometry().right() + 9);
  EXPECT_EQ(list.height(), picture->height());
  EXPECT_EQ(fromQt(list.item(0)->text()), "b(x)=x");
  EXPECT_EQ(fromQt(list.item(1)->text()), "d(x)=x^2");
  EXPECT_EQ(shownTip(list.item(1)->toolTip()), "d(x)=x^2");
  for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
    const QImage swatch = list.item(1)->icon().pixmap(16, mode).toImage();
    EXPECT_EQ(swatch.pixelColor(swatch.rect().center()), QColor(0, 255, 0));
  }
  EXPECT_TRUE(list.item(0)->isSelected());
  EXPECT_FALSE(list.item(1)->isSelected());
}

TEST_F(GraficoToolbar, TheListCutsATextAfterAThousandCharacters) {
  const std::string formula = "x" + std::string(998, '1');
  program.graphs.rebuildGraph('a', formula, formula, 255, 'F', nullptr);
  addFunction('b', "x");
  openUsual();
  EXPECT_EQ(fromQt(control<QListWidget>("LstGraficos").item(0)->text()),
            "a(x)=" + formula.substr(0, 995) + "…");
}

// Two graphs that differ behind what the row and the list show of them.
TEST_F(GraficoToolbar, TheRowHasTheToolTipsOfTheList) {
  const std::string formula = "x" + std::string(1100, '1');
  for (const char letter : {'a', 'b'})
    program.graphs.rebuildGraph(letter, formula + letter, "", 255, 'F', nullptr);
  openUsual();
  auto& list = control<QListWidget>("LstGraficos");
  for (const int row : {0, 1, 0}) {
    const std::string tip = fromQt(control<ElidedLabel>("LblGrafico").toolTip());
    EXPECT_EQ(tip, fromQt(list.item(row)->toolTip()));
    EXPECT_TRUE(shownTip(toQt(tip)).ends_with(row == 0 ? "1a" : "1b"));
    next();
  }
}

TEST_F(GraficoToolbar, AClickInTheListMakesAGraphTheActiveOneWithoutARedraw) {
  addFunction('b', "x");
  addFunction('d', "x^2");
  openUsual();
  auto& list = control<QListWidget>("LstGraficos");
  click("Recorrer");
  const QPoint place = list.visualItemRect(list.item(1)).center();
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_EQ(window.session().activeGraph(), 'd');
  EXPECT_EQ(window.session().mode(), PlotMode::normal);
  EXPECT_EQ(graphText(), "d(x)=x^2");
  EXPECT_EQ(begun, "");
  EXPECT_TRUE(picture->hasFocus());
  previous();
  EXPECT_TRUE(list.item(0)->isSelected());
  QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier, place);
  EXPECT_EQ(window.session().activeGraph(), 'd');
  previous();
  list.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(window.session().activeGraph(), 'd');
}

TEST_F(GraficoToolbar, OneGraphNeedsNoListAndThePictureHasItsRoom) {
  addFunction('a', "x");
  open(view);
  const int alone = picture->width();
  EXPECT_FALSE(control<QWidget>("LstGraficos").isVisible());
  addFunction('b', "-x");
  open(view);
  EXPECT_TRUE(control<QWidget>("LstGraficos").isVisible());
  EXPECT_LT(picture->width(), alone);
  program.graphs.freeGraph('b');
  open(view);
  EXPECT_EQ(picture->width(), alone);
}

TEST_F(GraficoToolbar, TheRowSpeaksTheCurrentLanguage) {
  struct Caption {
    const char* name;
    const char* spanish[2];  // text and tooltip
    const char* english[2];
  };
  const Caption captions[] = {
      {"CmdGrafAnterior", {"Anterior", "Gráfico anterior"}, {"Previous", "Previous graph"}},
      {"CmdGrafSiguiente", {"Siguiente", "Gráfico siguiente"}, {"Next", "Next graph"}},
      {"CmdNumeros",
       {"Números", "Números, cuadrícula y coordenadas sobre el gráfico"},
       {"Numbers", "Numbers, grid and coordinates over the graphic"}},
  };
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    open(view);
    for (const Caption& row : captions) {
      auto& button = control<QAbstractButton>(row.name);
      const auto& expected = code == "ES" ? row.spanish : row.english;
      EXPECT_EQ(fromQt(button.text()), expected[0]);
      EXPECT_EQ(fromQt(button.toolTip()), expected[1]);
      EXPECT_EQ(name(button), expected[1]);
      EXPECT_FALSE(button.icon().isNull());
    }
  }
}

}  // namespace
}  // namespace zel::test
