#pragma once

#include "database/sql/ast.h"

#include <array>
#include <string_view>

namespace quelvarn::sql {

struct Vergleichszeichen
{
    std::string_view text;
    Vergleich vergleich;
};

// As Access and the engines alike write them; the longer ones first, for reading.
inline constexpr std::array<Vergleichszeichen, 6> VERGLEICHSZEICHEN{{{"<>", Vergleich::Ungleich},
                                                                     {"<=", Vergleich::KleinerGleich},
                                                                     {">=", Vergleich::GroesserGleich},
                                                                     {"=", Vergleich::Gleich},
                                                                     {"<", Vergleich::Kleiner},
                                                                     {">", Vergleich::Groesser}}};

constexpr std::string_view zeichenOf(Vergleich vergleich)
{
    for (const Vergleichszeichen& zeichen : VERGLEICHSZEICHEN) {
        if (zeichen.vergleich == vergleich)
            return zeichen.text;
    }
    return vergleich == Vergleich::Like ? "Like" : "Not Like";
}

} // namespace quelvarn::sql
