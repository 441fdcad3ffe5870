#pragma once

#include <QTimer>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "app/editor/graph_editing.h"
#include "app/editor/graph_trial.h"
#include "forms/form.h"

class QComboBox;
class QFocusEvent;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QTabWidget;

namespace zel {

class ColourSwatch;
class PreviewBox;
class TextBox;

/// The graph editor: declares a new graph or changes one. It lies over its caller, which waits for
/// it. After a pause in the typing it says under each field what an accept would say of it, and
/// shows the graph over the range of the main window.
class frmAdmGraficos : public Form {
  Q_OBJECT

 public:
  explicit frmAdmGraficos(Program& program);

  /// So long nobody types before hints and preview follow.
  static constexpr std::chrono::milliseconds kPause{400};
  /// A drawing of the preview is given up after this time, so that typing never waits for it.
  static constexpr std::chrono::milliseconds kPreviewTime{50};

  /// Another time than that one, from the next drawing on.
  void setPreviewTime(std::chrono::milliseconds time) { preview_time_ = time; }

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
  void buildPreview();
  void connectControls();
  void connectHints();
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

  EditedGraph edited() const;
  /// Says at once what an accept would say; the field at fault, the first one of the page.
  std::optional<std::size_t> updateHints();
  void showHint(const char* control, const FieldHint& hint);
  void drawPreview(GraphTrial& trial);
  /// Takes the preview over to the page that is open.
  void movePreview();
  /// After a refusal: the field at fault gets the focus, with its text selected.
  void goToFault();
  void followFormula(QLineEdit& formula, const QFocusEvent& event);

  QWidget& control(const char* name) const;
  TextBox* box(const char* name) const;
  char letter() const;
  char kind() const;
  GraphFields fields() const;
  void setFields(GraphFields fields);
  void clearFields();
  void markLettersInUse();
  /// The one of the open tab that had the focus last, or its first one; null where it has none.
  QLineEdit* formulaBox() const;

  std::optional<char> changed_;  // nothing for a new graph
  QLineEdit* last_formula_ = nullptr;
  /// What was selected in it when the menu bar took the focus.
  struct Selection {
    int start = -1;
    int length = 0;
  };
  Selection selection_;
  QTimer pause_;
  std::chrono::milliseconds preview_time_ = kPreviewTime;
  QWidget* preview_ = nullptr;
  PreviewBox* picVista_ = nullptr;
  QLabel* LblVista_ = nullptr;
  QComboBox* cboNombre_ = nullptr;
  ColourSwatch* FondoColor_ = nullptr;
  QTabWidget* TabStrip1_ = nullptr;
  QPushButton* bAceptar_ = nullptr;
  QPushButton* bCancelar_ = nullptr;
  QMenu* mArchivo_ = nullptr;
  QMenu* mInsertarFuncion_ = nullptr;
};

}  // namespace zel
