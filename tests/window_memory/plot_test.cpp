// Every allocation of what the plot window does fails once: it is done, or told and done the next
// time.
#include <QAbstractButton>
#include <functional>
#include <sstream>
#include <string_view>

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

  /// What is on the paper, in few letters.
  std::string pixels() {
    const Bitmap bitmap = plot().picture().bitmap();
    const std::string_view bytes(reinterpret_cast<const char*>(bitmap.pixels.data()),
                                 bitmap.pixels.size() * sizeof bitmap.pixels[0]);
    return std::to_string(std::hash<std::string_view>()(bytes));
  }

  /// Another size makes the plot draw itself anew, and so does the size that it had.
  void resizeThereAndBack() {
    const QSize size = plot().size();
    for (const QSize& next : {size + QSize(40, 40), size}) {
      plot().resize(next);
      settle();
    }
  }

  Deed button(const char* name) {
    return {.prepare = [this] { open(); },
            .act = [this, name] { click(plot(), name); },
            .held = [this] { return place(); },
            .shown = [this] { return pixels(); },
            .refresh = [this] { resizeThereAndBack(); }};
  }
};

TEST_F(PlotWindowInWantOfMemory, IsOpenedAndDrawnOrNotAtAll) {
  const auto held = [this] {
    return plot().isVisible() ? "shown " + place() : text(mainWindow(), "txtRanXi");
  };
  Deed opening = button("");
  opening.prepare = [this] {
    leave();
    putDocument();
  };
  opening.act = [this] { click(mainWindow(), "CmdGraficarLista"); };
  opening.held = held;
  EXPECT_GT(expectDoneOrTold(opening), 30);
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
