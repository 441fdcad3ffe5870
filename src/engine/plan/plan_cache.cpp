// Plans are kept by their expanded code. When there are as many as may be, all are dropped: 26
// graphs have fewer codes than that, so going to and fro between them drops none.

#include "engine/plan/plan_cache.h"

namespace zel {

std::shared_ptr<PreparedPlan> PlanCache::find(std::string_view expanded) {
  const auto found = plans_.find(expanded);
  if (found != plans_.end()) return found->second;
  if (plans_.size() >= kMostPlans) plans_.clear();
  auto prepared = std::make_shared<PreparedPlan>(Plan::make(expanded));
  plans_.emplace(expanded, prepared);
  return prepared;
}

}  // namespace zel
