#include "cli/render_one.h"

#include "cli/file_picture.h"
#include "cli/input_output.h"
#include "cli/session.h"
#include "plot/drawing.h"

namespace zel {
namespace {

/// The screen of a drawing without a window: its status is shown as progress.
class ProgressScreen : public Screen {
 public:
  ProgressScreen(Progress* progress, const FilePicture& file) : progress_(progress), file_(file) {}

  void watch(Drawing& drawing) { drawing_ = &drawing; }
  void showStatus(const StatusPanels& panels) override { status_ = panels; }
  void runPendingEvents() override {
    if (progress_ != nullptr) progress_->show([&] { return status_.first + status_.second; });
    if (file_.isFull()) drawing_->giveUp();
  }

 private:
  Progress* progress_;
  const FilePicture& file_;
  Drawing* drawing_ = nullptr;
  StatusPanels status_;
};

int draw(Session& session, const WantedView& wanted, const OpenedView& opened, FilePicture& file,
         const Console& console, Progress* progress) {
  Viewport viewport;
  viewport.view = opened.view;
  viewport.size = wanted.size;
  ProgressScreen screen(progress, file);
  Drawing drawing(session.engine, session.graphs, file.picture(), screen);
  screen.watch(drawing);
  const RedrawOutcome outcome = drawing.redraw(viewport, opened.marks);
  if (outcome == RedrawOutcome::drawn && !file.isFull()) return kExitDone;
  const bool outgrown = outcome == RedrawOutcome::drawn || outcome == RedrawOutcome::abandoned;
  return console.fail(redrawMessage(outgrown ? RedrawOutcome::failed : outcome));
}

}  // namespace

int renderOne(const RenderJob& job, const WantedView& wanted, const Console& console,
              Progress* progress) {
  const auto file = makeFilePicture(job.ending, wanted.width, wanted.height);
  if (!file) return console.fail("Valores demasiado grandes para operar.");
  Session session;
  if (const int status = session.load(job.file, console)) return status;
  const auto opened = openedView(wanted, session.view);
  if (!opened) return console.fail("Datos no válidos en declaraciones y/o rango.");
  if (const int status = draw(session, wanted, *opened, *file, console, progress)) return status;
  const std::string bytes = file->bytes();
  if (bytes.empty() || !writeOutput(job.out, bytes, console))
    return console.fail(messages::kCannotSave);
  return kExitDone;
}

}  // namespace zel
