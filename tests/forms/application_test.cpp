#include "forms/application.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QSessionManager>
#include <QWidget>
#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

class Thrower : public QObject {
 public:
  bool event(QEvent*) override { throw std::bad_alloc(); }
};

/// An application of its own, which the other tests of this program cannot have beside theirs.
[[noreturn]] void runWithThrower(bool fails_to_tell) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  char name[] = "zel";
  char* arguments[] = {name, nullptr};
  int count = 1;
  Application application(count, arguments);
  int told = 0;
  application.failed = [&] {
    ++told;
    if (fails_to_tell) throw 1;
    Thrower inner;
    QEvent event(QEvent::User);
    QCoreApplication::sendEvent(&inner, &event);
  };
  Thrower thrower;
  QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
  QCoreApplication::postEvent(&thrower, new QEvent(QEvent::User));
  QCoreApplication::processEvents();
  std::_Exit(told);
}

TEST(ApplicationDeathTest, TellsOnceOfEachEventThatFailsAndGoesOn) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(runWithThrower(false), ::testing::ExitedWithCode(2), "");
  EXPECT_EXIT(runWithThrower(true), ::testing::ExitedWithCode(2), "");
}

/// As the plot and the editor do.
class StubbornWindow : public QWidget {
 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
};

[[noreturn]] void quitBeforeAStubbornWindow() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  char name[] = "zel";
  char* arguments[] = {name, nullptr};
  int count = 1;
  Application application(count, arguments);
  application.quits = [] { std::_Exit(3); };
  StubbornWindow window;
  window.show();
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(&application, &quit);
  std::_Exit(1);
}

TEST(ApplicationDeathTest, QuitsThoughAWindowWillNotClose) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(quitBeforeAStubbornWindow(), ::testing::ExitedWithCode(3), "");
}

/// Ends with the number of the clicks that an Enter, held down on a button, has come to.
[[noreturn]] void holdEnterDown() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  char name[] = "zel";
  char* arguments[] = {name, nullptr};
  int count = 1;
  Application application(count, arguments);
  QPushButton button;
  button.setAutoDefault(true);
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  for (const bool repeats : {false, true, true})
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter}) {
      QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, "\r", repeats);
      QCoreApplication::sendEvent(&button, &press);
    }
  std::_Exit(clicks);
}

TEST(ApplicationDeathTest, TakesAnEnterThatIsHeldDownOnce) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(holdEnterDown(), ::testing::ExitedWithCode(2), "");
}

/// Answers a session manager that asks for the state of the program.
[[noreturn]] void tellRestartHint() {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  char name[] = "zel";
  char* arguments[] = {name, nullptr};
  int count = 1;
  Application application(count, arguments);
  auto* const manager = application.findChild<QSessionManager*>();
  if (manager == nullptr) std::_Exit(EXIT_FAILURE);
  emit application.saveStateRequest(*manager);
  std::_Exit(10 + manager->restartHint());
}

TEST(ApplicationDeathTest, IsNotToBeStartedAgainByASessionManager) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(tellRestartHint(), ::testing::ExitedWithCode(10 + QSessionManager::RestartNever), "");
}

}  // namespace
}  // namespace zel::test
