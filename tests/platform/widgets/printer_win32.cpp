#include <gtest/gtest.h>

#include "platform/widgets/widget_printer.h"

namespace zel::test {
namespace {

TEST(PrinterOfWidgets, OffersNoFileInItsDialog) {
  EXPECT_FALSE(printDialogOptions().testFlag(QAbstractPrintDialog::PrintToFile));
}

}  // namespace
}  // namespace zel::test
