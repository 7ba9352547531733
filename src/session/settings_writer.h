#pragma once

#include "platform/ports.h"
#include "session/session_state.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

// Runs what writes the settings when a page closes, with the page's own box for a fault. When the database is to blame
// the box also tells that they are lost.
void saveSettings(const Ports& ports, std::string_view title, std::string_view text,
                  const std::function<void()>& write);

// What the start page leaves behind: ActiveQuelvarn, the installation's offline tool, and the tree switches, each
// only where its row exists. Rows that already say so are left alone.
void writeStartPage(SessionState& session);

// What the document page leaves behind: the search texts, replaced as a whole; the table of `tab` as the start
// table when it belongs to a file type; the options of offline orders.
void writeDocumentPage(SessionState& session, int tab);

} // namespace quelvarn
