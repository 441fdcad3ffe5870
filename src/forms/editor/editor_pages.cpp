#include "forms/editor/editor_pages.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

#include "forms/editor/hint_line.h"
#include "forms/numeric_keys.h"
#include "forms/text_box.h"

namespace zel {
namespace {

enum class Holds { formula, coordinate, distance };

constexpr int kColumns = 4;  // two fields with a label before each
constexpr int kWide = kColumns - 1;

/// A page that is scrolled where the window is too low for it, and always as wide as it needs.
class Scroller : public QScrollArea {
 public:
  explicit Scroller(QWidget* content) {
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(content);
    // The tab's own background is seen.
    viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
  }

  QSize sizeHint() const override { return widget()->sizeHint(); }
  QSize minimumSizeHint() const override {
    constexpr int kLeastLines = 4;
    const int bar = verticalScrollBar()->sizeHint().width();
    return {widget()->minimumSizeHint().width() + bar, fontMetrics().height() * kLeastLines};
  }
};

/// Rows of fields with a line for hints under each; a place for the preview stands beside them.
class Page {
 public:
  /// An empty frame name makes a page without a frame.
  Page(const char* frame_name, QSize preview) {
    auto* row = new QHBoxLayout(content_);
    auto* column = new QVBoxLayout;
    QWidget* holder = frameFor(frame_name);
    grid_ = new QGridLayout(holder);
    if (*frame_name == '\0') grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setVerticalSpacing(2);
    grid_->setColumnStretch(1, 1);
    grid_->setColumnStretch(3, 1);
    column->addWidget(holder);
    column->addStretch();
    row->addLayout(column, 1);
    row->addWidget(previewPlace(preview), 0, Qt::AlignTop);
  }

  /// The whole page, when all is there.
  QWidget* widget() const { return new Scroller(content_); }

  /// Above the next row.
  void heading(const char* name) { grid_->addWidget(makeLabel(name, {}), row_++, 0, 1, kColumns); }

  void label(int column, const char* name, const char* text = "") {
    auto* label = makeLabel(name, QString::fromLatin1(text));
    grid_->addWidget(label, row_, column, Qt::AlignRight | Qt::AlignVCenter);
  }

  /// What stands between the ends of a range.
  void between(const char* name, const char* text) {
    grid_->addWidget(makeLabel(name, QString::fromLatin1(text)), row_, 2, Qt::AlignCenter);
  }

  void field(int column, const char* name, const char* tag, Holds holds, int columns = 1) {
    auto* box = new TextBox(name);
    box->setProperty("Tag", QString::fromLatin1(tag));
    if (holds != Holds::formula) filterNumericKeys(*box, holds == Holds::distance);
    grid_->addWidget(box, row_, column, 1, columns);
    auto* hint = new HintLine;
    hint->setObjectName(hintName(name));
    // Under its label, too, where the field is not wide.
    const int before = columns == kWide ? 0 : 1;
    grid_->addWidget(hint, row_ + 1, column - before, 1, columns + before);
  }

  void endRow() { row_ += 2; }

 private:
  static QWidget* frameFor(const char* name) {
    if (*name == '\0') return new QWidget;
    auto* frame = new QGroupBox;
    frame->setObjectName(QString::fromLatin1(name));
    return frame;
  }

  /// It keeps its room while another page has the preview.
  static QWidget* previewPlace(QSize size) {
    auto* place = new QWidget;
    place->setObjectName(QString::fromLatin1(kPreviewPlace));
    place->setFixedSize(size);
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    return place;
  }

  static QLabel* makeLabel(const char* name, const QString& text) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    return label;
  }

