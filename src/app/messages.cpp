#include "app/messages.h"

#include <string>

#include "base/language.h"
#include "base/message_table.h"
#include "files/document.h"

namespace zel {

void ShowAttention(MessageBoxes& boxes, std::string_view message) {
  if (message.empty()) return;
  boxes.show(std::string(message), Localize("ZEL - ATENCIÓN"), BoxStyle::stop);
}

void ShowInformation(MessageBoxes& boxes, std::string_view message) {
  boxes.show(Localize(message), Localize("Información"), BoxStyle::cancel_try_again_continue);
}

void ReportError(MessageBoxes& boxes, std::string_view cause) {
  if (cause.empty()) return;
  boxes.show(Localize("No se puede realizar la operación.") + "\r\n" + Localize("Causa: ") +
                 std::string(cause),
             Localize("ZEL - Reporte de errores"), BoxStyle::stop);
}

bool IsKnownUserError(std::string_view text) {
  const auto holds = [&](std::string_view message) {
    return text.find(Localize(message)) != std::string_view::npos;
  };
  return holds("Error: No se entiende el elemento: ") || holds(messages::kRangeTooClose) ||
         holds("Error de sintaxis.");
}

void ReportCriticalError(MessageBoxes& boxes, std::string_view text, std::optional<char> graph) {
  if (!IsKnownUserError(text)) return;
  std::string report = Localize("Operación cancelada.") + "\r\n" + Localize("Causa: ");
  report.append(text).append("\r\n").append(Localize("Detalle: gráfico activo "));
  if (graph) report += *graph;
  boxes.show(report, Localize("ZEL - Reporte de errores criticos"), BoxStyle::stop);
}

void ShowDrawingError(MessageBoxes& boxes, std::string_view message, std::optional<char> graph) {
  if (IsKnownUserError(message))
    ReportCriticalError(boxes, message, graph);
  else
    ShowAttention(boxes, message);
}

std::string saveFailure(int error) {
  if (error == 0) return Localize(messages::kCannotSave);
  return Localize("Error: No se pudo salvar.") + "\r\n" + Localize("Causa: código ") +
         std::to_string(error);
}

}  // namespace zel
