#include "database/connection.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/catalog.h"
#include "database/new_database.h"
#include "database/sql/parser.h"

#include <array>
#include <cerrno>
#include <fmt/format.h>
#include <fstream>

namespace quelvarn {
namespace {

// The first bytes of a file; enough for a postgresql:// address.
std::string leseAnfang(const std::filesystem::path& pfad)
{
    constexpr std::streamsize laenge = 4096;
    std::error_code fehler;
    if (!std::filesystem::exists(pfad, fehler))
        throw Laufzeitfehler(53, "Datenbank", fmt::format("Die Datei '{}' wurde nicht gefunden.", utf8FromPath(pfad)));
    std::ifstream datei(pfad, std::ios::binary);
    std::string anfang(laenge, '\0');
    datei.read(anfang.data(), laenge);
    if (!datei.is_open() || datei.bad() || std::filesystem::is_directory(pfad, fehler))
        throw Laufzeitfehler(75, "Datenbank",
                             fmt::format("Die Datei '{}' kann nicht gelesen werden.", utf8FromPath(pfad)));
    anfang.resize(static_cast<std::size_t>(datei.gcount()));
    return anfang;
}

std::string_view ersteZeile(std::string_view anfang)
{
    constexpr std::string_view utf8Marke = "\xEF\xBB\xBF";
    if (anfang.starts_with(utf8Marke))
        anfang.remove_prefix(utf8Marke.size());
    return trim(anfang.substr(0, anfang.find_first_of("\r\n")));
}

bool istPostgresAdresse(std::string_view text)
{
    return startsWithIgnoringCase(text, "postgresql://") || startsWithIgnoringCase(text, "postgres://");
}

DatenbankArt artAusAnfang(std::string_view anfang)
{
    using namespace std::string_view_literals;
    if (anfang.starts_with("SQLite format 3\0"sv))
        return DatenbankArt::SQLite;
    if (anfang.starts_with("\0\1\0\0Standard Jet DB\0"sv) || anfang.starts_with("\0\1\0\0Standard ACE DB\0"sv))
        return DatenbankArt::Access;
    if (istPostgresAdresse(ersteZeile(anfang)))
        return DatenbankArt::PostgreSQL;
    return DatenbankArt::Unbekannt;
}

#ifdef _WIN32
constexpr std::string_view ACCESS_FEHLT = "Dieses System hat keinen 64-Bit-Treiber für Access.\n"
                                          "Er wird mit dem 64-Bit-Access oder dessen Datenbankmodul installiert.";
#else
constexpr std::string_view ACCESS_FEHLT = "Dieses System hat keinen Treiber für Access.\n"
                                          "Der Administrator übernimmt die Datei einmalig mit \"qvadmin import\".";
#endif

[[noreturn]] void meldeAccess(const std::filesystem::path& pfad)
{
    throw Laufzeitfehler(FEHLER_ALLGEMEIN, "Datenbank",
                         fmt::format("'{}' ist eine Access-Datenbank.\n{}", utf8FromPath(pfad), ACCESS_FEHLT));
}

} // namespace

DatenbankArt erkenneDatenbank(const std::filesystem::path& pfad)
{
    return artAusAnfang(leseAnfang(pfad));
}

Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;

void Connection::Open(const std::filesystem::path& pfad)
{
    const std::string anfang = leseAnfang(pfad);
    switch (artAusAnfang(anfang)) {
    case DatenbankArt::SQLite:
        use(oeffneSqlite(pfad, false, patience_));
        return;
    case DatenbankArt::PostgreSQL:
        use(oeffnePostgres(ersteZeile(anfang), patience_));
        return;
    case DatenbankArt::Access:
        use(oeffneAccess(pfad));
        if (!engine_)
            meldeAccess(pfad);
        return;
    case DatenbankArt::Unbekannt:
        break;
    }
    throw Laufzeitfehler(FEHLER_ALLGEMEIN, "Datenbank",
                         fmt::format("'{}' ist keine Datenbank dieses Programms.", utf8FromPath(pfad)));
}

void Connection::OpenAdresse(std::string_view pfadOderAdresse)
{
    if (istPostgresAdresse(pfadOderAdresse))
        use(oeffnePostgres(pfadOderAdresse, patience_));
    else
        Open(pathFromUtf8(pfadOderAdresse));
}

void Connection::setPatience(Patience* patience)
{
    patience_ = patience;
    if (engine_)
        engine_->setPatience(patience);
}

void Connection::use(std::shared_ptr<Engine> engine)
{
    engine_ = std::move(engine);
    setPatience(patience_);
}

void Connection::Close()
{
    engine_.reset();
}

std::int64_t Connection::Execute(sql::FixedText anweisung)
{
    return Execute(sql::parseAnweisung(anweisung.text()));
}

std::int64_t Connection::Execute(const sql::Anweisung& anweisung)
{
    if (std::holds_alternative<sql::Select>(anweisung))
        throw Laufzeitfehler(FEHLER_ANWEISUNG, "Datenbank", "Eine Auswahlabfrage kann nicht ausgeführt werden.");
    return engine().fuehreAus(anweisung);
}

FileState Connection::fileState() const
{
    return engine_ ? engine_->fileState() : FileState::Same;
}

void Connection::checkFile() const
{
    if (engine_)
        engine_->checkFile();
}

Engine& Connection::engine() const
{
    if (!engine_)
        throw Laufzeitfehler(3709, "Datenbank", "Die Verbindung zur Datenbank ist nicht geöffnet.");
    return *engine_;
}

} // namespace quelvarn
