#include <QClipboard>
#include <QDialogButtonBox>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

#include "platform/widgets/modal_driver.h"
#include "platform/widgets/widget_input_boxes.h"
#include "support/language_guard.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

class InputBoxesOfWidgets : public ::testing::Test {
 protected:
  InputBoxesOfWidgets() { application(); }

  static QLineEdit& field(QInputDialog& box) { return *box.findChild<QLineEdit*>(); }
  static QString button(QInputDialog& box, QDialogButtonBox::StandardButton which) {
    return box.findChild<QDialogButtonBox*>()->button(which)->text();
  }

  LanguageGuard language{"ES"};
  WidgetInputBoxes inputs;
};

TEST_F(InputBoxesOfWidgets, AskWithPromptTitleAndAnEmptyFieldThatHasTheFocus) {
  const ModalDriver<QInputDialog> driver({[](QInputDialog& box) {
    EXPECT_EQ(box.windowTitle(), "Título");
    EXPECT_EQ(box.labelText(), "first <b>\nsecond");
    EXPECT_EQ(box.findChild<QLabel*>()->textFormat(), Qt::PlainText);
    EXPECT_TRUE(field(box).text().isEmpty());
    EXPECT_EQ(box.focusWidget(), &field(box));
    EXPECT_EQ(button(box, QDialogButtonBox::Ok), "Aceptar");
    EXPECT_EQ(button(box, QDialogButtonBox::Cancel), "Cancelar");
    box.reject();
  }});
  EXPECT_EQ(inputs.ask("first <b>\r\nsecond", "Título"), std::nullopt);
}

TEST_F(InputBoxesOfWidgets, GiveWhatWasTypedAsItIs) {
  SetCurrentLanguage("EN");
  const ModalDriver<QInputDialog> driver({[](QInputDialog& box) {
    EXPECT_EQ(button(box, QDialogButtonBox::Ok), "OK");
    EXPECT_EQ(button(box, QDialogButtonBox::Cancel), "Cancel");
    QTest::keyClicks(&field(box), " 2,5 ");
    QTest::keyClick(&field(box), Qt::Key_Return);
  }});
  EXPECT_EQ(inputs.ask("x", "t"), " 2,5 ");
}

TEST_F(InputBoxesOfWidgets, HaveRoomForTheirTitles) {
  const ModalDriver<QInputDialog> driver({[](QInputDialog& box) {
    const int title_width = box.fontMetrics().horizontalAdvance(box.windowTitle());
    EXPECT_GE(field(box).width(), title_width + 100);
    box.reject();
  }});
  inputs.ask("x", "Cálculo de un valor específico");
}

TEST_F(InputBoxesOfWidgets, DropControlCharactersFromWhatIsPasted) {
  QApplication::clipboard()->setText(QStringLiteral("\r\n1\t\r\n \r\n2\u0085") +
                                     QChar(QChar::LineSeparator) + "3\n");
  const ModalDriver<QInputDialog> driver({[](QInputDialog& box) {
    QTest::keyClick(&field(box), Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&field(box), Qt::Key_Return);
  }});
  EXPECT_EQ(inputs.ask("x", "t"), "1 23");
}

TEST_F(InputBoxesOfWidgets, TellAnEmptyAnswerFromACancelledOne) {
  const ModalDriver<QInputDialog> driver({
      [](QInputDialog& box) { box.accept(); },
      [](QInputDialog& box) {
        QTest::keyClicks(&field(box), "7");
        QTest::keyClick(&box, Qt::Key_Escape);
      },
  });
  EXPECT_EQ(inputs.ask("x", "t"), "");
  EXPECT_EQ(inputs.ask("x", "t"), std::nullopt);
}

}  // namespace
}  // namespace zel::test
