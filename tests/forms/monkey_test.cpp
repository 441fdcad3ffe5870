// Random clicks, keys, texts, documents, resizes and closes over all windows, also while a plot is
// being drawn: nothing crashes, hangs or warns. ZEL_MONKEY_EVENTS and ZEL_MONKEY_SEED choose how
// many and which.
#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <map>
#include <optional>
#include <utility>

#include "forms/forms.h"
#include "forms/hostile_inputs.h"
#include "forms/monkey_hands.h"
#include "forms/waits.h"
#include "forms/window_fixture.h"
#include "platform/widgets/widget_help_viewer.h"

namespace zel::test {
namespace {

unsigned long setting(const char* name, unsigned long otherwise) {
  const char* text = std::getenv(name);
  return text ? std::strtoul(text, nullptr, 10) : otherwise;
}

/// The real help, which tells when it lays its text out: at each command, and in another size.
class WatchedHelp : public QObject, public HelpViewer {
 public:
  explicit WatchedHelp(std::function<void()> lays_out) : lays_out_(std::move(lays_out)) {
    qApp->installEventFilter(this);
  }

  void show(const std::string& help_file, int command) override {
    help_.show(help_file, command);
    lays_out_();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* const widget = qobject_cast<QWidget*>(watched);
    const bool is_resized = widget && event->type() == QEvent::Resize;
    if (is_resized && widget->window()->objectName() == "frmAyuda") lays_out_();
    return false;
  }

 private:
  WidgetHelpViewer help_{{ZEL_SOURCE_DIR "/help"}};  // its links lead to its own headings alone
  std::function<void()> lays_out_;
};

class Monkey : public WindowTest {
  MonkeyHands hands_{setting("ZEL_MONKEY_SEED", 1)};

 protected:
  Monkey() {
    services.boxes.on_show = [this](const FakeMessageBoxes::Box&) { answerSomething(); };
    program.end_process = [this] { ended_ = true; };
    QObject::connect(&patience_, &QTimer::timeout, [this] { closeForgottenMenu(); });
    patience_.start(20);
    for (QTimer& timer : inside_) {
      QObject::connect(&timer, &QTimer::timeout, [this] { actInside(); });
      timer.start(0);
    }
    program.last_session = LastSession("state");
    services.help.real = &help_;
    writeHostileDocuments();
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

  int below(int limit) { return hands_.below(limit); }

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
    services.colours.colours = {below(0x1000000)};
    services.browser.calls.clear();
    services.mail.calls.clear();
    services.help.shown.clear();
    services.inputs.asked.clear();
    services.inputs.answers = {below(2) == 0 ? "0,5" : hands_.anyText().toStdString()};
    services.clipboard.calls.clear();
    services.printer.asked.clear();
    services.printer.printed.clear();
    services.printer.made_pdfs.clear();
    services.recent.added.clear();
    services.recent.listed = {"uno.zel", "tres.zel", "&amp;[*].zel"};
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

  static bool isReachable(const QWidget& window) {
    if (const QWidget* popup = QApplication::activePopupWidget()) return popup == &window;
    const QWidget* modal = QApplication::activeModalWidget();
    return !modal || modal == &window;
  }

  void chooseAction(QWidget& window) {
    const auto actions = window.findChildren<QAction*>();
    if (actions.isEmpty()) return;
    QAction* action = actions[below(static_cast<int>(actions.size()))];
    if (action->isEnabled()) action->trigger();
  }

  void openDocument(QWidget& window) {
    auto* const open = window.findChild<QAction*>("mAbrir");
    if (!open) return chooseAction(window);
    const auto number = static_cast<std::size_t>(below(int{kHostileDocuments.size()}));
    if (kHostileDocuments[number] == "danado.zel")
      writeDamagedDocument(static_cast<std::size_t>(below(int{DamagedDocuments::kCount})));
    services.files.paths = {std::string(kHostileDocuments[number])};
    open->trigger();
  }

  /// Few random clicks lead to the plot, to the export window, to the help or from the plot to the
  /// print window, so these are opened on purpose now and then.
  void goFurther(QWidget& window) {
    auto* const exports = window.findChild<QAction*>("mExportar");
    if (exports && below(3) == 0) return exports->trigger();
    auto* const help = window.findChild<QAction*>("mTemasDeAyuda");
    if (help && below(6) == 0) return help->trigger();
    for (const char* name : {"CmdGraficarLista", "Imprimir"})
      if (auto* const button = window.findChild<QAbstractButton*>(name)) return button->click();
    hands_.click(window);
  }

  /// The menu of a toolbar that is too narrow waits for its user; one who has gone is not coming.
  void closeForgottenMenu() {
    QWidget* const popup = QApplication::activePopupWidget();
    if (popup && events_ == events_seen_) popup->close();
    events_seen_ = events_;
  }

  struct Kind {
    const char* name;
    int share;  // in a thousand events
    void (*act)(Monkey& monkey, QWidget& window);
  };
  static constexpr auto kKinds = std::to_array<Kind>(
      {{"click", 470, [](Monkey& m, QWidget& window) { m.hands_.click(window); }},
       {"key", 320, [](Monkey& m, QWidget& window) { m.hands_.press(window); }},
       {"wheel", 40, [](Monkey& m, QWidget& window) { m.hands_.turnWheel(window); }},
       {"text", 30, [](Monkey& m, QWidget& window) { m.hands_.enterText(window); }},
       {"action", 40, [](Monkey& m, QWidget& window) { m.chooseAction(window); }},
       {"document", 10, [](Monkey& m, QWidget& window) { m.openDocument(window); }},
       {"further", 20, [](Monkey& m, QWidget& window) { m.goFurther(window); }},
       {"resize", 50, [](Monkey& m, QWidget& window) { m.hands_.resize(window); }},
       {"close", 20, [](Monkey&, QWidget& window) { window.close(); }}});

  const Kind& anyKind() {
    int left = below(1000);
    for (const Kind& kind : kKinds)
      if ((left -= kind.share) < 0) return kind;
    return kKinds.back();
  }

  /// One event for a window that the user can reach.
  void act() {
    QWidget* const window = anyWindow();
    if (!window || !isReachable(*window)) return;
    preset();
    ++events_;
    const std::string name = window->objectName().toStdString();
    ++visits_[name];
    const Kind& kind = anyKind();
    wait_.begin(name + " " + kind.name);
    kind.act(*this, *window);
    wait_.end();
  }

  /// Behind the presentation the other windows are made, and the user's events wait.
  bool isBeingMade() const {
    const auto windows = QApplication::topLevelWidgets();
    return !has_started_ && std::ranges::any_of(windows, [](const QWidget* window) {
      return window->isVisible() && window->objectName() == "frmPresentacion";
    });
  }

  /// What the user does while a plot is being drawn or a menu is up. Only so many of these run
  /// inside one another; then the plot is stopped and the menu closed.
  void actInside() {
    if (depth_ == 0 || ended_ || isBeingMade()) return;
    if (depth_ <= kDeepest) {
      ++depth_;
      ++inside_events_;
      act();
      --depth_;
      return;
    }
    if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      if (window->objectName() != "frmGrafico") continue;
      QKeyEvent stop(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, "\x1b");
      QApplication::sendEvent(window, &stop);
    }
  }

