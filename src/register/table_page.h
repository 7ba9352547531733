#pragma once

#include "filter/filtered_table.h"
#include "register/document_record.h"
#include "register/property_tree.h"

namespace quelvarn {

// One of the eight tables with its row copy and tree.
struct Tabellenseite : GefilterteTabelle
{
    Zeitpunkt naechstePruefung; // Opening plus a minute; scans before it are old news.
    DokuRecord record;
    Eigenschaftsbaum baum;
};

} // namespace quelvarn
