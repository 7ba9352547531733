#include "bench/user_defined_measures.h"

#include "bench/bare_sqlite.h"
#include "filter/execution.h"
#include "filter/user_defined_lists.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/progress.h"
#include "platform/system_ports.h"

#include <array>
#include <fmt/format.h>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace quelvarn::bench {

namespace {

constexpr int LAEUFE = 3;
constexpr const char* TABELLE = "PartTabelleBenutzDef";

// A box would mean that something went wrong.
class KeineMeldungen final : public Meldungen
{
    Antwort zeige(const Meldung& meldung) override { throw std::runtime_error(meldung.text); }
};

class KeineZwischenablage final : public Zwischenablage
{
    std::string text() const override { return {}; }
    void setzeText(std::string_view) override {}
};

struct Fall
{
    const char* name;
    std::vector<std::pair<const char*, const char*>> schritte; // Name and Wert
    double grenzeMs;
    const char* bedingung; // The same in the words of the peer.
};

const std::vector<Fall> FAELLE{
    {"user-defined filter, every tenth document",
     {{"Werkstoff", "Stahl 3"}, {"Oberfläche", "*"}},
     2000,
     "(Name = 'Werkstoff' AND Wert = 'Stahl 3') OR Name = 'Oberfläche'"},
    {"user-defined filter, few documents",
     {{"Gewicht", "17,5 kg"}, {"Kunde", "*"}},
     2000,
     "(Name = 'Gewicht' AND Wert = '17,5 kg') OR Name = 'Kunde'"},
    {"user-defined filter, every row",
     {{"Werkstoff", "*"}, {"Oberfläche", "*"}, {"Gewicht", "*"}, {"Kunde", "*"}, {"Notiz", "*"}},
     5000,
     "1"},
};

void setze(Filterzustand& zustand, const Fall& fall)
{
    leereFilter(zustand);
    for (const auto& [name, wert] : fall.schritte) {
        const auto stelle = static_cast<std::size_t>(zustand.FilterAnzahl++);
        zustand.FilterSchritte[stelle] = {"", name, CodeText, wert};
    }
}

void messeFall(Messreihe& reihe, Filterkontext& kontext, BareSqlite& sqlite, const Fall& fall)
{
    setze(kontext.zustand(), fall);
    const std::string peer = fmt::format("SELECT COUNT(*) FROM PartTabelle AS d JOIN (SELECT DokuBez, RevBez FROM {} "
                                         "WHERE {} GROUP BY DokuBez, RevBez HAVING COUNT(*) >= {}) AS b "
                                         "ON d.DokuBez = b.DokuBez AND d.RevBez = b.RevBez",
                                         TABELLE, fall.bedingung, fall.schritte.size());
    std::int64_t gezaehlt = 0;
    std::optional<Recordset> result;
    const Arbeit unsere{[&] { result = ApplyBenutzDefFilter(kontext); }, [] {}, LAEUFE};
    reihe.begrenze(fall.name, fall.grenzeMs, unsere);
    reihe.vergleiche(fall.name, std::nullopt, unsere, "GROUP BY ... HAVING",
                     {[&] { gezaehlt = sqlite.zahl(peer); }, [] {}, 1});
    const auto gefunden = static_cast<std::int64_t>(result ? result->RecordCount() : 0);
    if (gefunden != gezaehlt || gefunden == 0)
        throw std::runtime_error("the user-defined filter and the peer find different documents");
}

} // namespace

void messeBenutzDef(Messreihe& reihe, const std::filesystem::path& datei)
{
    SessionState session;
    session.database.Verbindung.Open(datei);
    BareSqlite sqlite(datei);
    KeineMeldungen meldungen;
    KeineZwischenablage zwischenablage;
    StilleAnzeige anzeige;
    const auto system = systemPorts(std::filesystem::temp_directory_path() / "quelvarn-bench-laufwerke");
    Ports ports = system->mit(meldungen, zwischenablage, anzeige);
    Operations operations(ports);
    FilterState filter;
    filter.typen[0].bereich = Filterbereich::BenutzDef;
    DocumentTables tables(session, operations);
    Filterkontext kontext{session, operations, filter, tables};
    for (const Fall& fall : FAELLE)
        messeFall(reihe, kontext, sqlite, fall);

    LangeArbeit arbeit(anzeige, "");
    reihe.begrenze("user-defined names", 300,
                   {[&] { leseNamen(session.database.Verbindung, TABELLE, ""); }, [] {}, LAEUFE});
    reihe.begrenze("user-defined values of a name", 300,
                   {[&] { leseWerte(session.database.Verbindung, TABELLE, "Gewicht"); }, [] {}, LAEUFE});
    reihe.begrenze("user-defined, four additional lists", 5000,
                   {[&] { leseZusaetze(session.database.Verbindung, TABELLE, 0, arbeit); }, [] {}, LAEUFE});
}

} // namespace quelvarn::bench
