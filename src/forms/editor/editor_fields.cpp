#include "forms/editor/editor_fields.h"

namespace zel {
namespace {

struct PlacesOf {
  using Places = std::vector<FieldPlace>;

  Places operator()(FunctionFields& f) const { return {{"txtF", &f.formula}}; }
  Places operator()(CircumferenceFields& f) const {
    return {{"txtCX", &f.centre_x}, {"txtCY", &f.centre_y}, {"txtCRadio", &f.radius}};
  }
  Places operator()(EllipseFields& f) const {
    return {{"txtEX", &f.centre_x},
            {"txtEY", &f.centre_y},
            {"txtEMayor", &f.major},
            {"txtEMenor", &f.minor}};
  }
  Places operator()(ParabolaFields& f) const {
    return {{"txtPX", &f.focus_x}, {"txtPY", &f.focus_y}, {"txtPDirectriz", &f.distance}};
  }
  Places operator()(ParametricFields& f) const {
    return {{"txtTx", &f.x},
            {"txtTy", &f.y},
            {"txtTinicio", &f.inicio},
            {"txtTfin", &f.fin},
            {"txtTvariacion", &f.variacion}};
  }
  Places operator()(HyperbolaFields& f) const {
    return {{"txtHX", &f.centre_x},
            {"txtHY", &f.centre_y},
            {"txtHVertice", &f.vertex},
            {"txtHFoco", &f.focus}};
  }
  Places operator()(FamilyFields& f) const {
    return {{"txtZ", &f.formula},
            {"txtZinicio", &f.inicio},
            {"txtZfin", &f.fin},
            {"txtZvariacion", &f.variacion}};
  }
};

}  // namespace

std::vector<FieldPlace> placesOf(GraphFields& fields) { return std::visit(PlacesOf{}, fields); }

std::vector<const char*> formulaControls(char kind) {
  switch (kind) {
    case 'F': return {"txtF"};
    case 'Z': return {"txtZ"};
    case 'T': return {"txtTx", "txtTy"};
    default: return {};
  }
}

}  // namespace zel
