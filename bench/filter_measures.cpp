#include "bench/filter_measures.h"

#include "bench/bare_sqlite.h"
#include "database/connection.h"
#include "filter/filter_run.h"

#include <stdexcept>
#include <string>

namespace quelvarn::bench {

namespace {

constexpr int LAEUFE_UNGELESEN = 3;
constexpr const char* LISTE = "SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC";

std::string fuenfSchritte()
{
    Filterzustand zustand;
    zustand.FilterSchritte = {{{"Material", "S235JR", CodeText, {}},
                               {"Autor", "*er", CodeText, {}},
                               {"Titel", "Welle*", CodeText, {}},
                               {"Geaendert", "01.06.08", CodeGeaendert, {}},
                               {"Kategorie", "Fertigungsteil", CodeText, {}}}};
    zustand.FilterAnzahl = 5;
    return mitUnd(" ( Status >= 1  AND Status <= 3)", bildeKette(zustand, schrittfragment).back().filterform);
}

// The same rows in the words of the peer, which is blind to the case of ASCII letters alone.
constexpr const char* SCHLUESSEL_DES_PEERS =
    "SELECT rowid FROM PartTabelle WHERE Status >= 1 AND Status <= 3 AND Material LIKE 'S235JR' AND Autor LIKE '%er' "
    "AND Titel LIKE 'Welle%' AND Geaendert >= '2008-06-01 00:00:00' AND Kategorie LIKE 'Fertigungsteil'";

} // namespace

void messeFilterseite(Messreihe& reihe, const std::filesystem::path& datei)
{
    Connection verbindung;
    verbindung.Open(datei);
    BareSqlite sqlite(datei);
    const std::string ausdruck = fuenfSchritte();
    Recordset rs;
    std::size_t gelistet = 0;
    const auto filtere = [&] { rs.Filter(ausdruck); };
    const Arbeit peer{[&] { gelistet = sqlite.listeAuf(SCHLUESSEL_DES_PEERS); }, [] {}, LAEUFE_UNGELESEN};
    const Arbeit ungelesen{filtere, [&] { rs.Open(LISTE, verbindung); }, LAEUFE_UNGELESEN};

    reihe.begrenze("five filter steps, no column read", 1500, ungelesen);
    reihe.vergleiche("five filter steps, no column read", std::nullopt, ungelesen, "SELECT rowid ... WHERE", peer);
    if (rs.RecordCount() != gelistet || gelistet == 0)
        throw std::runtime_error("the filter steps and the peer find different rows");
    reihe.begrenze("five filter steps, columns read", 30, {filtere, [&] { rs.Filter(""); }});
    reihe.vergleiche("five filter steps, columns read", reihe.beiVielen(0.1),
                     {filtere, [&] { rs.Filter(""); }, LAEUFE_UNGELESEN}, "SELECT rowid ... WHERE", peer);
}

} // namespace quelvarn::bench
