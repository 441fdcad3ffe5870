#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QTest>
#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/widgets/modal_driver.h"
#include "platform/widgets/widget_message_boxes.h"
#include "support/language_guard.h"
#include "support/patience.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;

using BoxStep = std::function<void(QMessageBox&)>;

BoxStep key(Qt::Key key) {
  return [key](QMessageBox& box) { QTest::keyClick(&box, key); };
}

BoxStep click(int place) {
  return [place](QMessageBox& box) { box.buttons().at(place)->click(); };
}

const BoxStep kClose = [](QMessageBox& box) { box.close(); };

class MessageBoxesOfWidgets : public ::testing::Test {
 protected:
  MessageBoxesOfWidgets() { application(); }

  BoxAnswer answer(BoxStyle style, const BoxStep& step) {
    const ModalDriver<QMessageBox> driver({step});
    return boxes.show("text", "title", style);
  }

  /// Shows a box, looks at it and closes it.
  void lookAt(const std::string& text, BoxStyle style, const BoxStep& look) {
    const ModalDriver<QMessageBox> driver({[&](QMessageBox& box) {
      look(box);
      box.close();
    }});
    boxes.show(text, "ZEL - ATENCIÓN", style);
  }

  /// The captions of the buttons as they stand from left to right.
  std::vector<std::string> captions(BoxStyle style) {
    std::vector<std::string> result;
    lookAt("text", style, [&](QMessageBox& box) {
      QList<QAbstractButton*> buttons = box.buttons();
      std::ranges::sort(buttons, {}, [](QAbstractButton* button) { return button->x(); });
      for (const QAbstractButton* button : buttons) result.push_back(button->text().toStdString());
    });
    return result;
  }

  LanguageGuard language_{"ES"};
  WidgetMessageBoxes boxes;
};

TEST_F(MessageBoxesOfWidgets, HaveExactlyTheButtonsOfTheirStyle) {
  EXPECT_THAT(captions(BoxStyle::stop), ElementsAre("Aceptar"));
  EXPECT_THAT(captions(BoxStyle::ok_cancel), ElementsAre("Aceptar", "Cancelar"));
  EXPECT_THAT(captions(BoxStyle::cancel_try_again_continue),
              ElementsAre("Cancelar", "&Reintentar", "&Continuar"));
}

TEST_F(MessageBoxesOfWidgets, SpeakTheCurrentLanguage) {
  SetCurrentLanguage("EN");
  EXPECT_THAT(captions(BoxStyle::stop), ElementsAre("OK"));
  EXPECT_THAT(captions(BoxStyle::ok_cancel), ElementsAre("OK", "Cancel"));
  EXPECT_THAT(captions(BoxStyle::cancel_try_again_continue),
              ElementsAre("Cancel", "&Try Again", "&Continue"));
  SetCurrentLanguage("??");
  EXPECT_THAT(captions(BoxStyle::stop), ElementsAre("Aceptar"));
}

TEST_F(MessageBoxesOfWidgets, ShowAnIconForStopOnly) {
  const auto icon = [&](BoxStyle style) {
    QMessageBox::Icon found = QMessageBox::Question;
    lookAt("text", style, [&](QMessageBox& box) { found = box.icon(); });
    return found;
  };
  EXPECT_EQ(icon(BoxStyle::stop), QMessageBox::Critical);
  EXPECT_EQ(icon(BoxStyle::ok_cancel), QMessageBox::NoIcon);
  EXPECT_EQ(icon(BoxStyle::cancel_try_again_continue), QMessageBox::NoIcon);
}

TEST_F(MessageBoxesOfWidgets, AnswerTheButtonThatIsClicked) {
  EXPECT_EQ(answer(BoxStyle::stop, click(0)), BoxAnswer::ok);
  EXPECT_EQ(answer(BoxStyle::ok_cancel, click(0)), BoxAnswer::ok);
  EXPECT_EQ(answer(BoxStyle::ok_cancel, click(1)), BoxAnswer::cancel);
  EXPECT_EQ(answer(BoxStyle::cancel_try_again_continue, click(0)), BoxAnswer::cancel);
  EXPECT_EQ(answer(BoxStyle::cancel_try_again_continue, click(1)), BoxAnswer::try_again);
  EXPECT_EQ(answer(BoxStyle::cancel_try_again_continue, click(2)), BoxAnswer::continue_);
}

TEST_F(MessageBoxesOfWidgets, AnswerTheFirstButtonOnEnter) {
  EXPECT_EQ(answer(BoxStyle::stop, key(Qt::Key_Return)), BoxAnswer::ok);
  EXPECT_EQ(answer(BoxStyle::ok_cancel, key(Qt::Key_Return)), BoxAnswer::ok);
  EXPECT_EQ(answer(BoxStyle::cancel_try_again_continue, key(Qt::Key_Return)), BoxAnswer::cancel);
}

TEST_F(MessageBoxesOfWidgets, AnswerEscAndClosingWithCancelWhereThereIsOne) {
  for (const BoxStep& step : {key(Qt::Key_Escape), kClose}) {
    EXPECT_EQ(answer(BoxStyle::stop, step), BoxAnswer::ok);
    EXPECT_EQ(answer(BoxStyle::ok_cancel, step), BoxAnswer::cancel);
    EXPECT_EQ(answer(BoxStyle::cancel_try_again_continue, step), BoxAnswer::cancel);
  }
}

TEST_F(MessageBoxesOfWidgets, GiveTheFocusToTheFirstButton) {
  lookAt("text", BoxStyle::ok_cancel,
         [](QMessageBox& box) { EXPECT_EQ(box.focusWidget(), box.buttons().front()); });
}

TEST_F(MessageBoxesOfWidgets, ShowTextAndTitleAsGiven) {
  lookAt("a <b>\r\n\r\nc & d", BoxStyle::stop, [](QMessageBox& box) {
    EXPECT_EQ(box.windowTitle(), "ZEL - ATENCIÓN");
    EXPECT_EQ(box.text(), "a <b>\n\nc & d");
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(box.textInteractionFlags() & Qt::TextSelectableByKeyboard);
  });
}

TEST_F(MessageBoxesOfWidgets, StandOverTheActiveWindow) {
  QWidget window;
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window, kPatience));
  lookAt("text", BoxStyle::stop, [&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); });
}

TEST_F(MessageBoxesOfWidgets, OutliveTheWindowBelowThem) {
  auto* const window = new QWidget;
  window->show();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window, kPatience));
  EXPECT_EQ(answer(BoxStyle::ok_cancel, [&](QMessageBox&) { delete window; }), BoxAnswer::cancel);
}

TEST(BoxText, BreaksLinesAndLongRuns) {
  const std::string run(80, 'a');
  EXPECT_EQ(boxText(""), "");
  EXPECT_EQ(boxText("a\r\nb\nc\r\n"), "a\nb\nc\n");
  EXPECT_EQ(boxText(run), run);
  EXPECT_EQ(boxText(run + " " + run), run + " " + run);
  EXPECT_EQ(boxText(run + "bc d"), run + "\nbc d");
  EXPECT_EQ(boxText(run + run + "b"), run + "\n" + run + "\nb");
  EXPECT_EQ(boxText("ñ" + run), "ñ" + run.substr(1) + "\na");
}

TEST(BoxText, CutsWhatNoScreenHolds) {
  std::string lines;
  for (int i = 1; i < 40; ++i) lines += "x\n";
  EXPECT_EQ(boxText(lines + "y"), lines + "y");
  EXPECT_EQ(boxText(lines + "y\nz\nz"), lines + "y\n…");
}

}  // namespace
}  // namespace zel::test
