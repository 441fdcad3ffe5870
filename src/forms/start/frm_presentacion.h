#pragma once

#include <QTimer>
#include <string>

#include "app/presentation.h"
#include "forms/form.h"

class QFrame;
class QLabel;
class QPushButton;

namespace zel {

/// The presentation: shown at the start until its timer has ticked twice, a key is pressed or it is
/// clicked, and then hands over to the window it was given.
class frmPresentacion : public Form {
  Q_OBJECT

 public:
  explicit frmPresentacion(Program& program);

  /// The window that is shown when this one closes.
  void setLlamador(FormWindow* window) { llamador_ = window; }
  FormWindow* getLlamador() const { return llamador_; }

  void enableTimer();
  /// The bare window comes up at once. Its icon and its texts follow: loading fonts takes longer
  /// than the whole start before it.
  void showForm() override;
  void assignCaptions() override;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void fillInside();
  void activate();
  /// The left button was pressed and let go on this label.
  void clicked(const QObject* label);
  void Timer1_Timer();
  void closePresentation();
  /// Lets the real timer follow what the presentation decided.
  void followTimer();

  Presentation presentation_;
  FormWindow* llamador_ = nullptr;
  std::string shown_language_;
  QTimer Timer1_;
  const QObject* pressed_ = nullptr;  // the label where the left button went down
  QFrame* inside_;
  QLabel* Image1_;
  QLabel* LblVersion_;
  QLabel* LblQueEsZEL_;
  QLabel* LblEstado_;
  QPushButton* bCerrar_;
};

}  // namespace zel
