#pragma once

#include "database/schema.h"
#include "database/value.h"

#include <span>

namespace quelvarn {

// Takes rows, table by table.
class Zeilensenke
{
public:
    virtual ~Zeilensenke() = default;
    // The rows that follow belong to this table, cells in the order of its columns.
    virtual void tabelle(const Tabellenschema& tabelle) = 0;
    virtual void zeile(std::span<const Value> werte) = 0;
};

} // namespace quelvarn
