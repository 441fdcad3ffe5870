#include <QApplication>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>

#include "app/installation.h"
#include "app/program.h"
#include "forms/forms.h"
#include "platform/desktop_services.h"
#include "platform/widgets/widget_services.h"

namespace {

/// The command line as the one document that it names: blanks inside a path need no quotes.
QString commandLine(const QApplication& application) {
  return application.arguments().mid(1).join(' ');
}

/// Makes an installed program's own folder the current one. The document, which may be named from
/// where the program was started, as it reads from there.
std::string settle(const std::string& program_folder, const std::string& document) {
  if (!zel::isInstalledProgram(program_folder)) return document;
  const std::string path = zel::fromCurrentFolder(document);
  zel::enterFolder(zel::userFolder());
  return path;
}

/// The process ends at once, whatever is still being drawn.
[[noreturn]] void endProcess() {
  std::fflush(nullptr);
  std::_Exit(EXIT_SUCCESS);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName("zel");
  QApplication::setDesktopFileName("zel");
  QApplication::setQuitOnLastWindowClosed(false);

  const QFileInfo file(QApplication::applicationFilePath());
  const std::string folder = file.absolutePath().toStdString();
  zel::WidgetServices widgets(folder);
  const std::string document = settle(folder, commandLine(application).toStdString());
  const zel::DesktopServices desktop = zel::makeDesktopServices(file.filePath().toStdString());
  zel::Program program({widgets.boxes, widgets.files, widgets.colours, widgets.help,
                        *desktop.registry, *desktop.browser, *desktop.mail, widgets.inputs,
                        widgets.clipboard, widgets.printer});
  program.place = zel::programPlace(file.filePath().toStdString());
  program.end_process = endProcess;

  const zel::StartStep step = zel::startProgram(program);
  if (step == zel::StartStep::ended) return EXIT_FAILURE;
  zel::Forms forms(program, QString::fromStdString(document));
  forms.begin(step);
  return QApplication::exec();
}
