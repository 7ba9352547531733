#include "database/sqlite/handle.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/sqlite/functions.h"
#include "database/sqlite/statement.h"

#include <algorithm>
#include <cassert>
#include <sqlite3.h>

namespace quelvarn::sqlite {
namespace {

constexpr std::size_t hoechstzahlBereit = 64;
constexpr auto hoechsteWartezeit = std::chrono::seconds(60);
constexpr int laengsterSchlaf = 6; // Milliseconds.
constexpr int vortritt = 3;
constexpr auto gleichDanach = std::chrono::milliseconds(20);

// The file may lie on a network drive, where neither a write-ahead log nor mapped memory is safe.
constexpr const char* einstellungen = "PRAGMA journal_mode=DELETE;"
                                      "PRAGMA mmap_size=0;"
                                      "PRAGMA cache_size=-65536;"
                                      "PRAGMA temp_store=MEMORY;";

} // namespace

std::shared_ptr<Handle> Handle::oeffne(const std::filesystem::path& pfad, bool neu)
{
    std::shared_ptr<Handle> handle(new Handle);
    const int modus = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (neu ? SQLITE_OPEN_CREATE : 0);
    const int ergebnis = sqlite3_open_v2(utf8FromPath(pfad).c_str(), &handle->datenbank_, modus, nullptr);
    if (ergebnis != SQLITE_OK)
        handle->melde(ergebnis);
    handle->richteEin();
    return handle;
}

Handle::~Handle()
{
    for (const Bereit& eintrag : bereit_)
        sqlite3_finalize(eintrag.statement);
    sqlite3_close(datenbank_);
}

void Handle::richteEin()
{
    sqlite3_extended_result_codes(datenbank_, 1);
    sqlite3_busy_handler(datenbank_, warte, this);
    // An unknown name in quotes is a fault, not a text.
    sqlite3_db_config(datenbank_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(datenbank_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    registriereFunktionen(datenbank_);
    fuehreAus(einstellungen);
    fuehreAus("SELECT count(*) FROM sqlite_schema"); // Tells a damaged or foreign file now, not at the first query.
}

// Short sleeps of random length: the gap between the changes of a busy neighbour is small.
int Handle::warte(void* handle, int versuche)
{
    auto& self = *static_cast<Handle*>(handle);
    const auto jetzt = std::chrono::steady_clock::now();
    if (versuche == 0)
        self.wartetSeit_ = jetzt;
    if (jetzt - self.wartetSeit_ > hoechsteWartezeit)
        return 0;
    sqlite3_sleep(std::uniform_int_distribution(1, laengsterSchlaf)(self.zufall_));
    return 1;
}

Statement Handle::bereite(std::string_view sql)
{
    const auto vonHinten = std::find_if(bereit_.rbegin(), bereit_.rend(), [&](const auto& b) { return b.sql == sql; });
    if (vonHinten != bereit_.rend()) {
        const auto stelle = std::prev(vonHinten.base());
        Bereit eintrag = std::move(*stelle);
        bereit_.erase(stelle);
        return {shared_from_this(), std::move(eintrag.sql), eintrag.statement};
    }
    sqlite3_stmt* statement = nullptr;
    const int ergebnis = sqlite3_prepare_v3(datenbank_, sql.data(), static_cast<int>(sql.size()),
                                            SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
    if (ergebnis != SQLITE_OK)
        melde(ergebnis);
    assert(statement);
    return {shared_from_this(), std::string(sql), statement};
}

void Handle::gibZurueck(std::string sql, sqlite3_stmt* statement)
{
    sqlite3_reset(statement);
    sqlite3_clear_bindings(statement);
    if (bereit_.size() == hoechstzahlBereit) {
        sqlite3_finalize(bereit_.front().statement);
        bereit_.erase(bereit_.begin());
    }
    bereit_.push_back({std::move(sql), statement});
}

void Handle::fuehreAus(const std::string& sql)
{
    const int ergebnis = sqlite3_exec(datenbank_, sql.c_str(), nullptr, nullptr, nullptr);
    if (ergebnis != SQLITE_OK)
        melde(ergebnis);
}

void Handle::lasseVortritt()
{
    if (std::chrono::steady_clock::now() - geschriebenUm_ < gleichDanach)
        sqlite3_sleep(vortritt);
}

void Handle::merkeSchreiben()
{
    geschriebenUm_ = std::chrono::steady_clock::now();
}

std::int64_t Handle::geaenderteZeilen() const
{
    return sqlite3_changes64(datenbank_);
}

std::int64_t Handle::letzteZeile() const
{
    return sqlite3_last_insert_rowid(datenbank_);
}

void Handle::melde(int nummer) const
{
    const char* text = datenbank_ ? sqlite3_errmsg(datenbank_) : sqlite3_errstr(nummer);
    throw Laufzeitfehler((nummer & 0xFF) == SQLITE_ERROR ? FEHLER_ANWEISUNG : FEHLER_ALLGEMEIN, "SQLite", text);
}

} // namespace quelvarn::sqlite
