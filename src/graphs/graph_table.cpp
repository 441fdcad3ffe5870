// 26 slots, a letter each, and a count of those in use that is kept by hand: freeing a slot that is
// free lowers it all the same, on purpose. Walking to the next or previous graph goes round at the
// ends and may end on a free slot.

#include "graphs/graph_table.h"

#include <utility>

#include "engine/compiler.h"

namespace zel {
namespace {

constexpr char kFirst = 'a';
constexpr char kLast = 'z';

bool isInTable(char letter) { return letter >= kFirst && letter <= kLast; }

std::size_t indexOf(char letter) { return static_cast<std::size_t>(letter - kFirst); }

char before(char letter) { return static_cast<char>(letter - 1); }
char after(char letter) { return static_cast<char>(letter + 1); }

std::string compiled(const Parameters& parameters, std::string_view key) {
  const std::string* const formula = parameters.find(key);
  return formula == nullptr ? std::string() : NormaliseFormula(*formula);
}

/// Fills the codes of a graph by its kind; it has the old one, whose memory is free before a new
/// one is made.
void makeCode(GraphDef& def) {
  if (def.tipo != 'P') std::string().swap(def.codigo);
  switch (def.tipo) {
    case 'F':
    case 'Z': def.codigo = NormaliseFormula(def.ecuacion); break;
    case 'C':
    case 'E':
    case 'H': def.codigo = def.parameters->Item("codigo1"); break;
    case 'T':
      def.parameters->set("codigo_xt", compiled(*def.parameters, "ecuacion_xt"));
      def.parameters->set("codigo_yt", compiled(*def.parameters, "ecuacion_yt"));
      break;
    default: break;
  }
}

std::array<GraphDef, GraphTable::kSlots> makeEmptySlots() {
  std::array<GraphDef, GraphTable::kSlots> slots;
  for (char letter = kFirst; letter <= kLast; ++letter) slots[indexOf(letter)].nombre = letter;
  return slots;
}

const GraphDef& emptySlot(char letter) {
  static const std::array<GraphDef, GraphTable::kSlots> slots = makeEmptySlots();
  return slots[indexOf(letter)];
}

}  // namespace

std::optional<GraphDef> GraphTable::graph(char letter) const {
  if (!isInTable(letter)) return std::nullopt;
  return *slot(letter);
}

const GraphDef* GraphTable::slot(char letter) const {
  if (!isInTable(letter)) return nullptr;
  const GraphDef* const def = slots_[indexOf(letter)].get();
  return def == nullptr ? &emptySlot(letter) : def;
}

bool GraphTable::storeGraph(GraphDef def) {
  if (!isInTable(def.nombre)) return false;
  const bool was_defined = slot(def.nombre)->defined;
  const std::size_t index = indexOf(def.nombre);
  slots_[index] = std::make_shared<const GraphDef>(std::move(def));
  if (!was_defined) changeCount(1);
  return true;
}

bool GraphTable::freeGraph(char letter) {
  if (!isInTable(letter)) return false;
  if (slot(letter)->defined) {
    GraphDef freed = *slot(letter);
    freed.defined = false;
    slots_[indexOf(letter)] = std::make_shared<const GraphDef>(std::move(freed));
  }
  changeCount(-1);
  return true;
}

void GraphTable::clearGraphs() {
  slots_.fill(nullptr);
  count_ = 0;
}

const GraphDef* GraphTable::nextDefined(std::optional<char> letter) const {
  char at = kLast;
  if (letter) at = *letter >= kLast ? kFirst : after(*letter);
  if (!isInTable(at)) return nullptr;
  while (!slot(at)->defined && at < kLast) ++at;
  if (slot(at)->defined) return slot(at);
  at = kFirst;
  while (!slot(at)->defined && at < kLast) ++at;
  return slot(at);
}

const GraphDef* GraphTable::previousDefined(std::optional<char> letter) const {
  char at = kFirst;
  if (letter) at = *letter <= kFirst ? kLast : before(*letter);
  if (!isInTable(at)) return nullptr;
  while (!slot(at)->defined && at > kFirst) --at;
  if (slot(at)->defined) return slot(at);
  at = kLast;
  while (!slot(at)->defined && at > kFirst) --at;
  return slot(at);
}

bool GraphTable::rebuildGraph(char nombre, std::string ecuacion, std::string codigo,
                              std::int32_t color, char tipo,
                              std::shared_ptr<Parameters> parameters) {
  if (!isInTable(nombre)) return false;
  GraphDef def;
  def.nombre = nombre;
  def.ecuacion = std::move(ecuacion);
  def.color = color;
  def.tipo = tipo;
  def.defined = true;
  def.parameters = parameters ? std::move(parameters) : NewDictionary();
  def.codigo = std::move(codigo);
  makeCode(def);
  return storeGraph(std::move(def));
}

std::string_view GraphTable::codeOf(char letter) const {
  return isInTable(letter) ? std::string_view(slot(letter)->codigo) : std::string_view();
}

void GraphTable::changeCount(int difference) {
  count_ = static_cast<std::int16_t>(count_ + difference);
}

}  // namespace zel
