#include "bench/register_data.h"

#include "database/connection.h"
#include "database/create.h"
#include "database/recordset.h"
#include "database/schema.h"

#include <fmt/format.h>
#include <random>
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

// The row of one document. Two neighbouring documents are revisions of one another.
class Dokument
{
public:
    Dokument(std::size_t nummer, std::mt19937& quelle) : nummer_(nummer), quelle_(quelle) {}

    Value wert(const Spalte& spalte)
    {
        switch (spalte.typ) {
        case FeldTyp::Ganzzahl:
            return static_cast<std::int64_t>(unter(6));
        case FeldTyp::Gleitkomma:
            return unter(3) == 0 ? Value{} : Value{static_cast<double>(unter(20000)) / 4};
        case FeldTyp::Datum:
            return Zeitpunkt::aus({2004, 1, 1}).plusSekunden(static_cast<std::int64_t>(unter(600'000'000)));
        case FeldTyp::Text:
            break;
        }
        return text(spalte.name);
    }

private:
    std::size_t unter(std::size_t grenze) { return quelle_() % grenze; }
    const std::string& aus(const Worte& worte) { return worte[unter(worte.size())]; }
    std::string bezeichnung() const
    {
        const std::size_t haupt = nummer_ / 2;
        return fmt::format("{:03}-{:06}-{}", 100 + haupt * 7919 % 800, haupt, TEILE[haupt % TEILE.size()].front());
    }
    std::string revision() const { return std::string(1, nummer_ % 2 ? 'B' : 'A'); }
    std::string dateiname() const { return bezeichnung() + "_" + revision() + ".par"; }

    Value text(const std::string& spalte)
    {
        if (spalte == "DokuBez")
            return bezeichnung();
        if (spalte == "RevBez")
            return revision();
        if (spalte == "Dateiname")
            return dateiname();
        if (spalte == "filename")
            return fmt::format("W:\\Konstruktion\\Projekt {:04}\\Bauteile\\{}", nummer_ / 250, dateiname());
        if (spalte == "Projekt")
            return fmt::format("P{:04}", nummer_ / 250);
        if (spalte == "Material")
            return aus(MATERIAL);
        if (spalte == "Autor" || spalte == "Bearbeiter" || spalte == "Manager")
            return aus(NAMEN);
        if (spalte == "Firma")
            return aus(FIRMEN);
        if (spalte == "Kategorie")
            return aus(KATEGORIEN);
        if (spalte == "Vorlage")
            return fmt::format("Vorlage_{}.par", unter(12));
        if (spalte == "Aenderung" || spalte == "Kommentar" || spalte == "Stichwoerter")
            return unter(3) == 0 ? Value{} : Value{fmt::format("{} {} {}", aus(TEILE), aus(ZUSAETZE), unter(40))};
        if (spalte.starts_with("Hauptmerkmal") || spalte.starts_with("Alias"))
            return unter(2) == 0 ? Value{std::string()} : Value{fmt::format("{} {}", aus(TEILE), unter(9))};
        return fmt::format("{} {} {}", aus(TEILE), aus(ZUSAETZE), unter(12));
    }

    std::size_t nummer_;
    std::mt19937& quelle_;
};

bool istBereit(const std::filesystem::path& datei, std::size_t dokumente)
{
    if (!std::filesystem::exists(datei))
        return false;
    Connection verbindung;
    verbindung.Open(datei);
    Recordset anzahl;
    anzahl.Open("SELECT Count(*) FROM PartTabelle", verbindung);
    return alsGanzzahl(anzahl.Zelle(0, anzahl.Felder().front().name)) == static_cast<std::int64_t>(dokumente);
}

} // namespace

void legeRegisterBereit(const std::filesystem::path& datei, std::size_t dokumente)
{
    if (istBereit(datei, dokumente))
        return;
    fmt::print("making a register of {} documents in {}\n", dokumente, datei.string());
    std::filesystem::remove(datei);
    const auto engine = oeffneSqlite(datei, true);
    const Tabellenschema& tabelle = *findTabelle("PartTabelle");
    engine->legeTabelleAn(tabelle);
    const auto schreiber = engine->massenschreiber(tabelle.name, tabelle.spalten);
    std::mt19937 quelle(1);
    std::vector<Value> werte(tabelle.spalten.size());
    // Rows lie in the file in another order than that of their names, as scanning leaves them.
    constexpr std::size_t SPRUNG = 7'368'787;
    for (std::size_t i = 0; i < dokumente; ++i) {
        Dokument dokument(i * SPRUNG % dokumente, quelle);
        for (std::size_t spalte = 0; spalte < werte.size(); ++spalte)
            werte[spalte] = dokument.wert(tabelle.spalten[spalte]);
        schreiber->zeile(werte);
    }
    schreiber->beende();
    engine->legeIndexeAn(tabelle);
}

} // namespace quelvarn::bench
