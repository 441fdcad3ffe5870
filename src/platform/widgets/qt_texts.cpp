#include "platform/widgets/qt_texts.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <algorithm>
#include <string_view>
#include <utility>

#include "base/language.h"

namespace zel {

QString inLanguage(const char* spanish, const char* english) {
  return QString::fromUtf8(CurrentLanguage() == "EN" ? english : spanish);
}

QString SpanishKeys::translate(const char* context, const char* text, const char*, int) const {
  constexpr std::pair<std::string_view, const char*> kKeys[] = {
      {"Ctrl", "Ctrl"}, {"Shift", "Mayús"}, {"Del", "Supr"}, {"Ins", "Insertar"}};
  if (std::string_view(context) != "QShortcut") return {};
  const auto* const key =
      std::ranges::find(kKeys, text, [](const auto& each) { return each.first; });
  return key == std::end(kKeys) ? QString() : QString::fromUtf8(key->second);
}

QtTexts::QtTexts() { QCoreApplication::instance()->installEventFilter(this); }

QtTexts::~QtTexts() {
  QCoreApplication::removeTranslator(&keys_);
  QCoreApplication::removeTranslator(&translator_);
}

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
  QCoreApplication::removeTranslator(&keys_);
  QCoreApplication::removeTranslator(&translator_);
  if (language_ == "EN") return;
  if (translator_.load("qtbase_es", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(&translator_);
  QCoreApplication::installTranslator(&keys_);  // later, so it is asked first
}

}  // namespace zel
