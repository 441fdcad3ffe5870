// An empty main window, beside which the start of the program is measured.
#include <QApplication>
#include <QMainWindow>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QMainWindow window;
  window.resize(400, 300);
  window.show();
  return QApplication::exec();
}
