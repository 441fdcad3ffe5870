// win32_probe: uses the adapters of Windows as the program does and tells what came of it.
//   register PROGRAM LANGUAGE  registers the document type of a program's file
//   missing                    drives a browser and a mail client that are not installed
//   automation                 drives recorders in their place
//   line ANYTHING...           tells its own command line

#include <iostream>
#include <string>

#include "app/desktop.h"
#include "base/language.h"
#include "platform/command_line.h"
#include "platform/desktop_services.h"
#include "platform/win32/automation_browser.h"
#include "platform/win32/automation_mail_client.h"
#include "platform/win32/automation_recorder.h"

namespace zel::test {
namespace {

int registerFor(const std::string& program, const std::string& language) {
  SetCurrentLanguage(language);
  const DesktopServices services = makeDesktopServices(program);
  // Neither is a failure of one of its calls looked at.
  services.registry->setValue(services.registry->createKey("\\"), "x", "y");
  const bool registered = registerZelDocuments(*services.registry, programPlace(program));
  std::cout << (registered ? "true" : "false") << "\n";
  return 0;
}

int driveMissing() {
  AutomationBrowser browser("Zel.NoSuchProgram");
  std::cout << browser.start() << browser.makeVisible() << browser.navigate("about:blank")
            << browser.isBusy() << "\n";
  AutomationMailClient mail("Zel.NoSuchProgram");
  std::cout << mail.start() << mail.createItem() << mail.addRecipient("a@b") << mail.setSubject("c")
            << mail.send() << "\n";
  OpenWebPage(browser);
  SendMailToMaker(mail);
  std::cout << "quiet\n";
  return 0;
}

int driveRecorders() {
  const ComSession session;
  const AutomationRecorder recorder("Zel.Recorder", "Busy", 2);
  if (!recorder.isReady()) return 1;
  AutomationBrowser browser("Zel.Recorder");
  OpenWebPage(browser);
  AutomationMailClient mail("Zel.Recorder");
  SendMailToMaker(mail);
  for (const std::string& call : recorder.calls()) std::cout << call << "\n";
  return 0;
}

}  // namespace
}  // namespace zel::test

int main(int argument_count, char** arguments) {
  const std::string command = argument_count > 1 ? arguments[1] : "";
  if (command == "register" && argument_count == 4)
    return zel::test::registerFor(arguments[2], arguments[3]);
  if (command == "missing") return zel::test::driveMissing();
  if (command == "automation") return zel::test::driveRecorders();
  if (command == "line") {
    std::cout << zel::commandLine(argument_count, arguments) << "\n";
    return 0;
  }
  return 2;
}
