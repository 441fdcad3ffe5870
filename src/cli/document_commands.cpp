#include <memory>
#include <ostream>
#include <string>

#include "cli/commands.h"
#include "cli/console/input_output.h"
#include "cli/session.h"
#include "pictures/colour.h"

namespace zel {
namespace {

struct DocumentOptions {
  std::string file;
  std::string out;
};

/// The line of one graph: letter, kind, colour, display text and codes between tabs.
void describe(const GraphDef& def, std::ostream& out) {
  out << def.nombre << '\t';
  writeOnOneLine(kindText(def), out);
  out << '\t' << colourText(def.color) << '\t';
  for (const std::string_view piece : displayPieces(def)) writeOnOneLine(piece, out);
  out << '\t';
  writeOnOneLine(def.codigo, out);
  for (const char* key : {"codigo1", "codigo2", "codigo_xt", "codigo_yt"}) {
    const std::string* const code = def.parameters ? def.parameters->find(key) : nullptr;
    if (code == nullptr) continue;
    out << '\t';
    writeOnOneLine(*code, out);
  }
  out << '\n';
}

int check(const DocumentOptions& options, const Console& console) {
  Session session;
  if (const int status = session.load(options.file, console)) return status;
  for (char letter = 'a'; letter <= 'z'; ++letter) {
    const GraphDef* const def = session.graphs.slot(letter);
    if (def->defined) describe(*def, console.out);
  }
  return kExitDone;
}

int resave(const DocumentOptions& options, const Console& console) {
  Session session;
  if (const int status = session.load(options.file, console)) return status;
  const auto bytes = documentBytes(session.view, session.graphs);
  if (!bytes || !writeOutput(options.out, *bytes, console))
    return console.fail(messages::kCannotSave);
  return kExitDone;
}

}  // namespace

void addCheck(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<DocumentOptions>();
  CLI::App* subcommand = app.add_subcommand("check", "Load a document and list its graphs");
  subcommand->add_option("FILE", options->file, "Document; - is standard input")
      ->type_name("")
      ->required();
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return check(*options, console); };
  });
}

void addResave(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<DocumentOptions>();
  CLI::App* subcommand = app.add_subcommand("resave", "Load a document and write it anew");
  subcommand->add_option("FILE", options->file, "Document; - is standard input")
      ->type_name("")
      ->required();
  subcommand->add_option("OUT", options->out, "Document; - is standard output")
      ->type_name("")
      ->required();
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return resave(*options, console); };
  });
}

}  // namespace zel
