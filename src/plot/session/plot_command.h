#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace zel {

/// The commands of the plot window's toolbar, in its order.
enum class PlotCommand {
  recorrer_atras,
  recorrer,
  recorrer_adelante,
  parar,
  configurar,
  arriba,
  abajo,
  izquierda,
  derecha,
  acercar,
  alejar,
  calcular_y,
  buscar_max_min,
  zoom_a_medida,
  copiar_grafico,
  imprimir,
};

/// The keys of the commands' buttons, in the order of the commands.
inline constexpr std::array<std::string_view, 16> kPlotCommandKeys = {
    "Recorrer_Atras", "Recorrer",      "Recorrer_Adelante", "Parar",    "Configurar", "Arriba",
    "Abajo",          "Izquierda",     "Derecha",           "Acercar",  "Alejar",     "Calcular_Y",
    "Buscar_Max_Min", "Zoom_a_Medida", "Copiar_Grafico",    "Imprimir",
};

/// The command of a key; nothing when no button has it.
std::optional<PlotCommand> plotCommand(std::string_view key);

constexpr std::string_view keyOf(PlotCommand command) {
  return kPlotCommandKeys[static_cast<std::size_t>(command)];
}

}  // namespace zel
