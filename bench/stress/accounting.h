#pragma once

#include "stress/ledger.h"

#include <string>
#include <vector>

namespace quelvarn {
class Engine;
}

namespace quelvarn::stress {

// Holds a user's rows against his account: what was done is there, exactly once and whole; what was never begun is
// not; what was begun and killed is there wholly or not at all. The faults found, none when all is well.
std::vector<std::string> compare(Engine& engine, const std::string& user, const Account& account);

// A group of rows that always changes as one, read in one statement: whether it is whole right now.
bool isWhole(Engine& engine, const std::string& user);

} // namespace quelvarn::stress
