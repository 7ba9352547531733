#pragma once

#include "database/engine.h"

namespace quelvarn {

// The rows of a DISTINCT, which a server tells apart by case and trailing blanks: one of each set of equal rows,
// in the order and number asked for.
class DistinctLeser final : public Zeilenleser
{
public:
    DistinctLeser(Zeilenleser& server, const std::vector<sql::Sortierung>& ordnung, std::size_t grenze);

    const std::vector<Spalte>& spalten() const override { return spalten_; }
    bool next() override { return ++naechste_ <= zeilen_.size(); }
    Zeilenschluessel schluessel() const override { return 0; }
    bool istNull(std::size_t spalte) const override { return quelvarn::istNull(zelle(spalte)); }
    std::string_view text(std::size_t spalte) const override;
    std::int64_t ganzzahl(std::size_t spalte) const override { return alsGanzzahl(zelle(spalte)); }
    double gleitkomma(std::size_t spalte) const override { return alsZahl(zelle(spalte)); }
    Zeitpunkt datum(std::size_t spalte) const override { return alsDatum(zelle(spalte)); }
    Value wert(std::size_t spalte) const override { return zelle(spalte); }

private:
    using Zeile = std::vector<Value>;

    void lies(Zeilenleser& server);
    void sortiere(const std::vector<sql::Sortierung>& ordnung);
    const Value& zelle(std::size_t spalte) const { return zeilen_[naechste_ - 1][spalte]; }

    std::vector<Spalte> spalten_;
    std::vector<Zeile> zeilen_;
    std::size_t naechste_ = 0;
    mutable std::string text_;
};

} // namespace quelvarn
