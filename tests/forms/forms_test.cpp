#include "forms/forms.h"

#include <QSessionManager>
#include <array>
#include <cstddef>
#include <new>
#include <optional>
#include <utility>

#include "forms/start/frm_presentacion.h"
#include "forms/window_fixture.h"
#include "memory/failing_new.h"

namespace zel::test {
namespace {

/// The windows together, from the start to the main window.
class AllWindows : public WindowTest {
 protected:
  AllWindows() {
    program.end_process = [this] { ++ends; };
  }

  /// The window of a name when it is shown, null otherwise.
  static QWidget* shown(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->isVisible() && window->objectName() == QLatin1String(name)) return window;
    }
    return nullptr;
  }

  int ends = 0;
};

TEST_F(AllWindows, GoFromTheLanguageChoiceToTheMainWindow) {
  ASSERT_EQ(startProgram(program), StartStep::first_start);
  Forms forms(program, "");
  forms.begin(StartStep::first_start);
  ASSERT_NE(shown("frmIdioma"), nullptr);
  EXPECT_EQ(shown("frmPresentacion"), nullptr);
  QTest::keyClick(shown("frmIdioma"), Qt::Key_Return);
  EXPECT_EQ(shown("frmIdioma"), nullptr);
  ASSERT_NE(shown("frmPresentacion"), nullptr);
  EXPECT_EQ(program.help_file, "ayuda_es.hlp");
  QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
  EXPECT_EQ(shown("frmPresentacion"), nullptr);
  EXPECT_NE(shown("frmDatosIni"), nullptr);
  EXPECT_EQ(ends, 0);
}

TEST_F(AllWindows, HaveStartedOnceAllAreThere) {
  ASSERT_EQ(startProgram(program), StartStep::first_start);
  Forms forms(program, "");
  int starts = 0;
  forms.started = [&] {
    ++starts;
    EXPECT_EQ(program.help_file, "ayuda_es.hlp");
    EXPECT_NE(shown("frmPresentacion"), nullptr);
  };
  forms.begin(StartStep::first_start);
  EXPECT_EQ(starts, 0);
  QTest::keyClick(shown("frmIdioma"), Qt::Key_Return);
  EXPECT_EQ(starts, 1);
}

TEST_F(AllWindows, EndAndAskAgainWhenTheLanguageIsNotChosen) {
  ASSERT_EQ(startProgram(program), StartStep::first_start);
  Forms forms(program, "");
  forms.begin(StartStep::first_start);
  shown("frmIdioma")->close();
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(std::filesystem::exists("config.ini"));
  EXPECT_EQ(startProgram(program), StartStep::first_start);
}

TEST_F(AllWindows, EndWithTheMessageOfTheStartWhenOneOfThemFails) {
  services.boxes.on_show = [this](const FakeMessageBoxes::Box&) {
    services.boxes.on_show = nullptr;
    throw std::bad_alloc();
  };
  putBytes("bad.zel", "nothing");
  Forms forms(program, "bad.zel");
  EXPECT_FALSE(forms.begin(StartStep::presentation));
  ASSERT_EQ(services.boxes.shown.size(), 2u);
  EXPECT_EQ(services.boxes.shown[1].text,
            "Un error en la configuración impidió que el programa se inicie correctamente.");
}

TEST_F(AllWindows, EndWithTheMessageOfTheStartWhenOneFailsAfterTheLanguageChoice) {
  ASSERT_EQ(startProgram(program), StartStep::first_start);
  services.boxes.on_show = [this](const FakeMessageBoxes::Box&) {
    services.boxes.on_show = nullptr;
    throw std::bad_alloc();
  };
  putBytes("bad.zel", "nothing");
  Forms forms(program, "bad.zel");
  EXPECT_TRUE(forms.begin(StartStep::first_start));
  QTest::keyClick(shown("frmIdioma"), Qt::Key_Return);
  ASSERT_EQ(services.boxes.shown.size(), 2u);
  EXPECT_EQ(services.boxes.shown[1].text,
            "Un error en la configuración impidió que el programa se inicie correctamente.");
  EXPECT_EQ(ends, 1);
}

/// Notes to whom the presentation hands over when it is shown.
class ShownPresentation : public QObject {
 public:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show)
      if (const auto* window = dynamic_cast<frmPresentacion*>(watched))
        caller = window->getLlamador();
    return false;
  }

  FormWindow* caller = nullptr;
};

TEST_F(AllWindows, TellThePresentationItsCallerBeforeItIsShown) {
  ShownPresentation look;
  qApp->installEventFilter(&look);
  Forms forms(program, "");
  forms.begin(StartStep::presentation);
  qApp->removeEventFilter(&look);
  EXPECT_NE(look.caller, nullptr);
}

TEST_F(AllWindows, OpenTheDocumentOfTheCommandLine) {
  addFunction('a', "x^2");
  MainView view;
  view.xi = "-3";
  ASSERT_TRUE(writeDocument("uno.zel", view, program.graphs).written);
  program.graphs.clearGraphs();
  Forms forms(program, "uno.zel");
  forms.begin(StartStep::presentation);
  QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
  QWidget* const main_window = shown("frmDatosIni");
  ASSERT_NE(main_window, nullptr);
  EXPECT_EQ(fromQt(main_window->windowTitle()), "ZEL - uno.zel");
  EXPECT_EQ(text(*main_window, "txtRanXi"), "-3");
  EXPECT_EQ(program.graphs.count(), 1);
}

