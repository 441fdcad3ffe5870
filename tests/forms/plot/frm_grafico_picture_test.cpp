#include <QProcess>
#include <QProcessEnvironment>

#include "frm_grafico_fixture.h"
#include "support/patience.h"

/// The picture of the plot window: its size, and that it lasts.
namespace zel::test {
namespace {

class GraficoPicture : public GraficoTest {
 protected:
  /// The size of the picture, as the session sees it and as it is.
  void expectPicture(QSize size) {
    EXPECT_EQ(picture->size(), size);
    EXPECT_EQ(window.session().pictureSize(), PictureSize::ofPixels(size.width(), size.height()));
  }

  /// Runs the current test in a process of its own at this scale. True inside of that process.
  bool runsAtScale(const char* scale) {
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) return true;
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", scale);
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QCoreApplication::applicationFilePath(),
                  {QString("--gtest_filter=%1.%2").arg(info->test_suite_name(), info->name())});
    EXPECT_TRUE(process.waitForFinished(kPatience));
    EXPECT_EQ(process.exitCode(), 0);
    return false;
  }
};

TEST_F(GraficoPicture, IsOfTheFirstSizeThatTheScreenAllows) {
  open(view);
  expectPicture(room());
  EXPECT_LE(window.width(), window.screen()->availableSize().width());
  EXPECT_GE(picture->width(), 600);
}

TEST_F(GraficoPicture, FollowsItsWindow) {
  addFunction('a', "x");
  open(view);
  resizeFor({400, 300});
  expectPicture({400, 300});
  EXPECT_EQ(picture->image().size(), QSize(400, 300));
  EXPECT_EQ(begun, "aa");
}

TEST_F(GraficoPicture, FollowsWhileBothSidesHave1000Twips) {
  addFunction('a', "x");
  open(view);
  struct Row {
    QSize asked, becomes;
  };
  const Row rows[] = {
      {{300, 200}, {300, 200}}, {{66, 200}, {300, 200}}, {{300, 66}, {300, 200}},
      {{300, 67}, {300, 67}},   {{66, 67}, {300, 67}},   {{400, 66}, {300, 67}},
  };
  for (const Row& row : rows) {
    begun.clear();
    resizeFor(row.asked);
    ASSERT_EQ(room(), row.asked);
    expectPicture(row.becomes);
    EXPECT_EQ(begun, row.asked == row.becomes ? "a" : "");
  }
}

TEST_F(GraficoPicture, OfLessThan100PixelsHasNoSamplesAndIsRefused) {
  open(view);
  resizeFor({99, 200});
  EXPECT_EQ(services.boxes.shown.size(), 1u);
  EXPECT_EQ(caller.shown, 1);
}

// Where there is room for the texts beside it.
TEST_F(GraficoPicture, AWindowStopsAtASizeWithAPictureThatCanBeDrawn) {
  addFunction('a', "x");
  addFunction('b', "-x");
  for (const std::string code : {"ES", "EN"}) {
    SetCurrentLanguage(code);
    open(view);
    begun.clear();
    window.resize(50, 60);
    settle();
    EXPECT_GT(window.width(), 400);
    EXPECT_GE(picture->width(), 240);
    EXPECT_EQ(picture->height(), 180);
    expectPicture(room());
    EXPECT_EQ(begun, "ab");
    EXPECT_EQ(caller.shown, 0);
    for (const char* name : {"CmdGrafAnterior", "CmdGrafSiguiente", "CmdNumeros"}) {
      const QWidget& button = control<QWidget>(name);
      EXPECT_GE(button.width(), button.minimumSizeHint().width()) << name;
    }
    const QWidget& label = control<QWidget>("LblGrafico");
    EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(QStringLiteral("a(x)=…")));
    window.resize(900, 700);
    settle();
  }
}

TEST_F(GraficoPicture, AWindowThatIsForcedBelowItsLeastSizeKeepsThePictureItHad) {
  addFunction('a', "x");
  open(view);
  const QSize before = picture->size();
  resizeFor({30, 40});
  expectPicture(before);
}

TEST_F(GraficoPicture, LastsWithoutARedraw) {
  addFunction('a', "x");
  open(view);
  const QImage image = picture->image();
  const QImage seen = picture->grab().toImage();
  program.graphs.clearGraphs();
  for (int i = 0; i < 3; ++i) {
    window.hide();
    settle();
    window.show();
    settle();
    picture->repaint();
    picture->update();
    settle();
  }
  EXPECT_EQ(begun, "a");
  EXPECT_EQ(picture->image(), image);
  EXPECT_EQ(picture->grab().toImage(), seen);
  EXPECT_EQ(seen.convertToFormat(QImage::Format_RGB32), image);
}

TEST_F(GraficoPicture, IsWhitePaperInADarkPaletteToo) {
  QPalette dark;
  dark.setColor(QPalette::Window, Qt::black);
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::WindowText, Qt::white);
  window.setPalette(dark);
  open(view);
  EXPECT_EQ(picture->grab().toImage().pixelColor(2, 2), QColor(Qt::white));
  EXPECT_EQ(picture->image().pixelColor(picture->width() / 2, 2), QColor(Qt::black));
}

TEST_F(GraficoPicture, IsSharpOnADenseScreen) {
  if (!runsAtScale("2")) return;
  addFunction('a', "x");
  open(view);
  ASSERT_EQ(picture->devicePixelRatioF(), 2);
  EXPECT_EQ(picture->image().size(), picture->size() * 2);
  EXPECT_EQ(window.session().pictureSize(),
            PictureSize::ofPixels(picture->width(), picture->height()));
  // The y axis lies in the middle, one logical pixel wide: two of the device, and none grey.
  const QImage seen = picture->grab().toImage();
  ASSERT_EQ(seen.size(), picture->size() * 2);
  int black = 0;
  for (int x = seen.width() / 2 - 5; x < seen.width() / 2 + 5; ++x) {
    const QColor colour = seen.pixelColor(x, 3);
    EXPECT_TRUE(colour == QColor(Qt::white) || colour == QColor(Qt::black)) << x;
    if (colour == QColor(Qt::black)) ++black;
  }
  EXPECT_EQ(black, 2);
}

TEST_F(GraficoPicture, IsSharpBetweenWholeScales) {
  if (!runsAtScale("1.25")) return;
  QWidget around;
  around.resize(200, 150);
  PictureBox box(&around);
  box.setGeometry(3, 5, 101, 83);  // which begins and ends between pixels of the device
  box.clear();
  box.beginGraph('a', 0);
  box.startPiece({0, 0});
  box.extendPiece({1500, 1200});
  box.showDrawn();
  const QImage image = box.image();
  ASSERT_EQ(image.size(), QSize(127, 104));
  const QImage seen = around.grab().toImage().convertToFormat(QImage::Format_RGB32);
  int differences = 0;
  for (int y = 1; y < image.height() - 1; ++y)
    for (int x = 1; x < image.width() - 1; ++x)
      if (seen.pixel(4 + x, 6 + y) != image.pixel(x, y)) ++differences;
  EXPECT_EQ(differences, 0);
}

}  // namespace
}  // namespace zel::test
