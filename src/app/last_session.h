#pragma once

#include <optional>
#include <string>

#include "files/document.h"
#include "graphs/graph_table.h"

namespace zel {

struct Program;

/// The declarations of a session, kept for the next one in a file of the user's state folder, which
/// is no document of the user's; it is made for nobody else to read. What cannot be kept is passed
/// over: nobody is told.
class LastSession {
 public:
  /// In the folder, which is made for the user alone where it is missing. Without one nothing is
  /// kept. UTF-8.
  explicit LastSession(const std::string& folder = {});

  /// Whether a session before this one has left declarations, whatever this one has kept.
  bool isThere() const;

  /// Keeps the view and the graphs, unless they are what was kept last. A table without graphs is
  /// not kept, so that what was there before it can still be recovered; and nothing takes the place
  /// of a file that cannot be read, which is tried again each time.
  void keep(const MainView& view, const GraphTable& graphs);

  /// Reads what the session before this one has left. False with a message when that fails: view
  /// and graphs are then as they were. What was read and is no document is no longer there; what
  /// cannot be read, or wants memory, still is.
  bool recover(MainView& view, GraphTable& graphs, std::string& message);

 private:
  /// False where there is a file that cannot be read, and for want of memory.
  bool takePrevious();

  std::string folder_;
  std::string path_;
  std::optional<std::string> previous_;  // the bytes of the session before, once they were read
  std::string kept_;                     // the bytes that were written last
};

/// The Recover command: what was recovered takes the place of the graphs and of the view, and
/// belongs to no document. False when there is nothing to recover, which is told.
bool recoverLastSession(Program& program, MainView& view);

}  // namespace zel
