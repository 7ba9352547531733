#pragma once

#include "session/session_state.h"

namespace quelvarn {

// What the start page leaves behind: ActiveQuelvarn, the installation's offline tool, and the tree switches, each
// only where its row exists. Rows that already say so are left alone.
void schreibeStartseite(SessionState& session);

// What the document page leaves behind: the search texts, replaced as a whole; the table of `tab` as the start
// table when it belongs to a file type; the options of offline orders.
void schreibeDokumentseite(SessionState& session, int tab);

} // namespace quelvarn
