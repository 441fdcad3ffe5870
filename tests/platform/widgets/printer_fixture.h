#pragma once

#include <QImage>
#include <QPrinter>
#include <QProcess>
#include <QRect>
#include <QStandardPaths>
#include <string>

#include <gtest/gtest.h>

#include "platform/widgets/widget_printer.h"
#include "support/environment_guard.h"
#include "support/patience.h"
#include "support/qt_application.h"
#include "support/temporary_folder.h"

namespace zel::test {

/// A folder of this process for a print server of our own. Where none listens there, there is no
/// printer; the system's print server is never asked.
inline const TemporaryFolder& serverFolder() {
  static const TemporaryFolder folder;
  return folder;
}

/// Printing with the real adapter, without a dialog.
class PrinterTest : public ::testing::Test {
 protected:
  static constexpr int kTwipsPerPixel = 10;  // of a page that is looked at
  static constexpr PaperSize kPicture{6000, 3000};

  PrinterTest() { application(); }

  /// The box of the picture that fills the whole of `size`, clipped by nothing.
  static DrawingList frame(PaperSize size) {
    DrawingList list;
    list.beginGraph('a', 0x0000FF);
    list.startPiece({0, 0});
    list.extendPiece({size.width, 0});
    list.extendPiece({size.width, size.height});
    list.extendPiece({0, size.height});
    list.extendPiece({0, 0});
    return list;
  }

  /// The page of a PDF document, 144 pixels to an inch.
  static QImage pageOf(const std::string& pdf) {
    QProcess process;
    process.start("pdftoppm", {"-r", "144", "-singlefile", "-png", QString::fromStdString(pdf)});
    EXPECT_TRUE(process.waitForFinished(kPatience)) << "pdftoppm (package poppler-utils) is needed";
    return QImage::fromData(process.readAllStandardOutput(), "PNG");
  }

  /// Where the page is not white.
  static QRect inkOf(const QImage& page) {
    QRect ink;
    for (int y = 0; y < page.height(); ++y)
      for (int x = 0; x < page.width(); ++x)
        if (page.pixelColor(x, y).lightness() < 250) ink |= QRect(x, y, 1, 1);
    return ink;
  }

  /// That the ink lies in this box, in twips, to a pixel.
  static void expectInk(const QImage& page, double left, double top, double right, double bottom) {
    const QRect ink = inkOf(page);
    EXPECT_NEAR(ink.left() * kTwipsPerPixel, left, 1.5 * kTwipsPerPixel);
    EXPECT_NEAR(ink.top() * kTwipsPerPixel, top, 1.5 * kTwipsPerPixel);
    EXPECT_NEAR((ink.right() + 1) * kTwipsPerPixel, right, 1.5 * kTwipsPerPixel);
    EXPECT_NEAR((ink.bottom() + 1) * kTwipsPerPixel, bottom, 1.5 * kTwipsPerPixel);
  }

 private:
  EnvironmentGuard server_{"CUPS_SERVER", (serverFolder() / "socket").c_str()};
  EnvironmentGuard home_{"HOME", utf8Of(serverFolder().path()).c_str()};
};

}  // namespace zel::test
