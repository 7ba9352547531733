#pragma once

#include "filter/filter_context.h"
#include "filter/fragments.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// The conditions of a chain up to and with one step.
struct Kettenglied
{
    std::string filterform;
    std::string sqlform;
    std::vector<SharedCondition> conditions = {};

    // As a filter of the table, behind the status condition.
    RowFilter behind(const StatusCondition& status) const;
};

// What a step makes of its cells.
using Fragmentbildner = std::function<Schrittfragment(const FilterSchritt& schritt, int nummer)>;

// Both joined with " AND " where both have text.
std::string mitUnd(std::string_view links, std::string_view rechts);
// The steps up to FilterAnzahl, each joined with those before it.
std::vector<Kettenglied> bildeKette(const Filterzustand& zustand, const Fragmentbildner& fragment);
// Runs the last link; where it leaves no rows, which the context keeps to be told, the one before it runs. The status
// condition stands before each of them. False when it was given up.
bool laufeKette(Filterkontext& kontext, const std::vector<Kettenglied>& kette, const StatusCondition& status);
// Assigns a filter to the table. False when it was given up; the table is then as it was.
bool setzeFilter(Filterkontext& kontext, RowFilter filter);
// Runs `lauf`. When it is false or a fault ends it, the rows shown and the state of the filter are as before.
bool laufeOderWieVorher(Filterkontext& kontext, const std::function<bool()>& lauf);

} // namespace quelvarn
