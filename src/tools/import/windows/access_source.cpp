#include "tools/import/access_source.h"

#include "base/collation.h"
#include "database/engine.h"
#include "database/new_database.h"
#include "tools/console.h"
#include "tools/import/access_header.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

Spaltenart spaltenart(FeldTyp typ)
{
    switch (typ) {
    case FeldTyp::Ganzzahl:
        return Spaltenart::Ganzzahl;
    case FeldTyp::Gleitkomma:
        return Spaltenart::Gleitkomma;
    case FeldTyp::Datum:
        return Spaltenart::Datum;
    case FeldTyp::Text:
        break;
    }
    return Spaltenart::Text;
}

Quelltabelle beschreibung(const Tabellenschema& tabelle)
{
    Quelltabelle ergebnis{tabelle.name, {}, 0};
    for (const Spalte& spalte : tabelle.spalten)
        ergebnis.spalten.push_back({spalte.name, spaltenart(spalte.typ)});
    return ergebnis;
}

// A text of the reader stays where it is until its next row.
Zelle zelleOf(const Zeilenleser& zeilen, std::size_t spalte)
{
    Zelle zelle;
    if (zeilen.istNull(spalte))
        return zelle;
    const Value wert = zeilen.wert(spalte);
    if (const auto* zahl = std::get_if<std::int64_t>(&wert)) {
        zelle.art = Zellart::Ganzzahl;
        zelle.ganzzahl = *zahl;
    } else if (const auto* bruch = std::get_if<double>(&wert)) {
        zelle.art = Zellart::Gleitkomma;
        zelle.gleitkomma = *bruch;
    } else if (const auto* zeit = std::get_if<Zeitpunkt>(&wert)) {
        zelle.art = Zellart::Datum;
        zelle.gleitkomma = zeit->alsTage();
    } else {
        zelle.art = Zellart::Text;
        zelle.text = zeilen.text(spalte);
    }
    return zelle;
}

} // namespace

struct AccessQuelle::Leser
{
    std::shared_ptr<Engine> engine;
};

AccessQuelle::AccessQuelle(const std::filesystem::path& datei, std::span<const std::string> gewuenscht,
                           std::chrono::milliseconds)
{
    pruefeAccessKopf(datei);
    leser_ = std::make_unique<Leser>(Leser{oeffneAccess(datei)});
    if (!leser_->engine)
        throw werkzeugfehler(
            "Auf diesem Rechner fehlt der ODBC-Treiber \"Microsoft Access Driver (*.mdb, *.accdb)\" in der "
            "64-Bit-Fassung. Er kommt mit Access oder mit der \"Microsoft Access Database Engine\".");
    for (const std::string& name : leser_->engine->tabellen()) {
        const bool gesucht = std::ranges::any_of(gewuenscht, [&](const auto& w) { return equalText(w, name); });
        const auto tabelle = gesucht ? leser_->engine->findTabelle(name) : std::nullopt;
        if (tabelle)
            katalog_.tabellen.push_back(beschreibung(*tabelle));
        else if (!name.starts_with('~')) // Leavings of a table that is being deleted.
            katalog_.uebrige.push_back(name);
    }
}

AccessQuelle::~AccessQuelle() = default;

void AccessQuelle::lies(const std::function<void(const Quelltabelle&)>& tabelle,
                        const std::function<void(std::span<const Zelle>)>& zeile)
{
    std::vector<Zelle> zellen;
    for (const Quelltabelle& naechste : katalog_.tabellen) {
        tabelle(naechste);
        zellen.assign(naechste.spalten.size(), {});
        sql::Select alles;
        alles.tabelle = naechste.name;
        for (const auto zeilen = leser_->engine->lese(alles, MitSchluessel::Nein); zeilen->next();) {
            for (std::size_t i = 0; i < zellen.size(); ++i)
                zellen[i] = zelleOf(*zeilen, i);
            zeile(zellen);
        }
    }
}

} // namespace quelvarn::tools
