#pragma once

#include "scenario_runner/script.h"

#include <functional>
#include <map>
#include <string>

namespace quelvarn::scenario {

class World;

using Action = std::function<void(World&, const Step&)>;
using Verbs = std::map<std::string, Action, std::less<>>;

// The verbs by family; docs/scenarios.md describes each.
void addSetupVerbs(Verbs& verbs);
void addGestureVerbs(Verbs& verbs);
void addExpectations(Verbs& verbs); // Called as "expect WHAT ...": keys are WHAT.
// What happens around the program: servers, locks, disks, folders, and the program in a process of its own.
void addOutsideVerbs(Verbs& steps, Verbs& expectations);

// Runs a file from its first step to its last. Throws Difference or Skipped, with the step's place.
void runScenario(const std::string& file, const std::string& pictureFolder);

} // namespace quelvarn::scenario
