#include <QClipboard>
#include <QFileInfo>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "app/installation.h"
#include "app/program.h"
#include "files/absolute_path.h"
#include "files/failing_writes.h"
#include "files/standard_streams.h"
#include "forms/application.h"
#include "forms/forms.h"
#include "platform/command_line.h"
#include "platform/desktop_services.h"
#include "platform/widgets/program_style.h"
#include "platform/widgets/widget_services.h"

namespace {

/// Makes an installed program's own folder the current one. The document, which may be named from
/// where the program was started and in quotes, as it reads from there.
std::string settle(const std::string& program_folder, std::string document) {
  if (!zel::isInstalledProgram(program_folder)) return document;
  std::erase(document, '"');
  std::string path = zel::absolutePath(document);
  zel::enterFolder(zel::userFolder());
  return path;
}

/// The process ends at once, whatever is still being drawn. Where a picture of ours is on the
/// clipboard, the application is taken down first: Qt hands the picture over as it goes.
[[noreturn]] void endProcess() {
  if (QGuiApplication::clipboard()->ownsClipboard())
    static_cast<zel::Application*>(QCoreApplication::instance())->~Application();
  std::fflush(nullptr);
  std::_Exit(EXIT_SUCCESS);
}

int run(int& argument_count, char** arguments) {
  zel::Application application(argument_count, arguments);
  QApplication::setApplicationName("zel");
  QApplication::setDesktopFileName("zel");
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setQuitLockEnabled(false);  // a job of the toolkit that ends would end the program
  QApplication::setStyle(new zel::ProgramStyle);

  const QFileInfo file(QApplication::applicationFilePath());
  const std::string folder = file.absolutePath().toStdString();
  zel::WidgetServices widgets(folder);
  const std::string document = settle(folder, zel::commandLine(argument_count, arguments));
  const zel::DesktopServices desktop = zel::makeDesktopServices(file.filePath().toStdString());
  zel::Program program({widgets.boxes, widgets.files, widgets.colours, widgets.help,
                        *desktop.registry, *desktop.browser, *desktop.mail, widgets.inputs,
                        widgets.clipboard, widgets.printer, *desktop.recent});
  program.place = zel::programPlace(file.filePath().toStdString());
  program.last_session = zel::LastSession(zel::stateFolder());
  program.end_process = endProcess;

  application.failed = [&] {
    zel::tellFailedStart(program);
    std::_Exit(EXIT_FAILURE);
  };
  application.quits = endProcess;
  zel::quitOnSignals();
  const zel::StartStep step = zel::startProgram(program);
  if (step == zel::StartStep::ended) return EXIT_FAILURE;
  zel::Forms forms(program, document);
  forms.started = [&] { application.failed = [&] { forms.tellFailure(); }; };
  application.quits = [&] { forms.quit(); };
  if (!forms.begin(step)) return EXIT_FAILURE;
  return QApplication::exec();
}

}  // namespace

int main(int argument_count, char** arguments) {
  zel::fillStandardStreams();
  try {
    zel::letWritesFail(zel::ClosedPipe::fails);
    zel::nameHome();
    return run(argument_count, arguments);
  } catch (...) {
    std::fputs("zel: the program cannot go on\n", stderr);
    return EXIT_FAILURE;
  }
}
