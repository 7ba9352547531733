#pragma once

#include "database/engine.h"

namespace quelvarn::postgresql {

class Handle;

DamageReport findDamage(Handle& handle, std::size_t limit);

} // namespace quelvarn::postgresql
