#pragma once

#include <QApplication>
#include <functional>

namespace zel {

/// The application. What a window throws in the middle of an event, for want of memory above all,
/// ends there: no exception passes through the toolkit, and the program goes on.
class Application : public QApplication {
 public:
  /// The arguments outlive the application, which takes its own options out of them. No session
  /// manager starts it again: the program would come without its document, and keeps the last
  /// session itself.
  Application(int& argument_count, char** arguments);

  /// Tells the user, or ends the program. Not called for what it throws itself.
  std::function<void()> failed = [] {};

  /// Ends the program where the desktop does, at the end of its session, or the system. Windows are
  /// not asked: one that hides when it is closed would stand in the way of a logout.
  std::function<void()> quits = [] {};

  /// An Enter that is held down accepts once: not also the dialog or the question that comes next.
  bool notify(QObject* receiver, QEvent* event) override;

 protected:
  bool event(QEvent* event) override;

 private:
  void tellFailure();

  bool is_telling_ = false;
};

}  // namespace zel
