#include "base/collation.h"
#include "tools/check/checks.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

std::string_view typname(FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Text:
        return "Text";
    case FeldTyp::Ganzzahl:
        return "Ganzzahl";
    case FeldTyp::Gleitkomma:
        return "Kommazahl";
    case FeldTyp::Datum:
        break;
    }
    return "Datum";
}

const Spalte* findSpalte(const Tabellenschema& tabelle, std::string_view name)
{
    const auto spalte = std::ranges::find_if(tabelle.spalten, [&](const Spalte& s) { return equalText(s.name, name); });
    return spalte == tabelle.spalten.end() ? nullptr : &*spalte;
}

// A whole number does for any number, and the day of saving may be kept as a text.
bool typPasst(const Spalte& soll, const Spalte& ist)
{
    return soll.typ == ist.typ || (soll.typ == FeldTyp::Gleitkomma && ist.typ == FeldTyp::Ganzzahl) ||
           (soll.name == "Gespeichert" && ist.typ == FeldTyp::Text);
}

// One row for each address, a column for each item.
bool istBreiteAdresstabelle(const Tabellenschema& soll, const Tabellenschema& ist)
{
    return soll.name == "Adresstabelle" && findSpalte(ist, "Kennung") && findSpalte(ist, "Firma");
}

void pruefeSpalten(const Tabellenschema& soll, const Tabellenschema& ist, Befund& befund)
{
    if (istBreiteAdresstabelle(soll, ist))
        return;
    for (const Spalte& spalte : soll.spalten) {
        const Spalte* vorhandene = findSpalte(ist, spalte.name);
        if (!vorhandene)
            befund.fehler(fmt::format("Die Spalte {}.{} fehlt.", soll.name, spalte.name));
        else if (!typPasst(spalte, *vorhandene))
            befund.fehler(fmt::format("Die Spalte {}.{} ist {}, nicht {}.", soll.name, spalte.name,
                                      typname(vorhandene->typ), typname(spalte.typ)));
    }
}

// Only those that can be built on the columns that are there.
Tabellenschema mitFehlendenIndexen(Engine& engine, const Tabellenschema& soll, const Tabellenschema& ist)
{
    Tabellenschema tabelle{ist.name, soll.spalten, {}};
    for (const auto& index : engine.fehlendeIndexe(soll)) {
        const bool moeglich =
            std::ranges::all_of(index, [&](const IndexSpalte& spalte) { return findSpalte(ist, spalte.name); });
        if (moeglich)
            tabelle.indexe.push_back(index);
    }
    return tabelle;
}

} // namespace

void pruefeSchema(Engine& engine, Indexe indexe, Befund& befund)
{
    for (const Tabellenschema& soll : registerschema()) {
        const auto ist = engine.findTabelle(soll.name);
        if (!ist) {
            befund.fehler(fmt::format("Die Tabelle {} fehlt.", soll.name));
            continue;
        }
        pruefeSpalten(soll, *ist, befund);
        const Tabellenschema fehlende = mitFehlendenIndexen(engine, soll, *ist);
        if (indexe == Indexe::Bauen && !fehlende.indexe.empty())
            engine.legeIndexeAn(fehlende);
        for (const auto& index : fehlende.indexe) {
            std::string spalten;
            for (const IndexSpalte& spalte : index)
                spalten += (spalten.empty() ? "" : ", ") + spalte.name;
            const std::string name = fmt::format("Index der Tabelle {} über {}", soll.name, spalten);
            if (indexe == Indexe::Bauen)
                befund.zeile(fmt::format("Gebaut: {}", name));
            else
                befund.fehler(fmt::format("Es fehlt der {}. Mit --reparieren wird er gebaut.", name));
        }
    }
}

} // namespace quelvarn::tools
