#pragma once

#include "base/runtime_error.h"
#include "platform/boxes.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

// The last report of every operation: OK goes on, Cancel raises ProgrammEnde.
void Fehlermeldung(Meldungen& meldungen, const Laufzeitfehler& fehler);

// Runs an operation that a person started. A fault shows the operation's own warning box, then Fehlermeldung.
// Every exception but ProgrammEnde ends here. True when the operation ran to its end.
bool gesichert(Meldungen& meldungen, std::string_view titel, std::string_view text,
               const std::function<void()>& operation);
// The same for a text that is known only when the fault happens.
bool gesichert(Meldungen& meldungen, std::string_view titel, const std::function<std::string()>& text,
               const std::function<void()>& operation);

} // namespace quelvarn
