#include "app/editor/field_text.h"

#include "base/text.h"

namespace zel {

std::string ReadFieldText(const FormControls& form, std::string_view controlName) {
  return stripRelationSigns(form.controlText(controlName).value_or(std::string()));
}

}  // namespace zel
