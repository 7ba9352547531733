#include "bench/access/import_measures.h"

#include "bench/access/bare_access.h"
#include "database/connection.h"
#include "database/new_database.h"
#include "database/recordset.h"
#include "database/sql/conditions.h"

#include <cstdlib>
#include <fmt/format.h>
#include <stdexcept>
#include <vector>

namespace quelvarn::bench {

namespace {

namespace fs = std::filesystem;

// A folder for what is imported; goes with all that lies in it.
class Messordner
{
public:
    Messordner()
    {
        std::string muster = (fs::temp_directory_path() / "quelvarn-bench-XXXXXX").string();
        if (mkdtemp(muster.data()) == nullptr)
            throw std::runtime_error("no temporary folder");
        pfad_ = muster;
    }
    ~Messordner()
    {
        std::error_code egal;
        fs::remove_all(pfad_, egal);
    }
    Messordner(const Messordner&) = delete;
    Messordner& operator=(const Messordner&) = delete;

    fs::path operator/(const char* name) const { return pfad_ / name; }

private:
    fs::path pfad_;
};

void importiere(const fs::path& quelle, const fs::path& ziel)
{
    const std::string befehl =
        fmt::format("'{}' import '{}' '{}' --ersetzen >/dev/null", QVADMIN, quelle.string(), ziel.string());
    if (std::system(befehl.c_str()) != 0)
        throw std::runtime_error("qvadmin does not import " + quelle.string());
}

struct Tabelle
{
    Tabellenschema schema;
    std::vector<std::vector<Value>> zeilen;
};

std::vector<Tabelle> liesRegister(const fs::path& datei)
{
    Connection verbindung;
    verbindung.Open(datei);
    std::vector<Tabelle> tabellen;
    for (const std::string& name : verbindung.engine().tabellen()) {
        Tabelle tabelle{*verbindung.engine().findTabelle(name), {}};
        Recordset zeilen;
        zeilen.Open(sql::Query(name), verbindung);
        for (; !zeilen.Eof(); zeilen.MoveNext()) {
            std::vector<Value>& werte = tabelle.zeilen.emplace_back();
            for (const Spalte& spalte : tabelle.schema.spalten)
                werte.push_back(zeilen.Feld(spalte.name));
        }
        tabellen.push_back(std::move(tabelle));
    }
    return tabellen;
}

// Without indexes: the rows alone.
void schreibe(const std::vector<Tabelle>& tabellen, const fs::path& datei)
{
    fs::remove(datei);
    const auto engine = oeffneSqlite(datei, true);
    engine->beginne();
    for (const Tabelle& tabelle : tabellen) {
        engine->legeTabelleAn(tabelle.schema);
        const auto schreiber = engine->massenschreiber(tabelle.schema.name, tabelle.schema.spalten);
        for (const auto& zeile : tabelle.zeilen)
            schreiber->zeile(zeile);
        schreiber->beende();
    }
    engine->schliesseAb();
}

} // namespace

void messeImport(Messreihe& reihe, const fs::path& accessDatei)
{
    const Messordner ordner;
    const fs::path ziel = ordner / "import.qv";
    importiere(accessDatei, ziel);
    const std::vector<Tabelle> tabellen = liesRegister(ziel);
    std::size_t bytes = 0;
    reihe.vergleiche("qvadmin import", 3.0, {[&] { importiere(accessDatei, ziel); }}, "libmdb read + bulk insert",
                     {[&] {
                         bytes += liesAlleZellen(accessDatei);
                         schreibe(tabellen, ordner / "peer.qv");
                     }});
    if (bytes == 0)
        throw std::runtime_error("libmdb reads nothing");
}

} // namespace quelvarn::bench
