#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "app/desktop.h"
#include "app/form_params.h"
#include "app/graph_history.h"
#include "app/last_session.h"
#include "app/services.h"
#include "engine/engine.h"
#include "files/absolute_path.h"
#include "files/config.h"
#include "files/document.h"
#include "graphs/graph_table.h"
#include "plot/axes.h"

namespace zel {

/// What the program holds once. main makes it and hands it down; only the current language is
/// process-wide.
struct Program {
  explicit Program(Services platform) : services(platform) {}

  Services services;
  ProgramPlace place;
  /// In the folder that was the current one at the start, wherever a file dialog goes later.
  std::string config_path = absolutePath(kConfigFile);
  Configuration configuration;
  GraphTable graphs;
  GraphHistory history;
  Engine engine{[this](char letter) { return graphs.codeOf(letter); }};
  FormParams params = makeFormParams();
  ScaleMarks marks;    // set by the main window, read by the plot window
  MainView main_view;  // what the main window held when it opened the editor last
  DocumentHeader header;
  std::string document_name;  // the file name alone; empty when there is no document
  std::string document_path;
  LastSession last_session;  // keeps nothing until it is given a folder
  std::string help_file;     // the application's; "mEnglish" does not change it, which is meant
  std::function<void()> end_process = [] {};
};

/// How the start goes on after its first steps.
enum class StartStep {
  first_start,   // the language is to be chosen
  presentation,  // the presentation, then the main window
  ended,         // a message was shown and the process ends
};

/// The steps of the start before any window: configuration, engine, graphs, arguments, self-test.
/// A damaged configuration, a failed self-test and any other error show their message. The empty
/// configuration file that the reading of a missing one makes is taken away at once.
StartStep startProgram(Program& program);

/// Carries out steps of the start. False when something is thrown out of them: the message of a
/// start that failed was shown then, and the process is to end at once.
bool carryOutStart(Program& program, const std::function<void()>& steps);

/// That the program could not be started.
void tellFailedStart(Program& program);

/// That something was given up for want of memory, and the program had better be started again.
void tellUnstableMemory(Program& program);

/// The document's path with another ending, to be proposed for a file that is made from it; empty
/// while there is no document.
std::string besideDocument(const Program& program, std::string_view ending);

/// Sets the application's help file by the current language.
void chooseHelpFile(Program& program);

/// Shows the topics of the application's help file, as F1 does.
void showApplicationHelp(Program& program);

/// The accept of the language choice: keeps the language and registers the document type.
void acceptLanguage(Program& program);

/// Closes the help viewer, writes the configuration and ends the process at once.
void shutDown(Program& program);

}  // namespace zel
