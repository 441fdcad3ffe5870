#pragma once

#include <array>

#include "app/main_commands.h"
#include "forms/form.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QPushButton;
class QSlider;

namespace zel {

class GraphList;
class RecentMenu;
class TextBox;

/// The windows that the main window opens.
struct MainWindowTargets {
  FormWindow* editor = nullptr;
  FormWindow* plot = nullptr;
  FormWindow* about = nullptr;
  FormWindow* exporter = nullptr;
};

/// The main window: range, scale, quality and the list of graphs of the document. Closing it ends
/// the process.
class frmDatosIni : public Form {
  Q_OBJECT

 public:
  /// Without its controls, so that the presentation need not wait for them: see load.
  explicit frmDatosIni(Program& program);

  /// Makes the controls, once; showForm does it, too. Before that there is nothing to work with.
  void load();

  /// The targets outlive the window.
  void setTargets(const MainWindowTargets& targets) { targets_ = targets; }

  void assignCaptions() override;
  void showForm() override;

  /// Opens the document that the program was started with; an empty command line does nothing.
  /// Double quotes are taken out of it.
  void openCommandLine(std::string command_line);

  /// Shows the title and the graphs that the program holds.
  void showAnew();

  /// Keeps the declarations for the next session.
  void keepSession();

  /// Sets the box and lets the y range be edited exactly when it is off.
  void actProporcional(bool on);

 protected:
  void takeArguments() override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* box, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  /// A menu command, known by its object name.
  QAction* addCommand(QMenu* menu, const char* name, void (frmDatosIni::*handler)());

  void buildMenus();
  void buildEditMenu();
  void buildListMenu();
  void buildControls();
  QGroupBox* buildRange();
  QGroupBox* buildScale();
  QGroupBox* buildQuality();
  QGroupBox* buildGraphs();
  TextBox* makeNumberBox(const char* name, bool refuses_minus);
  void connectControls();
  void applyMenuCaptions();
  void applyControlCaptions();
  void applyAccessibleNames();

  void mNuevo_Click();
  void mAbrir_Click();
  void mRecuperar_Click();
  void mExportar_Click();
  void mGuardar_Click();
  void mGuardarComo_Click();
  void mSalir_Click();
  void mConfirmarBorrado_Click();
  void mEspanol_Click();
  void mEnglish_Click();
  void mTemasDeAyuda_Click();
  void mComoConseguirEstePrograma_Click();
  void mAcercaDeZel_Click();
  void CmdAgregar_Click();
  void CmdModificar_Click();
  void CmdBorrar_Click();
  void CmdGraficarLista_Click();
  void Slider1_Change();
  void mDeshacer_Click();
  void mRehacer_Click();
  void mDuplicar_Click();
  /// Undo or redo, and the window with it.
  void takeBack(std::string (*change)(Program&, MainView&));

  MainView fields() const;
  PlotFields plotFields() const;
  /// Hands over what is to be plotted. Where that is refused, a box at fault that can be edited has
  /// the focus then.
  bool handPlotOver();
  void setFields(const MainView& view);
  void fillRangeBoxes();
  /// The boxes, the title and the list after another document may have come. The first row of a new
  /// document is selected.
  void showDocument(MainView&& view, bool is_new);
  void openPath(const std::string& path);
  void openRecentPath(const std::string& path);
  /// Keeps the session, and ends the process.
  void endProgram();
  void updateLanguageMenu();
  void updateTitle();
  void updateList();
  /// Which commands of the file menu make sense now.
  void updateFileMenu();
  void updateButtons();

  MainWindowTargets targets_;
  std::array<QLabel*, 4> range_labels_{};  // xf, xi, yf, yi
  std::array<QLabel*, 2> scale_labels_{};
  QGroupBox* graph_frame_ = nullptr;
  QGroupBox* quality_frame_ = nullptr;
  QGroupBox* range_frame_ = nullptr;
  QGroupBox* scale_frame_ = nullptr;
  TextBox* txtRanXi_ = nullptr;
  TextBox* txtRanXf_ = nullptr;
  TextBox* txtRanYi_ = nullptr;
  TextBox* txtRanYf_ = nullptr;
  TextBox* txtEscalaX_ = nullptr;
  TextBox* txtEscalaY_ = nullptr;
  QCheckBox* chkProporcional_ = nullptr;
  QSlider* Slider1_ = nullptr;
  QLabel* LblCalidad_ = nullptr;
  GraphList* listaG_ = nullptr;
  QPushButton* CmdAgregar_ = nullptr;
  QPushButton* CmdModificar_ = nullptr;
  QPushButton* CmdBorrar_ = nullptr;
  QPushButton* CmdGraficarLista_ = nullptr;
  QMenu* mArchivo_ = nullptr;
  QMenu* mEdicion_ = nullptr;
  RecentMenu* mRecientes_ = nullptr;
  QMenu* mOpciones_ = nullptr;
  QMenu* mLenguaje_ = nullptr;
  QMenu* mAyuda_ = nullptr;
};

}  // namespace zel
