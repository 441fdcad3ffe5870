// The graph editor's captions in both languages.
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

#include "base/language.h"
#include "engine/compiler.h"
#include "forms/editor/frm_adm_graficos.h"
#include "forms/kind_captions.h"

namespace zel {
namespace {

struct Caption {
  const char* control;
  const char* spanish;
  const char* english;
};

// The unaccented "Parametrica" and "Hiperbola" are meant.
constexpr Caption kCaptions[] = {
    {"fraEncabezado", "Encabezado", "Header"},
    {"LblColor", "Color", "Color"},
    {"LblNombre", "Nombre", "Name"},
    {"LblTipo", "Tipo", "Type"},
    {"LblFuncion", "Declaración de la función", "Function"},
    {"fraParametrica", "Parametrica", "Parametric"},
    {"LblTVariacion", "Variación=", "Step="},
    {"LblZVariacion", "Variación=", "Step="},
    {"LblTRango", "Rango", "Range"},
    {"LblZRango", "Rango", "Range"},
    {"fraParabola", "Parábola", "Parabola"},
    {"LblPFoco", "Foco", "Focus"},
    {"LblPDirectriz", "Distancia foco-directriz", "Guideline-focus distance"},
    {"fraCircunferencia", "Circunferencia", "Circumference"},
    {"LblCCentro", "Centro", "Center"},
    {"LblECentro", "Centro", "Center"},
    {"LblHCentro", "Centro", "Center"},
    {"LblCRadio", "Radio=", "Radio="},
    {"fraElipse", "Elipse", "Ellipse"},
    {"LblESemiEje", "Semi-Eje", "Semi-Axis"},
    {"LblEMayor", "Mayor=", "Major="},
    {"LblEMenor", "Menor=", "Minor="},
    {"fraHiperbola", "Hiperbola", "Hyperbola"},
    {"LblHDistancia", "Dist. del Centro a el", "Dist. from center to"},
    {"LblHVertice", "Vértice=", "Vertex="},
    {"LblHFoco", "Foco=", "Focus="},
    {"fraHaz", "Declaración del Haz de funciones", "Sheaf definition"},
};

struct FunctionCaption {
  const char* spanish;
  const char* english;
};

// In the order of the names that are offered.
constexpr FunctionCaption kFunctions[] = {
    {"Logaritmo base 10", "logarithm base 10"},
    {"Logaritmo neperiano", "logarithm base e"},
    {"Arcotangente", "Arctangent"},
    {"Coseno", "Cosine"},
    {"Seno", "Sine"},
    {"Tangente", "Tangent"},
    {"Factorial", "Factorial"},
    {"Potencia de e", "e powered"},
    {"Raiz cuadrada", "Square"},
    {"Raiz triple", "Triple"},
    {"Signo", "Sign"},
    {"Valor absoluto", "Absolute value"},
};

// What is read to those who cannot see which label stands where.
constexpr Caption kAccessibleNames[] = {
    {"cboNombre", "Nombre", "Name"},
    {"FondoColor", "Color", "Color"},
    {"TabStrip1", "Tipo", "Type"},
    {"picVista", "Vista previa", "Preview"},
    {"txtF", "Declaración de la función", "Function"},
    {"txtCX", "Centro, X", "Center, X"},
    {"txtCY", "Centro, Y", "Center, Y"},
    {"txtCRadio", "Radio", "Radio"},
    {"txtEX", "Centro, X", "Center, X"},
    {"txtEY", "Centro, Y", "Center, Y"},
    {"txtEMayor", "Semi-Eje Mayor", "Semi-Axis, Major"},
    {"txtEMenor", "Semi-Eje Menor", "Semi-Axis, Minor"},
    {"txtPX", "Foco, X", "Focus, X"},
    {"txtPY", "Foco, Y", "Focus, Y"},
    {"txtPDirectriz", "Distancia foco-directriz", "Guideline-focus distance"},
    {"txtTx", "X(t)", "X(t)"},
    {"txtTy", "Y(t)", "Y(t)"},
    {"txtTinicio", "Rango, primer t", "Range, first t"},
    {"txtTfin", "Rango, último t", "Range, last t"},
    {"txtTvariacion", "Variación", "Step"},
    {"txtHX", "Centro, X", "Center, X"},
    {"txtHY", "Centro, Y", "Center, Y"},
    {"txtHVertice", "Dist. del Centro a el Vértice", "Dist. from center to Vertex"},
    {"txtHFoco", "Dist. del Centro a el Foco", "Dist. from center to Focus"},
    {"txtZ", "Declaración del Haz de funciones", "Sheaf definition"},
    {"txtZinicio", "Rango, primer P", "Range, first P"},
    {"txtZfin", "Rango, último P", "Range, last P"},
    {"txtZvariacion", "Variación", "Step"},
};

/// The caption of a label, or of a frame.
void setCaption(QWidget& control, const QString& text) {
  if (auto* label = qobject_cast<QLabel*>(&control)) label->setText(text);
  if (auto* frame = qobject_cast<QGroupBox*>(&control)) frame->setTitle(text);
}

}  // namespace

QWidget& frmAdmGraficos::control(const char* name) const {
  return *findChild<QWidget*>(QString::fromLatin1(name));
}

void frmAdmGraficos::assignCaptions() {
  if (CurrentLanguage() == "ES" || CurrentLanguage() == "EN") applyCaptions();
}

void frmAdmGraficos::applyCaptions() {
  setWindowTitle(toQt(editorTitle(changed_.has_value())));
  for (const Caption& row : kCaptions)
    setCaption(control(row.control), caption(row.spanish, row.english));
  cboNombre_Click();
  applyTabCaptions();
  bAceptar_->setText(caption("&Aceptar", "&OK"));
  bCancelar_->setText(caption("&Cancelar", "&Cancel"));
  applyMenuCaptions();
  applyAccessibleNames();
}

void frmAdmGraficos::applyTabCaptions() {
  int tab = 0;
  for (const char kind : kEditorKinds) TabStrip1_->setTabText(tab++, kindCaption(kind));
}

void frmAdmGraficos::applyMenuCaptions() {
  mArchivo_->setTitle(caption("&Archivo", "&File"));
  findChild<QAction*>("mSalir")->setText(caption("&Salir", "&Exit"));
  mInsertarFuncion_->setTitle(caption("&Insertar", "&Insert"));
  const auto names = offeredFunctions(CurrentLanguage());
  const auto actions = mInsertarFuncion_->actions();
  for (std::size_t i = 0; i < std::size(kFunctions); ++i) {
    QAction* const action = actions[static_cast<qsizetype>(i)];
    action->setText(caption(kFunctions[i].spanish, kFunctions[i].english));
    action->setData(toQt(names[i]));
    action->setToolTip(toQt(names[i]));
  }
}

void frmAdmGraficos::applyAccessibleNames() {
  for (const Caption& row : kAccessibleNames)
    control(row.control).setAccessibleName(caption(row.spanish, row.english));
  TabStrip1_->tabBar()->setAccessibleName(TabStrip1_->accessibleName());
}

}  // namespace zel
