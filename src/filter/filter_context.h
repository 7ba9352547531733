#pragma once

#include "documents/document_tables.h"
#include "filter/filter_rows.h"
#include "session/operations.h"
#include "session/session_state.h"

#include <vector>

namespace quelvarn {

// What the parts of the filter page share.
struct FilterContext
{
    SessionState& session;
    Operations& operations;
    FilterState& filter;
    DocumentTables& tables;
    int tab = 0; // Of the type the page is open for.
    // Steps of the run that left no rows, in the order they were tried. They are told once the grid shows the rows that
    // are left: a box lets the window draw.
    std::vector<int> stepsWithoutRows = {};

    TypeFilter& state() { return filter.types[static_cast<std::size_t>(tab)]; }
    const TypeFilter& state() const { return filter.types[static_cast<std::size_t>(tab)]; }
    DocumentTable& table() { return tables.opened(tab); }
    FilterSection section() const { return state().section; }
    std::vector<FilterRow> FilterWerteTabelle() const { return filterRows(state()); }
    Ports& ports() const { return operations.ports(); }
};

} // namespace quelvarn
