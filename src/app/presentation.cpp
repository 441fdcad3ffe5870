#include "app/presentation.h"

#include "base/language.h"

namespace zel {

bool Presentation::tick() {
  const bool closes = !just_activated_;
  just_activated_ = false;
  return closes;
}

bool Presentation::keyPressed(char32_t key) {
  if (key == 0) return false;
  if (key != 'P' && key != 'p') return true;
  timer_runs_ = !timer_runs_;
  is_paused_ = !timer_runs_;
  return false;
}

std::string Presentation::statusText() const {
  return is_paused_ ? Localize("EN PAUSA...") : kBuildText;
}

}  // namespace zel
