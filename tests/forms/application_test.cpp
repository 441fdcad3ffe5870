#include "forms/application.h"

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

}  // namespace
}  // namespace zel::test
