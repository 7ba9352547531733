#pragma once

#include "database/column.h"

#include <functional>
#include <string_view>
#include <vector>

namespace quelvarn {

struct Sortierfeld
{
    std::size_t feld;
    bool absteigend = false;
};

// "Feld [ASC|DESC], ..."; a name may stand in square brackets. `feldVon` gives the number of a field.
std::vector<Sortierfeld> leseSortierung(std::string_view ausdruck,
                                        const std::function<std::size_t(std::string_view)>& feldVon);

// Puts the rows in the order of these fields, Null before everything; equal ones stay in their order.
void sortiere(std::vector<Zeilennummer>& zeilen, const std::vector<Sortierfeld>& felder,
              const std::function<const Column&(std::size_t)>& spalte);

} // namespace quelvarn
