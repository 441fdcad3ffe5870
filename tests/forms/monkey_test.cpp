// Random clicks, keys, resizes and closes over all windows: nothing crashes, hangs or warns.
// ZEL_MONKEY_EVENTS and ZEL_MONKEY_SEED choose how many and which.
#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPointer>
#include <QTimer>
#include <QWheelEvent>
#include <cstdlib>
#include <iostream>
#include <map>
#include <optional>
#include <random>

#include "forms/forms.h"
#include "forms/longest_wait.h"
#include "forms/window_fixture.h"

namespace zel::test {
namespace {

unsigned long setting(const char* name, unsigned long otherwise) {
  const char* text = std::getenv(name);
  return text ? std::strtoul(text, nullptr, 10) : otherwise;
}

class Monkey : public WindowTest {
 protected:
  Monkey() : random_(setting("ZEL_MONKEY_SEED", 1)) {
    services.boxes.on_show = [this](const FakeMessageBoxes::Box&) { answerSomething(); };
    program.end_process = [this] { ended_ = true; };
    QObject::connect(&patience_, &QTimer::timeout, [this] { closeForgottenMenu(); });
    patience_.start(20);
    addFunction('a', "x^2/4-2");
    addFunction('b', "inv(x)");
    program.graphs.rebuildGraph('f', "p*x", "", 0x00FF00, 'Z', family());
  }

  static std::shared_ptr<Parameters> family() {
    auto parameters = std::make_shared<Parameters>();
    parameters->Add("parametro", "P");
    parameters->Add("inicio", "-1");
    parameters->Add("fin", "1");
    parameters->Add("variacion", "0,5");
    return parameters;
  }

  int below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(random_); }

  void answerSomething() {
    constexpr std::array<BoxAnswer, 4> kAnswers = {BoxAnswer::ok, BoxAnswer::cancel,
                                                   BoxAnswer::try_again, BoxAnswer::continue_};
    services.boxes.answers = {kAnswers[static_cast<std::size_t>(below(4))]};
    services.boxes.shown.clear();
  }

  /// What the dialogs will answer, and no more memory than one answer.
  void preset() {
    services.files.asked.clear();
    services.files.proposals.clear();
    services.files.paths.clear();
    if (below(2) == 0) services.files.paths.push_back(below(2) == 0 ? "uno.zel" : "no/dos.zel");
    services.colours.initials.clear();
    services.colours.colours = {static_cast<std::int32_t>(random_() & 0xFFFFFF)};
    services.browser.calls.clear();
    services.mail.calls.clear();
    services.help.shown.clear();
    services.inputs.asked.clear();
    services.inputs.answers = {below(2) == 0 ? "0,5" : "nada"};
    services.clipboard.calls.clear();
    services.printer.asked.clear();
    services.printer.printed.clear();
    services.printer.made_pdfs.clear();
    services.recent.added.clear();
    services.recent.listed = {"uno.zel", "tres.zel"};
    constexpr std::array<PrintOutcome, 4> kOutcomes = {
        PrintOutcome::printed, PrintOutcome::cancelled, PrintOutcome::not_started,
        PrintOutcome::failed};
    services.printer.outcome = kOutcomes[static_cast<std::size_t>(below(4))];
  }

  QWidget* anyWindow() {
    QWidgetList visible;
    for (QWidget* widget : QApplication::topLevelWidgets())
      if (widget->isVisible()) visible.append(widget);
    return visible.isEmpty() ? nullptr : visible[below(static_cast<int>(visible.size()))];
  }

  /// The window itself now and then, otherwise one of its controls.
  QWidget* anyControl(QWidget& window) {
    QWidgetList controls = {&window};
    for (QWidget* child : window.findChildren<QWidget*>())
      if (child->isVisible() && child->isEnabled()) controls.append(child);
    return controls[below(static_cast<int>(controls.size()))];
  }

  static bool isReachable(const QWidget& window) {
    if (const QWidget* popup = QApplication::activePopupWidget()) return popup == &window;
    const QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == &window;
  }

  void click(QWidget& target) {
    const QPointF place(below(std::max(1, target.width())), below(std::max(1, target.height())));
    const auto button = below(6) == 0 ? Qt::RightButton : Qt::LeftButton;
    const QPointF global = target.mapToGlobal(place);
    QMouseEvent press(below(8) == 0 ? QEvent::MouseButtonDblClick : QEvent::MouseButtonPress, place,
                      global, button, button, Qt::NoModifier);
    const QPointer<QWidget> alive(&target);
    QApplication::sendEvent(&target, &press);
    if (alive && below(3) == 0) {
      const QPointF further = place + QPointF(below(200) - 100, below(200) - 100);
      QMouseEvent move(QEvent::MouseMove, further, target.mapToGlobal(further), Qt::NoButton,
                       button, Qt::NoModifier);
      QApplication::sendEvent(&target, &move);
    }
    if (!alive) return;
    QMouseEvent release(QEvent::MouseButtonRelease, place, global, button, Qt::NoButton,
                        Qt::NoModifier);
    QApplication::sendEvent(&target, &release);
  }

