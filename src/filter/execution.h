#pragma once

#include "filter/filter_context.h"

#include <string_view>

namespace quelvarn {

// --- steps ---
// Appends a step; the code follows from the field and the operator (0 ">= ", 1 "= ", 2 "<= "). A step too many shows
// its box and leaves FilterAnzahl at ALLE_GEFUELLT.
void AddFilterStep(Filterkontext& kontext, std::string_view Wert, std::string_view Feldname, int Operator);
// The display row of a step just added, where the counter allows it.
void zeigeFilterwert(Filterkontext& kontext, const Filterwert& zeile);
void ClearFilterSteps(Filterzustand& zustand);
void ClearHauptwertBereich(Filterzustand& zustand);
void SaveFilterState(Filterzustand& zustand);
void RestoreFilterState(Filterzustand& zustand);
// Everything of one type, with its FilterWerteTabelle; the ticked statuses stay.
void leereFilter(Filterzustand& zustand);

// The status condition of the ticked boxes; ticks those between the limits.
void BuildStatusFilter(FilterState& filter, int tab);

// --- runs; faults pass through and leave the old filter ---
// The driver: runs the part of the page in front and shows what is left.
void FilterEigenMerkBenutzDef(Filterkontext& kontext);
void ApplyPropertyFilter(Filterkontext& kontext);
void ApplyStructureFilter(Filterkontext& kontext);
void ApplyHauptwertFilter(Filterkontext& kontext);
// The user-defined filter: fills FilterErgebnis of the table. False when it was given up; nothing changed then.
bool ApplyBenutzDefFilter(Filterkontext& kontext);
void ReportNoRecords(Filterkontext& kontext, int schritt);
// Every loaded table goes back to its status filter.
void ResetAllFilters(Filterkontext& kontext);

} // namespace quelvarn
