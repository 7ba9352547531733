#pragma once

#include "platform/ports.h"
#include "session/session_state.h"

#include <functional>
#include <string>

namespace quelvarn {

inline constexpr int VERSION_MAJOR = 2; // Must stay 2: sibling programs find this one by its caption.
inline constexpr int VERSION_MINOR = 0;
inline constexpr int VERSION_REVISION = 0;

// "    Quelvarn Version 2.0.0": the tail of the main window's caption.
std::string versionText();
// Caption of the main window for this database path.
std::string windowTitle(const SessionState& session);

// Start-up: who, where, folders, last database, Hauptprogramm. Opens no window.
// After a fault that was reported, and that the user goes on from, no database is open.
void Main(SessionState& session, Ports& ports);

// Opens session.database.DatenbankPfad, tests that it is a register, reads and repairs the Ini rows and fills the
// session. On false the user has been told why, and nothing of the register is left in the session.
bool Hauptprogramm(SessionState& session, Ports& ports);

// How many windows with this program's caption run on this computer.
int runningCopies(const Ports& ports);
// Asks whether a second copy should stay open. False when the user says no.
bool CheckAlreadyRunning(const Ports& ports);
// True when Harvel or Talvik has an open window; the user has been told then.
bool CheckSiblingsRunning(const Ports& ports);
bool IsHarvelRunning(const Ports& ports);

} // namespace quelvarn
