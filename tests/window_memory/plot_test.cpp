// Every allocation of what the plot window does fails once: it is done, or told and done the next
// time.
#include <QAbstractButton>
#include <sstream>

#include "forms/plot/frm_grafico.h"
#include "forms/plot/picture_box.h"
#include "windows_fixture.h"

namespace zel::test {
namespace {

class PlotWindowInWantOfMemory : public WindowsInWantOfMemory {
 protected:
  frmGrafico& plot() { return dynamic_cast<frmGrafico&>(window("frmGrafico")); }
  QWidget& picture() { return control<QWidget>(plot(), "picGrafico"); }

  void open() {
    leave();
    putDocument();
    click(mainWindow(), "CmdGraficarLista");
    settle();
  }
  void leave() {
    if (plot().isVisible()) plot().close();
    settle();
  }

  /// The view and the traced point.
  std::string place() {
    const ViewSettings& view = plot().session().view();
    std::ostringstream text;
    text << view.xi << " " << view.xf << " " << view.yi << " " << view.yf << " "
         << plot().session().tracePosition() << " " << plot().session().cursor().has_value();
    return text.str();
  }

  Deed button(const char* name) {
    return {[this] { open(); }, [this, name] { click(plot(), name); }, [this] { return place(); }};
  }
};

TEST_F(PlotWindowInWantOfMemory, IsOpenedAndDrawnOrNotAtAll) {
  const auto held = [this] {
    return plot().isVisible() ? "shown " + place() : text(mainWindow(), "txtRanXi");
  };
  EXPECT_GT(expectDoneOrTold({[this] {
                                leave();
                                putDocument();
                              },
                              [this] { click(mainWindow(), "CmdGraficarLista"); }, held}),
            30);
}

TEST_F(PlotWindowInWantOfMemory, GoesBackToTheMainWindow) {
  const auto held = [this] { return plot().isVisible() ? "plot" : text(mainWindow(), "txtRanXi"); };
  const auto pan = [this] {
    open();
    click(plot(), "Derecha");
  };
  EXPECT_GT(expectDoneOrTold({pan, [this] { click(plot(), "Configurar"); }, held}), 5);
  const auto close = [this] { QMetaObject::invokeMethod(&plot(), "close", Qt::QueuedConnection); };
  EXPECT_GT(expectDoneOrTold({pan, close, held}), 5);
}

TEST_F(PlotWindowInWantOfMemory, PansAndZooms) {
  EXPECT_GT(expectDoneOrTold(button("Derecha")), 20);
  EXPECT_GT(expectDoneOrTold(button("Acercar")), 20);
}

TEST_F(PlotWindowInWantOfMemory, TracesAndSearches) {
  EXPECT_GT(expectDoneOrTold(button("Recorrer")), 5);
  Deed search = button("Buscar_Max_Min");
  search.prepare = [this] {
    open();
    click(plot(), "Recorrer");
    click(plot(), "Recorrer_Adelante");
  };
  EXPECT_GT(expectDoneOrTold(search), 5);
}

}  // namespace
}  // namespace zel::test
