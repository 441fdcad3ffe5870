#pragma once

#include <cstdint>
#include <string>

#include "app/graph_editing.h"
#include "forms/form.h"

class QComboBox;
class QLineEdit;
class QMenu;
class QPushButton;
class QTabWidget;

namespace zel {

class ColourSwatch;

/// The graph editor: declares a new graph or changes one. It lies over its caller, which waits for
/// it.
class frmAdmGraficos : public Form {
  Q_OBJECT

 public:
  explicit frmAdmGraficos(Program& program);

  /// Assigns nothing in a language other than Spanish and English.
  void assignCaptions() override;

 protected:
  void takeArguments() override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildMenus();
  void buildControls();
  QWidget* buildHeader();
  QWidget* buildKinds();
  QWidget* buildButtons();
  void connectControls();
  void setReadingOrder();

  void applyCaptions();
  void applyTabCaptions();
  void applyMenuCaptions();
  void applyAccessibleNames();

  void bAceptar_Click();
  void bCancelar_Click();
  void FondoColor_Click();
  void cboNombre_Click();
  void TabStrip1_Click();
  void mInsertarFuncion_Click(const std::string& name);

  QWidget& control(const char* name) const;
  QLineEdit* box(const char* name) const;
  char letter() const;
  char kind() const;
  GraphFields fields() const;
  void setFields(GraphFields fields);
  void clearFields();
  void markLettersInUse();
  /// The one of the open tab that had the focus last, or its first one; null where it has none.
  QLineEdit* formulaBox() const;

  bool changes_ = false;
  QLineEdit* last_formula_ = nullptr;
  QComboBox* cboNombre_ = nullptr;
  ColourSwatch* FondoColor_ = nullptr;
  QTabWidget* TabStrip1_ = nullptr;
  QPushButton* bAceptar_ = nullptr;
  QPushButton* bCancelar_ = nullptr;
  QMenu* mArchivo_ = nullptr;
  QMenu* mInsertarFuncion_ = nullptr;
};

}  // namespace zel
