#include <QCoreApplication>
#include <QEvent>
#include <csignal>
#include <cstdlib>

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/desktop_services.h"

namespace zel::test {
namespace {

constexpr int kQuitStatus = 3;

/// An application that tells by its exit status that it was asked to quit.
class QuittingApplication : public QCoreApplication {
 public:
  using QCoreApplication::QCoreApplication;

 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Quit) std::_Exit(kQuitStatus);
    return QCoreApplication::event(event);
  }
};

/// Gets a signal twice, so many seconds apart, before any event runs, and then waits for events.
[[noreturn]] void runWith(int signal, unsigned seconds) {
  char name[] = "zel";
  char* arguments[] = {name, nullptr};
  int argument_count = 1;
  QuittingApplication application(argument_count, arguments);
  std::signal(signal, SIG_DFL);  // shells let what they start in the background ignore some
  quitOnSignals();
  std::raise(signal);
  ::sleep(seconds);
  std::raise(signal);
  QCoreApplication::exec();
  std::_Exit(EXIT_FAILURE);
}

/// Is to ignore hang-ups, as under nohup, gets one, and after it a signal that ends it.
[[noreturn]] void ignoreHangUps() {
  std::signal(SIGHUP, SIG_IGN);
  char name[] = "zel";
  char* arguments[] = {name, nullptr};
  int argument_count = 1;
  QuittingApplication application(argument_count, arguments);
  quitOnSignals();
  std::raise(SIGHUP);
  QCoreApplication::processEvents();
  std::_Exit(EXIT_SUCCESS);
}

class SignalDeathTest : public ::testing::TestWithParam<int> {
 protected:
  SignalDeathTest() { GTEST_FLAG_SET(death_test_style, "threadsafe"); }
};

TEST_P(SignalDeathTest, QuitsTheApplicationBetweenTwoEvents) {
  EXPECT_EXIT(runWith(GetParam(), 0), ::testing::ExitedWithCode(kQuitStatus), "");
}

TEST_P(SignalDeathTest, EndsAtALaterOneWhatDoesNotComeToItsEvents) {
  EXPECT_EXIT(runWith(GetParam(), 3), ::testing::KilledBySignal(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalDeathTest, ::testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(IgnoredSignalDeathTest, StaysIgnored) {
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  EXPECT_EXIT(ignoreHangUps(), ::testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace
}  // namespace zel::test
