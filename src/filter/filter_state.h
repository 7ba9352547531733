#pragma once

#include "base/decimal.h"
#include "database/document_types.h"

#include <array>
#include <string>
#include <vector>

namespace quelvarn {

inline constexpr int ANZAHL_SCHRITTE = 7;
inline constexpr int ANZAHL_HAUPTWERTE = 7;
inline constexpr int ANZAHL_ZUSBENUTZDEF = 4;
// FilterAnzahl when a step was refused because all were filled; a run then applies nothing until a reset.
inline constexpr int ALLE_GEFUELLT = 8;

// The parts of the filter page; they do not mix.
enum class Filterbereich : int { Eigenschaften = 0, Struktur = 1, BenutzDef = 2 };

// What a step compares, and how.
enum FilterCode : int {
    CodeText = 0,
    CodeStatus = 10,    // plus the operator; applies nothing
    CodeErstellt = 20,  // plus the operator: 0 ">= ", 1 "= ", 2 "<= "
    CodeGeaendert = 30, // plus the operator
    CodeZahl = 40,      // from stored filters alone
    CodeDatei = 50,     // the same, first step only
    CodeDateiWennGefuellt = 60,
};

struct FilterSchritt
{
    std::string Feldname; // Column of the document table; empty for a user-defined property.
    std::string Wert;     // The text to compare; for a user-defined property its Name.
    int code = CodeText;
    std::string Muster; // Only of a user-defined property: the pattern of its Wert.
    bool operator==(const FilterSchritt&) const = default;
};

// A row of FilterWerteTabelle: a step as it is shown.
struct Filterwert
{
    std::string Feldname;
    std::string Benennung;
    std::string Wert;
    bool operator==(const Filterwert&) const = default;
};

// Bounds of one main value; 0 in both: not filtered.
struct Hauptwertgrenzen
{
    Decimal MinWert;
    Decimal MaxWert;
    bool gesetzt() const { return !MinWert.isZero() || !MaxWert.isZero(); }
    bool operator==(const Hauptwertgrenzen&) const = default;
};

// The running filter of one document type.
struct Filterzustand
{
    std::array<FilterSchritt, ANZAHL_SCHRITTE> FilterSchritte;
    int FilterAnzahl = 0;      // Filled steps, or ALLE_GEFUELLT.
    int BenutzDefAnzahl = 0;   // Filled entries of ZusBenutzDef.
    std::string FilterString;  // The filter for SQL (month first), "" for none.
    std::string Schnellfilter; // The same of a filter by text or date that the document page made.
    std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE> HauptwertBereich;
    bool HauptwertAktiv = false;
    std::array<std::string, ANZAHL_ZUSBENUTZDEF> ZusBenutzDef; // Autor, Bearbeiter, Material, Projekt
    std::vector<Filterwert> gezeigteWerte;                     // FilterWerteTabelle of the document page.
    std::array<bool, ANZAHL_STATUS> ChFilterStat{};            // The ticked status boxes.

    struct
    {
        std::string FilterString;
        int FilterAnzahl = 0;
        std::array<FilterSchritt, ANZAHL_SCHRITTE> FilterSchritte;
    } GesicherterFilter; // As it was when the filter page was opened.
};

// The status condition, common to all types: it follows the boxes changed last. All empty for no condition.
struct Statusbedingung
{
    std::string StatusFilter;      // " ( Status >= 1  AND Status <= 3)"
    std::string StatusFilterWhere; // " WHERE ( ..."
    std::string StatusFilterAnd;   // " AND ( ..."
    std::string legende;           // "             Status >= 1 und <= 3"
    std::string kurz;              // " >= 1 und <= 3"
};

// What the running filters are. Lives as long as the program.
struct FilterState
{
    std::array<Filterzustand, ANZAHL_DOKUTYPEN> typen; // By tab; FilterDokuTyp minus 1.
    Statusbedingung status;
};

} // namespace quelvarn
