// The main window's captions in both languages.
#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSlider>

#include "base/language.h"
#include "forms/main/frm_datos_ini.h"
#include "forms/main/graph_list.h"
#include "forms/main/recent_menu.h"

namespace zel {

void frmDatosIni::assignCaptions() {
  applyMenuCaptions();
  applyControlCaptions();
  applyAccessibleNames();
  listaG_->applyLanguage(program().graphs);
  updateButtons();
  updateLanguageMenu();
  updateTitle();
}

void frmDatosIni::applyMenuCaptions() {
  const auto set = [this](const char* name, const char* spanish, const char* english) {
    findChild<QAction*>(QString::fromLatin1(name))->setText(caption(spanish, english));
  };
  mArchivo_->setTitle(caption("A&rchivo", "File"));
  set("mNuevo", "&Nuevo", "New");
  set("mAbrir", "A&brir", "&Open");
  mRecientes_->setTitle(caption("Recientes", "Recent"));
  set("mRecuperar", "Recuperar última sesión", "Recover last session");
  set("mGuardar", "G&uardar", "&Save");
  set("mGuardarComo", "Guardar &como...", "Save &As...");
  set("mExportar", "Exportar imagen...", "Export picture...");
  set("mSalir", "&Salir", "Exit");
  mEdicion_->setTitle(caption("&Edición", "Edit"));
  set("mDeshacer", "&Deshacer", "&Undo");
  set("mRehacer", "&Rehacer", "&Redo");
  set("mAgregar", "&Agregar...", "&Add...");
  set("mModificar", "&Modificar...", "&Edit...");
  set("mDuplicar", "D&uplicar", "&Duplicate");
  set("mBorrar", "&Borrar", "Re&move");
  mOpciones_->setTitle(caption("&Opciones", "Options"));
  set("mConfirmarBorrado", "&Pedir confirmación para borrar funciones",
      "&Confirm before removing functions");
  mLenguaje_->setTitle(caption("&Lenguaje", "Language"));
  set("mEspanol", "&Español", "&Español");
  set("mEnglish", "&English", "&English");
  mAyuda_->setTitle(caption("&Ayuda", "Help"));
  set("mTemasDeAyuda", "Temas de Ayuda", "Contents");
  set("mComoConseguirEstePrograma", "Como conseguir este programa", "How to get this software");
  set("mAcercaDeZel", "Acerca de ZEL", "&About ZEL");
}

void frmDatosIni::applyControlCaptions() {
  CmdAgregar_->setText(caption("&Agregar", "&Add"));
  CmdBorrar_->setText(caption("&Borrar", "&Remove"));
  CmdGraficarLista_->setText(caption("Graficar", "&Graph"));
  CmdModificar_->setText(caption("&Modificar", "&Edit"));
  range_labels_[0]->setText(caption("X MÁXIMO", "X MAXIMUN"));
  range_labels_[1]->setText(caption("x mínimo", "x minimun"));
  range_labels_[2]->setText(caption("Y MÁXIMO", "Y MAXIMUN"));
  range_labels_[3]->setText(caption("y mínimo", "y minimun"));
  chkProporcional_->setText(caption("Mantener proporcionalidad", "Keep proportionally"));
  quality_frame_->setTitle(caption("CALIDAD", "Quality"));
  graph_frame_->setTitle(caption("GRAFICOS", "Graphics"));
  range_frame_->setTitle(caption("RANGO", "Range"));
  scale_frame_->setTitle(caption("ESCALA", "Ruler"));
  scale_labels_[0]->setText(caption("Reales/unidad X =", "Reals per unit X="));
  scale_labels_[1]->setText(caption("Reales/unidad Y =", "Reals per unit Y="));
}

void frmDatosIni::applyAccessibleNames() {
  txtRanXf_->setAccessibleName(range_labels_[0]->text());
  txtRanXi_->setAccessibleName(range_labels_[1]->text());
  txtRanYf_->setAccessibleName(range_labels_[2]->text());
  txtRanYi_->setAccessibleName(range_labels_[3]->text());
  txtEscalaX_->setAccessibleName(scale_labels_[0]->text());
  txtEscalaY_->setAccessibleName(scale_labels_[1]->text());
  Slider1_->setAccessibleName(quality_frame_->title());
  listaG_->setAccessibleName(graph_frame_->title());
}

void frmDatosIni::updateLanguageMenu() {
  const auto action = [this](const char* name) {
    return findChild<QAction*>(QString::fromLatin1(name));
  };
  action("mEspanol")->setChecked(CurrentLanguage() == "ES");
  action("mEnglish")->setChecked(CurrentLanguage() == "EN");
  action("mConfirmarBorrado")->setChecked(program().configuration.confirm_deletion);
  // Help topics are offered in Spanish only: this is meant.
  action("mTemasDeAyuda")->setEnabled(CurrentLanguage() == "ES");
}

void frmDatosIni::updateTitle() {
  // Twice, "[*]" stands for itself; once, Qt takes it for a place of its own.
  setWindowTitle(toQt(mainWindowTitle(program())).replace("[*]", "[*][*]"));
}

}  // namespace zel
