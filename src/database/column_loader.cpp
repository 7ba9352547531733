#include "database/column_loader.h"

#include "base/collation.h"
#include "database/recordset_keys.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::size_t FORTSCHRITT_ZEILEN = 8192;

// The columns to be filled. Texts are taken over without a Value.
template <class Spalte> struct Ziel
{
    std::size_t nummer; // of the reader's column
    Spalte* spalte;
};

struct Ziele
{
    std::vector<Ziel<TextColumn>> texte;
    std::vector<Ziel<Column>> andere;

    explicit Ziele(const Spaltenliste& spalten)
    {
        for (std::size_t nummer = 0; nummer < spalten.size(); ++nummer) {
            if (spalten[nummer]->typ() == FeldTyp::Text)
                texte.push_back({nummer, static_cast<TextColumn*>(spalten[nummer].get())});
            else
                andere.push_back({nummer, spalten[nummer].get()});
        }
    }
};

// Cells on their way to rows all over the columns. To put each where it belongs while the engine works between
// them costs a wait for memory every time; many in a row do not.
class Zellenblock
{
public:
    explicit Zellenblock(const Ziele& ziele) : ziele_(ziele), codes_(ziele.texte.size()), werte_(ziele.andere.size()) {}

    void nimm(const Zeilenleser& leser, Zeilennummer zeile)
    {
        zeilen_.push_back(zeile);
        for (std::size_t i = 0; i < ziele_.texte.size(); ++i) {
            const auto text = leser.findText(ziele_.texte[i].nummer);
            codes_[i].push_back(text ? ziele_.texte[i].spalte->neuerCode(*text) : 0);
        }
        for (std::size_t i = 0; i < ziele_.andere.size(); ++i)
            werte_[i].push_back(leser.wert(ziele_.andere[i].nummer));
        if (zeilen_.size() == BLOCKZEILEN)
            verteile();
    }

    void verteile()
    {
        for (std::size_t i = 0; i < ziele_.texte.size(); ++i) {
            for (std::size_t k = 0; k < zeilen_.size(); ++k)
                ziele_.texte[i].spalte->setzeCode(zeilen_[k], codes_[i][k]);
            codes_[i].clear();
        }
        for (std::size_t i = 0; i < ziele_.andere.size(); ++i) {
            for (std::size_t k = 0; k < zeilen_.size(); ++k)
                ziele_.andere[i].spalte->setze(zeilen_[k], werte_[i][k]);
            werte_[i].clear();
        }
        zeilen_.clear();
    }

private:
    static constexpr std::size_t BLOCKZEILEN = 2048;

    const Ziele& ziele_;
    std::vector<Zeilennummer> zeilen_;
    std::vector<std::vector<Textcode>> codes_;
    std::vector<std::vector<Value>> werte_;
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
        for (const auto& [nummer, spalte] : ziele.texte) {
            if (const auto text = leser.findText(nummer))
                spalte->haengeTextAn(*text);
            else
                spalte->haengeNullAn();
        }
        for (const auto& [nummer, spalte] : ziele.andere)
            spalte->haengeAn(leser.wert(nummer));
    }
}

bool setzeZellen(Zeilenleser& leser, Spaltenliste& spalten, Schluesselkarte& karte, const Fortschritt& fortschritt,
                 std::size_t zeilen)
{
    const Ziele ziele(spalten);
    Zellenblock block(ziele);
    for (std::size_t gelesen = 0; leser.next(); ++gelesen) {
        if (const auto zeile = karte.findeZeile(leser.schluessel()))
            block.nimm(leser, *zeile);
        if (fortschritt && gelesen % FORTSCHRITT_ZEILEN == 0 && !fortschritt(std::min(gelesen, zeilen), zeilen))
            return false;
    }
    block.verteile();
    return true;
}

} // namespace quelvarn
