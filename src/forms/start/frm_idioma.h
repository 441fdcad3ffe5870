#pragma once

#include <array>
#include <functional>

#include "forms/form.h"

class QLabel;
class QPushButton;
class QRadioButton;

namespace zel {

/// The language choice of the first start. It changes its own captions with the choice.
class frmIdioma : public Form {
  Q_OBJECT

 public:
  explicit frmIdioma(Program& program);

  /// What goes on after the accept, and what ends the program when the window is closed without.
  std::function<void()> accepted = [] {};
  std::function<void()> refused = [] {};

  void assignCaptions() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void optIdioma_Click(std::size_t index);
  void cmdAceptar_Click();

  QLabel* question_;
  std::array<QRadioButton*, 2> optIdioma_{};  // Spanish, English
  QPushButton* cmdAceptar_;
};

}  // namespace zel
