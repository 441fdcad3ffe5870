#include "forms/main/frm_datos_ini.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSlider>
#include <algorithm>
#include <array>
#include <utility>

#include "app/desktop.h"
#include "app/messages.h"
#include "base/language.h"
#include "files/document.h"
#include "files/whole_file.h"
#include "forms/button_mnemonics.h"
#include "forms/main/graph_list.h"
#include "forms/text_box.h"

namespace zel {
namespace {

/// The first document among the files that are dragged; empty when there is none.
QString documentIn(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    // A name that is no UTF-8 does not come through whole, and then is no file's.
    QString path = url.toLocalFile();
    if (path.endsWith(".zel", Qt::CaseInsensitive) && QFileInfo(path).isFile()) return path;
  }
  return {};
}

}  // namespace

frmDatosIni::frmDatosIni(Program& program) : Form(program, "frmDatosIni") {}

void frmDatosIni::load() {
  if (listaG_) return;
  buildMenus();
  buildControls();
  connectControls();
  setAcceptDrops(true);
  setFields(MainView());
  assignCaptions();
  preferButtonMnemonics(*this);  // "&Agregar" and "&Ayuda"
  updateList();
}

void frmDatosIni::showForm() {
  load();
  Form::showForm();
}

void frmDatosIni::openCommandLine(std::string command_line) {
  std::erase(command_line, '"');
  if (command_line.empty()) return;
  // What may be two names must not become a file of both.
  const bool may_be_two = command_line.find(' ') != std::string::npos;
  if (may_be_two && !fileExists(command_line))
    ShowAttention(program().services.boxes, Localize(messages::kCannotOpen));
  else
    openPath(command_line);
  program().history = {};  // what the program begins with is no change
}

void frmDatosIni::actProporcional(bool on) {
  chkProporcional_->setChecked(on);
  txtRanYi_->setEnabled(!on);
  txtRanYf_->setEnabled(!on);
}

void frmDatosIni::takeArguments() {
  fillRangeBoxes();
  updateList();
  updateTitle();
  const FormValue changed = program().params.Item("nombre");
  if (const auto* letter = std::get_if<std::string>(&changed)) listaG_->selectLetters(*letter);
}

/// A box takes its value from the arguments; without one it keeps what it holds, and gets the
/// default when that is nothing.
void frmDatosIni::fillRangeBoxes() {
  const auto fill = [this](TextBox& box, const char* key, const char* otherwise) {
    const FormValue value = program().params.Item(key);
    if (const auto* number = std::get_if<double>(&value))
      box.setWhole(toQt(writeNumber(*number)));
    else if (box.whole().isEmpty())
      box.setWhole(QString::fromLatin1(otherwise));
  };
  fill(*txtRanXi_, "xi", "-10");
  fill(*txtRanXf_, "xf", "10");
  fill(*txtRanYi_, "yi", "-10");
  fill(*txtRanYf_, "yf", "10");
}

MainView frmDatosIni::fields() const {
  MainView view;
  view.xi = fromQt(txtRanXi_->whole());
  view.xf = fromQt(txtRanXf_->whole());
  view.yi = fromQt(txtRanYi_->whole());
  view.yf = fromQt(txtRanYf_->whole());
  view.definicion = static_cast<std::int16_t>(Slider1_->value());
  view.proporcional = chkProporcional_->isChecked();
  view.escala_x = fromQt(txtEscalaX_->whole());
  view.escala_y = fromQt(txtEscalaY_->whole());
  return view;
}

/// Controls that hold all of it already stay as they are, with the boxes' own undo.
void frmDatosIni::setFields(const MainView& view) {
  const auto boxes =
      std::to_array<std::pair<TextBox*, QString>>({{txtRanXi_, toQt(view.xi)},
                                                   {txtRanXf_, toQt(view.xf)},
                                                   {txtRanYi_, toQt(view.yi)},
                                                   {txtRanYf_, toQt(view.yf)},
                                                   {txtEscalaX_, toQt(view.escala_x)},
                                                   {txtEscalaY_, toQt(view.escala_y)}});
  const bool is_there =
      std::ranges::all_of(boxes, [](const auto& box) { return box.first->whole() == box.second; });
  if (is_there && Slider1_->value() == view.definicion &&
      chkProporcional_->isChecked() == view.proporcional)
    return;
  for (const auto& [box, text] : boxes) box->setWhole(text);
  Slider1_->setValue(view.definicion);
  Slider1_Change();
  actProporcional(view.proporcional);
}

