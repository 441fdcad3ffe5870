#include <QColorDialog>

#include <gtest/gtest.h>

#include "platform/widgets/modal_driver.h"
#include "platform/widgets/widget_colour_dialog.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

class ColourDialogOfWidgets : public ::testing::Test {
 protected:
  ColourDialogOfWidgets() { application(); }

  WidgetColourDialog colours;
};

TEST_F(ColourDialogOfWidgets, KeepsRedInTheLowByte) {
  const ModalDriver<QColorDialog> driver({[](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(0x12, 0x34, 0x56));
    dialog.setCurrentColor(QColor(1, 2, 3));
    dialog.accept();
  }});
  EXPECT_EQ(colours.askColour(0x563412), 0x030201);
}

TEST_F(ColourDialogOfWidgets, GivesBackWhatIsNotChanged) {
  const ModalDriver<QColorDialog> driver({[](QColorDialog& dialog) { dialog.accept(); }});
  EXPECT_EQ(colours.askColour(0x7F563412), 0x563412);
}

TEST_F(ColourDialogOfWidgets, GivesNothingWhenCancelled) {
  const ModalDriver<QColorDialog> driver({[](QColorDialog& dialog) { dialog.reject(); }});
  EXPECT_EQ(colours.askColour(0), std::nullopt);
}

}  // namespace
}  // namespace zel::test