  void turnWheel(QWidget& target) {
    const QPointF place(below(std::max(1, target.width())), below(std::max(1, target.height())));
    QWheelEvent event(place, target.mapToGlobal(place), QPoint(), QPoint(0, 60 * (below(9) - 4)),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&target, &event);
  }

  void press(QWidget& target) {
    constexpr std::array<Qt::Key, 16> kKeys = {
        Qt::Key_Return, Qt::Key_Escape,    Qt::Key_Tab,  Qt::Key_Space,
        Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Left, Qt::Key_Right,
        Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Home, Qt::Key_End,
        Qt::Key_PageUp, Qt::Key_PageDown,  Qt::Key_F1,   Qt::Key_Backtab};
    constexpr std::string_view kTyped = "0123456789,.-+*/^()!xtpeEsincolg CcPp";
    if (below(2) == 0) {
      const Qt::Key key = kKeys[static_cast<std::size_t>(below(kKeys.size()))];
      const QString text = key == Qt::Key_Escape ? "\x1b" : key == Qt::Key_Space ? " " : "";
      QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, text);
      QApplication::sendEvent(&target, &down);
    } else {
      const char typed = kTyped[static_cast<std::size_t>(below(static_cast<int>(kTyped.size())))];
      QKeyEvent down(QEvent::KeyPress, typed, Qt::NoModifier, QString(QChar(typed)));
      QApplication::sendEvent(&target, &down);
    }
  }

  void chooseAction(QWidget& window) {
    const auto actions = window.findChildren<QAction*>();
    if (actions.isEmpty()) return;
    QAction* action = actions[below(static_cast<int>(actions.size()))];
    if (action->isEnabled()) action->trigger();
  }

  /// Few random clicks lead to the plot and from there to the print window, so both are opened on
  /// purpose now and then.
  bool goFurther(QWidget& window) {
    if (below(50) != 0) return false;
    for (const char* name : {"CmdGraficarLista", "Imprimir"}) {
      auto* const button = window.findChild<QAbstractButton*>(name);
      if (!button) continue;
      button->click();
      return true;
    }
    return false;
  }

  /// The menu of a toolbar that is too narrow waits for its user; one who has gone is not coming.
  void closeForgottenMenu() {
    QWidget* const popup = QApplication::activePopupWidget();
    if (popup && events_ == events_seen_) popup->close();
    events_seen_ = events_;
  }

  void doSomething(QWidget& window) {
    ++events_;
    if (goFurther(window)) return;
    const int choice = below(100);
    QWidget& target = *anyControl(window);
    if (choice < 48)
      click(target);
    else if (choice < 52)
      turnWheel(target);
    else if (choice < 88)
      press(target);
    else if (choice < 93)
      chooseAction(window);
    else if (choice < 98)
      window.resize(40 + below(1000), 40 + below(700));
    else
      window.close();
  }

  void start(StartStep step) {
    ended_ = false;
    forms_.reset();
    program.params = makeFormParams();
    forms_.emplace(program, "");
    forms_->begin(step);
  }

  bool ended_ = false;
  std::map<std::string, unsigned long> visits_;
  LongestWait wait_;

 private:
  std::mt19937 random_;
  std::optional<Forms> forms_;
  QTimer patience_;
  unsigned long events_ = 0;
  unsigned long events_seen_ = 0;
};

TEST_F(Monkey, CannotBreakTheProgram) {
  start(StartStep::first_start);
  const unsigned long events = setting("ZEL_MONKEY_EVENTS", 40000);
  for (unsigned long i = 0; i < events; ++i) {
    preset();
    QWidget* window = anyWindow();
    // The main window is the end of the program, and so the monkey starts it anew.
    if (!window || ended_) {
      start(StartStep::presentation);
      continue;
    }
    if (!isReachable(*window)) continue;
    const std::string name = fromQt(window->objectName());
    ++visits_[name];
    wait_.begin();
    doSomething(*window);
    if (i % 4 == 0) QApplication::processEvents();
    wait_.end(name);
  }
  std::cout << wait_.text() << '\n';
  // A monkey that sits in a corner has tried nothing.
  for (const char* name : {"frmIdioma", "frmPresentacion", "frmDatosIni", "frmAdmGraficos",
                           "frmGrafico", "frmImprimir", "frmExportar", "frmAcercaDe"})
    EXPECT_GT(visits_[name], 0u) << name;
}

}  // namespace
}  // namespace zel::test
