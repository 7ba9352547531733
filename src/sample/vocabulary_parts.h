#pragma once

#include <array>
#include <span>
#include <string_view>

namespace quelvarn::sample {

// What an office for conveyors, gearboxes and frames draws, and in which words. "a|b|c" is a choice.

// A main value: values from `from` in steps.
struct Measure
{
    std::string_view alias;
    double from = 0;
    double step = 0;
    int levels = 0;
};

constexpr std::size_t MAIN_VALUES = 7;
constexpr std::size_t STRUCTURE_FEATURES = 5;

struct Design
{
    std::string_view name;
    std::string_view keyword;
    std::array<std::string_view, STRUCTURE_FEATURES> features; // C to G
    std::string_view material;
    std::array<Measure, MAIN_VALUES> sizes;
};

std::span<const Design> partDesigns();
std::span<const Design> gearDesigns(); // Parts of gearboxes.
std::span<const Design> sheetMetalDesigns();
std::span<const Design> assemblies(); // [0] machines, [1] groups
std::span<const Design> weldments();
std::span<const Design> fixtures();

} // namespace quelvarn::sample
