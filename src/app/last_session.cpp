// The file holds what the running session has kept as soon as that keeps anything. So what the
// session before it has left is read before the first write and stays in memory. A session that is
// read goes into a table of its own first: one that cannot be read costs nothing.
#include "app/last_session.h"

#include <filesystem>
#include <new>
#include <system_error>
#include <utility>

#include "app/main_commands.h"
#include "app/messages.h"
#include "base/language.h"
#include "files/absolute_path.h"
#include "files/whole_file.h"

namespace zel {
namespace {

namespace fs = std::filesystem;

constexpr const char* kSessionFile = "session.zel";

/// What is the user's own state is nobody else's to read.
bool makeFolder(const std::string& folder) {
  try {
    const fs::path path = pathOf(folder);
    std::error_code error;
    if (fs::create_directories(path, error)) fs::permissions(path, fs::perms::owner_all, error);
    return !error;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace

LastSession::LastSession(const std::string& folder)
    : folder_(folder), path_(folder.empty() ? "" : folder + "/" + kSessionFile) {}

bool LastSession::isThere() const {
  if (path_.empty()) return false;
  return previous_ ? !previous_->empty() : fileExists(path_);
}

/// Whether a document can be read back, which documentBytes looks at, takes long to tell; that it
/// is the one that was kept does not.
void LastSession::keep(const MainView& view, const GraphTable& graphs) {
  if (path_.empty() || graphs.count() < 1) return;
  if (isDocument(kept_, view, graphs) && fileExists(path_)) return;
  std::string().swap(kept_);  // its memory is free before that of the new bytes is needed
  if (!makeFolder(folder_)) return;
  auto bytes = documentBytes(view, graphs);
  if (!bytes || !takePrevious()) return;
  if (writeWholeFile(path_, *bytes, NewFile::always_for_its_user_alone).written)
    kept_ = std::move(*bytes);
}

bool LastSession::recover(MainView& view, GraphTable& graphs, std::string& message) {
  message = messages::kCannotOpen;
  if (!takePrevious()) return false;
  MainView recovered_view = view;
  GraphTable recovered;
  DocumentHeader header;
  if (!loadDocumentBytes(*previous_, recovered_view, recovered, header, message)) {
    const bool wants_memory = message == messages::kCannotOpen;
    if (!wants_memory) previous_ = "";
    return false;
  }
  view = std::move(recovered_view);
  graphs = recovered;
  return true;
}

bool LastSession::takePrevious() try {
  if (!previous_) previous_ = readWholeFile(path_);
  if (!previous_ && !fileExists(path_)) previous_ = "";
  return previous_.has_value();
} catch (const std::bad_alloc&) {
  return false;
}

bool recoverLastSession(Program& program, MainView& view) {
  MainView recovered = view;
  GraphTable graphs;
  std::string message;
  if (!program.last_session.recover(recovered, graphs, message)) {
    ShowAttention(program.services.boxes, Localize(openFailureMessage(message)));
    return false;
  }
  newDocument(program, view);
  program.graphs = graphs;
  view = std::move(recovered);
  return true;
}

}  // namespace zel
