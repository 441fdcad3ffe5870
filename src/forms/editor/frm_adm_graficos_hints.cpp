// What the graph editor says and shows before anything is accepted, and where it leads after a
// refusal. All of it is tried on copies, so that nothing is accepted or refused by it.
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

#include "forms/editor/colour_swatch.h"
#include "forms/editor/editor_fields.h"
#include "forms/editor/editor_pages.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/editor/hint_line.h"
#include "forms/editor/preview_box.h"
#include "forms/text_box.h"

namespace zel {

void frmAdmGraficos::connectHints() {
  pause_.setSingleShot(true);
  connect(&pause_, &QTimer::timeout, this, [this] {
    if (isVisible()) updateHints();
  });
  const auto wait = [this] { pause_.start(kPause); };
  for (const QLineEdit* field : findChildren<QLineEdit*>())
    connect(field, &QLineEdit::textChanged, this, wait);
  const auto update = [this] { pause_.start(0); };
  connect(cboNombre_, &QComboBox::currentIndexChanged, this, update);
  connect(TabStrip1_, &QTabWidget::currentChanged, this, update);
  connect(picVista_, &PreviewBox::outgrown, this, update);
}

EditedGraph frmAdmGraficos::edited() const {
  return {letter(), FondoColor_->colour(), fields(), changed_};
}

std::optional<std::size_t> frmAdmGraficos::updateHints() {
  pause_.stop();
  GraphTrial trial(program().graphs, edited());
  drawPreview(trial);
  GraphFields shown = fields();
  std::size_t i = 0;
  for (const FieldPlace& place : placesOf(shown)) showHint(place.control, trial.fieldHints()[i++]);
  showHint("cboNombre", trial.letterHint());
  return trial.letterHint().isFault() ? std::nullopt : trial.faultyField();
}

void frmAdmGraficos::showHint(const char* control_name, const FieldHint& hint) {
  auto* const line = findChild<HintLine*>(hintName(control_name));
  line->setHint(hint);
  control(control_name).setAccessibleDescription(line->text());
}

void frmAdmGraficos::drawPreview(GraphTrial& trial) {
  auto view = previewView(program().main_view);
  Preview preview = Preview::no_view;
  QElapsedTimer watch;
  watch.start();
  const auto goes_on = [&] {
    return std::chrono::nanoseconds(watch.nsecsElapsed()) < preview_time_;
  };
  picVista_->drawWith([&](Picture& picture) {
    if (view) preview = trial.draw(*view, picVista_->pictureSize(), picture, goes_on);
  });
  LblVista_->setText(toQt(previewText(preview, view.value_or(ViewSettings()))));
  picVista_->setAccessibleDescription(LblVista_->text());
}

void frmAdmGraficos::movePreview() {
  auto* place =
      TabStrip1_->currentWidget()->findChild<QWidget*>(QString::fromLatin1(kPreviewPlace));
  place->layout()->addWidget(preview_);
}

void frmAdmGraficos::goToFault() {
  const auto fault = updateHints();
  if (!fault) return;
  GraphFields shown = fields();
  QLineEdit* const field = box(placesOf(shown)[*fault].control);
  static_cast<QScrollArea*>(TabStrip1_->currentWidget())->ensureWidgetVisible(field);
  field->setFocus(Qt::OtherFocusReason);
  field->selectAll();
}

}  // namespace zel
