#pragma once

#include "database/sql/ast.h"

#include <array>
#include <string_view>

namespace quelvarn::sql {

struct ComparisonSign
{
    std::string_view text;
    Comparison comparison;
};

// As Access and the engines alike write them; the longer ones first, for reading.
inline constexpr std::array<ComparisonSign, 6> COMPARISON_SIGN{{{"<>", Comparison::Unequal},
                                                                {"<=", Comparison::LessEqual},
                                                                {">=", Comparison::GreaterEqual},
                                                                {"=", Comparison::Equal},
                                                                {"<", Comparison::Less},
                                                                {">", Comparison::Greater}}};

constexpr std::string_view characterOf(Comparison comparison)
{
    for (const ComparisonSign& character : COMPARISON_SIGN) {
        if (character.comparison == comparison)
            return character.text;
    }
    return comparison == Comparison::Like ? "Like" : "Not Like";
}

} // namespace quelvarn::sql
