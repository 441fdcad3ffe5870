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

StartStep takeFirstSteps(Program& program) {
  const ConfigRead configuration = readConfig(program.config_path, program.configuration);
  // A first start, however early it ends, leaves nothing that a later one would take for damaged.
  if (configuration != ConfigRead::read) removeEmptyFile(program.config_path);
  if (configuration == ConfigRead::damaged) {
    tellFailedStart(program);
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

}  // namespace

StartStep startProgram(Program& program) {
  StartStep step = StartStep::ended;
  carryOutStart(program, [&] { step = takeFirstSteps(program); });
  return step;
}

bool carryOutStart(Program& program, const std::function<void()>& steps) {
  try {
    steps();
    return true;
  } catch (...) {
    tellFailedStart(program);
    return false;
  }
}

void tellFailedStart(Program& program) {
  ShowAttention(program.services.boxes, Localize(kStartupFailed));
}

void tellUnstableMemory(Program& program) {
  ShowAttention(program.services.boxes, Localize("No se pudieron cargar los datos en memoria "
                                                 "correctamente.\r\nMemoria inestable.  Se "
                                                 "recomienda reiniciar."));
}

std::string besideDocument(const Program& program, std::string_view ending) {
  std::string path = program.document_path;
  if (path.empty()) return path;
  const std::size_t dot = path.find_last_of("./\\");
  if (dot != std::string::npos && path[dot] == '.') path.resize(dot);
  return path.append(".").append(ending);
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
