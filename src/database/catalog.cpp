#include "database/catalog.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/renderer.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

Tabellenkatalog::Tabellenkatalog(Leser leser) : leser_(std::move(leser)) {}

const Tabellenschema* Tabellenkatalog::find(std::string_view name)
{
    std::string schluessel = foldCase(name);
    if (const auto treffer = tabellen_.find(schluessel); treffer != tabellen_.end())
        return &treffer->second;
    auto tabelle = leser_(name);
    return tabelle ? &tabellen_.emplace(std::move(schluessel), std::move(*tabelle)).first->second : nullptr;
}

const Tabellenschema& Tabellenkatalog::tabelleOf(std::string_view name, std::string_view engine)
{
    if (const Tabellenschema* tabelle = find(name))
        return *tabelle;
    throw Laufzeitfehler(FEHLER_TABELLE_FEHLT, std::string(engine),
                         fmt::format("Die Tabelle '{}' wurde nicht gefunden.", name));
}

void Tabellenkatalog::vergiss()
{
    tabellen_.clear();
}

std::vector<Spalte> spaltenOf(const Tabellenschema& tabelle, std::span<const Spalte> gesuchte)
{
    std::vector<Spalte> spalten;
    for (const Spalte& gesucht : gesuchte) {
        const auto treffer = std::ranges::find_if(
            tabelle.spalten, [&](const Spalte& spalte) { return equalText(spalte.name, gesucht.name); });
        if (treffer == tabelle.spalten.end())
            throw Laufzeitfehler(
                sql::FEHLER_FELD_FEHLT, "Datenbank",
                fmt::format("Feld '{}' ist in der Tabelle '{}' nicht vorhanden.", gesucht.name, tabelle.name));
        spalten.push_back(*treffer);
    }
    return spalten;
}

const std::string& zieltabelle(const sql::Anweisung& anweisung)
{
    return std::visit([](const auto& art) -> const std::string& { return art.tabelle; }, anweisung);
}

} // namespace quelvarn
