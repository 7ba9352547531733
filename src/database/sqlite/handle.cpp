#include "database/sqlite/handle.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "database/catalog.h"
#include "database/sqlite/faults.h"
#include "database/sqlite/functions.h"
#include "database/sqlite/statement.h"

#include <algorithm>
#include <cassert>
#include <sqlite3.h>

namespace quelvarn::sqlite {
namespace {

constexpr std::size_t hoechstzahlBereit = 64;
constexpr int vortritt = 3; // Milliseconds.
constexpr auto gleichDanach = std::chrono::milliseconds(20);

// The file may lie on a network drive, where neither a write-ahead log nor mapped memory is safe.
constexpr const char* einstellungen = "PRAGMA journal_mode=DELETE;"
                                      "PRAGMA mmap_size=0;"
                                      "PRAGMA cache_size=-65536;"
                                      "PRAGMA temp_store=MEMORY;";

} // namespace

std::shared_ptr<Handle> Handle::oeffne(const std::filesystem::path& pfad, bool neu, Patience* patience)
{
    std::shared_ptr<Handle> handle(new Handle(pfad));
    handle->setPatience(patience);
    const int modus = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | (neu ? SQLITE_OPEN_CREATE : 0);
    const int ergebnis = sqlite3_open_v2(utf8FromPath(pfad).c_str(), &handle->datenbank_, modus, nullptr);
    if (ergebnis != SQLITE_OK)
        handle->melde(ergebnis);
    handle->richteEin();
    if (neu)
        handle->file_ = WatchedFile(pfad); // It is there only now.
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
    wait_.serve(datenbank_);
    // An unknown name in quotes is a fault, not a text.
    sqlite3_db_config(datenbank_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(datenbank_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    registriereFunktionen(datenbank_);
    fuehreAus(einstellungen);
    fuehreAus("SELECT count(*) FROM sqlite_schema"); // Tells a damaged or foreign file now, not at the first query.
}

void Handle::refuseNested() const
{
    if (wait_.asking())
        throw Laufzeitfehler(FEHLER_ALLGEMEIN, "SQLite", "Die Antwort der Datenbank steht noch aus.");
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
    const int ergebnis = call([&] {
        return sqlite3_prepare_v3(datenbank_, sql.data(), static_cast<int>(sql.size()), SQLITE_PREPARE_PERSISTENT,
                                  &statement, nullptr);
    });
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
    const int ergebnis = call([&] { return sqlite3_exec(datenbank_, sql.c_str(), nullptr, nullptr, nullptr); });
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

void Handle::melde(int nummer)
{
    Failure failure{.code = nummer, .systemError = 0, .words = sqlite3_errstr(nummer), .givenUp = wait_.takeGivenUp()};
    if (datenbank_) {
        const int extended = sqlite3_extended_errcode(datenbank_);
        failure.code = (extended & 0xFF) == (nummer & 0xFF) ? extended : nummer;
        failure.systemError = sqlite3_system_errno(datenbank_);
        failure.words = sqlite3_errmsg(datenbank_);
    }
    DatabaseFault fault = faultOf(failure, file_);
    lost_ = lost_ || losesFile(fault);
    throw fault;
}

} // namespace quelvarn::sqlite
