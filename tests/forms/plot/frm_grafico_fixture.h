#pragma once

#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/plot_arguments.h"
#include "forms/plot/frm_grafico.h"
#include "forms/plot/picture_box.h"
#include "graphs/graph_builders.h"
#include "support/fake_services.h"
#include "support/language_guard.h"
#include "support/qt_application.h"

namespace zel::test {

/// The window that the plot window goes back to.
class CallerForm : public FormWindow {
 public:
  explicit CallerForm(const Program& program) : program_(program) {}
  void showForm() override {
    ++shown;
    received = program_.params;
    if (on_show) on_show();
  }

  int shown = 0;
  FormParams received;
  std::function<void()> on_show;

 private:
  const Program& program_;
};

/// The real plot window, offscreen.
class GraficoTest : public ::testing::Test {
 protected:
  GraficoTest() {
    program.engine.InitEngine();
    picture = window.findChild<PictureBox*>("picGrafico");
    QObject::connect(picture, &PictureBox::graphBegun, [this](char letter) { note(letter); });
  }

  /// Shows the window as the main window does, and lets it draw.
  void open(const ViewSettings& asked) {
    FormParams& params = program.params;
    handViewOver(params, asked, &caller);
    params.Add("mantener_prop", asked.mantener_prop);
    window.showForm();
    settle();
  }

  /// Lets all that is pending run, what it leads to included.
  static void settle() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  /// The size that a picture would have that fills the window but for its margins and the list.
  QSize room() const {
    const QSize inside = picture->parentWidget()->size();
    const auto* const list = window.findChild<QWidget*>("LstGraficos");
    const int taken = list->isHidden() ? 0 : list->width() + picture->x();
    return {inside.width() - 2 * picture->x() - taken,
            inside.height() - picture->x() - picture->y()};
  }

  /// Resizes the window so that its picture would have this size, as a window manager does that
  /// heeds no least size.
  void resizeFor(QSize size) {
    picture->parentWidget()->setMinimumSize(1, 1);
    settle();
    window.resize(window.size() + size - room());
    settle();
  }

  /// Opens a view of -10 to 10 on both axes on a picture of 400 x 400 pixels: a unit has 20 of
  /// them, and a step of the trace is 0,5.
  void openUsual() {
    open(view);
    resizeFor({400, 400});
    begun.clear();
  }

  /// The place of a point of that view, in the pixels of its picture.
  static QPointF at(double x, double y) { return {200 + 20 * x, 200 - 20 * y}; }

  template <class Widget>
  Widget& control(std::string_view name) {
    return *window.findChild<Widget*>(toQt(name));
  }
  QToolButton& button(std::string_view key) { return control<QToolButton>(key); }
  void click(std::string_view key) { button(key).click(); }

  /// An event of the mouse on the picture, at a place in its pixels.
  void mouse(QEvent::Type type, QPointF place, Qt::MouseButton button, Qt::MouseButtons held) {
    QMouseEvent event(type, place, picture->mapToGlobal(place), button, held, Qt::NoModifier);
    QApplication::sendEvent(picture, &event);
  }
  void mouseDown(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonPress, place, button, button);
  }
  void mouseMove(QPointF place, Qt::MouseButtons held = Qt::NoButton) {
    mouse(QEvent::MouseMove, place, Qt::NoButton, held);
  }
  void mouseUp(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    mouse(QEvent::MouseButtonRelease, place, button, Qt::NoButton);
  }
  void mouseClick(QPointF place, Qt::MouseButton button = Qt::LeftButton) {
    mouseDown(place, button);
    mouseUp(place, button);
  }
  void turnWheel(QPointF place, QPoint eighths) {
    QWheelEvent event(place, picture->mapToGlobal(place), QPoint(), eighths, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(picture, &event);
  }

  void expectView(double xi, double xf, double yi, double yf) {
    const ViewSettings& is = window.session().view();
    EXPECT_NEAR(is.xi, xi, 1e-9);
    EXPECT_NEAR(is.xf, xf, 1e-9);
    EXPECT_NEAR(is.yi, yi, 1e-9);
    EXPECT_NEAR(is.yf, yf, 1e-9);
  }

  /// Does something soon after a graph is begun for the nth time, while it is being drawn.
  void inside(char letter, int time, const std::function<void()>& happening) {
    happenings_[{letter, time}] = happening;
  }

  /// Does something a little later.
  template <class Happening>
  void later(int milliseconds, const Happening& happening) {
    QTimer::singleShot(milliseconds, &window, happening);
  }

  void addFunction(char letter, const std::string& formula, std::int32_t colour = 0x0000FF) {
    program.graphs.rebuildGraph(letter, formula, "", colour, 'F', nullptr);
  }

  /// A family that goes on until it is stopped. A test that forgets to stop it fails.
  void addEndlessFamily(char letter) {
    std::string message;
    const auto field = [](const char* text) { return Field{text, "campo"}; };
    ASSERT_EQ(acceptGraph(program.graphs, program.engine, letter, 0xFF0000,
                          FamilyFields{field("P+x"), field("0"), field("1"), field("0")}, message),
              Accepted::stored);
    rescue_.setSingleShot(true);
    QObject::connect(&rescue_, &QTimer::timeout, [this] {
      ADD_FAILURE() << "The drawing goes on without end.";
      program.graphs.clearGraphs();
      window.close();
    });
    rescue_.start(60000);
  }

  void press(Qt::Key key) { QTest::keyClick(picture, key); }

  /// The texts of the visible panels.
  std::vector<std::string> panels() const {
    std::vector<std::string> result;
    for (int i = 1; i <= 4; ++i) {
      const auto* panel = window.findChild<QLabel*>("StatusBar1_Panel" + QString::number(i));
      if (panel->isVisible()) result.push_back(fromQt(panel->text()));
    }
    return result;
  }

  /// A parametric curve: a circle of radius 5.
  void addParametric(char letter) {
    std::string message;
    const auto field = [](const char* text) { return Field{text, "campo"}; };
    ASSERT_EQ(acceptGraph(program.graphs, program.engine, letter, 0x00FF00,
                          ParametricFields{field("5*cos(t)"), field("5*sen(t)"), field("0"),
                                           field("360"), field("10")},
                          message),
              Accepted::stored);
  }

  /// A family of the lines y = x + P, for P of -2, 0 and 2.
  void addFamily(char letter) {
    std::string message;
    const auto field = [](const char* text) { return Field{text, "campo"}; };
    ASSERT_EQ(acceptGraph(program.graphs, program.engine, letter, 0xFF0000,
                          FamilyFields{field("x+P"), field("-2"), field("2"), field("2")}, message),
              Accepted::stored);
  }

  static int pixelsThatAreNotWhite(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) != QColor(Qt::white)) ++count;
    return count;
  }

  QApplication& app = application();
  LanguageGuard language{"ES"};
  FakeServices services;
  Program program{services.services()};
  CallerForm caller{program};
  frmGrafico window{program};
  PictureBox* picture = nullptr;
  std::string begun;  // the letters of the graphs that were begun
  ViewSettings view{-10, -10, 10, 10, 10, false};

 private:
  void note(char letter) {
    begun += letter;
    const auto time = static_cast<int>(std::count(begun.begin(), begun.end(), letter));
    const auto found = happenings_.find({letter, time});
    if (found != happenings_.end()) later(kSoon, found->second);
  }

  static constexpr int kSoon = 20;  // milliseconds

  std::map<std::pair<char, int>, std::function<void()>> happenings_;
  QTimer rescue_;
};

}  // namespace zel::test
