#include "forms/forms.h"

#include <QApplication>
#include <algorithm>
#include <new>
#include <utility>

#include "forms/editor/frm_adm_graficos.h"
#include "forms/export/frm_exportar.h"
#include "forms/frm_controles.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/plot/frm_grafico.h"
#include "forms/print/frm_imprimir.h"
#include "forms/start/frm_acerca_de.h"
#include "forms/start/frm_idioma.h"
#include "forms/start/frm_presentacion.h"
#include "platform/icons/program_icon.h"

namespace zel {
namespace {

bool isAnyShown() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && qobject_cast<const Form*>(window);
  });
}

}  // namespace

Forms::Forms(Program& program, std::string command_line)
    : program_(program), command_line_(std::move(command_line)) {
  QObject::connect(qApp, &QGuiApplication::commitDataRequest, &session_manager_,
                   [this] { keep(); });
}

Forms::~Forms() = default;

bool Forms::begin(StartStep step) {
  return carryOutStart(program_, [&] {
    if (step != StartStep::first_start) return finishStart();
    chooseLanguage();
    chooseHelpFile(program_);
  });
}

void Forms::keep() try {
  if (acerca_de_) datos_ini_->keepSession();
} catch (const std::bad_alloc&) {
  // What cannot be kept is passed over; a logout goes on.
}

void Forms::quit() {
  keep();
  acerca_de_ ? shutDown(program_) : program_.end_process();
}

void Forms::tellFailure() {
  showWhatIsThere();
  tellUnstableMemory(program_);
}

void Forms::showWhatIsThere() try {
  isAnyShown() ? datos_ini_->showAnew() : datos_ini_->showForm();
} catch (const std::bad_alloc&) {
  if (!isAnyShown()) datos_ini_->show();
}

void Forms::chooseLanguage() {
  QApplication::setWindowIcon(programIcon());
  idioma_ = std::make_unique<frmIdioma>(program_);
  idioma_->accepted = [this] { finishStart(); };
  idioma_->refused = [this] { program_.end_process(); };
  idioma_->showForm();
}

void Forms::finishStart() {
  showPresentation();
  chooseHelpFile(program_);
  started();
}

void Forms::showPresentation() {
  datos_ini_ = std::make_unique<frmDatosIni>(program_);
  presentacion_ = std::make_unique<frmPresentacion>(program_);
  presentacion_->setLlamador(datos_ini_.get());
  presentacion_->enableTimer();
  presentacion_->showForm();
  // What takes longer is made behind the first window; the user's events wait until it is there.
  QApplication::setWindowIcon(programIcon());
  loadForms();
}

void Forms::loadForms() {
  adm_graficos_ = std::make_unique<frmAdmGraficos>(program_);
  controles_ = std::make_unique<frmControles>(program_);
  datos_ini_->load();
  datos_ini_->openCommandLine(command_line_);
  grafico_ = std::make_unique<frmGrafico>(program_);
  imprimir_ = std::make_unique<frmImprimir>(program_);
  exportar_ = std::make_unique<frmExportar>(program_);
  acerca_de_ = std::make_unique<frmAcercaDe>(program_);
  grafico_->setPrintWindow(imprimir_.get());
  datos_ini_->setTargets({adm_graficos_.get(), grafico_.get(), acerca_de_.get(), exportar_.get()});
}

}  // namespace zel
