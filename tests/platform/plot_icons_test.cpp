#include "platform/icons/plot_icons.h"

#include <QGuiApplication>
#include <QImage>
#include <QPalette>

#include <gtest/gtest.h>

#include "plot/session/plot_command.h"
#include "plot/session/trace.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

class PlotIcons : public ::testing::Test {
 protected:
  PlotIcons() {
    application();
    before_ = QGuiApplication::palette();
  }
  ~PlotIcons() override { QGuiApplication::setPalette(before_); }

  static void useInk(const QColor& ink) {
    QPalette palette;
    palette.setColor(QPalette::ButtonText, ink);
    QGuiApplication::setPalette(palette);
  }

  static QImage image(std::string_view key, int side = 24, QIcon::Mode mode = QIcon::Normal) {
    return plotIcon(key)
        .pixmap(QSize(side, side), 1, mode)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
  }

  static int count(const QImage& image, const QColor& colour) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == colour) ++found;
    return found;
  }

  static std::vector<std::string> keys() {
    std::vector<std::string> keys(kPlotCommandKeys.begin(), kPlotCommandKeys.end());
    for (const char* const more :
         {"CmdGrafAnterior", "CmdGrafSiguiente", "CmdNumeros", "creciente_der", "creciente_izq",
          "decreciente_der", "decreciente_izq", "igual"})
      keys.emplace_back(more);
    return keys;
  }

 private:
  QPalette before_;
};

TEST_F(PlotIcons, AreThereForEveryKeyAtEverySize) {
  for (const std::string& key : keys()) {
    for (const int side : {16, 24, 32, 64}) {
      const QImage drawn = image(key, side);
      EXPECT_EQ(drawn.size(), QSize(side, side)) << key;
      EXPECT_LT(count(drawn, QColor(0, 0, 0, 0)), side * side * 9 / 10) << key << " " << side;
      EXPECT_GT(count(drawn, QColor(0, 0, 0, 0)), side * side / 4) << key << " " << side;
    }
  }
}

TEST_F(PlotIcons, AreAllDifferent) {
  std::vector<QImage> images;
  for (const std::string& key : keys()) {
    for (const QImage& other : images) EXPECT_NE(image(key), other) << key;
    images.push_back(image(key));
  }
}

TEST_F(PlotIcons, AreNullForAnyOtherKey) {
  EXPECT_TRUE(plotIcon("").isNull());
  EXPECT_TRUE(plotIcon("recorrer").isNull());
}

TEST_F(PlotIcons, FollowThePalette) {
  for (const QColor ink : {QColor("#101010"), QColor("#eeeeee")}) {
    useInk(ink);
    EXPECT_GT(count(image("Parar"), ink), 100);
    EXPECT_GT(count(image("Acercar", 48), ink), 50);
  }
  const QIcon kept = plotIcon("Parar");
  useInk(Qt::red);
  EXPECT_GT(count(kept.pixmap(24).toImage().convertToFormat(QImage::Format_ARGB32), Qt::red), 100);
}

TEST_F(PlotIcons, HaveALighterAccentOnDark) {
  useInk(Qt::black);
  const QImage light = image("Acercar", 48);
  useInk(Qt::white);
  const QImage dark = image("Acercar", 48);
  EXPECT_GT(count(light, QColor("#1a6fc4")), 20);
  EXPECT_EQ(count(dark, QColor("#1a6fc4")), 0);
  EXPECT_GT(count(dark, QColor("#6cb8ff")), 20);
}

TEST_F(PlotIcons, SlopesAreForWhitePaperInEveryPalette) {
  useInk(Qt::black);
  const QImage light = image("creciente_der");
  useInk(Qt::white);
  EXPECT_EQ(image("creciente_der"), light);
}

TEST_F(PlotIcons, FadeWhereTheyAreNotEnabled) {
  const auto strongest = [](const QImage& image) {
    int alpha = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        alpha = std::max(alpha, image.pixelColor(x, y).alpha());
    return alpha;
  };
  EXPECT_EQ(strongest(image("Recorrer")), 255);
  EXPECT_LT(strongest(image("Recorrer", 24, QIcon::Disabled)), 128);
}

}  // namespace
}  // namespace zel::test
