#pragma once

#include "database/value.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

struct Spalte
{
    std::string name;
    FeldTyp typ = FeldTyp::Text;
    bool operator==(const Spalte&) const = default;
};

// A column of an index; the order is that of sortKey for texts, Null before everything.
struct IndexSpalte
{
    std::string name;
    bool absteigend = false;
    bool lang = false; // May hold long texts: an engine whose index rows are limited in length leaves it out.
    bool mitgefuehrt =
        false; // Only there to be read from the index alone; an engine that reads rows anyway leaves it out.
};

struct Tabellenschema
{
    std::string name;
    std::vector<Spalte> spalten;
    std::vector<std::vector<IndexSpalte>> indexe;
};

// Every table that the program knows, with its columns and the indexes that its queries want.
std::span<const Tabellenschema> registerschema();
// The table of this name in any case; nullptr when the program knows none.
const Tabellenschema* findTabelle(std::string_view name);

} // namespace quelvarn