  /// The main window is the end of the program, and so the monkey starts it anew.
  void actOutside() {
    ++rounds_;
    if (ended_ || !anyWindow()) return start(StartStep::presentation);
    depth_ = 1;
    act();
    if (rounds_ % 4 == 0) {
      wait_.begin("pending events");
      QApplication::processEvents();
      wait_.end();
    }
    depth_ = 0;
  }

  /// A monkey that sits in a corner has tried nothing.
  bool hasBeenEverywhere() const {
    constexpr std::array kWindows = {"frmIdioma",      "frmPresentacion", "frmDatosIni",
                                     "frmAdmGraficos", "frmGrafico",      "frmImprimir",
                                     "frmExportar",    "frmAcercaDe",     "frmAyuda"};
    return std::ranges::all_of(kWindows, [&](const char* name) { return visits_.contains(name); });
  }

  void start(StartStep step) {
    ended_ = false;
    forms_.reset();
    program.params = makeFormParams();
    forms_.emplace(program, "");
    has_started_ = false;
    forms_->started = [this] { has_started_ = true; };
    wait_.begin("start");  // which is no event of the user's
    forms_->begin(step);
    wait_.end();
  }

  unsigned long events_ = 0;
  unsigned long rounds_ = 0;
  unsigned long inside_events_ = 0;  // of the events, those inside of others
  std::map<std::string, unsigned long> visits_;
  Waits wait_{{"start", "help"}};

 private:
  WatchedHelp help_{[this] { wait_.countAs("help"); }};
  std::optional<Forms> forms_;
  QTimer patience_;
  static constexpr int kDeepest = 3;
  std::array<QTimer, kDeepest + 1> inside_;  // a timer does not go off inside of itself
  int depth_ = 0;                            // of the events that are under way
  bool ended_ = false;
  bool has_started_ = false;
  unsigned long events_seen_ = 0;
};

TEST_F(Monkey, CannotBreakTheProgram) {
  start(StartStep::first_start);
  const unsigned long events = setting("ZEL_MONKEY_EVENTS", 10000);
  // Where it comes depends on what the clocks of the windows do meanwhile.
  while ((events_ < events || !hasBeenEverywhere()) && rounds_ < 10 * events && !HasFailure())
    actOutside();
  std::cout << "monkey: " << events_ << " events, " << inside_events_
            << " of them inside of others\n"
            << wait_.text() << '\n';
  EXPECT_GE(events_, events) << "most windows could not be reached";
  EXPECT_GT(inside_events_, 0u);
  EXPECT_TRUE(hasBeenEverywhere());
}

}  // namespace
}  // namespace zel::test
