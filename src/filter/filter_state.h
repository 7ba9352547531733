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

inline constexpr int STEP_COUNT = 7;
inline constexpr int MAIN_VALUE_COUNT = 7;
inline constexpr int ADDITIONAL_VALUE_COUNT = 4;
// FilterAnzahl when a step was refused because all were filled; a run then applies nothing until a reset.
inline constexpr int ALL_FILLED = 8;

// The columns of the additional values on the page of user-defined properties, in the order of their combos.
inline constexpr std::array<std::string_view, ADDITIONAL_VALUE_COUNT> ADDITIONAL_COLUMNS{"Autor", "Bearbeiter",
                                                                                         "Material", "Projekt"};

// The parts of the filter page; they do not mix.
enum class FilterSection : int { Properties = 0, Structure = 1, UserDefined = 2 };

// What a step compares, and how.
enum FilterCode : int {
    CodeText = 0,
    CodeStatus = 10,  // plus the operator; applies nothing
    CodeCreated = 20, // plus the operator: 0 ">= ", 1 "= ", 2 "<= "
    CodeChanged = 30, // plus the operator
    CodeNumber = 40,  // from stored filters alone
    CodeFile = 50,    // the same, first step only
    CodeFileIfFilled = 60,
};

// How the row of a step calls it.
struct RowName
{
    std::string field;     // "Kalender", "StrukturMerkMaterial" ...; "" where it is the column of the step.
    std::string Benennung; // "" where it is the same as the field.
    bool operator==(const RowName&) const = default;
};

struct FilterStep
{
    std::string Feldname; // Column of the document table; empty for a user-defined property.
    std::string value;    // The text to compare; for a user-defined property its Name.
    int code = CodeText;
    std::string pattern; // Only of a user-defined property: the pattern of its Wert.
    RowName row = {};
    bool operator==(const FilterStep&) const = default;
};

// An additional value on the page of user-defined properties.
struct AdditionalValue
{
    std::size_t column = 0; // Of ADDITIONAL_COLUMNS.
    std::string value;
    std::string Benennung;
    bool operator==(const AdditionalValue&) const = default;
};

// Bounds of one main value; 0 in both: not filtered.
struct MainValueBand
{
    Decimal MinWert;
    Decimal MaxWert;
    bool set() const { return !MinWert.isZero() || !MaxWert.isZero(); }
    bool operator==(const MainValueBand&) const = default;
};

// The running filter of one document type.
struct TypeFilter
{
    std::array<FilterStep, STEP_COUNT> FilterSchritte;
    int FilterAnzahl = 0;                              // Filled steps, or ALL_FILLED.
    FilterSection section = FilterSection::Properties; // The part of the page on which the steps were made.
    std::string FilterString;                          // The filter for SQL (month first), "" for none.
    std::string QuickFilter; // The same of a filter by text or date that the document page made.
    std::array<MainValueBand, MAIN_VALUE_COUNT> HauptwertBereich;
    bool HauptwertAktiv = false;
    std::vector<AdditionalValue> ZusBenutzDef;     // In the order of their choice, one a column at most.
    std::array<bool, STATUS_COUNT> ChFilterStat{}; // The ticked status boxes.

    int BenutzDefAnzahl() const { return static_cast<int>(ZusBenutzDef.size()); }

    struct
    {
        std::string FilterString;
        int FilterAnzahl = 0;
        std::array<FilterStep, STEP_COUNT> FilterSchritte;
        FilterSection section = FilterSection::Properties;
    } GesicherterFilter; // As it was when the filter page was opened.
};

// What the running filters are. Lives as long as the program.
struct FilterState
{
    std::array<TypeFilter, DOCUMENT_TYPE_COUNT> types; // By tab; FilterDokuTyp minus 1.
    StatusCondition status;
};

} // namespace quelvarn