TEST_F(AllWindows, PlotAndComeBackWithTheRange) {
  addFunction('a', "x^2");
  Forms forms(program, "");
  forms.begin(StartStep::presentation);
  QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
  QWidget* const main_window = shown("frmDatosIni");
  control<QLineEdit>(*main_window, "txtRanXi").setText("-4");
  control<QPushButton>(*main_window, "CmdGraficarLista").click();
  EXPECT_EQ(shown("frmDatosIni"), nullptr);
  ASSERT_NE(shown("frmGrafico"), nullptr);
  shown("frmGrafico")->close();
  EXPECT_EQ(shown("frmGrafico"), nullptr);
  ASSERT_EQ(shown("frmDatosIni"), main_window);
  EXPECT_EQ(text(*main_window, "txtRanXi"), "-4");
}

TEST_F(AllWindows, ComeBackFromTheEditorWithTheRangeThatWasTyped) {
  Forms forms(program, "");
  forms.begin(StartStep::presentation);
  QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
  QWidget* const main_window = shown("frmDatosIni");
  control<QLineEdit>(*main_window, "txtRanXi").setText("-4");
  control<QPushButton>(*main_window, "CmdAgregar").click();
  ASSERT_NE(shown("frmAdmGraficos"), nullptr);
  control<QLineEdit>(*shown("frmAdmGraficos"), "txtF").setText("sen(x)");
  control<QPushButton>(*shown("frmAdmGraficos"), "bAceptar").click();
  EXPECT_EQ(shown("frmAdmGraficos"), nullptr);
  EXPECT_EQ(text(*main_window, "txtRanXi"), "-4");
  EXPECT_EQ(program.graphs.graph('a')->codigo, "10@(x)");
}

/// A logout, which may come while any window is shown.
class EndOfTheDesktopsSession : public AllWindows {
 protected:
  EndOfTheDesktopsSession() {
    program.last_session = LastSession("state");
    addFunction('a', "x^2");
  }

  void start(StartStep step) {
    program.params = makeFormParams();
    forms.emplace(program, "");
    forms->begin(step);
  }

  /// Types a range, which is not kept before the program ends, and opens the window of a button.
  void goOnTo(const char* button, const char* window) {
    QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
    QWidget& main_window = *shown("frmDatosIni");
    control<QLineEdit>(main_window, "txtRanXi").setText("-4,5");
    control<QPushButton>(main_window, button).click();
    ASSERT_NE(shown(window), nullptr);
  }
  /// As the session manager does, which is not looked at.
  static void askToKeep() {
    alignas(std::max_align_t) static std::array<std::byte, 64> nobody;
    emit qApp->commitDataRequest(reinterpret_cast<QSessionManager&>(nobody));
  }
  static bool isKept() {
    return bytesOf("state/session.zel").find("xi=-4,5\r\n") != std::string::npos;
  }

  std::optional<Forms> forms;
};

TEST_F(EndOfTheDesktopsSession, EndsTheProgramInEachWindowAndKeepsWhatTheMainWindowHas) {
  for (const auto& [button, window] :
       {std::pair("CmdGraficarLista", "frmGrafico"), std::pair("CmdAgregar", "frmAdmGraficos")}) {
    std::filesystem::remove_all("state");
    std::filesystem::remove("config.ini");
    ends = 0;
    start(StartStep::presentation);
    goOnTo(button, window);
    EXPECT_FALSE(isKept());
    forms->quit();
    EXPECT_EQ(ends, 1) << window;
    EXPECT_TRUE(isKept()) << window;
    EXPECT_TRUE(std::filesystem::exists("config.ini"));
  }
}

TEST_F(EndOfTheDesktopsSession, IsPreparedWithoutAnEnd) {
  start(StartStep::presentation);
  goOnTo("CmdGraficarLista", "frmGrafico");
  askToKeep();
  EXPECT_EQ(ends, 0);
  EXPECT_TRUE(isKept());
  EXPECT_FALSE(std::filesystem::exists("config.ini")) << "that is written right before the end";
  EXPECT_NE(shown("frmGrafico"), nullptr);
}

TEST_F(EndOfTheDesktopsSession, IsNotHeldUpByWantOfMemory) {
  start(StartStep::presentation);
  goOnTo("CmdGraficarLista", "frmGrafico");
  std::filesystem::remove_all("state");
  int survived = 0;
  const long failures = failEachAllocation(
      true,
      [&] {
        askToKeep();
        ++survived;
      },
      [] {});
  EXPECT_GT(failures, 0);
  EXPECT_EQ(survived, failures + 1);
  EXPECT_TRUE(isKept()) << "where there is memory enough";
}

TEST_F(EndOfTheDesktopsSession, KeepsNothingOfAFirstStartWithoutALanguage) {
  ASSERT_EQ(startProgram(program), StartStep::first_start);
  start(StartStep::first_start);
  askToKeep();
  forms->quit();
  EXPECT_EQ(ends, 1);
  EXPECT_FALSE(std::filesystem::exists("config.ini"));
}

}  // namespace
}  // namespace zel::test
