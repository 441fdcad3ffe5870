// What the graph editor's controls hold.
#include <QComboBox>
#include <QFont>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>
#include <QVariant>

#include "app/new_graph.h"
#include "forms/editor/editor_fields.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/tool_tip.h"

namespace zel {
namespace {

/// The caption of the label or frame that the "Tag" of a field names.
QString tagCaption(const QWidget& form, const QLineEdit& box) {
  const QString tag = box.property("Tag").toString();
  if (const auto* label = form.findChild<QLabel*>(tag)) return label->text();
  const auto* frame = form.findChild<QGroupBox*>(tag);
  return frame ? frame->title() : QString();
}

}  // namespace

QLineEdit* frmAdmGraficos::box(const char* name) const {
  return findChild<QLineEdit*>(QString::fromLatin1(name));
}

char frmAdmGraficos::letter() const { return static_cast<char>('a' + cboNombre_->currentIndex()); }

char frmAdmGraficos::kind() const {
  return kEditorKinds[static_cast<std::size_t>(TabStrip1_->currentIndex())];
}

GraphFields frmAdmGraficos::fields() const {
  GraphFields fields = newGraphFields(kind());
  for (const auto& [control, field] : placesOf(fields)) {
    const QLineEdit* const edited = box(control);
    *field = {fromQt(edited->text()), fromQt(tagCaption(*this, *edited))};
  }
  return fields;
}

void frmAdmGraficos::setFields(GraphFields fields) {
  for (const auto& [control, field] : placesOf(fields)) box(control)->setText(toQt(field->text));
}

void frmAdmGraficos::clearFields() {
  for (const char kind : kEditorKinds) setFields(newGraphFields(kind));
}

void frmAdmGraficos::markLettersInUse() {
  QFont bold = cboNombre_->font();
  bold.setBold(true);
  for (int i = 0; i < cboNombre_->count(); ++i) {
    const auto def = program().graphs.graph(static_cast<char>('a' + i));
    const bool in_use = def && def->defined;
    cboNombre_->setItemData(i, in_use ? bold : QVariant(), Qt::FontRole);
    cboNombre_->setItemData(i, in_use ? toolTipOf(toQt(displayText(*def))) : QVariant(),
                            Qt::ToolTipRole);
  }
}

QLineEdit* frmAdmGraficos::formulaBox() const {
  const auto controls = formulaControls(kind());
  if (controls.empty()) return nullptr;
  for (const char* control : controls) {
    if (box(control) == last_formula_) return last_formula_;
  }
  return box(controls.front());
}

}  // namespace zel
