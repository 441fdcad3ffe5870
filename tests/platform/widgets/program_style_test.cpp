#include "platform/widgets/program_style.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPainter>
#include <QPixmapCache>
#include <QPushButton>
#include <QStandardItemModel>
#include <QStyleOptionButton>
#include <QStyleOptionToolButton>
#include <functional>

#include <gtest/gtest.h>

#include "support/qt_application.h"

namespace zel::test {
namespace {

class StyleOfTheProgram : public ::testing::Test {
 protected:
  StyleOfTheProgram() { application(); }

  /// So many pixels of a drawn button have the colour that marks the focus.
  template <class Option>
  int marked(Option option, bool has_focus, const std::function<void(Option&, QPainter&)>& draw) {
    QImage image(120, 40, QImage::Format_ARGB32);
    image.fill(Qt::white);
    option.rect = image.rect();
    option.palette = QPalette(Qt::lightGray);
    option.palette.setColor(QPalette::Highlight, Qt::magenta);
    option.state = QStyle::State_Enabled | QStyle::State_Raised;
    option.state.setFlag(QStyle::State_HasFocus, has_focus);
    QPainter painter(&image);
    draw(option, painter);
    painter.end();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == Qt::magenta;
    return count;
  }
  int markedPushButton(QStyleOptionButton::ButtonFeatures features, bool has_focus) {
    QStyleOptionButton option;
    option.features = features;
    return marked<QStyleOptionButton>(
        option, has_focus, [this](QStyleOptionButton& with, QPainter& painter) {
          style.drawControl(QStyle::CE_PushButton, &with, &painter, nullptr);
        });
  }

  static constexpr int kRing = 100;  // pixels, at least
  ProgramStyle style;
};

TEST_F(StyleOfTheProgram, MarksAButtonThatHasTheFocusADefaultOneToo) {
  for (const auto feature : {QStyleOptionButton::None, QStyleOptionButton::DefaultButton}) {
    EXPECT_GT(markedPushButton(feature, true), kRing);
    EXPECT_LT(markedPushButton(feature, false), kRing);
  }
}

TEST_F(StyleOfTheProgram, MarksAToolButtonThatHasTheFocus) {
  const auto draw = [this](QStyleOptionToolButton& with, QPainter& painter) {
    with.subControls = QStyle::SC_ToolButton;
    style.drawComplexControl(QStyle::CC_ToolButton, &with, &painter, nullptr);
  };
  EXPECT_GT(marked<QStyleOptionToolButton>({}, true, draw), kRing);
  EXPECT_LT(marked<QStyleOptionToolButton>({}, false, draw), kRing);
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