void frmDatosIni::openPath(const std::string& path) {
  MainView view = fields();
  const bool opened = openDocumentAt(program(), path, view);
  showDocument(std::move(view), opened);
}

/// The view may be large, and is let go before the session takes its own.
void frmDatosIni::showDocument(MainView&& view, bool is_new) {
  setFields(std::exchange(view, {}));  // first: what fails of the rest is shown anew
  showAnew();
  if (is_new) listaG_->selectFirst();
}

void frmDatosIni::showAnew() {
  updateTitle();
  updateList();
}

void frmDatosIni::mNuevo_Click() {
  newDocument(program(), fields());
  for (TextBox* box : {txtRanXi_, txtRanXf_, txtRanYi_, txtRanYf_}) box->setWhole({});
  fillRangeBoxes();
  showAnew();
}

void frmDatosIni::mAbrir_Click() {
  MainView view = fields();
  const bool opened = openDocument(program(), view);
  showDocument(std::move(view), opened);
}

void frmDatosIni::mGuardar_Click() {
  saveDocument(program(), fields());
  updateTitle();
}

void frmDatosIni::mGuardarComo_Click() {
  saveDocumentAs(program(), fields());
  updateTitle();
}

void frmDatosIni::endProgram() {
  keepSession();
  shutDown(program());
}

void frmDatosIni::mSalir_Click() { endProgram(); }

void frmDatosIni::mConfirmarBorrado_Click() {
  bool& confirms = program().configuration.confirm_deletion;
  confirms = !confirms;
  updateLanguageMenu();
}

void frmDatosIni::mEspanol_Click() {
  SetCurrentLanguage("ES");
  ApplyLanguage();
  chooseHelpFile(program());
}

void frmDatosIni::mEnglish_Click() {
  SetCurrentLanguage("EN");
  ApplyLanguage();
}

void frmDatosIni::mTemasDeAyuda_Click() { ShowHelpTopics(program().services.help); }

void frmDatosIni::mComoConseguirEstePrograma_Click() { OpenWebPage(program().services.browser); }

void frmDatosIni::mAcercaDeZel_Click() {
  program().params.removeAll();
  program().params.Add("llamador", static_cast<FormWindow*>(this));
  targets_.about->showForm();
}

PlotFields frmDatosIni::plotFields() const {
  const auto field = [this](const char* box, const char* label) {
    return Field{ReadFieldText(*this, box), ReadFieldText(*this, label)};
  };
  PlotFields plot;
  plot.xi = field("txtRanXi", "LblRanXi");
  plot.xf = field("txtRanXf", "LblRanXf");
  plot.yi = field("txtRanYi", "LblRanYi");
  plot.yf = field("txtRanYf", "LblRanYf");
  plot.escala_x = fromQt(txtEscalaX_->whole());
  plot.escala_y = fromQt(txtEscalaY_->whole());
  plot.mantener_prop = chkProporcional_->isChecked();
  plot.definicion = static_cast<std::int16_t>(Slider1_->value());
  return plot;
}

bool frmDatosIni::handPlotOver() {
  const PlotFields plot = plotFields();
  if (preparePlot(program(), plot, this)) return true;
  const std::string_view fault = boxAtFault(program(), plot);
  if (fault.empty()) return false;
  auto* const box = findChild<QLineEdit*>(toQt(fault));
  if (!box->isEnabled()) return false;  // the range of y follows that of x
  box->setFocus(Qt::OtherFocusReason);
  box->selectAll();
  return false;
}

void frmDatosIni::CmdGraficarLista_Click() {
  if (!handPlotOver()) return;
  hide();
  try {
    targets_.plot->showForm();
  } catch (...) {  // for want of memory: there is no other window
    appear();
    throw;
  }
}

void frmDatosIni::Slider1_Change() {
  LblCalidad_->setText(QString::number(Slider1_->value()) + "%");
}

void frmDatosIni::closeEvent(QCloseEvent* event) {
  endProgram();
  event->accept();
}

/// From the boxes and the slider: the list and the buttons keep theirs. A key that is held down
/// since it closed another window does not count.
void frmDatosIni::keyPressEvent(QKeyEvent* event) {
  const bool is_enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!is_enter)
    Form::keyPressEvent(event);
  else if (!event->isAutoRepeat())
    CmdGraficarLista_->click();
}

void frmDatosIni::dragEnterEvent(QDragEnterEvent* event) {
  if (!documentIn(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void frmDatosIni::dropEvent(QDropEvent* event) {
  const QString path = documentIn(*event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  openPath(fromQt(path));
}

}  // namespace zel
