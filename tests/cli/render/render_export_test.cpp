// The command line and the export window write the same file of the same document.
#include "app/main_commands.h"
#include "app/output/picture_export.h"
#include "app/plot_arguments.h"
#include "cli/cli_fixture.h"
#include "support/fake_services.h"

namespace zel::test {
namespace {

class RenderedAndExported : public CliTest {
 protected:
  /// As the main window and the export window do it, one after the other.
  std::string exported(const std::string& document, const std::string& ending) {
    FakeServices services;
    Program program{services.services()};
    MainView view;
    EXPECT_TRUE(openDocumentAt(program, document, view));
    PlotFields fields;
    fields.xi.text = view.xi;
    fields.xf.text = view.xf;
    fields.yi.text = view.yi;
    fields.yf.text = view.yf;
    fields.escala_x = view.escala_x;
    fields.escala_y = view.escala_y;
    fields.mantener_prop = view.proporcional;
    fields.definicion = view.definicion;
    EXPECT_TRUE(preparePlot(program, fields, nullptr));
    services.files.paths = {path("window." + ending)};
    EXPECT_TRUE(exportPicture(program, {viewIn(program.params), program.marks},
                              {ending, 420, 300, 1}, [](const StatusPanels&) { return true; })
                    .written);
    return bytesOf(path("window." + ending));
  }

  std::string rendered(const std::string& document, const std::string& ending) {
    const Run result = run(
        {"render", document, "-o", path("command." + ending), "--width", "420", "--height", "300"});
    EXPECT_EQ(result.status, 0) << result.err;
    return bytesOf(path("command." + ending));
  }
};

TEST_F(RenderedAndExported, AreTheSameToTheByte) {
  for (const char* name : {"all_kinds.zel", "conics.zel", "families.zel", "waves.zel"}) {
    for (const char* ending : {"svg", "png", "pdf"}) {
      const std::string document = example(name);
      const std::string one = exported(document, ending);
      EXPECT_FALSE(one.empty());
      EXPECT_TRUE(one == rendered(document, ending)) << name << " " << ending;
    }
  }
}

}  // namespace
}  // namespace zel::test
