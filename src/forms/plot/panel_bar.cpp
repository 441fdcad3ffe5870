#include "forms/plot/panel_bar.h"

#include "forms/form.h"
#include "forms/plot/elided_label.h"

namespace zel {
namespace {

constexpr int kIndent = 4;  // pixels beside a text

}  // namespace

PanelBar::PanelBar(const char* name) {
  setObjectName(QString::fromLatin1(name));
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    auto* panel = new ElidedLabel;
    panel->setObjectName(objectName() + "_Panel" + QString::number(i + 1));
    // The panels share the room, and a long text does not keep the window wide.
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    panel->setMinimumWidth(1);
    panel->setIndent(kIndent);
    addWidget(panel, 1);
    panel->setVisible(i == 0);
    panels_[i] = panel;
  }
}

void PanelBar::showPanels(const StatusPanels& panels) {
  const std::array<const std::string*, 4> texts = {&panels.first, &panels.second, &panels.third,
                                                   &panels.fourth};
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i]->showText(toQt(*texts[i]));
    panels_[i]->setVisible(i == 0 || !texts[i]->empty());
  }
  emit panelsShown();
}

QString PanelBar::text() const {
  QStringList texts;
  for (const ElidedLabel* const panel : panels_)
    if (!panel->text().isEmpty()) texts.append(panel->text().trimmed());
  return texts.join("; ");
}

}  // namespace zel
