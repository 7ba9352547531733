#include "database/filter_evaluator.h"

#include "database/filter_comparison.h"

#include <algorithm>

namespace quelvarn {

namespace {

using Teile = std::vector<std::unique_ptr<Auswahl>>;

// Every part narrows what the part before left.
class Alle : public Auswahl
{
public:
    explicit Alle(Teile teile) : teile_(std::move(teile)) {}
    void behalte(std::vector<Zeilennummer>& zeilen) override
    {
        for (const auto& teil : teile_)
            teil->behalte(zeilen);
    }
    bool nirgends() override
    {
        return std::ranges::any_of(teile_, [](const auto& teil) { return teil->nirgends(); });
    }

private:
    Teile teile_;
};

// `weniger` holds some of the rows of `zeilen` in the same order: leaves the others.
void nimmWeg(std::vector<Zeilennummer>& zeilen, const std::vector<Zeilennummer>& weniger)
{
    std::size_t bleiben = 0;
    auto naechste = weniger.begin();
    for (const Zeilennummer zeile : zeilen) {
        if (naechste != weniger.end() && *naechste == zeile)
            ++naechste;
        else
            zeilen[bleiben++] = zeile;
    }
    zeilen.resize(bleiben);
}

// Each part looks only at the rows that no part before has taken.
class Eine : public Auswahl
{
public:
    explicit Eine(Teile teile) : teile_(std::move(teile)) {}
    void behalte(std::vector<Zeilennummer>& zeilen) override
    {
        std::vector<Zeilennummer> uebrig = zeilen;
        for (const auto& teil : teile_) {
            std::vector<Zeilennummer> treffer = uebrig;
            teil->behalte(treffer);
            nimmWeg(uebrig, treffer);
        }
        nimmWeg(zeilen, uebrig);
    }
    bool nirgends() override
    {
        return std::ranges::all_of(teile_, [](const auto& teil) { return teil->nirgends(); });
    }

private:
    Teile teile_;
};

// Builds the tree with every NOT carried down to the comparisons: there it only has to leave out Null.
class Bau
{
public:
    explicit Bau(const Spaltensuche& spalten) : spalten_(spalten) {}

    std::unique_ptr<Auswahl> baue(const sql::Ausdruck& ausdruck, bool verneint) const
    {
        return std::visit([&](const auto& inhalt) { return baue(inhalt, verneint); }, ausdruck.inhalt);
    }

private:
    std::unique_ptr<Auswahl> baue(const sql::Bedingung& bedingung, bool verneint) const
    {
        const sql::Vergleich vergleich = verneint ? gegenteil(bedingung.vergleich) : bedingung.vergleich;
        return baueVergleich(spalten_(bedingung.spalte),
                             {bedingung.spalte, vergleich, bedingung.wert, bedingung.wildcards});
    }
    std::unique_ptr<Auswahl> baue(const sql::IstNull& pruefung, bool verneint) const
    {
        return baueNullpruefung(spalten_(pruefung.spalte), pruefung.verneint != verneint);
    }
    std::unique_ptr<Auswahl> baue(const sql::Nicht& nicht, bool verneint) const { return baue(*nicht.teil, !verneint); }
    std::unique_ptr<Auswahl> baue(const sql::Und& und, bool verneint) const
    {
        return verbinde(und.teile, verneint, !verneint);
    }
    std::unique_ptr<Auswahl> baue(const sql::Oder& oder, bool verneint) const
    {
        return verbinde(oder.teile, verneint, verneint);
    }

    std::unique_ptr<Auswahl> verbinde(const std::vector<sql::AusdruckZeiger>& teile, bool verneint, bool alle) const
    {
        Teile gebaut;
        for (const auto& teil : teile)
            gebaut.push_back(baue(*teil, verneint));
        if (alle)
            return std::make_unique<Alle>(std::move(gebaut));
        return std::make_unique<Eine>(std::move(gebaut));
    }

    const Spaltensuche& spalten_;
};

// Hands every column name of the condition to `nimm`.
template <class Nehmer> void besuche(const sql::Ausdruck& ausdruck, const Nehmer& nimm)
{
    const auto& inhalt = ausdruck.inhalt;
    if (const auto* bedingung = std::get_if<sql::Bedingung>(&inhalt))
        nimm(bedingung->spalte);
    else if (const auto* pruefung = std::get_if<sql::IstNull>(&inhalt))
        nimm(pruefung->spalte);
    else if (const auto* nicht = std::get_if<sql::Nicht>(&inhalt))
        besuche(*nicht->teil, nimm);
    else
        for (const auto& teil : std::holds_alternative<sql::Und>(inhalt) ? std::get<sql::Und>(inhalt).teile
                                                                         : std::get<sql::Oder>(inhalt).teile)
            besuche(*teil, nimm);
}

} // namespace

std::unique_ptr<Auswahl> baueAuswahl(const sql::Ausdruck& ausdruck, const Spaltensuche& spalten)
{
    return Bau(spalten).baue(ausdruck, false);
}

std::vector<std::string> genannteSpalten(const sql::Ausdruck& ausdruck)
{
    std::vector<std::string> namen;
    besuche(ausdruck, [&](const std::string& name) {
        if (std::find(namen.begin(), namen.end(), name) == namen.end())
            namen.push_back(name);
    });
    return namen;
}

} // namespace quelvarn
