// What the graph editor's controls hold.
#include <QComboBox>
#include <QFont>
#include <QTabWidget>
#include <QVariant>

#include "app/editor/new_graph.h"
#include "forms/editor/editor_fields.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/listed_text.h"
#include "forms/text_box.h"

namespace zel {
TextBox* frmAdmGraficos::box(const char* name) const {
  return findChild<TextBox*>(QString::fromLatin1(name));
}

char frmAdmGraficos::letter() const { return static_cast<char>('a' + cboNombre_->currentIndex()); }

char frmAdmGraficos::kind() const {
  return kEditorKinds[static_cast<std::size_t>(TabStrip1_->currentIndex())];
}

GraphFields frmAdmGraficos::fields() const {
  GraphFields fields = newGraphFields(kind());
  for (const auto& [control, field] : placesOf(fields)) {
    const std::string tag = fromQt(box(control)->property("Tag").toString());
    *field = {ReadFieldText(*this, control), ReadFieldText(*this, tag)};
  }
  return fields;
}

void frmAdmGraficos::setFields(GraphFields fields) {
  for (const auto& [control, field] : placesOf(fields)) box(control)->setWhole(toQt(field->text));
}

void frmAdmGraficos::clearFields() {
  for (const char kind : kEditorKinds) setFields(newGraphFields(kind));
}

void frmAdmGraficos::markLettersInUse() {
  QFont bold = cboNombre_->font();
  bold.setBold(true);
  for (int i = 0; i < cboNombre_->count(); ++i) {
    const GraphDef& def = *program().graphs.slot(static_cast<char>('a' + i));
    const bool in_use = def.defined;
    cboNombre_->setItemData(i, in_use ? bold : QVariant(), Qt::FontRole);
    cboNombre_->setItemData(i, in_use ? listedTip(def) : QVariant(), Qt::ToolTipRole);
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
