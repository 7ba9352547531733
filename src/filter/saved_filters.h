#pragma once

#include "filter/filter_state.h"
#include "session/session_state.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// What a stored Filterstring says. A damaged entry ends the reading; what stood before it counts.
struct GespeicherterFilter
{
    std::array<FilterSchritt, ANZAHL_SCHRITTE> FilterSchritte;
    int FilterAnzahl = 0;
    int BenutzDefAnzahl = 0;
    std::array<std::string, ANZAHL_ZUSBENUTZDEF> ZusBenutzDef;
    std::vector<Filterwert> FilterWerteTabelle;
    std::optional<std::array<bool, ANZAHL_STATUS>> ChFilterStat; // None when no status entry was read.
    Filterbereich bereich = Filterbereich::Eigenschaften;        // The kind of the entries.
};

// The stored form of a filter, and back.
std::string alsFilterstring(const Filterzustand& zustand, const std::vector<Filterwert>& FilterWerteTabelle);
GespeicherterFilter leseFilterstring(std::string_view Filterstring);

// The names of a type's saved filters, in their order.
std::vector<std::string> gespeicherteNamen(const SessionState& session, int tab);
// "" where there is none of this name; the comparison is exact.
std::string SavedFilterString(const SessionState& session, int tab, std::string_view Filtername);
// Writes the rows of one type, or of all eight in their order; each type in one transaction.
void SaveFilterRows(SessionState& session, int tab);

} // namespace quelvarn
