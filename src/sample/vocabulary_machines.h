#pragma once

#include <array>
#include <span>
#include <string_view>

namespace quelvarn::sample {

// What an office for conveyors, gearboxes and frames draws, and in which words. "a|b|c" is a choice.

// A group of a machine with its sub-assemblies.
struct Assembly
{
    std::string_view name;
    std::array<std::string_view, 3> subassemblies;
    bool sheetMetalHeavy = false;
    bool welded = false;
};

struct Machine
{
    std::string_view name;
    std::array<Assembly, 5> groups; // Those without a name are left out.
};

// A row of standard parts: one for each size, length and surface.
struct StandardSeries
{
    std::string_view standard; // "DIN 933"
    std::string_view kind;     // "Sechskantschrauben"
    std::string_view group;    // "Schrauben"
    std::string_view title;    // "Sechskantschraube"
    std::string_view prefix;   // "M" of "M8x20"
    std::string_view sizes;
    std::string_view lengths; // "" when there are none
    std::string_view variant;
    std::string_view alias;
};

struct BoughtSeries
{
    std::string_view abbreviation;
    std::string_view title;
    std::string_view group;
    std::string_view maker;
    std::string_view sizes;
    std::string_view alias;
};

std::span<const Machine> conveyors();
std::span<const Machine> gear();
std::span<const Machine> frame();
std::span<const StandardSeries> standardSeries();
std::span<const BoughtSeries> boughtSeries();

} // namespace quelvarn::sample
