#include "windows/panel_bar.h"

#include <QLabel>

#include "windows/form.h"

namespace zel {

PanelBar::PanelBar(const char* name) {
  setObjectName(QString::fromLatin1(name));
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    auto* panel = new QLabel;
    panel->setObjectName(objectName() + "_Panel" + QString::number(i + 1));
    panel->setTextFormat(Qt::PlainText);
    // A long text takes room from short ones, and does not keep the window wide.
    panel->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    panel->setMinimumWidth(1);
    addWidget(panel);
    panel->setVisible(i == 0);
    panels_[i] = panel;
  }
}

void PanelBar::showPanels(const StatusPanels& panels) {
  const std::array<const std::string*, 4> texts = {&panels.first, &panels.second, &panels.third,
                                                   &panels.fourth};
  for (std::size_t i = 0; i < panels_.size(); ++i) {
    panels_[i]->setText(toQt(*texts[i]));
    panels_[i]->setVisible(i == 0 || !texts[i]->empty());
  }
}

}  // namespace zel
