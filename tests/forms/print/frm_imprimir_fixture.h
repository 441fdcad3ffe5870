#pragma once

#include <QComboBox>

#include "forms/plot/picture_box.h"
#include "forms/print/frm_imprimir.h"
#include "forms/print/printed_window.h"
#include "forms/window_fixture.h"

namespace zel::test {

/// A plot window as the print preview knows it: a picture, red with a black line across its middle.
class DrawnWindow : public NotedWindow, public PrintedWindow {
 public:
  explicit DrawnWindow(QSize pixels = {400, 300}) { draw(pixels); }

  void draw(QSize pixels) {
    box_.resize(pixels);
    box_.clear();
    box_.beginGraph('a', 0x0000FF);
    box_.dot({pixels.width() * 7.5, pixels.height() * 7.5}, 1e5);
    box_.beginAxes();
    box_.line({0, pixels.height() * 7.5}, {pixels.width() * 15.0, pixels.height() * 7.5});
  }

  PictureBox& picture() override { return box_; }

 private:
  PictureBox box_;
};

/// The preview on upright A4 paper of a picture 400 x 300 pixels wide, which is 6000 x 4500 twips.
class PrintWindow : public WindowTest {
 protected:
  void open() { open(plot); }
  void open(FormWindow& printed) {
    program.params.removeAll();
    program.params.Add("imprimir", &printed);
    program.params.Add("llamador", &printed);
    window.showForm();
  }

  QWidget& page() { return control<QWidget>(window, "Picture2"); }
  QWidget& image() { return control<QWidget>(window, "Image3"); }
  QWidget& outline() { return control<QWidget>(window, "Shape1"); }
  QLabel& message() { return control<QLabel>(window, "LblMensaje"); }
  QComboBox& printer() { return control<QComboBox>(window, "cboImpresora"); }
  QCheckBox& fit() { return control<QCheckBox>(window, "chkAjustar"); }
  /// As the user chooses one in the list.
  void choose(const char* name) {
    const int index = printer().findText(QString::fromLatin1(name));
    printer().setCurrentIndex(index);
    emit printer().activated(index);
  }
  QPushButton& print() { return control<QPushButton>(window, "cmdImprimir"); }

  /// The mouse on the image: pressed in its middle, then so many pixels away from there.
  void press() { QTest::mousePress(&image(), Qt::LeftButton, {}, image().rect().center()); }
  void moveBy(QPoint way) {
    const QPointF to = image().rect().center() + way;
    QMouseEvent move(QEvent::MouseMove, to, image().mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                     Qt::NoModifier);
    QApplication::sendEvent(&image(), &move);
  }
  void release(QPoint way) {
    QTest::mouseRelease(&image(), Qt::LeftButton, {}, image().rect().center() + way);
  }
  void drag(QPoint way) {
    press();
    moveBy(way);
    release(way);
  }

  FakePrinter::Page printed() {
    print().click();
    return services.printer.printed.back();
  }

  DrawnWindow plot;
  frmImprimir window{program};
};

}  // namespace zel::test
