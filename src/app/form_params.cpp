#include "app/form_params.h"

namespace zel {

FormParams makeFormParams() {
  FormParams params;
  params.Add("llamador", static_cast<FormWindow*>(nullptr));
  return params;
}

FormWindow* callerOf(const FormParams& params) {
  const FormValue value = params.Item("llamador");
  const auto window = std::get_if<FormWindow*>(&value);
  return window ? *window : nullptr;
}

}  // namespace zel
