#pragma once

#include "platform/ports.h"
#include "session/session_state.h"

namespace quelvarn {

// Builds WhereStatus and AndStatus from Sichtbar.
void formStatusSection(Rights& rights);

// True when LoeschRecht of this status is CodeA, CodeB or 6, or the status is outside 0 to 5; else the refusal.
bool PruefeLoeschenDB(const Rights& rights, Boxes& boxes, int Status, int CodeA, int CodeB);
// True when LoeschRecht is at least Mindestcode, or the status is outside 0 to 5; else the refusal.
bool PruefeLoeschenDatei(const Rights& rights, Boxes& boxes, int Status, int Mindestcode);

} // namespace quelvarn
