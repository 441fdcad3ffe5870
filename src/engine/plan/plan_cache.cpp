#include "engine/plan/plan_cache.h"

namespace zel {

std::shared_ptr<PreparedPlan> PlanCache::find(std::string_view expanded) {
  const auto found = plans_.find(expanded);
  if (found != plans_.end()) return found->second;
  if (plans_.size() >= kMostPlans) plans_.clear();
  auto plan = Plan::make(expanded, ParseCache());
  auto prepared = plan ? std::make_shared<PreparedPlan>(std::move(*plan)) : nullptr;
  plans_.emplace(expanded, prepared);
  return prepared;
}

}  // namespace zel
