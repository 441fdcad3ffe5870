#include "base/language.h"
#include "numbers/number_text.h"
#include "plot/session/plot_session.h"
#include "plot/session/value_texts.h"

/// The toolbar, the keys, and the active graph.
namespace zel {
namespace {

constexpr char32_t kEscape = 27;
constexpr char32_t kSpace = 32;

}  // namespace

bool PlotSession::isEnabled(PlotCommand command) const {
  if (command != PlotCommand::recorrer && command != PlotCommand::calcular_y) return true;
  return !active_ || graphs_.slot(*active_)->tipo != 'T';
}

void PlotSession::execute(PlotCommand command) {
  if (!isDrawn() || !isEnabled(command)) return;
  switch (command) {
    case PlotCommand::recorrer_atras: return startTrace(tracePosition(), -1);
    case PlotCommand::recorrer: return startTrace(viewport_.view.xi, 1);
    case PlotCommand::recorrer_adelante: return startTrace(tracePosition(), 1);
    case PlotCommand::parar: return setMode(PlotMode::normal);
    case PlotCommand::configurar: return listener_.returnToMain();
    case PlotCommand::arriba:
    case PlotCommand::abajo:
    case PlotCommand::izquierda:
    case PlotCommand::derecha: return pan(command);
    case PlotCommand::acercar: return zoomTo(zoomed(viewport_.view, Zoom::in));
    case PlotCommand::alejar: return zoomTo(zoomed(viewport_.view, Zoom::out));
    case PlotCommand::calcular_y: return calculateValues();
    case PlotCommand::buscar_max_min: return walkOnce([this] { search(); });
    case PlotCommand::zoom_a_medida: return toggleZoom();
    case PlotCommand::copiar_grafico: return copy(false);
    case PlotCommand::imprimir: return listener_.openPrint();
  }
}

void PlotSession::keyPressed(char32_t key) {
  if (key == kEscape || key == kSpace) drawing_.stop();
  if (!isDrawn()) return;
  if (key == U'C' && active_) listener_.showInformation(std::string(graphs_.codeOf(*active_)));
  if (key == U'+') execute(PlotCommand::acercar);
  if (key == U'-') execute(PlotCommand::alejar);
  if (key == U'n' || key == U'N') toggleNumbers();
}

void PlotSession::copyWithNumbers() {
  if (isDrawn()) copy(true);
}

void PlotSession::copy(bool with_numbers) {
  listener_.copyPicture(with_numbers);
  listener_.showInformation(
      Localize("Se ha copiado el gráfico de funciones al Portapapeles de Windows."));
}

void PlotSession::toggleNumbers() {
  shows_numbers_ = !shows_numbers_;
  listener_.toolsChanged();
}

NumberLayer PlotSession::numbers(const TextMeasure& measure) const {
  return isDrawn() ? markNumbers(viewport_, marks_, measure) : NumberLayer();
}

std::optional<PictureLabel> PlotSession::coordinates(const TextMeasure& measure) const {
  if (!isDrawn() || !shows_numbers_ || !pointer_) return std::nullopt;
  return pointerLabel(viewport_, *pointer_, measure);
}

void PlotSession::activateNext() {
  if (!isDrawn()) return;
  setMode(PlotMode::normal);
  makeActive(graphs_.nextDefined(active_));
}

void PlotSession::activatePrevious() {
  if (!isDrawn()) return;
  setMode(PlotMode::normal);
  makeActive(graphs_.previousDefined(active_));
}

void PlotSession::choose(char letter) {
  const GraphDef* const def = graphs_.slot(letter);
  if (!isDrawn() || !def || !def->defined) return;
  setMode(PlotMode::normal);
  makeActive(def);
}

bool PlotSession::activate(char letter) {
  const GraphDef* const def = graphs_.slot(letter);
  if (!def || !def->defined) return false;
  makeActive(def);
  return true;
}

void PlotSession::makeActive(const GraphDef* def) {
  if (!def || !def->defined) return;
  setActive(def->nombre);
  ++changes_;
  listener_.toolsChanged();
}

/// Another graph's points say nothing of the slope.
void PlotSession::setActive(char letter) {
  if (active_ != letter) trace_y_.reset();
  active_ = letter;
}

GraphDef PlotSession::activeDef() const {
  return active_ ? graphs_.graph(*active_).value_or(GraphDef()) : GraphDef();
}

void PlotSession::pan(PlotCommand direction) {
  const double traced = tracePosition();
  if (!takeView(panned(viewport_.view, direction)) || !drawView()) return;
  if (mode_ == PlotMode::recorrido) trace(traced, 0);
}

void PlotSession::zoomTo(const ViewSettings& view) {
  if (!takeView(view)) return;
  setMode(PlotMode::normal);
  drawView();
}

void PlotSession::calculateValues() {
  const GraphDef def = activeDef();
  if (!active_) return;
  const auto opening = opened_count_;
  while (isDrawn() && opening == opened_count_) {
    const auto answer = listener_.askValue(valuePrompt(def), valueTitle());
    if (!answer || answer->empty()) return;
    if (isNumeric(*answer)) listener_.showInformation(valueAt(engine_, def.codigo, *answer));
  }
}

}  // namespace zel
