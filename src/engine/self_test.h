#pragma once

#include <string>

#include "engine/engine.h"

namespace zel {

/// Evaluates one formula whose value is known. `detail` is what the evaluation said.
bool TestEvaluator(Engine& engine, std::string& detail);

/// The start-up self-test: true when the engine computes as it must. Otherwise `report` holds the
/// text for the user, in the current language; it is empty after a pass.
bool RunSelfTest(Engine& engine, std::string& report);

/// That text for a test that failed with a detail, which may be empty.
std::string SelfTestReport(const std::string& detail);

}  // namespace zel
