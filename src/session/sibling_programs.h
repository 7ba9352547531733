#pragma once

#include "platform/ports.h"

namespace quelvarn {

// How many windows with this program's caption run on this computer.
int runningCopies(const Ports& ports);
// Asks whether a second copy should stay open. False when the user says no.
bool CheckAlreadyRunning(const Ports& ports);
// True when Harvel or Talvik has an open window; the user has been told then.
bool CheckSiblingsRunning(const Ports& ports);
bool IsHarvelRunning(const Ports& ports);

} // namespace quelvarn
