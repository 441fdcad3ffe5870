#pragma once

#include <memory>
#include <string>

#include "app/desktop.h"
#include "app/services.h"

namespace zel {

/// What the desktop around the program offers: the free desktop's, or Windows'.
struct DesktopServices {
  std::unique_ptr<ClassRegistry> registry;
  std::unique_ptr<Browser> browser;
  std::unique_ptr<MailClient> mail;
  std::unique_ptr<RecentDocuments> recent;
};

/// `program_path` is the program's file, for platforms that open a document by a command of their
/// own making.
DesktopServices makeDesktopServices(const std::string& program_path);

/// The folder, not always there yet, in which an installed program keeps what is the user's own:
/// "zel" among the user's configurations. Empty where the user has none. UTF-8, or the
/// system's own bytes on POSIX.
std::string userFolder();

/// The folder, not always there yet, of what the program itself remembers of the user's work: "zel"
/// among the user's states. Empty where the user has none. In the same bytes.
std::string stateFolder();

/// Where the program's file lies, written as the platform writes paths: on Windows with "\" alone,
/// however `program_path` is written.
ProgramPlace programPlace(const std::string& program_path);

/// Names the user's home to the toolkit where the environment does not. Called once, before the
/// application is there. On Windows the toolkit knows it.
void nameHome();

/// From now on a signal that asks the program to end (SIGTERM, SIGINT, SIGHUP) gives the
/// application the event QEvent::Quit, as a logout does, and another one of its kind ends the
/// program at once. Called once, when the application is there. Windows has no such signals.
void quitOnSignals();

}  // namespace zel
