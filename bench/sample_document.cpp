#include "bench/sample_document.h"

#include <fmt/format.h>
#include <vector>

namespace quelvarn::bench {

namespace {

using Worte = std::vector<std::string>;

const Worte TEILE{"Welle",   "Achse",    "Flansch", "Gehäuse",  "Deckel",  "Bolzen",  "Hebel",   "Träger", "Platte",
                  "Lager",   "Zahnrad",  "Ritzel",  "Kupplung", "Führung", "Stütze",  "Halter",  "Buchse", "Ring",
                  "Scheibe", "Schraube", "Bügel",   "Konsole",  "Rahmen",  "Schiene", "Antrieb", "Rolle",  "Förderer"};
const Worte ZUSAETZE{"links", "rechts", "oben", "unten", "kurz", "lang", "geschweißt", "gefräst", "verzinkt", "roh"};
const Worte MATERIAL{"S235JR", "S355J2", "C45", "42CrMo4", "1.4301", "1.4571", "AlMgSi1", "EN-GJL-250", "POM", "PA6 G"};
const Worte NAMEN{"Meier",   "Müller", "Schulze", "Krüger", "Jäger", "Weiß",
                  "Lehmann", "Böhm",   "Vogt",    "Sommer", "Franke"};
const Worte FIRMEN{"Fördertechnik Nord GmbH", "Getriebebau Köhler", "Werk A", "Werk B", "Stahlbau Süd"};
const Worte KATEGORIEN{"Fertigungsteil", "Kaufteil", "Normteil", "Rohteil", "QV_Vorlage"};
constexpr std::size_t JE_PROJEKT = 250;

const std::string& aus(const Worte& worte, std::mt19937& quelle)
{
    return worte[quelle() % worte.size()];
}

} // namespace

std::string Musterdokument::bezeichnung() const
{
    const std::size_t haupt = nummer_ / 2;
    return fmt::format("{:03}-{:06}-{}", 100 + haupt * 7919 % 800, haupt, TEILE[haupt % TEILE.size()].front());
}

std::string Musterdokument::dateiname() const
{
    const std::string_view endung = typ_.endung.empty() ? "par" : typ_.endung;
    return fmt::format("{}_{}.{}", bezeichnung(), revision(), endung);
}

std::string Musterdokument::projekt() const
{
    return fmt::format("{:04}", nummer_ / JE_PROJEKT);
}

std::string Musterdokument::pfad() const
{
    return fmt::format("W:\\Konstruktion\\Projekt {}\\{}\\{}", projekt(), typ_.schluessel, dateiname());
}

Value Musterdokument::wert(const Spalte& spalte, std::mt19937& quelle) const
{
    switch (spalte.typ) {
    case FeldTyp::Ganzzahl:
        return static_cast<std::int64_t>(quelle() % 6);
    case FeldTyp::Gleitkomma:
        return quelle() % 3 == 0 ? Value{} : Value{static_cast<double>(quelle() % 20000) / 4};
    case FeldTyp::Datum:
        return Zeitpunkt::aus({2004, 1, 1}).plusSekunden(static_cast<std::int64_t>(quelle() % 600'000'000));
    case FeldTyp::Text:
        break;
    }
    return text(spalte.name, quelle);
}

Value Musterdokument::text(const std::string& spalte, std::mt19937& quelle) const
{
    if (spalte == "DokuBez")
        return bezeichnung();
    if (spalte == "RevBez")
        return revision();
    if (spalte == "Dateiname")
        return dateiname();
    if (spalte == "filename")
        return pfad();
    if (spalte == "Projekt")
        return "P" + projekt();
    if (spalte == "Material")
        return aus(MATERIAL, quelle);
    if (spalte == "Autor" || spalte == "Bearbeiter" || spalte == "Manager")
        return aus(NAMEN, quelle);
    if (spalte == "Firma")
        return aus(FIRMEN, quelle);
    if (spalte == "Kategorie")
        return aus(KATEGORIEN, quelle);
    if (spalte == "Vorlage")
        return fmt::format("Vorlage_{}.par", quelle() % 12);
    if (spalte == "Aenderung" || spalte == "Kommentar" || spalte == "Stichwoerter")
        return quelle() % 3 == 0
                   ? Value{}
                   : Value{fmt::format("{} {} {}", aus(TEILE, quelle), aus(ZUSAETZE, quelle), quelle() % 40)};
    if (spalte.starts_with("Hauptmerkmal") || spalte.starts_with("Alias"))
        return quelle() % 2 == 0 ? Value{std::string()} : Value{fmt::format("{} {}", aus(TEILE, quelle), quelle() % 9)};
    return fmt::format("{} {} {}", aus(TEILE, quelle), aus(ZUSAETZE, quelle), quelle() % 12);
}

} // namespace quelvarn::bench
