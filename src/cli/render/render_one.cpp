#include "cli/render/render_one.h"

#include "cli/console/input_output.h"
#include "cli/session.h"
#include "plot/picture_file.h"

namespace zel {

int renderOne(const RenderJob& job, const WantedView& wanted, const Console& console,
              Progress* progress) {
  Session session;
  if (const int status = session.load(job.file, console)) return status;
  const auto opened = openedView(wanted, session.view);
  if (!opened) return console.fail("Datos no válidos en declaraciones y/o rango.");
  const auto goes_on = [progress](const StatusPanels& status) {
    const bool tells = !status.first.empty() || !status.second.empty();
    if (progress != nullptr && tells) progress->show([&] { return status.first + status.second; });
    return true;
  };
  const PictureFile file = drawPictureFile({job.ending, wanted.width, wanted.height, *opened},
                                           session.engine, session.graphs, goes_on);
  if (!file.message.empty()) return console.fail(file.message);
  if (!writeOutput(job.out, file.bytes, console)) return console.fail(messages::kCannotSave);
  return kExitDone;
}

}  // namespace zel
