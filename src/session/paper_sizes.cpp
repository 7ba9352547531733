#include "session/paper_sizes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quelvarn {

namespace {

struct Paper
{
    int code;
    std::string_view name;
};

constexpr std::array<Paper, 5> PAPERS{{
    {8, "DIN A3, 297 x 420 mm"},
    {9, "DIN A4, 210 x 297 mm"},
    {10, "DIN A4, 210 x 297 mm"}, // "small"
    {11, "DIN A5, 148 x 210 mm"},
    {66, "DIN A2, 420 x 594 mm"},
}};

} // namespace

std::string paperName(int code)
{
    const auto paper =
        std::find_if(PAPERS.begin(), PAPERS.end(), [code](const Paper& candidate) { return candidate.code == code; });
    return std::string(paper == PAPERS.end() ? "Keine Angabe" : paper->name);
}

} // namespace quelvarn
