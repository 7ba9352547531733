#pragma once

#include "platform/ports.h"
#include "session/session_state.h"

namespace quelvarn {

// Start-up: who, where, folders, last database, Hauptprogramm. Opens no window.
// After a fault that was reported, and that the user goes on from, no database is open.
void Main(SessionState& session, Ports& ports);

} // namespace quelvarn
