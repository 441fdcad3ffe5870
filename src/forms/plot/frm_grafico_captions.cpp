// The plot window's captions in both languages, and what it tells those who cannot see it.
#include "forms/plot/frm_grafico.h"
#include "forms/plot/graph_bar.h"
#include "forms/plot/graph_legend.h"
#include "forms/plot/panel_bar.h"
#include "forms/plot/picture_box.h"
#include "forms/plot/plot_toolbar.h"
#include "numbers/number_text.h"

namespace zel {

void frmGrafico::assignCaptions() {
  setWindowTitle(caption("ZEL - Gráficos", "ZEL - Graphics"));
  picGrafico_->setAccessibleName(caption("Gráfico de funciones", "Function graphic"));
  Toolbar1_->assignCaptions();
  graph_bar_->assignCaptions();
  legend_->assignCaptions();
  needLeastSize();  // which depends on the row's captions
  describePicture();
}

void frmGrafico::describePicture() {
  const ViewSettings& view = session_.view();
  const auto text = [](double number) { return toQt(writeNumber(number)); };
  QString description = caption("x de %1 a %2; y de %3 a %4", "x from %1 to %2; y from %3 to %4")
                            .arg(text(view.xi), text(view.xf), text(view.yi), text(view.yf));
  if (!graph_bar_->graphText().isEmpty())
    description += "; " + caption("gráfico activo: ", "active graph: ") + graph_bar_->graphText();
  if (session_.mode() == PlotMode::recorrido && !session_.isDrawing())
    description += "; " + StatusBar1_->text();
  // Whoever listens hears each change once.
  if (description != picGrafico_->accessibleDescription())
    picGrafico_->setAccessibleDescription(description);
}

}  // namespace zel
