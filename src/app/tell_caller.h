#pragma once

namespace quelvarn {

struct Reply;

// To whoever called the program: on the terminal, faults on its error output. On Windows in a box when there is no
// terminal.
void tellCaller(const Reply& reply);

} // namespace quelvarn
