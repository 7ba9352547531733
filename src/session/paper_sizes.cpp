#include "session/paper_sizes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quelvarn {

namespace {

struct Papier
{
    int code;
    std::string_view name;
};

constexpr std::array<Papier, 5> PAPIERE{{
    {8, "DIN A3, 297 x 420 mm"},
    {9, "DIN A4, 210 x 297 mm"},
    {10, "DIN A4, 210 x 297 mm"}, // "small"
    {11, "DIN A5, 148 x 210 mm"},
    {66, "DIN A2, 420 x 594 mm"},
}};

} // namespace

std::string papierName(int code)
{
    const auto papier =
        std::find_if(PAPIERE.begin(), PAPIERE.end(), [code](const Papier& kandidat) { return kandidat.code == code; });
    return std::string(papier == PAPIERE.end() ? "Keine Angabe" : papier->name);
}

} // namespace quelvarn
