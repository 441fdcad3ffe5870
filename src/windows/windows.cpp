#include "windows/windows.h"

#include <QApplication>
#include <utility>

#include "platform/icons/program_icon.h"
#include "windows/frm_acerca_de.h"
#include "windows/frm_adm_graficos.h"
#include "windows/frm_controles.h"
#include "windows/frm_datos_ini.h"
#include "windows/frm_grafico.h"
#include "windows/frm_idioma.h"
#include "windows/frm_imprimir.h"
#include "windows/frm_presentacion.h"

namespace zel {

Windows::Windows(Program& program, QString command_line)
    : program_(program), command_line_(std::move(command_line)) {}

Windows::~Windows() = default;

void Windows::begin(StartStep step) {
  if (step == StartStep::first_start)
    chooseLanguage();
  else
    showPresentation();
  chooseHelpFile(program_);
}

void Windows::chooseLanguage() {
  QApplication::setWindowIcon(programIcon());
  idioma_ = std::make_unique<frmIdioma>(program_);
  idioma_->accepted = [this] {
    showPresentation();
    chooseHelpFile(program_);
  };
  idioma_->refused = [this] {
    forgetFirstStart();
    program_.end_process();
  };
  idioma_->showForm();
}

void Windows::showPresentation() {
  presentacion_ = std::make_unique<frmPresentacion>(program_);
  presentacion_->enableTimer();
  presentacion_->showForm();
  // What takes longer is made behind the first window; the user's events wait until it is there.
  QApplication::setWindowIcon(programIcon());
  datos_ini_ = std::make_unique<frmDatosIni>(program_);
  presentacion_->setLlamador(datos_ini_.get());
  loadWindows();
}

void Windows::loadWindows() {
  adm_graficos_ = std::make_unique<frmAdmGraficos>(program_);
  controles_ = std::make_unique<frmControles>(program_);
  datos_ini_->openCommandLine(command_line_);
  grafico_ = std::make_unique<frmGrafico>(program_);
  imprimir_ = std::make_unique<frmImprimir>(program_);
  acerca_de_ = std::make_unique<frmAcercaDe>(program_);
  grafico_->setPrintWindow(imprimir_.get());
  datos_ini_->setTargets({adm_graficos_.get(), grafico_.get(), acerca_de_.get()});
}

}  // namespace zel
