#include "bench/bare_sqlite.h"

#include <sqlite3.h>
#include <stdexcept>
#include <string_view>

namespace quelvarn::bench {

namespace {

// The register's text columns name a collation. The peer's statements read in the order of an index or not sorted at
// all, so that it only has to be there.
int vergleicheBytes(void*, int links, const void* linkeBytes, int rechts, const void* rechteBytes)
{
    return std::string_view(static_cast<const char*>(linkeBytes), static_cast<std::size_t>(links))
        .compare({static_cast<const char*>(rechteBytes), static_cast<std::size_t>(rechts)});
}

void fehlendeKollation(void*, sqlite3* datenbank, int, const char* name)
{
    sqlite3_create_collation(datenbank, name, SQLITE_UTF8, nullptr, vergleicheBytes);
}

} // namespace

BareSqlite::BareSqlite(const std::filesystem::path& datei)
{
    if (sqlite3_open_v2(datei.string().c_str(), &datenbank_, SQLITE_OPEN_READONLY, nullptr) != SQLITE_OK)
        throw std::runtime_error("cannot open " + datei.string());
    sqlite3_collation_needed(datenbank_, nullptr, fehlendeKollation);
    sqlite3_exec(datenbank_, "PRAGMA cache_size=-65536", nullptr, nullptr, nullptr);
}

BareSqlite::~BareSqlite()
{
    sqlite3_close(datenbank_);
}

std::size_t BareSqlite::listeAuf(const std::string& sql)
{
    sqlite3_stmt* anweisung = bereite(sql);
    const int spalten = sqlite3_column_count(anweisung);
    std::size_t zeilen = 0;
    std::size_t summe = 0; // Keeps the compiler from leaving the cells out.
    while (sqlite3_step(anweisung) == SQLITE_ROW) {
        ++zeilen;
        summe += static_cast<std::size_t>(sqlite3_column_int64(anweisung, 0));
        for (int spalte = 1; spalte < spalten; ++spalte) {
            const unsigned char* text = sqlite3_column_text(anweisung, spalte);
            summe += text ? static_cast<std::size_t>(sqlite3_column_bytes(anweisung, spalte)) : 0;
        }
    }
    sqlite3_finalize(anweisung);
    return summe == 0 ? 0 : zeilen;
}

std::int64_t BareSqlite::zahl(const std::string& sql)
{
    sqlite3_stmt* anweisung = bereite(sql);
    const std::int64_t ergebnis = sqlite3_step(anweisung) == SQLITE_ROW ? sqlite3_column_int64(anweisung, 0) : 0;
    sqlite3_finalize(anweisung);
    return ergebnis;
}

std::string BareSqlite::plan(const std::string& sql)
{
    sqlite3_stmt* anweisung = bereite("EXPLAIN QUERY PLAN " + sql);
    std::string text;
    while (sqlite3_step(anweisung) == SQLITE_ROW)
        text += std::string(reinterpret_cast<const char*>(sqlite3_column_text(anweisung, 3))) + "\n";
    sqlite3_finalize(anweisung);
    return text;
}

sqlite3_stmt* BareSqlite::bereite(const std::string& sql)
{
    sqlite3_stmt* anweisung = nullptr;
    if (sqlite3_prepare_v2(datenbank_, sql.c_str(), -1, &anweisung, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(datenbank_));
    return anweisung;
}

std::filesystem::path legeSchlichteKopieBereit(const std::filesystem::path& datei)
{
    return legeSchlichteKopieBereit(datei, "PartTabelle",
                                    "CREATE INDEX Liste ON PartTabelle(DokuBez, RevBez DESC, Status);"
                                    "CREATE INDEX Dateien ON PartTabelle(filename);"
                                    "CREATE INDEX Stufen ON PartTabelle(Hauptmerkmal_C, Hauptmerkmal_D, "
                                    "Hauptmerkmal_E);");
}

std::filesystem::path legeSchlichteKopieBereit(const std::filesystem::path& datei, const std::string& tabelle,
                                               const std::string& indexe)
{
    const std::filesystem::path kopie = datei.string() + ".plain";
    const auto anzahl = [&](const std::filesystem::path& wo) {
        return BareSqlite(wo).zahl("SELECT COUNT(*) FROM " + tabelle);
    };
    if (std::filesystem::exists(kopie) && anzahl(kopie) == anzahl(datei))
        return kopie;
    std::filesystem::remove(kopie);
    sqlite3* ziel = nullptr;
    sqlite3_open(kopie.string().c_str(), &ziel);
    sqlite3_collation_needed(ziel, nullptr, fehlendeKollation);
    const std::string sql = "PRAGMA synchronous=OFF; ATTACH '" + datei.string() +
                            "' AS von;"
                            "CREATE TABLE " +
                            tabelle + " AS SELECT * FROM von." + tabelle + ";" + indexe;
    const int ergebnis = sqlite3_exec(ziel, sql.c_str(), nullptr, nullptr, nullptr);
    const std::string grund = sqlite3_errmsg(ziel);
    sqlite3_close(ziel);
    if (ergebnis != SQLITE_OK)
        throw std::runtime_error(kopie.string() + ": " + grund);
    return kopie;
}

} // namespace quelvarn::bench
