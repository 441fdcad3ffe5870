#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "engine/plan/block_program.h"
#include "engine/plan/plan.h"
#include "engine/plan/scalar_program.h"

namespace zel {

/// A plan and the programs that run it.
struct PreparedPlan {
  explicit PreparedPlan(Plan made) : plan(std::move(made)), scalar(plan) {}

  Plan plan;
  ScalarProgram scalar;
  std::unique_ptr<BlockProgram> blocks;  // made for the first sweep
};

/// The plans of the codes that were evaluated lately, so that changing to and fro between graphs
/// takes none of them apart again.
class PlanCache {
 public:
  /// The plan of an expanded code.
  std::shared_ptr<PreparedPlan> find(std::string_view expanded);

 private:
  static constexpr std::size_t kMostPlans = 64;

  struct Hash : std::hash<std::string_view> {
    using is_transparent = void;
  };

  std::unordered_map<std::string, std::shared_ptr<PreparedPlan>, Hash, std::equal_to<>> plans_;
};

}  // namespace zel
