#include "platform/widgets/qt_texts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>

#include "base/language.h"

namespace zel {

QString inLanguage(const char* spanish, const char* english) {
  return QString::fromUtf8(CurrentLanguage() == "EN" ? english : spanish);
}

QtTexts::QtTexts() { QCoreApplication::instance()->installEventFilter(this); }

QtTexts::~QtTexts() { QCoreApplication::removeTranslator(&translator_); }

bool QtTexts::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::ShortcutOverride:
    case QEvent::ContextMenu: follow(); break;
    default: break;
  }
  return QObject::eventFilter(watched, event);
}

void QtTexts::follow() {
  if (language_ == CurrentLanguage()) return;
  language_ = CurrentLanguage();
  QCoreApplication::removeTranslator(&translator_);
  if (language_ == "EN") return;
  if (translator_.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&translator_);
}

}  // namespace zel