  QWidget* content_ = new QWidget;
  QGridLayout* grid_;
  int row_ = 0;
};

void addPoint(Page& page, const char* x, const char* x_label, const char* y, const char* y_label) {
  page.label(0, x_label, "X=");
  page.field(1, x, x_label, Holds::coordinate);
  page.label(2, y_label, "Y=");
  page.field(3, y, y_label, Holds::coordinate);
  page.endRow();
}

void addDistances(Page& page, const char* first, const char* first_label, const char* second,
                  const char* second_label) {
  page.label(0, first_label);
  page.field(1, first, first_label, Holds::distance);
  page.label(2, second_label);
  page.field(3, second, second_label, Holds::distance);
  page.endRow();
}

void addFormula(Page& page, const char* label, const char* text, const char* name,
                const char* tag) {
  page.label(0, label, text);
  page.field(1, name, tag, Holds::formula, kWide);
  page.endRow();
}

QWidget* functionPage(QSize preview) {
  Page page("", preview);
  page.heading("LblFuncion");
  addFormula(page, "LblF", "", "txtF", "LblFuncion");
  return page.widget();
}

QWidget* circumferencePage(QSize preview) {
  Page page("fraCircunferencia", preview);
  page.heading("LblCCentro");
  addPoint(page, "txtCX", "LblCX", "txtCY", "LblCY");
  page.label(0, "LblCRadio");
  page.field(1, "txtCRadio", "LblCRadio", Holds::distance);
  return page.widget();
}

QWidget* ellipsePage(QSize preview) {
  Page page("fraElipse", preview);
  page.heading("LblECentro");
  addPoint(page, "txtEX", "LblEX", "txtEY", "LblEY");
  page.heading("LblESemiEje");
  addDistances(page, "txtEMayor", "LblEMayor", "txtEMenor", "LblEMenor");
  return page.widget();
}

QWidget* parabolaPage(QSize preview) {
  Page page("fraParabola", preview);
  page.heading("LblPFoco");
  addPoint(page, "txtPX", "LblPX", "txtPY", "LblPY");
  page.heading("LblPDirectriz");
  page.field(1, "txtPDirectriz", "LblPDirectriz", Holds::distance);
  return page.widget();
}

QWidget* hyperbolaPage(QSize preview) {
  Page page("fraHiperbola", preview);
  page.heading("LblHCentro");
  addPoint(page, "txtHX", "LblHX", "txtHY", "LblHY");
  page.heading("LblHDistancia");
  addDistances(page, "txtHVertice", "LblHVertice", "txtHFoco", "LblHFoco");
  return page.widget();
}

QWidget* parametricPage(QSize preview) {
  Page page("fraParametrica", preview);
  addFormula(page, "LblTx", "X(t)=", "txtTx", "LblTx");
  addFormula(page, "LblTy", "Y(t)=", "txtTy", "LblTy");
  page.label(0, "LblTRango");
  page.field(1, "txtTinicio", "LblTRango", Holds::coordinate);
  page.between("LblTEntre", "<= t <=");
  page.field(3, "txtTfin", "LblTRango", Holds::coordinate);
  page.endRow();
  page.label(0, "LblTVariacion");
  page.field(1, "txtTvariacion", "LblTVariacion", Holds::distance);
  return page.widget();
}

QWidget* familyPage(QSize preview) {
  Page page("fraHaz", preview);
  addFormula(page, "LblZ", "", "txtZ", "fraHaz");
  page.label(0, "LblZRango");
  page.field(1, "txtZinicio", "LblZRango", Holds::coordinate);
  page.between("LblZEntre", "<= P <=");
  page.field(3, "txtZfin", "LblZRango", Holds::coordinate);
  page.endRow();
  page.label(0, "LblZVariacion");
  page.field(1, "txtZvariacion", "LblZVariacion", Holds::distance);
  return page.widget();
}

}  // namespace

QString hintName(const char* field) {
  return QStringLiteral("LblAviso_%1").arg(QLatin1String(field));
}

void makeRoom(QWidget& page) {
  QLayout& layout = *static_cast<Scroller&>(page).widget()->layout();
  layout.invalidate();
  layout.activate();  // layouts within it forget their sizes, too
  page.updateGeometry();
}

QWidget* makeEditorPage(char kind, QSize preview) {
  switch (kind) {
    case 'C': return circumferencePage(preview);
    case 'E': return ellipsePage(preview);
    case 'P': return parabolaPage(preview);
    case 'T': return parametricPage(preview);
    case 'H': return hyperbolaPage(preview);
    case 'Z': return familyPage(preview);
    default: return functionPage(preview);
  }
}

}  // namespace zel
