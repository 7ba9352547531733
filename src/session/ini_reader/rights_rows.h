#pragma once

namespace quelvarn {

struct StartRun;

// Reads the rights of this user; a new user is entered first.
void readRights(StartRun& run);
// Greets a new user; then the rights count.
void applyRights(StartRun& run);

} // namespace quelvarn
