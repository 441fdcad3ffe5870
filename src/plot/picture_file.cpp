#include "plot/picture_file.h"

#include <utility>

#include "files/document.h"
#include "pictures/file_picture.h"

namespace zel {
namespace {

/// The screen of a drawing without a window.
class WatchedScreen : public Screen {
 public:
  explicit WatchedScreen(const DrawingWatcher& goes_on) : goes_on_(goes_on) {}

  void watch(Drawing& drawing) { drawing_ = &drawing; }
  void showStatus(const StatusPanels& panels) override { status_ = panels; }
  void runPendingEvents() override {
    if (!goes_on_(status_)) drawing_->giveUp();
  }

 private:
  const DrawingWatcher& goes_on_;
  Drawing* drawing_ = nullptr;
  StatusPanels status_;
};

}  // namespace

RedrawOutcome drawOpenedView(const OpenedView& opened, const PictureSize& size, Engine& engine,
                             const GraphTable& graphs, Picture& picture,
                             const DrawingWatcher& goes_on) {
  Viewport viewport;
  viewport.view = opened.view;
  viewport.size = size;
  WatchedScreen screen(goes_on);
  Drawing drawing(engine, graphs, picture, screen);
  screen.watch(drawing);
  return drawing.redraw(viewport, opened.marks);
}

namespace {

/// What was drawn as a file, unless that ends to be wanted meanwhile.
PictureFile fileOf(FilePicture& picture, const bool& is_wanted) {
  std::string bytes = picture.bytes();
  if (!is_wanted) return {};
  if (bytes.empty()) return {{}, messages::kCannotSave};
  return {std::move(bytes), {}};
}

}  // namespace

PictureFile drawPictureFile(const PictureJob& job, Engine& engine, const GraphTable& graphs,
                            const DrawingWatcher& goes_on) {
  StatusPanels shown;
  bool is_wanted = true;
  const GoesOn is_still_wanted = [&] { return is_wanted = is_wanted && goes_on(shown); };
  const auto file = makeFilePicture(job.ending, job.width, job.height, job.scale, is_still_wanted);
  if (!file) return {{}, is_wanted ? "Valores demasiado grandes para operar." : ""};
  const auto goes_on_growing = [&](const StatusPanels& status) {
    shown = status;
    return is_still_wanted() && !file->isFull();
  };
  const RedrawOutcome outcome =
      drawOpenedView(job.opened, PictureSize::ofPixels(job.width, job.height), engine, graphs,
                     file->picture(), goes_on_growing);
  if (!is_wanted) return {};
  if (file->isFull()) return {{}, redrawMessage(RedrawOutcome::failed)};
  if (outcome != RedrawOutcome::drawn) return {{}, redrawMessage(outcome)};
  shown = {};
  return fileOf(*file, is_wanted);
}

}  // namespace zel
