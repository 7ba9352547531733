#pragma once

#include "base/runtime_error.h"
#include "platform/boxes.h"

#include <functional>
#include <string>
#include <string_view>

namespace quelvarn {

// The last report of every operation: OK goes on, Cancel raises ProgramExit.
void Fehlermeldung(Boxes& boxes, const RuntimeError& fault);

// Runs an operation that a person started. A fault shows the operation's own warning box, then Fehlermeldung.
// Every exception but ProgramExit ends here. True when the operation ran to its end.
bool guarded(Boxes& boxes, std::string_view title, std::string_view text, const std::function<void()>& operation);
// The same for a text that is known only when the fault happens.
bool guarded(Boxes& boxes, std::string_view title, const std::function<std::string()>& text,
             const std::function<void()>& operation);

} // namespace quelvarn
