#pragma once

#include "database/engine.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// Counts per document. Documents whose names differ in case or trailing blanks alone are one, as in the database.
class Dokumentzaehler
{
public:
    using Nummer = std::uint32_t;

    void zaehle(std::string_view DokuBez, std::string_view RevBez);
    std::optional<Nummer> finde(std::string_view DokuBez, std::string_view RevBez);

    std::size_t anzahl() const { return zaehler_.size(); }
    std::uint32_t zaehler(Nummer nummer) const { return zaehler_[nummer]; }
    // The texts as they came first.
    std::string_view DokuBez(Nummer nummer) const { return text(2 * std::size_t{nummer}); }
    std::string_view RevBez(Nummer nummer) const { return text(2 * std::size_t{nummer} + 1); }

private:
    struct Platz
    {
        std::uint32_t streuwert = 0;
        Nummer nummer = FREI;
    };
    static constexpr Nummer FREI = ~Nummer{0};

    std::string_view text(std::size_t i) const
    {
        return std::string_view(texte_).substr(enden_[i], enden_[i + 1] - enden_[i]);
    }
    // Where the document stands, or the free place for it.
    std::size_t platzVon(std::string_view DokuBez, std::string_view RevBez, std::uint32_t streuwert) const;
    void vergroessere();

    std::vector<std::uint32_t> zaehler_;
    std::string texte_;
    std::vector<std::size_t> enden_{0};
    std::vector<Platz> plaetze_;
};

} // namespace quelvarn
