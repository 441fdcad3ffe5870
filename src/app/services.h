#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "pictures/bitmap.h"
#include "pictures/drawing_list.h"

/// What the program asks of the platform. Each service is handed in at start, so that tests can
/// record what was asked and preset the answers. Texts and paths are UTF-8.
namespace zel {

/// Buttons and icon of a message box, as the platform numbers them.
enum class BoxStyle {
  ok_cancel = 1,                  // no icon
  cancel_try_again_continue = 6,  // no icon
  stop = 16,                      // stop icon, OK alone
};

enum class BoxAnswer { ok, cancel, try_again, continue_ };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  /// Shows a box and waits for its answer; closing it answers `cancel` where there is such a
  /// button, and `ok` otherwise.
  virtual BoxAnswer show(const std::string& text, const std::string& title, BoxStyle style) = 0;
};

class FileDialogs {
 public:
  virtual ~FileDialogs() = default;
  /// The path of an existing file; nothing when the user cancels. The filter has the form
  /// "Name (*.ext)|*.ext". The dialog begins in the folder of the path that is proposed, with its
  /// name; in the user's documents where there is none.
  virtual std::optional<std::string> askOpen(std::string_view filter,
                                             const std::string& proposal) = 0;
  /// A path in an existing folder; asks before a file would be replaced.
  virtual std::optional<std::string> askSave(std::string_view filter,
                                             const std::string& proposal) = 0;
};

class ColourDialog {
 public:
  virtual ~ColourDialog() = default;
  /// A colour with red in its low byte; nothing when the user cancels.
  virtual std::optional<std::int32_t> askColour(std::int32_t initial) = 0;
};

class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  /// Carries out a help command on a help file; a file that is missing is reported by the viewer.
  virtual void show(const std::string& help_file, int command) = 0;
};

/// The root of the platform's document types, as a tree of keys with a default value each.
class ClassRegistry {
 public:
  /// A key that was created or opened; 0 when that failed.
  using Key = std::uintptr_t;

  virtual ~ClassRegistry() = default;
  virtual Key createKey(const std::string& name) = 0;
  /// Sets the default value of a key's subkey, or of the key itself when the subkey is empty.
  virtual void setValue(Key key, const std::string& subkey, const std::string& value) = 0;
};

/// A browser driven from outside. Each call may fail, and then returns false.
class Browser {
 public:
  virtual ~Browser() = default;
  virtual bool start() = 0;
  virtual bool makeVisible() = 0;
  virtual bool navigate(const std::string& address) = 0;
  /// Whether it is still loading.
  virtual bool isBusy() = 0;
};

/// A mail client driven from outside, with one new mail.
class MailClient {
 public:
  virtual ~MailClient() = default;
  virtual bool start() = 0;
  virtual bool createItem() = 0;
  virtual bool addRecipient(const std::string& address) = 0;
  virtual bool setSubject(const std::string& subject) = 0;
  virtual bool send() = 0;
};

/// A box that asks for one line of text.
class InputBoxes {
 public:
  virtual ~InputBoxes() = default;
  /// What the user typed, as it is; nothing when the user cancels. The prompt may have several
  /// lines.
  virtual std::optional<std::string> ask(const std::string& prompt, const std::string& title) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void clear() = 0;
  /// A picture in pixels and the same as an SVG document, which is empty where there is none.
  virtual void putPicture(const Bitmap& bitmap, const std::string& svg) = 0;
};

/// Lengths on paper are in twips, 1440 to an inch.
struct PaperSize {
  double width = 0;
  double height = 0;

  bool operator==(const PaperSize&) const = default;
};

enum class PageOrientation { portrait, landscape };

/// A picture on one page. It is cut at the page's edges.
struct PrintJob {
  PageOrientation orientation = PageOrientation::portrait;
  Point position;  // of the picture, in twips from the left and top edges of the paper
  PaperSize size;  // of the picture
  const DrawingList& drawing;
  const Bitmap& bitmap;  // the same picture, for a drawing that is full
  double scale = 1;      // of the drawing on the paper
};

enum class PrintOutcome {
  printed,
  cancelled,    // by the user
  not_started,  // the printer takes no job
  failed,       // while printing, or when the job was ended
};

class Printer {
 public:
  virtual ~Printer() = default;
  /// The desktop's printers by name; it may have none.
  virtual std::vector<std::string> names() = 0;
  /// The one that was chosen last, at first the desktop's own choice; empty when there is none.
  virtual std::string chosen() = 0;
  virtual void choose(const std::string& name) = 0;
  /// The paper of the chosen printer from edge to edge, as it lies in this orientation; nothing
  /// when there is no printer or it names no paper.
  virtual std::optional<PaperSize> paper(PageOrientation orientation) = 0;
  /// Lets the user set the printer up or choose another one first, and ends the job, so that the
  /// page comes out.
  virtual PrintOutcome print(const PrintJob& job) = 0;

  /// The paper that is usual where the user lives, whether or not there is a printer.
  virtual PaperSize usualPaper(PageOrientation orientation) = 0;
  /// The page on that paper as the bytes of a PDF file; nothing when it could not be made.
  virtual std::optional<std::string> makePdf(const PrintJob& job) = 0;
};

/// The desktop's list of the documents that were used last, which all programs share.
class RecentDocuments {
 public:
  virtual ~RecentDocuments() = default;
  /// This program's documents on it that are there, the one used last first; at most kMostRecent.
  virtual std::vector<std::string> list() = 0;
  /// Puts a document on the list, or up to its beginning. What cannot be done is passed over.
  virtual void add(const std::string& path) = 0;

  static constexpr std::size_t kMostRecent = 10;
};

/// All of them; the objects outlive the program.
struct Services {
  MessageBoxes& boxes;
  FileDialogs& files;
  ColourDialog& colours;
  HelpViewer& help;
  ClassRegistry& registry;
  Browser& browser;
  MailClient& mail;
  InputBoxes& inputs;
  Clipboard& clipboard;
  Printer& printer;
  RecentDocuments& recent;
};

}  // namespace zel
