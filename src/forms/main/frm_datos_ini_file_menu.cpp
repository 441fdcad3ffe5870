// What the main window's file menu has beside documents: the last session.
#include <QAction>

#include "app/last_session.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"

namespace zel {

void frmDatosIni::updateFileMenu() {
  findChild<QAction*>("mRecuperar")->setEnabled(program().last_session.isThere());
}

void frmDatosIni::mRecuperar_Click() {
  MainView view = fields();
  const bool recovered = recoverLastSession(program(), view);
  if (recovered) setFields(view);
  updateTitle();
  updateList();
  if (recovered) listaG_->selectFirst();
  updateFileMenu();
}

void frmDatosIni::keepSession() { program().last_session.keep(fields(), program().graphs); }

}  // namespace zel
