// The presentation, the language choice and the about box.
#include <QRadioButton>
#include <QScreen>

#include "forms/start/frm_acerca_de.h"
#include "forms/start/frm_idioma.h"
#include "forms/start/frm_presentacion.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

class PresentationWindow : public WindowTest {
 protected:
  PresentationWindow() {
    window.setLlamador(&main_window);
    window.enableTimer();
    window.showForm();
  }

  std::string label(const char* name) { return fromQt(control<QLabel>(window, name).text()); }

  NotedWindow main_window;
  frmPresentacion window{program};
};

TEST_F(PresentationWindow, SaysWhatTheProgramIs) {
  EXPECT_EQ(label("LblVersion"), "ZEL 2.8");
  EXPECT_EQ(label("LblCreditos"), "© 2026 ZEL · https://zel.example/");
  EXPECT_EQ(label("LblEstado"), "2.8.81.02.2008");
  EXPECT_EQ(label("LblQueEsZEL"), "Graficador de funciones matemáticas");
  EXPECT_EQ(window.getLlamador(), &main_window);
}

TEST_F(PresentationWindow, HandsOverAtAnyKeyButP) {
  QTest::keyClick(&window, 'p');
  EXPECT_EQ(main_window.shown, 0);
  EXPECT_EQ(label("LblEstado"), "EN PAUSA...");
  QTest::keyClick(&window, 'P');
  EXPECT_EQ(label("LblEstado"), "2.8.81.02.2008");
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(main_window.shown, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(PresentationWindow, HandsOverAtAClickOnItsImage) {
  QTest::mouseClick(&control<QLabel>(window, "Image1"), Qt::LeftButton);
  EXPECT_EQ(main_window.shown, 1);
}

TEST_F(PresentationWindow, HandsOverAtAClickOnItsVersionWhileItsTimerRuns) {
  QTest::keyClick(&window, 'p');
  QTest::mouseClick(&control<QLabel>(window, "LblVersion"), Qt::LeftButton);
  EXPECT_EQ(main_window.shown, 0);
  QTest::keyClick(&window, 'p');
  QTest::mouseClick(&control<QLabel>(window, "LblVersion"), Qt::LeftButton);
  EXPECT_EQ(main_window.shown, 1);
}

TEST_F(PresentationWindow, HidesItsButtonWhileItsTimerRunsFromTheFirstMoment) {
  EXPECT_FALSE(control<QPushButton>(window, "bCerrar").isVisible());
  frmPresentacion other(program);
  other.setLlamador(&main_window);
  other.showForm();
  EXPECT_TRUE(control<QPushButton>(other, "bCerrar").isVisible());
  control<QPushButton>(other, "bCerrar").click();
  EXPECT_EQ(main_window.shown, 1);
}

TEST_F(PresentationWindow, ShowsItsButtonWhenItIsActivatedWhilePaused) {
  QTest::keyClick(&window, 'p');
  EXPECT_FALSE(control<QPushButton>(window, "bCerrar").isVisible());
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(&window, &activation);
  EXPECT_TRUE(control<QPushButton>(window, "bCerrar").isVisible());
}

TEST_F(PresentationWindow, StaysWhenItsImageIsOnlyPressed) {
  QLabel& image = control<QLabel>(window, "Image1");
  QTest::mousePress(&image, Qt::LeftButton);
  EXPECT_EQ(main_window.shown, 0);
  QTest::mouseRelease(&image, Qt::LeftButton, {}, QPoint(-5, -5));  // let go elsewhere
  EXPECT_EQ(main_window.shown, 0);
  QTest::mouseRelease(&image, Qt::LeftButton);
  QTest::mouseClick(&image, Qt::RightButton);
  EXPECT_EQ(main_window.shown, 0);
  QTest::mousePress(&image, Qt::LeftButton);
  QTest::mouseRelease(&image, Qt::LeftButton);
  EXPECT_EQ(main_window.shown, 1);
}

TEST_F(PresentationWindow, HandsOverWhenItIsClosed) {
  window.close();
  EXPECT_EQ(main_window.shown, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(PresentationWindow, ShowsTheLanguageThatWasChosenMeanwhile) {
  SetCurrentLanguage("EN");
  QEvent activation(QEvent::WindowActivate);
  QApplication::sendEvent(&window, &activation);
  EXPECT_EQ(label("LblQueEsZEL"), "Mathematical function grapher");
  EXPECT_EQ(fromQt(control<QPushButton>(window, "bCerrar").text()), "Close");
}

TEST_F(PresentationWindow, NamesItsButtonInBothLanguages) {
  for (const char* language : {"ES", "EN"}) {
    SetCurrentLanguage(language);
    window.ApplyLanguage();
    expectAccessibleNames(window);
  }
}

class LanguageWindow : public WindowTest {
 protected:
  LanguageWindow() {
    window.accepted = [this] { ++accepts; };
    window.refused = [this] { ++refusals; };
    window.showForm();
  }

  QRadioButton& option(int index) {
    return control<QRadioButton>(window, index == 0 ? "optIdioma0" : "optIdioma1");
  }
  std::string button() { return fromQt(control<QPushButton>(window, "cmdAceptar").text()); }

  int accepts = 0;
  int refusals = 0;
  frmIdioma window{program};
};

TEST_F(LanguageWindow, SwitchesItselfWithTheChoice) {
  EXPECT_TRUE(option(0).isChecked());
  EXPECT_EQ(button(), "&Aceptar");
  option(1).click();
  EXPECT_EQ(CurrentLanguage(), "EN");
  EXPECT_EQ(button(), "&OK");
  option(0).click();
  EXPECT_EQ(CurrentLanguage(), "ES");
  EXPECT_EQ(button(), "&Aceptar");
}

TEST_F(LanguageWindow, KeepsTheChoiceAndRegistersDocuments) {
  option(1).click();
  control<QPushButton>(window, "cmdAceptar").click();
  EXPECT_EQ(accepts, 1);
  EXPECT_EQ(bytesOf("config.ini").substr(0, 4), "EN\r\n");
  EXPECT_EQ(services.registry.values[0].second, "Function graphic");
  EXPECT_FALSE(window.isVisible());
}

TEST_F(LanguageWindow, IsAcceptedWithEnterAndRefusedWithEscape) {
  QTest::keyClick(&window, Qt::Key_Return);
  EXPECT_EQ(accepts, 1);
  window.showForm();
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(refusals, 1);
}

TEST_F(LanguageWindow, NamesItsControlsInBothLanguages) {
  expectAccessibleNames(window);
  option(1).click();
  expectAccessibleNames(window);
}

class AboutBox : public WindowTest {
 protected:
  AboutBox() {
    program.params.removeAll();
    program.params.Add("llamador", static_cast<FormWindow*>(&caller));
  }

  NotedWindow caller;
  frmAcercaDe window{program};
};

TEST_F(AboutBox, LeadsToTheWebAndTheMailAndBack) {
  window.showForm();
  control<QPushButton>(window, "cmdPagina").click();
  EXPECT_EQ(services.browser.calls.size(), 3u);
  control<QPushButton>(window, "cmdCorreo").click();
  EXPECT_EQ(services.mail.calls.back(), "send");
  control<QPushButton>(window, "cmdCerrar").click();
  EXPECT_EQ(caller.shown, 1);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(AboutBox, ClosesWithEscapeAndEnterAndInItsLanguage) {
  SetCurrentLanguage("EN");
  window.showForm();
  EXPECT_EQ(fromQt(window.windowTitle()), "About ZEL");
  expectAccessibleNames(window);
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(caller.shown, 1);
}

/// A caller with a place on the screen.
class PlacedWindow : public QWidget, public FormWindow {
 public:
  void showForm() override { show(); }
};

class AboutBoxOverAWindow : public WindowTest {
 protected:
  /// Where the box appears over a window with this place.
  QRect shownOver(const QRect& place) {
    caller.setGeometry(place);
    caller.showForm();
    program.params.removeAll();
    program.params.Add("llamador", static_cast<FormWindow*>(&caller));
    window.showForm();
    return window.geometry();
  }

  PlacedWindow caller;
  frmAcercaDe window{program};
};

TEST_F(AboutBoxOverAWindow, AppearsInItsMiddle) {
  const QRect first(100, 150, 600, 400);
  EXPECT_LE((shownOver(first).center() - first.center()).manhattanLength(), 2);
  window.close();
  const QRect second(120, 200, 610, 380);
  EXPECT_LE((shownOver(second).center() - second.center()).manhattanLength(), 2);
}

TEST_F(AboutBoxOverAWindow, StaysOnTheScreen) {
  const QRect screen = window.screen()->availableGeometry();
  const QRect corner(screen.bottomRight() - QPoint(50, 50), QSize(40, 40));
  EXPECT_TRUE(screen.contains(shownOver(corner)));
  window.close();
  EXPECT_TRUE(
      screen.contains(shownOver(QRect(screen.topLeft() - QPoint(200, 200), QSize(40, 40)))));
}

TEST_F(AboutBoxOverAWindow, StaysWhereItIsWhileItIsShown) {
  const QRect place(100, 150, 600, 400);
  shownOver(place);
  window.move(10, 20);
  window.showForm();
  EXPECT_EQ(window.pos(), QPoint(10, 20));
}

}  // namespace
}  // namespace zel::test
