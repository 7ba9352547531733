#include "bench/value_list_measures.h"

#include "bench/bare_sqlite.h"
#include "database/connection.h"
#include "database/recordset.h"

#include <fmt/format.h>
#include <stdexcept>

namespace quelvarn::bench {

namespace {

constexpr int LAEUFE_UNGELESEN = 3;
constexpr const char* LISTE = "SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC";
const std::vector<std::string> SPALTEN{"Projekt",    "Titel",        "Thema",          "Firma",
                                       "Kategorie",  "Material",     "Autor",          "Manager",
                                       "Bearbeiter", "Stichwoerter", "Hauptmerkmal_A", "Hauptmerkmal_B"};

void verlange(bool bedingung, const char* sonst)
{
    if (!bedingung)
        throw std::runtime_error(sonst);
}

std::size_t zaehleListen(Recordset& rs, const std::string& bedingung)
{
    rs.ladeSpalten(SPALTEN);
    const auto zeilen = rs.waehle(bedingung);
    std::size_t werte = 0;
    for (const std::string& spalte : SPALTEN)
        werte += rs.verschiedeneTexte(spalte, *zeilen, [](std::string_view text) { return !text.empty(); }).size();
    return werte;
}

std::size_t zaehleVerschiedene(BareSqlite& sqlite, const std::string& spalte, const std::string& bedingung)
{
    return static_cast<std::size_t>(sqlite.zahl(fmt::format(
        "SELECT COUNT(*) FROM (SELECT DISTINCT {0} FROM PartTabelle WHERE {1}{0} NOT LIKE '')", spalte, bedingung)));
}

std::size_t zaehleListen(BareSqlite& sqlite)
{
    std::size_t werte = 0;
    for (const std::string& spalte : SPALTEN)
        werte += zaehleVerschiedene(sqlite, spalte, "");
    return werte;
}

void messeZwoelfListen(Messreihe& reihe, Connection& verbindung, BareSqlite& sqlite)
{
    Recordset rs;
    std::size_t unsere = 0;
    std::size_t andere = 0;
    const Arbeit peer{[&] { andere = zaehleListen(sqlite); }, [] {}, LAEUFE_UNGELESEN};
    const Arbeit ungelesen{[&] { unsere = zaehleListen(rs, ""); }, [&] { rs.Open(LISTE, verbindung); },
                           LAEUFE_UNGELESEN};
    reihe.begrenze("twelve lists, no column read", 2000, ungelesen);
    reihe.vergleiche("twelve lists, no column read", std::nullopt, ungelesen, "12 SELECT DISTINCT", peer);
    verlange(unsere > 0 && unsere == andere, "the lists and the peer hold different values");
    reihe.begrenze("twelve lists, columns read", 100, {[&] { zaehleListen(rs, ""); }});
    reihe.begrenze("twelve lists, columns read, under a filter", 100,
                   {[&] { zaehleListen(rs, "Titel LIKE 'Welle%' AND ( Status >= 1  AND Status <= 3)"); }});
}

void messeBaum(Messreihe& reihe, Connection& verbindung, BareSqlite& sqlite)
{
    const std::string zweig = "Hauptmerkmal_C = 'Welle 1'";
    const std::vector<std::string> merkmale{"Hauptmerkmal_C", "Hauptmerkmal_D", "Hauptmerkmal_E", "Hauptmerkmal_F",
                                            "Hauptmerkmal_G", "Material",       "Firma"};
    Recordset rs;
    std::size_t unsere = 0;
    std::size_t andere = 0;
    const auto ebene = [&](const std::string& spalte, const std::string& bedingung) {
        const auto zeilen = rs.waehle(bedingung);
        unsere = rs.verschiedeneTexte(spalte, *zeilen, [](std::string_view text) { return !text.empty(); }).size();
    };
    reihe.begrenze("first level of the tree, no column read", 1000,
                   {[&] { ebene("Hauptmerkmal_C", ""); }, [&] { rs.Open(LISTE, verbindung); }, LAEUFE_UNGELESEN});
    reihe.begrenze("reading the columns of the tree", 1500,
                   {[&] { rs.ladeSpalten(merkmale); }, [&] { rs.Open(LISTE, verbindung); }, LAEUFE_UNGELESEN});
    reihe.begrenze("first level of the tree", 30, {[&] { ebene("Hauptmerkmal_C", ""); }});
    reihe.vergleiche("second level of the tree", std::nullopt, {[&] { ebene("Hauptmerkmal_D", zweig); }},
                     "SELECT DISTINCT, by the index",
                     {[&] { andere = zaehleVerschiedene(sqlite, "Hauptmerkmal_D", zweig + " AND "); }});
    verlange(unsere > 0 && unsere == andere, "the level and the peer hold different values");
    reihe.begrenze("second level of the tree", 30, {[&] { ebene("Hauptmerkmal_D", zweig); }});
}

// Where every text differs, and nothing is found: the worst a key press can meet.
void messeTastendruck(Messreihe& reihe, Connection& verbindung, BareSqlite& sqlite)
{
    Recordset rs;
    rs.Open(LISTE, verbindung);
    const auto suche = [&](const std::string& kriterium) {
        return [&rs, kriterium] { rs.Find(kriterium, 0, Suchrichtung::Vorwaerts, true); };
    };
    const std::pair<const char*, std::string> suchen[]{
        {"key press, Titel, start, not there", "Titel LIKE 'xyz%'"},
        {"key press, Titel, anywhere, not there", "Titel LIKE '%xyz%'"},
        {"key press, filename, start, there", "filename LIKE 'W:%'"},
        {"key press, filename, start, not there", "filename LIKE 'xyz%'"},
        {"key press, filename, anywhere, there", "filename LIKE '%konstruktion%'"},
        {"key press, filename, anywhere, not there", "filename LIKE '%9-9-9%'"},
        {"key press, filename, other pattern, not there", "filename LIKE '%9-_-9%'"},
    };
    for (const auto& [name, kriterium] : suchen) {
        rs.Find(kriterium);
        reihe.begrenze(name, 16, {suche(kriterium)});
    }
    verlange(rs.Eof(), "what is not there was found");
    reihe.vergleiche("key press, filename, anywhere, not there", std::nullopt, {suche("filename LIKE '%9-9-9%'")},
                     "SELECT ... LIKE",
                     {[&] {
                          verlange(sqlite.listeAuf("SELECT rowid FROM PartTabelle WHERE filename LIKE '%9-9-9%'") == 0,
                                   "the peer finds what is not there");
                      },
                      [] {}, LAEUFE_UNGELESEN});
}

} // namespace

void messeListen(Messreihe& reihe, const std::filesystem::path& datei)
{
    Connection verbindung;
    verbindung.Open(datei);
    BareSqlite sqlite(datei);
    messeZwoelfListen(reihe, verbindung, sqlite);
    BareSqlite schlicht(legeSchlichteKopieBereit(datei));
    messeBaum(reihe, verbindung, schlicht);
    messeTastendruck(reihe, verbindung, sqlite);
}

} // namespace quelvarn::bench
