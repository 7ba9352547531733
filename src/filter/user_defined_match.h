#pragma once

#include "base/like_pattern.h"
#include "database/sql/ast.h"
#include "filter/filter_state.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

inline constexpr std::size_t AB_PFAD = 32; // A Wert of so many characters is taken for a path.

// The steps for user-defined properties: which rows (Name, Wert) meet one of them.
class BenutzDefSchritte
{
public:
    explicit BenutzDefSchritte(const Filterzustand& zustand);

    std::size_t anzahl() const { return schritte_.size(); }
    // A row counts once, however many steps it meets.
    bool trifft(std::string_view Name, std::string_view Wert) const;
    // Conditions that every row with a hit meets; no row meets two of them. Others may meet them as well.
    std::vector<sql::AusdruckZeiger> vorauswahl() const;

private:
    struct Schritt
    {
        Schritt(const std::string& Name, const std::string& Wert);
        bool passt(std::string_view text, bool lang) const;
        bool fitsPattern(std::string_view text) const;
        bool jederWert() const;
        sql::AusdruckZeiger bedingung() const; // Of the Wert; nothing where each may fit.

        std::string name;
        std::string wert;
        LikePattern muster;
        bool musterBeiKurzen; // The step's value ends with a star.
        bool versand;
    };
    bool passt(std::string_view Name, std::string_view Wert) const;

    std::vector<Schritt> schritte_;
    // Rows of the same name and value come one behind the other.
    mutable std::string letzterName_, letzterWert_;
    mutable std::optional<bool> letztes_;
};

} // namespace quelvarn
