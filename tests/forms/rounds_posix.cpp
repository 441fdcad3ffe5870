// What is opened and closed over and over needs no more memory than at first. ZEL_ROUNDS says how
// often.

#include <QAbstractButton>
#include <iostream>

#include "forms/forms.h"
#include "forms/window_fixture.h"
#include "support/heap_posix.h"

namespace zel::test {
namespace {

class Rounds : public WindowTest {
 protected:
  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer keeps what was freed";
#endif
    program.end_process = [] {};
    addFunction('a', "x^2/4-2");
    addFunction('b', "7*sen(60*x)");
    forms_.begin(StartStep::presentation);
    QTest::keyClick(shown("frmPresentacion"), Qt::Key_Return);
  }

  static QWidget* shown(const char* name) {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->objectName() == QLatin1String(name)) return window;
    return nullptr;
  }

  void openAndClosePlot() {
    control<QAbstractButton>(*shown("frmDatosIni"), "CmdGraficarLista").click();
    QApplication::processEvents();
    QWidget* const plot = shown("frmGrafico");
    ASSERT_NE(plot, nullptr);
    plot->close();
    QApplication::processEvents();
    ASSERT_NE(shown("frmDatosIni"), nullptr);
  }

  Forms forms_{program, ""};
};

TEST_F(Rounds, OfThePlotKeepTheMemoryFlat) {
  constexpr int kWarming = 20;
  constexpr std::size_t kMostBytesEach = 1024;  // the toolkit keeps a sixth of it (Qt 6.4.2)
  for (int i = 0; i < kWarming && !HasFatalFailure(); ++i) openAndClosePlot();
  const std::size_t before = heapInUse();
  const int rounds = wantedRounds(40);
  for (int i = 0; i < rounds && !HasFatalFailure(); ++i) openAndClosePlot();
  const std::size_t after = heapInUse();
  std::cout << rounds << " rounds: from " << before / 1024 << " kB to " << after / 1024 << " kB\n";
  EXPECT_LE(after, before + before / 20);
  EXPECT_LE(after, before + static_cast<std::size_t>(rounds) * kMostBytesEach);
}

}  // namespace
}  // namespace zel::test
