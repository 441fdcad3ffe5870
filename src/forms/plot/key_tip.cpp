#include "forms/plot/key_tip.h"

#include <QHelpEvent>
#include <QToolTip>

#include "forms/form.h"

namespace zel {
namespace {

constexpr const char* kFilterName = "KeyTip";

class KeyTip : public QObject {
 public:
  explicit KeyTip(QWidget& button) : QObject(&button) {
    setObjectName(kFilterName);
    button.installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return false;
    auto& button = static_cast<QWidget&>(*watched);
    QToolTip::showText(static_cast<const QHelpEvent&>(*event).globalPos(),
                       button.toolTip() + "\n" + button.accessibleDescription(), &button);
    return true;
  }
};

}  // namespace

void nameKey(QWidget& button, const QString& key) {
  button.setAccessibleDescription(caption("Tecla: %1", "Key: %1").arg(key));
  if (!button.findChild<QObject*>(kFilterName, Qt::FindDirectChildrenOnly)) new KeyTip(button);
}

}  // namespace zel
