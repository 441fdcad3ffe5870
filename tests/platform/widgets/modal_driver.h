#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <vector>

#include <gtest/gtest.h>

namespace zel::test {

/// Does one thing after the other with the modal windows that come up, in their order, each as soon
/// as its window of this class is there. A window that nobody expected is closed and fails the
/// test.
template <class Window>
class ModalDriver {
 public:
  using Step = std::function<void(Window&)>;

  explicit ModalDriver(std::vector<Step> steps) : steps_(std::move(steps)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
    timer_.start(10);
  }
  ModalDriver(const ModalDriver&) = delete;
  ModalDriver& operator=(const ModalDriver&) = delete;
  ~ModalDriver() { EXPECT_EQ(next_, steps_.size()) << "fewer windows than expected"; }

 private:
  void look() {
    QWidget* const top = QApplication::activeModalWidget();
    if (!top || top == last_ || !top->isVisible()) return;
    last_ = top;
    auto* const window = qobject_cast<Window*>(top);
    if (window && next_ < steps_.size()) {
      steps_[next_++](*window);
      return;
    }
    ADD_FAILURE() << "unexpected window " << top->windowTitle().toStdString();
    top->close();
  }

  std::vector<Step> steps_;
  std::size_t next_ = 0;
  QPointer<QWidget> last_;
  QTimer timer_;
};

}  // namespace zel::test
