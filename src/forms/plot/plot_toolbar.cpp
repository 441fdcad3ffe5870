#include "forms/plot/plot_toolbar.h"

#include <QAction>
#include <QToolButton>

#include "forms/form.h"
#include "platform/icons/plot_icons.h"
#include "plot/session/plot_session.h"

namespace zel {
namespace {

constexpr QSize kIconSize(24, 24);  // logical pixels

struct ToolTip {
  const char* spanish;
  const char* english;
};

constexpr std::array<ToolTip, kPlotCommandKeys.size()> kToolTips = {{
    {"Recorrer hacia la Izquierda", "Step back"},
    {"Recorrer Función", "Rove"},
    {"Recorrer hacia la Derecha", "Step forward"},
    {"Detener", "Stop"},
    {"Configurar", "Configure"},
    {"Mover pantalla hacia Arriba", "Screen up"},
    {"Mover pantalla hacia Abajo", "Screen down"},
    {"Mover pantalla a la Izquierda", "Screen left"},
    {"Mover pantalla a la Derecha", "Screen right"},
    {"Zoom Acercar", "Zoom(+)"},
    {"Zoom Alejar", "Zoom(-)"},
    {"Consultar valores específicos de la función activa", "Calculate value"},
    // "Maximun" and "Minimun" are meant.
    {"Buscar Máximos y Mínimos hacia la derecha", "Find Maximun or Minimun value forward"},
    {"Zoom a medida", "Custom zoom"},
    {"Copiar gráfico al Portapapeles de Windows", "Copy graphic to clipboard"},
    {"Imprimir gráfico", "Print graphic"},
}};

bool beginsGroup(PlotCommand command) {
  switch (command) {
    case PlotCommand::configurar:
    case PlotCommand::arriba:
    case PlotCommand::acercar:
    case PlotCommand::calcular_y:
    case PlotCommand::zoom_a_medida:
    case PlotCommand::copiar_grafico: return true;
    default: return false;
  }
}

}  // namespace

PlotToolbar::PlotToolbar() {
  setObjectName("Toolbar1");
  setMovable(false);
  setIconSize(kIconSize);
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const auto command = static_cast<PlotCommand>(i);
    if (beginsGroup(command)) addSeparator();
    QAction* const action = addAction(plotIcon(keyOf(command)), QString());
    action->setObjectName(toQt(keyOf(command)));
    connect(action, &QAction::triggered, this, [this, command] { emit ButtonClick(command); });
    QWidget* const button = widgetForAction(action);
    button->setObjectName(action->objectName());
    button->setFocusPolicy(Qt::TabFocus);
    actions_[i] = action;
  }
  actions_[static_cast<std::size_t>(PlotCommand::zoom_a_medida)]->setCheckable(true);
}

void PlotToolbar::assignCaptions() {
  setWindowTitle(caption("Herramientas", "Tools"));
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const QString text = caption(kToolTips[i].spanish, kToolTips[i].english);
    actions_[i]->setText(text);
    actions_[i]->setToolTip(text);
  }
}

void PlotToolbar::follow(const PlotSession& session) {
  for (std::size_t i = 0; i < actions_.size(); ++i)
    actions_[i]->setEnabled(session.isEnabled(static_cast<PlotCommand>(i)));
  actions_[static_cast<std::size_t>(PlotCommand::zoom_a_medida)]->setChecked(session.mode() ==
                                                                             PlotMode::zoom);
}

}  // namespace zel
