#include "app/program.h"

#include "app/messages.h"
#include "base/language.h"
#include "engine/self_test.h"
#include "files/whole_file.h"

namespace zel {
namespace {

/// Without a translation on purpose: the table holds a longer text only.
constexpr std::string_view kStartupFailed =
    "Un error en la configuración impidió que el programa se inicie correctamente.";

}  // namespace

StartStep startProgram(Program& program) {
  const ConfigRead configuration = readConfig(program.config_path, program.configuration);
  // A first start, however early it ends, leaves nothing that a later one would take for damaged.
  if (configuration != ConfigRead::read) removeEmptyFile(program.config_path);
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

void showApplicationHelp(Program& program) {
  program.services.help.show(program.help_file, kHelpTopics);
}

void acceptLanguage(Program& program) {
  writeConfig(program.config_path, program.configuration);
  registerZelDocuments(program.services.registry, program.place);
}

void shutDown(Program& program) {
  CloseHelp(program.services.help);
  writeConfig(program.config_path, program.configuration);
  program.end_process();
}

}  // namespace zel
