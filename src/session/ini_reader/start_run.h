#pragma once

#include "platform/ports.h"
#include "platform/printers.h"
#include "session/ini_reader/ini_rows.h"
#include "session/session_state.h"

#include <optional>
#include <string_view>

namespace quelvarn {

// One run of Hauptprogramm: what its steps share. A step may run twice: the second time in a transaction, where others
// cannot write these rows. So it shows no box where it writes.
// `section` is the step that an error report names.
struct StartRun
{
    SessionState& session;
    Ports& ports;
    std::string_view& section;
    IniRows ini;
    bool newUser = false;
    // Asked only when a row leaves it to the printer, and once: it may take its time.
    std::optional<std::optional<DefaultPrinter>> defaultPrinter;
};

} // namespace quelvarn
