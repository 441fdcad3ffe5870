#pragma once

#include <QTimer>

#include "plot/plot_session.h"
#include "windows/form.h"
#include "windows/plot_screen.h"

class QToolBar;

namespace zel {

class PanelBar;
class PictureBox;

/// The plot window. What it draws, it draws from the event loop: soon after it is shown or resized,
/// never inside of that.
class frmGrafico : public Form, private PlotListener {
  Q_OBJECT

 public:
  explicit frmGrafico(Program& program);

  void assignCaptions() override;
  /// With itself as "llamador" it comes back from a window that it has opened: its view, its
  /// picture and its own caller are as they were.
  void showForm() override;

  const PlotSession& session() const { return session_; }

 protected:
  void takeArguments() override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void pictureDrawn() override;
  void showMessage(const std::string& message) override;
  void returnToMain() override;

  void buildControls();
  void connectControls();
  void picGrafico_KeyPress(char32_t key);
  void Form_Resize();
  void describePicture();
  /// Ends the drawing, hands this view over and shows the caller.
  void leave(const ViewSettings& view);

  QWidget* inside_;  // the window without its bars
  PictureBox* picGrafico_;
  QToolBar* Toolbar1_;
  PanelBar* StatusBar1_;
  PlotScreen screen_;
  PlotSession session_;
  FormWindow* opener_ = nullptr;
  QTimer draws_soon_;
  bool is_resized_ = true;  // since the picture was fitted in
};

}  // namespace zel
