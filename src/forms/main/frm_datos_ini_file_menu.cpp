// What the main window's file menu has beside documents: recent ones, the last session, pictures.
#include <QAction>
#include <utility>

#include "app/last_session.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/recent_menu.h"

namespace zel {

void frmDatosIni::updateFileMenu() {
  findChild<QAction*>("mRecuperar")->setEnabled(program().last_session.isThere());
  mRecientes_->showDocuments(program().services.recent.list());
}

void frmDatosIni::openRecentPath(const std::string& path) {
  MainView view = fields();
  const bool opened = openRecent(program(), path, view);
  showDocument(std::move(view), opened);
}

void frmDatosIni::mRecuperar_Click() {
  MainView view = fields();
  const bool recovered = recoverLastSession(program(), view);
  showDocument(std::move(view), recovered);
  updateFileMenu();
}

void frmDatosIni::keepSession() { program().last_session.keep(fields(), program().graphs); }

/// Of what the plot window would show, and refused like that.
void frmDatosIni::mExportar_Click() {
  if (handPlotOver()) targets_.exporter->showForm();
}

}  // namespace zel
