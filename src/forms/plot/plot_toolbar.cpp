#include "forms/plot/plot_toolbar.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include "forms/form.h"
#include "forms/plot/key_tip.h"
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

/// The key that does the same; empty where there is none.
QString keyTo(PlotCommand command) {
  switch (command) {
    case PlotCommand::recorrer_atras: return caption("Mayús+Izquierda", "Shift+Left");
    case PlotCommand::recorrer_adelante: return caption("Mayús+Derecha", "Shift+Right");
    case PlotCommand::arriba: return caption("Arriba", "Up");
    case PlotCommand::abajo: return caption("Abajo", "Down");
    case PlotCommand::izquierda: return caption("Izquierda", "Left");
    case PlotCommand::derecha: return caption("Derecha", "Right");
    case PlotCommand::acercar: return QStringLiteral("+");
    case PlotCommand::alejar: return QStringLiteral("-");
    case PlotCommand::copiar_grafico: return QStringLiteral("Ctrl+C");
    case PlotCommand::imprimir: return QStringLiteral("Ctrl+P");
    default: return {};
  }
}

}  // namespace

PlotToolbar::PlotToolbar() : copy_with_numbers_(new QAction(this)) {
  setObjectName("Toolbar1");
  setMovable(false);
  setIconSize(kIconSize);
  for (std::size_t i = 0; i < actions_.size(); ++i) makeButton(static_cast<PlotCommand>(i));
  actions_[static_cast<std::size_t>(PlotCommand::zoom_a_medida)]->setCheckable(true);
  for (const PlotCommand step : {PlotCommand::recorrer_atras, PlotCommand::recorrer_adelante}) {
    buttonOf(step).setAutoRepeat(true);
    buttonOf(step).setAutoRepeatInterval(kStepInterval);
  }
  copy_with_numbers_->setObjectName("Copiar_Con_Numeros");
  connect(copy_with_numbers_, &QAction::triggered, this, [this] { emit copyWithNumbersClicked(); });
  auto* const menu = new QMenu(this);
  menu->addAction(copy_with_numbers_);
  buttonOf(PlotCommand::copiar_grafico).setMenu(menu);
  buttonOf(PlotCommand::copiar_grafico).setPopupMode(QToolButton::MenuButtonPopup);
}

void PlotToolbar::makeButton(PlotCommand command) {
  if (beginsGroup(command)) addSeparator();
  QAction* const action = addAction(plotIcon(keyOf(command)), QString());
  action->setObjectName(toQt(keyOf(command)));
  connect(action, &QAction::triggered, this, [this, command] { emit ButtonClick(command); });
  actions_[static_cast<std::size_t>(command)] = action;
  QToolButton& button = buttonOf(command);
  button.setObjectName(action->objectName());
  button.setFocusPolicy(Qt::TabFocus);
}

QToolButton& PlotToolbar::buttonOf(PlotCommand command) {
  return *static_cast<QToolButton*>(widgetForAction(actions_[static_cast<std::size_t>(command)]));
}

void PlotToolbar::assignCaptions() {
  setWindowTitle(caption("Herramientas", "Tools"));
  for (std::size_t i = 0; i < actions_.size(); ++i) {
    const QString text = caption(kToolTips[i].spanish, kToolTips[i].english);
    actions_[i]->setText(text);
    actions_[i]->setToolTip(text);
    const auto command = static_cast<PlotCommand>(i);
    const QString key = keyTo(command);
    if (!key.isEmpty()) nameKey(buttonOf(command), key);
  }
  copy_with_numbers_->setText(
      caption("Copiar con números\tCtrl+Mayús+C", "Copy with numbers\tCtrl+Shift+C"));
}

void PlotToolbar::follow(const PlotSession& session) {
  for (std::size_t i = 0; i < actions_.size(); ++i)
    actions_[i]->setEnabled(session.isEnabled(static_cast<PlotCommand>(i)));
  actions_[static_cast<std::size_t>(PlotCommand::zoom_a_medida)]->setChecked(session.mode() ==
                                                                             PlotMode::zoom);
}

}  // namespace zel
