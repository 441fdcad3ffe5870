#pragma once

#include <QTimer>

#include "forms/form.h"
#include "forms/plot/plot_screen.h"
#include "forms/plot/wheel_notches.h"
#include "forms/print/printed_window.h"
#include "plot/session/plot_session.h"

class QMouseEvent;
class QWheelEvent;

namespace zel {

class GraphBar;
class GraphLegend;
class PanelBar;
class PictureBox;
class PlotOverlay;
class PlotToolbar;

/// The plot window. What it draws at first, it draws from the event loop: soon after it is shown or
/// resized, never inside of that.
class frmGrafico : public Form, public PrintedWindow, private PlotListener {
  Q_OBJECT

 public:
  explicit frmGrafico(Program& program);

  /// The window that prints; it outlives this one. Without it nothing is printed.
  void setPrintWindow(FormWindow* print) { print_ = print; }

  void assignCaptions() override;
  /// With itself as "llamador" it comes back from a window that it has opened: its view, its
  /// picture and its own caller are as they were.
  void showForm() override;

  PictureBox& picture() override { return *picGrafico_; }
  NumberLayer numbers() const override;
  const PlotSession& session() const { return session_; }

 protected:
  void takeArguments() override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void pictureDrawn() override;
  void toolsChanged() override;
  void showDrawingError(const std::string& message, std::optional<char> graph) override;
  void showInformation(const std::string& message) override;
  std::optional<std::string> askValue(const std::string& prompt, const std::string& title) override;
  void copyPicture(bool with_numbers) override;
  void openPrint() override;
  void returnToMain() override;

  void buildControls();
  void orderTabs();
  void connectControls();
  /// The room for the picture, which lies below the row with the active graph and beside the list.
  QRect pictureRoom() const;
  /// The window stops at a size with a picture that can be drawn.
  void needLeastSize();
  void placeControls(const QRect& picture);
  void Form_Resize();

  bool picGrafico_Event(QEvent& event);
  void picGrafico_KeyPress(char32_t key);
  void picGrafico_MouseDown(const QMouseEvent& event);
  void picGrafico_MouseMove(const QMouseEvent& event);
  void picGrafico_MouseUp(const QMouseEvent& event);
  void picGrafico_MouseWheel(const QWheelEvent& event);
  void Toolbar1_ButtonClick(PlotCommand command);
  void CmdGrafAnterior_Click();
  void CmdGrafSiguiente_Click();
  void CmdNumeros_Click();
  /// A key that stands for a button; false for any other.
  bool pressButtonOf(const QKeyEvent& event);
  void showHelp();
  /// After a click with the mouse the keys belong to the picture again; whoever walks over the
  /// buttons with the keyboard stays on them.
  void leaveButton(const QString& name);

  void describePicture();
  /// Numbers and grid of what is shown, where they are wanted.
  void showNumbers();
  void showCoordinates();
  /// Ends the drawing, hands this view over and shows the caller.
  void leave(const ViewSettings& view);

  QWidget* inside_;  // the window without its bars
  PictureBox* picGrafico_;
  PlotOverlay* overlay_ = nullptr;
  GraphBar* graph_bar_;
  GraphLegend* legend_;
  PlotToolbar* Toolbar1_;
  PanelBar* StatusBar1_;
  PlotScreen screen_;
  PlotSession session_;
  FormWindow* opener_ = nullptr;
  FormWindow* print_ = nullptr;
  QTimer draws_soon_;
  WheelNotches wheel_;
  bool is_resized_ = true;  // since the picture was fitted in
  bool shows_numbers_ = false;
};

}  // namespace zel
