#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>

#include "app/program.h"

namespace zel {

class frmAcercaDe;
class frmAdmGraficos;
class frmControles;
class frmDatosIni;
class frmExportar;
class frmGrafico;
class frmIdioma;
class frmImprimir;
class frmPresentacion;

/// The windows of the program, each made once and kept for the run.
class Forms {
 public:
  /// The program outlives its windows. `command_line` is the path of the document to open.
  Forms(Program& program, std::string command_line);
  ~Forms();

  /// The rest of the start: the language choice at the first start, otherwise the presentation,
  /// which hands over to the main window. False when it failed, which was told.
  bool begin(StartStep step);

  /// Ends the program as the main window does, whatever window is shown.
  void quit();

  /// Tells of a later event that was given up, once the main window shows what the program holds:
  /// the event may have changed that, and not got so far as to show it.
  void tellFailure();

  /// Called when all windows are there: what fails from now on is no failed start.
  std::function<void()> started = [] {};

 private:
  /// Keeps the session, and goes on: a logout may still be called off. Does nothing until all
  /// windows are there.
  void keep();

  /// In the main window, which is shown where no other one is.
  void showWhatIsThere();

  void chooseLanguage();
  void finishStart();
  void showPresentation();
  void loadForms();

  Program& program_;
  QObject session_manager_;  // what listens to it
  std::string command_line_;
  std::unique_ptr<frmIdioma> idioma_;
  std::unique_ptr<frmPresentacion> presentacion_;
  std::unique_ptr<frmAdmGraficos> adm_graficos_;
  std::unique_ptr<frmControles> controles_;
  std::unique_ptr<frmDatosIni> datos_ini_;
  std::unique_ptr<frmGrafico> grafico_;
  std::unique_ptr<frmImprimir> imprimir_;
  std::unique_ptr<frmExportar> exportar_;
  std::unique_ptr<frmAcercaDe> acerca_de_;
};

}  // namespace zel
