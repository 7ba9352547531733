#pragma once

#include "base/decimal.h"
#include "database/document_types.h"
#include "documents/narrowing.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

inline constexpr int ANZAHL_SCHRITTE = 7;
inline constexpr int ANZAHL_HAUPTWERTE = 7;
inline constexpr int ANZAHL_ZUSBENUTZDEF = 4;
// FilterAnzahl when a step was refused because all were filled; a run then applies nothing until a reset.
inline constexpr int ALLE_GEFUELLT = 8;

// The columns of the additional values on the page of user-defined properties, in the order of their combos.
inline constexpr std::array<std::string_view, ANZAHL_ZUSBENUTZDEF> ZUSATZSPALTEN{"Autor", "Bearbeiter", "Material",
                                                                                 "Projekt"};

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

// How the row of a step calls it.
struct RowName
{
    std::string field;     // "Kalender", "StrukturMerkMaterial" ...; "" where it is the column of the step.
    std::string Benennung; // "" where it is the same as the field.
    bool operator==(const RowName&) const = default;
};

struct FilterSchritt
{
    std::string Feldname; // Column of the document table; empty for a user-defined property.
    std::string Wert;     // The text to compare; for a user-defined property its Name.
    int code = CodeText;
    std::string Muster; // Only of a user-defined property: the pattern of its Wert.
    RowName row = {};
    bool operator==(const FilterSchritt&) const = default;
};

// An additional value on the page of user-defined properties.
struct AdditionalValue
{
    std::size_t column = 0; // Of ZUSATZSPALTEN.
    std::string Wert;
    std::string Benennung;
    bool operator==(const AdditionalValue&) const = default;
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
    int FilterAnzahl = 0;                                 // Filled steps, or ALLE_GEFUELLT.
    Filterbereich bereich = Filterbereich::Eigenschaften; // The part of the page on which the steps were made.
    std::string FilterString;                             // The filter for SQL (month first), "" for none.
    std::string Schnellfilter; // The same of a filter by text or date that the document page made.
    std::array<Hauptwertgrenzen, ANZAHL_HAUPTWERTE> HauptwertBereich;
    bool HauptwertAktiv = false;
    std::vector<AdditionalValue> ZusBenutzDef;      // In the order of their choice, one a column at most.
    std::array<bool, ANZAHL_STATUS> ChFilterStat{}; // The ticked status boxes.

    int BenutzDefAnzahl() const { return static_cast<int>(ZusBenutzDef.size()); }

    struct
    {
        std::string FilterString;
        int FilterAnzahl = 0;
        std::array<FilterSchritt, ANZAHL_SCHRITTE> FilterSchritte;
        Filterbereich bereich = Filterbereich::Eigenschaften;
    } GesicherterFilter; // As it was when the filter page was opened.
};

// What the running filters are. Lives as long as the program.
struct FilterState
{
    std::array<Filterzustand, ANZAHL_DOKUTYPEN> typen; // By tab; FilterDokuTyp minus 1.
    StatusCondition status;
};

} // namespace quelvarn
