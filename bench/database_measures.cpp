#include "bench/database_measures.h"

#include "bench/bare_sqlite.h"
#include "database/connection.h"
#include "database/recordset.h"
#include "database/sql/parser.h"

#include <stdexcept>

namespace quelvarn::bench {

namespace {

using NamenUndAusdruecke = std::vector<std::pair<std::string, std::string>>;

constexpr const char* LISTE = "SELECT * FROM PartTabelle ORDER BY DokuBez, RevBez DESC";

void verlange(bool bedingung, const char* sonst)
{
    if (!bedingung)
        throw std::runtime_error(sonst);
}

// The peer walks the same rows in the same order.
std::size_t messeOeffnen(Messreihe& reihe, const std::string& name, const std::string& bereich, Connection& verbindung,
                         BareSqlite& sqlite)
{
    const std::string rest = " FROM PartTabelle" + bereich + " ORDER BY DokuBez, RevBez DESC";
    const std::string nackt = "SELECT rowid, DokuBez, RevBez" + rest;
    verlange(sqlite.plan(nackt).find("TEMP B-TREE") == std::string::npos, "no index serves the peer's listing");
    Recordset rs;
    std::size_t gelistet = 0;
    reihe.vergleiche(name, reihe.beiVielen(1.5),
                     {[&] { rs.Open(std::get<sql::Select>(sql::parseAnweisung("SELECT *" + rest)), verbindung); },
                      [&] { rs.Close(); }},
                     "sqlite3_step, same order", {[&] { gelistet = sqlite.listeAuf(nackt); }});
    verlange(rs.RecordCount() == gelistet, "the recordset and the peer list different rows");
    return rs.speicherbedarf() / rs.RecordCount();
}

void messeErstenFilter(Messreihe& reihe, Connection& verbindung, BareSqlite& sqlite, const std::string& spalte,
                       const std::string& text)
{
    Recordset rs;
    std::int64_t gezaehlt = 0;
    const std::string zaehlen = "SELECT COUNT(*) FROM PartTabelle WHERE " + spalte + " LIKE '%" + text + "%'";
    reihe.vergleiche("filter on a column not yet read, " + spalte, reihe.beiVielen(2.0),
                     {[&] { rs.Filter(spalte + " Like '*" + text + "*'"); }, [&] { rs.Open(LISTE, verbindung); }},
                     "SELECT COUNT(*) ... LIKE", {[&] { gezaehlt = sqlite.zahl(zaehlen); }});
    verlange(static_cast<std::int64_t>(rs.RecordCount()) == gezaehlt, "filter and peer count different rows");
}

void messeFilter(Messreihe& reihe, Recordset& rs)
{
    const NamenUndAusdruecke filter{
        {"filter once read, one text", "Titel Like 'Welle lang 3'"},
        {"filter once read, text anywhere", "Titel Like '*gefräst*'"},
        {"filter once read, three conditions",
         "Status >= 2 AND Material = 's235jr' AND Erstellt >= #01/02/15 00:00:00#"},
        {"filter once read, all texts different", "filename Like '*0012*'"},
    };
    for (const auto& [name, ausdruck] : filter) {
        rs.Filter(ausdruck);
        verlange(rs.RecordCount() > 0, "a filter of the bench finds nothing");
        reihe.begrenze(name, 10, {[&rs, &ausdruck = ausdruck] { rs.Filter(ausdruck); }});
    }
    rs.Filter("");
}

void messeSuche(Messreihe& reihe, Recordset& rs)
{
    rs.MoveLast();
    const std::string letztes = rs.Text("DokuBez");
    const NamenUndAusdruecke suchen{
        {"search step, start of text, first row", "DokuBez LIKE '1%'"},
        {"search step, start of text, last row", "DokuBez LIKE '" + letztes + "%'"},
        {"search step, start of text, not there", "DokuBez LIKE 'xyz%'"},
        {"search step, anywhere, last row", "DokuBez LIKE '%" + letztes.substr(1) + "%'"},
        {"search step, anywhere, not there", "DokuBez LIKE '%9-9-9%'"},
    };
    for (const auto& [name, kriterium] : suchen)
        reihe.begrenze(name, 16,
                       {[&rs, &kriterium = kriterium] { rs.Find(kriterium, 0, Suchrichtung::Vorwaerts, true); }});
}

// The first step over a column has more to do than those that follow.
void messeErsteSuche(Messreihe& reihe, Connection& verbindung)
{
    Recordset rs;
    reihe.begrenze("search step, anywhere, first one of all", 16,
                   {[&] { rs.Find("DokuBez LIKE '%9-9-9%'", 0, Suchrichtung::Vorwaerts, true); },
                    [&] { rs.Open(LISTE, verbindung); }});
}

void messeZeilenwechsel(Messreihe& reihe, Recordset& rs)
{
    std::size_t position = 0;
    std::size_t laenge = 0;
    reihe.begrenze("row change: move and read all fields", 5, {[&] {
                       position = (position + 314'159) % rs.RecordCount();
                       rs.setzeAbsolutePosition(position);
                       for (const Spalte& feld : rs.Felder())
                           laenge += rs.Text(feld.name).size();
                   }});
    verlange(laenge > 0, "the rows are empty");
}

} // namespace

void messeDatenbank(Messreihe& reihe, const std::filesystem::path& datei)
{
    Connection verbindung;
    verbindung.Open(datei);
    BareSqlite sqlite(datei);
    const std::size_t bytes = messeOeffnen(reihe, "open a table", "", verbindung, sqlite);
    reihe.begrenzeGroesse("memory a document after opening", "bytes", 150, static_cast<double>(bytes));
    messeOeffnen(reihe, "open a table, two statuses", " WHERE ( Status = 3 OR Status = 4)", verbindung, sqlite);
    messeErstenFilter(reihe, verbindung, sqlite, "Titel", "Welle");
    messeErstenFilter(reihe, verbindung, sqlite, "Dateiname", "0012");
    messeErsteSuche(reihe, verbindung);
    Recordset rs;
    rs.Open(LISTE, verbindung);
    messeZeilenwechsel(reihe, rs);
    messeSuche(reihe, rs);
    messeFilter(reihe, rs);
}

} // namespace quelvarn::bench
