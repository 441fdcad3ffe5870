// What the main window does with the graphs of its list.
#include <QAction>
#include <QPushButton>
#include <utility>

#include "app/graph_changes.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"

namespace zel {

void frmDatosIni::updateList() {
  listaG_->listGraphs(program().graphs);
  updateButtons();
  keepSession();
}

void frmDatosIni::updateButtons() {
  const std::size_t selected = listaG_->selectedLetters().size();
  CmdModificar_->setEnabled(selected == 1);
  CmdBorrar_->setEnabled(selected > 0);
  const auto enable = [this](const char* name, bool on) {
    findChild<QAction*>(QString::fromLatin1(name))->setEnabled(on);
  };
  enable("mModificar", selected == 1);
  enable("mDuplicar", selected > 0);
  enable("mBorrar", selected > 0);
  enable("mDeshacer", program().history.undoable() != nullptr);
  enable("mRehacer", program().history.redoable() != nullptr);
  CmdGraficarLista_->setToolTip(
      program().graphs.count() >= 1
          ? QString()
          : caption("Todavía no hay gráficos que dibujar", "There are no graphs to draw yet"));
}

void frmDatosIni::CmdAgregar_Click() {
  program().main_view = fields();
  prepareNewGraph(program(), this);
  targets_.editor->showForm();
}

void frmDatosIni::CmdModificar_Click() {
  const std::string selected = listaG_->selectedLetters();
  if (selected.size() != 1) return;
  program().main_view = fields();
  prepareGraphChange(program(), selected.front(), this);
  targets_.editor->showForm();
}

void frmDatosIni::CmdBorrar_Click() {
  if (deleteGraphs(program(), listaG_->selectedLetters())) updateList();
}

void frmDatosIni::mDuplicar_Click() {
  const std::string copies = duplicateGraphs(program(), listaG_->selectedLetters());
  updateList();
  listaG_->selectLetters(copies);
}

void frmDatosIni::mDeshacer_Click() { takeBack(undoChange); }

void frmDatosIni::mRehacer_Click() { takeBack(redoChange); }

void frmDatosIni::takeBack(std::string (*change)(Program&, MainView&)) {
  MainView view = fields();
  const std::string letters = change(program(), view);
  showDocument(std::move(view), letters.empty());
  listaG_->selectLetters(letters);
  if (listaG_->selectedLetters().empty()) listaG_->selectFirst();
}

}  // namespace zel
