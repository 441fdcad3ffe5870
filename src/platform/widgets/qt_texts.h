#pragma once

#include <QObject>
#include <QString>
#include <QTranslator>
#include <string>

namespace zel {

/// One of two texts by the current language; Spanish for any that is not "EN".
QString inLanguage(const char* spanish, const char* english);

/// The Spanish names of keys in menus, as the help and the tips write them; Qt's translation has
/// others: "Control", "Mayúsculas", "Suprimir".
class SpanishKeys : public QTranslator {
 public:
  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* text, const char* comment,
                    int count) const override;
};

/// Keeps Qt's own texts (of its dialogs, of the menus of its fields) in the program's language,
/// where Qt's translations are installed: looks at the language whenever the user presses a key or
/// a button, which is before any of these texts is made. Needs the application, and must not
/// outlive it.
class QtTexts : public QObject {
 public:
  QtTexts();
  ~QtTexts() override;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void follow();

  QTranslator translator_;
  SpanishKeys keys_;
  std::string language_ = "EN";  // what Qt speaks by itself
};

}  // namespace zel
