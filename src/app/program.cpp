#include "app/program.h"

#include <filesystem>
#include <system_error>

#include "app/messages.h"
#include "base/language.h"
#include "engine/self_test.h"

namespace zel {
namespace {

/// Without a translation on purpose: the table holds a longer text only.
constexpr std::string_view kStartupFailed =
    "Un error en la configuración impidió que el programa se inicie correctamente.";

}  // namespace

StartStep startProgram(Program& program) {
  const ConfigRead configuration = readConfig(program.configuration);
  if (configuration == ConfigRead::damaged) {
    ShowAttention(program.services.boxes, Localize(kStartupFailed));
    return StartStep::ended;
  }
  program.engine.InitEngine();
  program.graphs.initGraphDefinitions();
  program.params = makeFormParams();
  std::string report;
  if (!RunSelfTest(program.engine, report)) {
    ShowAttention(program.services.boxes, report);
    return StartStep::ended;
  }
  return configuration == ConfigRead::missing ? StartStep::first_start : StartStep::presentation;
}

void chooseHelpFile(Program& program) { program.help_file = HelpFileName(); }

void acceptLanguage(Program& program) {
  writeConfig(program.configuration);
  registerZelDocuments(program.services.registry, program.place);
}

void forgetFirstStart() {
  std::error_code ignored;
  if (std::filesystem::file_size(kConfigPath, ignored) == 0)
    std::filesystem::remove(kConfigPath, ignored);
}

void shutDown(Program& program) {
  CloseHelp(program.services.help);
  writeConfig(program.configuration);
  program.end_process();
}

}  // namespace zel
