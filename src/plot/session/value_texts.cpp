// What the box that asks for a value of x says, and what it answers: the y, or the cause why there
// is none.

#include "plot/session/value_texts.h"

#include "base/language.h"
#include "base/text.h"
#include "numbers/number_text.h"

namespace zel {

std::string valueTitle() { return Localize("Cálculo de un valor específico"); }

std::string valuePrompt(const GraphDef& def) {
  std::string prompt = Localize("Gráfico") + ": " + displayText(def);
  prompt += kLineBreak;
  prompt += Localize("Ingrese un valor de X para evaluar la función.");
  prompt += kLineBreak;
  prompt += Localize("Para salir presione 'Cancelar'.");
  return prompt;
}

std::string valueAt(Engine& engine, std::string_view code, const std::string& x_text) {
  std::string text = "X=" + x_text;
  text += kLineBreak;
  const auto x = readNumber(x_text);
  double y = 0;
  std::string cause = Localize("Valores demasiado grandes para operar.");  // x itself is too large
  if (x && engine.Evaluate(*x, y, code, cause)) return text + "Y=" + writeNumber(y).str();
  text += "Y= " + Localize("DESCONOCIDO");
  text += kLineBreak;
  return text + Localize("Causa: ") + cause;
}

}  // namespace zel
