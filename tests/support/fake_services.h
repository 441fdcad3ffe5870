#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/services.h"

/// The platform's services as recorders: each keeps what was asked of it, and answers what a test
/// has preset. A queue of answers that is empty answers as a user who declines.
namespace zel::test {

/// Takes the first of the preset answers; nothing when there is none.
template <class Answer>
std::optional<Answer> takeAnswer(std::deque<Answer>& answers) {
  if (answers.empty()) return std::nullopt;
  Answer answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

class FakeMessageBoxes : public MessageBoxes {
 public:
  struct Box {
    std::string text;
    std::string title;
    BoxStyle style = BoxStyle::stop;

    bool operator==(const Box&) const = default;
  };

  BoxAnswer show(const std::string& text, const std::string& title, BoxStyle style) override {
    shown.push_back({text, title, style});
    if (on_show) on_show(shown.back());
    const BoxAnswer closed = style == BoxStyle::stop ? BoxAnswer::ok : BoxAnswer::cancel;
    return takeAnswer(answers).value_or(closed);
  }

  std::vector<Box> shown;
  std::deque<BoxAnswer> answers;
  std::function<void(const Box&)> on_show;  // while the box is up
};

class FakeFileDialogs : public FileDialogs {
 public:
  std::optional<std::string> askOpen(std::string_view filter,
                                     const std::string& proposal) override {
    asked.push_back("open " + std::string(filter));
    proposals.push_back(proposal);
    return takeAnswer(paths);
  }
  std::optional<std::string> askSave(std::string_view filter,
                                     const std::string& proposal) override {
    asked.push_back("save " + std::string(filter));
    proposals.push_back(proposal);
    return takeAnswer(paths);
  }

  std::vector<std::string> asked;  // "open FILTER" or "save FILTER"
  std::vector<std::string> proposals;
  std::deque<std::string> paths;
};

class FakeColourDialog : public ColourDialog {
 public:
  std::optional<std::int32_t> askColour(std::int32_t initial) override {
    initials.push_back(initial);
    return takeAnswer(colours);
  }

  std::vector<std::int32_t> initials;
  std::deque<std::int32_t> colours;
};

class FakeHelpViewer : public HelpViewer {
 public:
  void show(const std::string& help_file, int command) override {
    shown.emplace_back(help_file, command);
    if (real) real->show(help_file, command);
  }

  std::vector<std::pair<std::string, int>> shown;
  HelpViewer* real = nullptr;  // which shows it, too
};

class FakeClassRegistry : public ClassRegistry {
 public:
  Key createKey(const std::string& name) override {
    if (!creates_keys) return 0;
    keys.push_back(name);
    return keys.size();
  }
  void setValue(Key key, const std::string& subkey, const std::string& value) override {
    const std::string name = key == 0 ? std::string("?") : keys.at(key - 1);
    values.emplace_back(subkey.empty() ? name : name + "\\" + subkey, value);
  }

  bool creates_keys = true;
  std::vector<std::string> keys;                            // in the order of their creation
  std::vector<std::pair<std::string, std::string>> values;  // a full path ("?" where there is no
                                                            // key) and its text
};

class FakeBrowser : public Browser {
 public:
  bool start() override { return note("start"); }
  bool makeVisible() override { return note("visible"); }
  bool navigate(const std::string& address) override { return note("navigate " + address); }
  bool isBusy() override {
    ++busy_reads;
    return busy_reads <= busy_for;
  }

  std::vector<std::string> calls;
  std::string fails_at;  // how the call begins that fails
  int busy_for = 0;      // so many reads find it busy
  int busy_reads = 0;

 private:
  bool note(const std::string& call) {
    calls.push_back(call);
    return fails_at.empty() || !call.starts_with(fails_at);
  }
};

class FakeMailClient : public MailClient {
 public:
  bool start() override { return note("start"); }
  bool createItem() override { return note("create"); }
  bool addRecipient(const std::string& address) override { return note("recipient " + address); }
  bool setSubject(const std::string& subject) override { return note("subject " + subject); }
  bool send() override { return note("send"); }

  std::vector<std::string> calls;
  std::string fails_at;  // how the call begins that fails

 private:
  bool note(const std::string& call) {
    calls.push_back(call);
    return fails_at.empty() || !call.starts_with(fails_at);
  }
};

class FakeInputBoxes : public InputBoxes {
 public:
  std::optional<std::string> ask(const std::string& prompt, const std::string& title) override {
    asked.emplace_back(prompt, title);
    if (on_ask) on_ask();
    return takeAnswer(answers);
  }

  std::vector<std::pair<std::string, std::string>> asked;  // prompt and title
  std::deque<std::string> answers;
  std::function<void()> on_ask;  // while the box is up
};

class FakeClipboard : public Clipboard {
 public:
  void clear() override {
    calls.push_back("clear");
    bitmap.reset();
    svg.clear();
  }
  void putPicture(const Bitmap& pixels, const std::string& document) override {
    on_picture();
    calls.push_back("picture");
    bitmap = pixels;
    svg = document;
  }

  std::function<void()> on_picture = [] {};
  std::vector<std::string> calls;  // "clear" or "picture"
  std::optional<Bitmap> bitmap;    // what is on the clipboard
  std::string svg;
};

/// A printer with upright A4 paper, unless a test takes it away.
class FakePrinter : public Printer {
 public:
  struct Page {
    PageOrientation orientation;
    Point position;
    PaperSize size;
    DrawingList drawing;
    Bitmap bitmap;
    double scale;
  };

  std::vector<std::string> names() override { return printers; }
  std::string chosen() override { return printers.empty() ? "" : chosen_printer; }
  void choose(const std::string& name) override { chosen_printer = name; }
  std::optional<PaperSize> paper(PageOrientation orientation) override {
    asked.push_back(orientation);
    return upright ? std::optional(lying(*upright, orientation)) : std::nullopt;
  }
  PrintOutcome print(const PrintJob& job) override {
    printed.push_back(pageOf(job));
    return outcome;
  }
  PaperSize usualPaper(PageOrientation orientation) override { return lying(usual, orientation); }
  std::optional<std::string> makePdf(const PrintJob& job) override {
    made_pdfs.push_back(pageOf(job));
    return pdf;
  }

  std::vector<std::string> printers = {"Laser", "Office"};
  std::string chosen_printer = "Laser";
  std::optional<PaperSize> upright = PaperSize{11900, 16840};  // nothing: it names none
  PaperSize usual = {12240, 15840};
  std::optional<std::string> pdf = "%PDF";  // nothing: it cannot be made
  std::vector<Page> made_pdfs;
  PrintOutcome outcome = PrintOutcome::printed;
  std::vector<PageOrientation> asked;
  std::vector<Page> printed;

 private:
  static PaperSize lying(PaperSize paper, PageOrientation orientation) {
    if (orientation == PageOrientation::portrait) return paper;
    return {paper.height, paper.width};
  }
  static Page pageOf(const PrintJob& job) {
    return {job.orientation, job.position, job.size, job.drawing, job.bitmap, job.scale};
  }
};

class FakeRecentDocuments : public RecentDocuments {
 public:
  std::vector<std::string> list() override { return listed; }
  void add(const std::string& path) override { added.push_back(path); }

  std::vector<std::string> listed;
  std::vector<std::string> added;
};

/// All of them; declare it before the Program that it serves.
struct FakeServices {
  FakeMessageBoxes boxes;
  FakeFileDialogs files;
  FakeColourDialog colours;
  FakeHelpViewer help;
  FakeClassRegistry registry;
  FakeBrowser browser;
  FakeMailClient mail;
  FakeInputBoxes inputs;
  FakeClipboard clipboard;
  FakePrinter printer;
  FakeRecentDocuments recent;

  Services services() {
    return {boxes, files,  colours,   help,    registry, browser,
            mail,  inputs, clipboard, printer, recent};
  }
};

}  // namespace zel::test
