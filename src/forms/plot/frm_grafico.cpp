// The plot window: what the session asks of it, and how it is opened and left.
#include "forms/plot/frm_grafico.h"

#include <QCloseEvent>

#include "app/messages.h"
#include "app/plot_arguments.h"
#include "forms/plot/graph_bar.h"
#include "forms/plot/graph_legend.h"
#include "forms/plot/picture_box.h"
#include "forms/plot/plot_overlay.h"
#include "forms/plot/plot_toolbar.h"
#include "pictures/svg_picture.h"
#include "platform/qt/bitmap_image.h"
#include "platform/qt/number_painter.h"

namespace zel {

void frmGrafico::showForm() {
  // Behind the window that comes back, a drawing has failed and the view was handed back.
  if (callerOf(program().params) == this && !session_.isOpen()) return;
  Form::showForm();
  picGrafico_->setFocus();
  draws_soon_.start();
}

void frmGrafico::takeArguments() {
  const FormParams& params = program().params;
  if (callerOf(params) == this) {
    setCaller(opener_);
    return;
  }
  opener_ = callerOf(params);
  legend_->listGraphs(program().graphs);
  needLeastSize();
  is_resized_ = true;  // the list may need room, or give it back
  session_.open(viewIn(params), program().marks);
}

/// It is hidden: of a window that is closed the toolkit would keep something each time.
void frmGrafico::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (session_.isOpen())
    leave(session_.openedView());
  else if (isVisible())
    returnToCaller();
}

void frmGrafico::pictureDrawn() {
  picGrafico_->showDrawn();
  describePicture();
}

void frmGrafico::toolsChanged() {
  Toolbar1_->follow(session_);
  overlay_->show(session_.cursor(), session_.zoomRectangle());
  picGrafico_->setCursor(session_.mode() == PlotMode::zoom ? Qt::CrossCursor : Qt::ArrowCursor);
  const auto active = session_.activeGraph();
  graph_bar_->showGraph(active ? program().graphs.slot(*active) : nullptr);
  legend_->showActive(active);
  if (shows_numbers_ != session_.showsNumbers()) showNumbers();
  showCoordinates();
  // While a point is traced the panels follow, and then it is described.
  if (session_.mode() != PlotMode::recorrido) describePicture();
}

void frmGrafico::showDrawingError(const std::string& message, std::optional<char> graph) {
  ShowDrawingError(program().services.boxes, message, graph);
}

void frmGrafico::showInformation(const std::string& message) {
  ShowInformation(program().services.boxes, message);
}

std::optional<std::string> frmGrafico::askValue(const std::string& prompt,
                                                const std::string& title) {
  return program().services.inputs.ask(prompt, title);
}

void frmGrafico::showNumbers() {
  shows_numbers_ = session_.showsNumbers();
  graph_bar_->showNumbers(shows_numbers_);
  overlay_->showNumbers(shows_numbers_ ? numbers() : NumberLayer());
}

NumberLayer frmGrafico::numbers() const { return session_.numbers(numberMeasure()); }

void frmGrafico::showCoordinates() {
  if (!shows_numbers_) return overlay_->showCoordinates(std::nullopt, 0);
  const TextMeasure measure = numberMeasure();
  overlay_->showCoordinates(session_.coordinates(measure), measure.font_size);
}

void frmGrafico::copyPicture(bool with_numbers) {
  const NumberLayer layer = with_numbers ? numbers() : NumberLayer();
  QImage image = picGrafico_->image();
  QPainter painter(&image);
  paintOver(painter, layer, picGrafico_->rect());
  painter.end();
  SvgPicture svg(picGrafico_->width(), picGrafico_->height());
  picGrafico_->drawing().replay(svg);
  // What is on the clipboard goes when all that takes its place is there.
  const Bitmap bitmap = toBitmap(image);
  const std::string text = picGrafico_->drawing().isFull() ? "" : svg.text(layer);
  Clipboard& clipboard = program().services.clipboard;
  clipboard.clear();
  clipboard.putPicture(bitmap, text);
}

void frmGrafico::openPrint() {
  if (!print_) return;
  handPlotOver(program().params, session_.view(), this);
  print_->showForm();
}

void frmGrafico::returnToMain() { leave(session_.view()); }

void frmGrafico::leave(const ViewSettings& view) {
  session_.close();
  handViewOver(program().params, view, this);
  returnToCaller();
}

}  // namespace zel
