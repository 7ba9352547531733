#pragma once

namespace quelvarn {

class Engine;

// All tables of the register with their indexes, empty.
void createRegister(Engine& engine);

} // namespace quelvarn
