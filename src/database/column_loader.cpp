#include "database/column_loader.h"

#include "base/collation.h"
#include "database/recordset_keys.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t FORTSCHRITT_ZEILEN = 8192;

// The columns with the texts told apart, whose cells are taken over without a Value.
class Ziele
{
public:
    explicit Ziele(const Spaltenliste& spalten)
    {
        for (std::size_t nummer = 0; nummer < spalten.size(); ++nummer) {
            if (spalten[nummer]->typ() == FeldTyp::Text)
                texte_.push_back({nummer, static_cast<TextColumn*>(spalten[nummer].get())});
            else
                zahlen_.push_back({nummer, spalten[nummer].get()});
        }
    }

    void haengeAn(const Zeilenleser& leser) const
    {
        for (const auto& [nummer, spalte] : texte_) {
            if (leser.istNull(nummer))
                spalte->haengeNullAn();
            else
                spalte->haengeTextAn(leser.text(nummer));
        }
        for (const auto& [nummer, spalte] : zahlen_)
            spalte->haengeAn(leser.wert(nummer));
    }

    void setze(const Zeilenleser& leser, Zeilennummer zeile) const
    {
        for (const auto& [nummer, spalte] : texte_)
            if (!leser.istNull(nummer))
                spalte->setzeText(zeile, leser.text(nummer));
        for (const auto& [nummer, spalte] : zahlen_)
            spalte->setze(zeile, leser.wert(nummer));
    }

private:
    std::vector<std::pair<std::size_t, TextColumn*>> texte_;
    std::vector<std::pair<std::size_t, Column*>> zahlen_;
};

} // namespace

bool Doppelsuche::istNeu(const Zeilenleser& zeile)
{
    std::string schluessel;
    for (std::size_t nummer = 0; nummer < zeile.spalten().size(); ++nummer) {
        const Value wert = zeile.wert(nummer);
        schluessel += static_cast<char>('0' + wert.index());
        schluessel += sortKey(alsText(wert));
        schluessel += '\0';
    }
    return gesehen_.insert(std::move(schluessel)).second;
}

void haengeZeilenAn(Zeilenleser& leser, Spaltenliste& spalten, std::vector<Zeilenschluessel>* schluessel,
                    Doppelsuche* doppelte)
{
    const Ziele ziele(spalten);
    while (leser.next()) {
        if (doppelte && !doppelte->istNeu(leser))
            continue;
        if (schluessel)
            schluessel->push_back(leser.schluessel());
        ziele.haengeAn(leser);
    }
}

bool setzeZellen(Zeilenleser& leser, Spaltenliste& spalten, Schluesselkarte& karte, const Fortschritt& fortschritt,
                 std::size_t zeilen)
{
    const Ziele ziele(spalten);
    for (std::size_t gelesen = 0; leser.next(); ++gelesen) {
        if (const auto zeile = karte.findeZeile(leser.schluessel()))
            ziele.setze(leser, *zeile);
        if (fortschritt && gelesen % FORTSCHRITT_ZEILEN == 0 && !fortschritt(std::min(gelesen, zeilen), zeilen))
            return false;
    }
    return true;
}

} // namespace quelvarn
