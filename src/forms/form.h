#pragma once

#include <QMainWindow>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <optional>
#include <string>
#include <string_view>

#include "app/editor/field_text.h"
#include "app/form_params.h"
#include "app/program.h"

namespace zel {

QString toQt(std::string_view utf8);
std::string fromQt(const QString& text);

/// One of two literal captions by the current language. Any other language keeps what a window was
/// designed with, which is Spanish.
QString caption(const char* spanish, const char* english);

/// The program's icon, so many logical pixels wide.
QPixmap windowIconPixmap(int side);

/// A window of the program: a single instance, hidden and not destroyed when it is closed.
class Form : public QMainWindow, public FormWindow, public FormControls {
  Q_OBJECT

 public:
  /// The program outlives its windows. The object name is the window's given name.
  Form(Program& program, const char* name);

  /// Assigns every caption of the window in the current language; assigns nothing under a language
  /// that is neither "ES" nor "EN", so that the captions stay as they are.
  void ApplyLanguage();

  /// Takes the arguments out of FormParams and shows the window, or brings it to the front. Its
  /// captions are in the current language then.
  void showForm() override;

  std::optional<std::string> controlText(std::string_view name) const override;

 protected:
  /// The captions from the window's own two literal sets. A window calls it once when it is made:
  /// what it shows before any language is applied is Spanish.
  virtual void assignCaptions() = 0;

  /// Called by showForm before the window is shown: reads FormParams.
  virtual void takeArguments() {}

  /// Shows the window where it stood, in front and active.
  void appear();

  /// Keeps a window that is modal over its caller, where that one has been shown. It appears in the
  /// middle of it where it has no place yet. For takeArguments.
  void layOverCaller();
  /// Lets the window appear anew in the middle of its caller, wherever it stood.
  void forgetPlace() { place_.reset(); }

  void hideEvent(QHideEvent* event) override;

  /// Hides this window and shows the one under "llamador", as it was when this one was shown.
  void returnToCaller();

  Program& program() { return program_; }
  const Program& program() const { return program_; }
  void setCaller(FormWindow* caller) { caller_ = caller; }

 private:
  void moveOver(const QWidget& caller);
  void growToContents();
  /// Puts a window that was shown before where it stood, if that is still on a screen.
  void takePlace();

  Program& program_;
  FormWindow* caller_ = nullptr;
  std::optional<QPoint> place_;  // without its frame, when it was hidden last
};

}  // namespace zel
