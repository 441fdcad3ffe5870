#include "platform/widgets/program_style.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyleOptionButton>
#include <QStyleOptionToolButton>
#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include <gtest/gtest.h>

#include "support/qt_application.h"

namespace zel::test {
namespace {

class StyleOfTheProgram : public ::testing::Test {
 protected:
  StyleOfTheProgram() { application(); }

  /// So many pixels of a drawn button have the colour that marks the focus, and what is checked.
  template <class Option>
  int marked(Option option, QStyle::State state,
             const std::function<void(Option&, QPainter&)>& draw) {
    QImage image(120, 40, QImage::Format_ARGB32);
    image.fill(Qt::white);
    option.rect = image.rect();
    option.palette = QPalette(Qt::lightGray);
    option.palette.setColor(QPalette::Highlight, Qt::magenta);
    option.state = QStyle::State_Enabled | state;
    QPainter painter(&image);
    draw(option, painter);
    painter.end();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == Qt::magenta;
    return count;
  }
  int markedPushButton(QStyleOptionButton::ButtonFeatures features, QStyle::State state) {
    QStyleOptionButton option;
    option.features = features;
    return marked<QStyleOptionButton>(
        option, state, [this](QStyleOptionButton& with, QPainter& painter) {
          style.drawControl(QStyle::CE_PushButton, &with, &painter, nullptr);
        });
  }
  int markedToolButton(QStyle::State state) {
    return marked<QStyleOptionToolButton>(
        {}, state, [this](QStyleOptionToolButton& with, QPainter& painter) {
          with.subControls = QStyle::SC_ToolButton;
          style.drawComplexControl(QStyle::CC_ToolButton, &with, &painter, nullptr);
        });
  }

  static constexpr int kRing = 100;  // pixels, at least
  static constexpr auto kPlain = QStyle::State_Raised;
  static constexpr auto kFocused = QStyle::State_Raised | QStyle::State_HasFocus;
  ProgramStyle style;
};

TEST_F(StyleOfTheProgram, MarksAButtonThatHasTheFocusADefaultOneToo) {
  for (const auto feature : {QStyleOptionButton::None, QStyleOptionButton::DefaultButton}) {
    EXPECT_GT(markedPushButton(feature, kFocused), kRing);
    EXPECT_LT(markedPushButton(feature, kPlain), kRing);
  }
}

TEST_F(StyleOfTheProgram, MarksAToolButtonThatHasTheFocus) {
  EXPECT_GT(markedToolButton(kFocused), kRing);
  EXPECT_LT(markedToolButton(kPlain), kRing);
}

TEST_F(StyleOfTheProgram, FramesAButtonThatIsChecked) {
  EXPECT_GT(markedPushButton(QStyleOptionButton::None, QStyle::State_On), kRing);
  EXPECT_GT(markedToolButton(QStyle::State_On), kRing);
}

TEST_F(StyleOfTheProgram, ShowsTheFocusOfACheckedButtonToo) {
  constexpr auto kBoth = QStyle::State_On | QStyle::State_HasFocus;
  EXPECT_GT(markedPushButton(QStyleOptionButton::None, kBoth),
            markedPushButton(QStyleOptionButton::None, QStyle::State_On) + kRing);
  EXPECT_GT(markedToolButton(kBoth), markedToolButton(QStyle::State_On) + kRing);
}

TEST_F(StyleOfTheProgram, GivesTheSameIconEachTime) {
  const QIcon folder = style.standardIcon(QStyle::SP_DirIcon, nullptr, nullptr);
  EXPECT_FALSE(folder.isNull());
  EXPECT_EQ(style.standardIcon(QStyle::SP_DirIcon, nullptr, nullptr).cacheKey(), folder.cacheKey());
  EXPECT_NE(style.standardIcon(QStyle::SP_FileIcon, nullptr, nullptr).cacheKey(),
            folder.cacheKey());
}

/// A style takes its icons from the desktop's theme, or draws them with the colours of the desktop.
TEST_F(StyleOfTheProgram, MakesItsIconsAnewWhenTheColoursOfTheDesktopChange) {
  auto* const whole = new ProgramStyle;  // the application takes it over
  const QString before = QApplication::style()->name();
  QApplication::setStyle(whole);
  const auto icon = [&] {
    return whole->standardIcon(QStyle::SP_DirIcon, nullptr, nullptr).cacheKey();
  };
  const qint64 first = icon();
  EXPECT_EQ(icon(), first);
  QApplication::setPalette(QPalette(Qt::black));
  EXPECT_NE(icon(), first);
  QApplication::setPalette(QPalette());
  QApplication::setStyle(before);
}

/// As the eye takes it, from 1 for no contrast to 21 for black on white.
double contrast(const QColor& one, const QColor& other) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](double share) {
      return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF()) + 0.05;
  };
  const double ratio = luminance(one) / luminance(other);
  return std::max(ratio, 1 / ratio);
}

/// A colour that lets the one below it shine through.
QColor laidOn(const QColor& below, const QColor& colour) {
  const auto mixed = [&](float one, float other) {
    return other + (one - other) * colour.alphaF();
  };
  return QColor::fromRgbF(mixed(colour.redF(), below.redF()),
                          mixed(colour.greenF(), below.greenF()),
                          mixed(colour.blueF(), below.blueF()));
}

TEST_F(StyleOfTheProgram, LetsHintsInEmptyFieldsBeReadOnLightAndDarkDesktops) {
  const std::pair<QColor, QColor> desktops[] = {{Qt::white, Qt::black}, {0x232629, 0xFCFCFC}};
  for (const auto& [field, typed] : desktops) {
    QPalette palette;
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::Text, typed);
    palette.setColor(QPalette::PlaceholderText, Qt::black);
    style.polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
      const QColor hint = laidOn(field, palette.color(group, QPalette::PlaceholderText));
      EXPECT_GE(contrast(hint, field), 4.5) << typed.name().toStdString();
      EXPECT_GE(contrast(hint, typed), 2) << typed.name().toStdString();
    }
  }
}

/// Like the model of files: its header has a new picture whenever it is asked for one.
class NewPictures : public QStandardItemModel {
 public:
  using QStandardItemModel::QStandardItemModel;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role != Qt::DecorationRole)
      return QStandardItemModel::headerData(section, orientation, role);
    QImage picture(16, 16, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::red);
    return picture;
  }
};

TEST_F(StyleOfTheProgram, PaintsAHeaderThatLeavesNothingInTheToolkitsCacheOfPictures) {
  constexpr int kLimitInKilobytes = 16;
  const int limit = QPixmapCache::cacheLimit();
  NewPictures model(1, 1);
  QHeaderView header(Qt::Horizontal);
  header.setStyle(&style);
  header.setModel(&model);
  header.grab();
  QPixmapCache::clear();
  QPixmapCache::setCacheLimit(kLimitInKilobytes);
  QPixmap other(32, 32);
  other.fill(Qt::red);
  ASSERT_TRUE(QPixmapCache::insert("other", other));
  for (int i = 0; i < 40; ++i) header.grab();
  EXPECT_TRUE(QPixmapCache::find("other", &other)) << "pushed out by pictures of the header";
  QPixmapCache::setCacheLimit(limit);
}

TEST_F(StyleOfTheProgram, GivesTheButtonsOfDialogsNoIcons) {
  QDialogButtonBox box;
  box.setStyle(&style);
  const QPushButton* const save = box.addButton(QDialogButtonBox::Save);
  EXPECT_TRUE(save->icon().isNull());
}

}  // namespace
}  // namespace zel::test
