#pragma once

#include "platform/ports.h"
#include "session/session_state.h"

namespace quelvarn {

// Opens session.database.DatenbankPfad, tests that it is a register, reads and repairs the Ini rows and fills the
// session. On false the user has been told why, and nothing of the register is left in the session.
bool Hauptprogramm(SessionState& session, Ports& ports);

struct StartRun;
// The whole run over the register on the session's connection. False when there is none.
bool readRegister(StartRun& run);

} // namespace quelvarn
