#include "forms/editor/editor_pages.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>

#include "forms/numeric_keys.h"
#include "forms/text_box.h"

namespace zel {
namespace {

enum class Holds { formula, coordinate, distance };

/// A grid of five columns: a heading, and two fields with a label before each.
class Page {
 public:
  /// An empty frame name makes a page without a frame.
  explicit Page(const char* frame_name) : widget_(new QWidget) {
    auto* column = new QVBoxLayout(widget_);
    QWidget* holder = frameFor(frame_name);
    grid_ = new QGridLayout(holder);
    if (*frame_name == '\0') grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setColumnStretch(2, 1);
    grid_->setColumnStretch(4, 1);
    column->addWidget(holder);
    column->addStretch();
  }

  QWidget* widget() const { return widget_; }

  void heading(int row, const char* name, int columns = 1) {
    grid_->addWidget(makeLabel(name, {}), row, 0, 1, columns);
  }

  /// A label that says the same in all languages.
  void fixedLabel(int row, int column, const char* name, const char* text) {
    grid_->addWidget(makeLabel(name, QString::fromLatin1(text)), row, column,
                     Qt::AlignRight | Qt::AlignVCenter);
  }

  /// What stands between the ends of a range.
  void between(int row, const char* name, const char* text) {
    grid_->addWidget(makeLabel(name, QString::fromLatin1(text)), row, 3, Qt::AlignCenter);
  }

  void label(int row, int column, const char* name) { fixedLabel(row, column, name, ""); }

  void field(int row, int column, const char* name, const char* tag, Holds holds, int columns = 1) {
    auto* box = makeTextBox(name);
    box->setProperty("Tag", QString::fromLatin1(tag));
    if (holds != Holds::formula) filterNumericKeys(*box, holds == Holds::distance);
    grid_->addWidget(box, row, column, 1, columns);
  }

 private:
  static QWidget* frameFor(const char* name) {
    if (*name == '\0') return new QWidget;
    auto* frame = new QGroupBox;
    frame->setObjectName(QString::fromLatin1(name));
    return frame;
  }

  static QLabel* makeLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
  }

  QWidget* widget_;
  QGridLayout* grid_;
};

QWidget* functionPage() {
  Page page("");
  page.heading(0, "LblFuncion", 5);
  page.label(1, 0, "LblF");
  page.field(1, 1, "txtF", "LblFuncion", Holds::formula, 4);
  return page.widget();
}

QWidget* circumferencePage() {
  Page page("fraCircunferencia");
  page.heading(0, "LblCCentro");
  page.fixedLabel(0, 1, "LblCX", "X=");
  page.field(0, 2, "txtCX", "LblCX", Holds::coordinate);
  page.fixedLabel(0, 3, "LblCY", "Y=");
  page.field(0, 4, "txtCY", "LblCY", Holds::coordinate);
  page.label(1, 1, "LblCRadio");
  page.field(1, 2, "txtCRadio", "LblCRadio", Holds::distance);
  return page.widget();
}

QWidget* ellipsePage() {
  Page page("fraElipse");
  page.heading(0, "LblECentro");
  page.fixedLabel(0, 1, "LblEX", "X=");
  page.field(0, 2, "txtEX", "LblEX", Holds::coordinate);
  page.fixedLabel(0, 3, "LblEY", "Y=");
  page.field(0, 4, "txtEY", "LblEY", Holds::coordinate);
  page.heading(1, "LblESemiEje");
  page.label(1, 1, "LblEMayor");
  page.field(1, 2, "txtEMayor", "LblEMayor", Holds::distance);
  page.label(1, 3, "LblEMenor");
  page.field(1, 4, "txtEMenor", "LblEMenor", Holds::distance);
  return page.widget();
}

QWidget* parabolaPage() {
  Page page("fraParabola");
  page.heading(0, "LblPFoco");
  page.fixedLabel(0, 1, "LblPX", "X=");
  page.field(0, 2, "txtPX", "LblPX", Holds::coordinate);
  page.fixedLabel(0, 3, "LblPY", "Y=");
  page.field(0, 4, "txtPY", "LblPY", Holds::coordinate);
  page.heading(1, "LblPDirectriz");
  page.field(1, 2, "txtPDirectriz", "LblPDirectriz", Holds::distance);
  return page.widget();
}

QWidget* hyperbolaPage() {
  Page page("fraHiperbola");
  page.heading(0, "LblHCentro");
  page.fixedLabel(0, 1, "LblHX", "X=");
  page.field(0, 2, "txtHX", "LblHX", Holds::coordinate);
  page.fixedLabel(0, 3, "LblHY", "Y=");
  page.field(0, 4, "txtHY", "LblHY", Holds::coordinate);
  page.heading(1, "LblHDistancia");
  page.label(1, 1, "LblHVertice");
  page.field(1, 2, "txtHVertice", "LblHVertice", Holds::distance);
  page.label(1, 3, "LblHFoco");
  page.field(1, 4, "txtHFoco", "LblHFoco", Holds::distance);
  return page.widget();
}

QWidget* parametricPage() {
  Page page("fraParametrica");
  page.fixedLabel(0, 0, "LblTx", "X(t)=");
  page.field(0, 1, "txtTx", "LblTx", Holds::formula, 4);
  page.fixedLabel(1, 0, "LblTy", "Y(t)=");
  page.field(1, 1, "txtTy", "LblTy", Holds::formula, 4);
  page.label(2, 0, "LblTRango");
  page.field(2, 1, "txtTinicio", "LblTRango", Holds::coordinate, 2);
  page.between(2, "LblTEntre", "<= t <=");
  page.field(2, 4, "txtTfin", "LblTRango", Holds::coordinate);
  page.label(3, 0, "LblTVariacion");
  page.field(3, 1, "txtTvariacion", "LblTVariacion", Holds::distance, 2);
  return page.widget();
}

QWidget* familyPage() {
  Page page("fraHaz");
  page.label(0, 0, "LblZ");
  page.field(0, 1, "txtZ", "fraHaz", Holds::formula, 4);
  page.label(1, 0, "LblZRango");
  page.field(1, 1, "txtZinicio", "LblZRango", Holds::coordinate, 2);
  page.between(1, "LblZEntre", "<= P <=");
  page.field(1, 4, "txtZfin", "LblZRango", Holds::coordinate);
  page.label(2, 0, "LblZVariacion");
  page.field(2, 1, "txtZvariacion", "LblZVariacion", Holds::distance, 2);
  return page.widget();
}

}  // namespace

QWidget* makeEditorPage(char kind) {
  switch (kind) {
    case 'C': return circumferencePage();
    case 'E': return ellipsePage();
    case 'P': return parabolaPage();
    case 'T': return parametricPage();
    case 'H': return hyperbolaPage();
    case 'Z': return familyPage();
    default: return functionPage();
  }
}

}  // namespace zel
