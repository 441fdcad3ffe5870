#include "forms/kind_captions.h"

#include "forms/form.h"

namespace zel {

QString kindCaption(char kind) {
  switch (kind) {
    case 'F': return caption("Función", "Function");
    case 'C': return caption("Circunferencia", "Circumference");
    case 'E': return caption("Elipse", "Ellipse");
    case 'P': return caption("Parábola", "Parabola");
    case 'T': return caption("Paramétrica", "Parametric");
    case 'H': return caption("Hiperbola", "Hyperbola");
    case 'Z': return caption("Haz", "Sheaf");
    default: return {};
  }
}

}  // namespace zel
