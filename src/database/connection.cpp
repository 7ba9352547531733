#include "database/connection.h"

#include "base/file_path.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/catalog.h"
#include "database/open_engine.h"
#include "database/sql/parser.h"

#include <array>
#include <cerrno>
#include <fmt/format.h>
#include <fstream>

namespace quelvarn {
namespace {

// The first bytes of a file; enough for a postgresql:// address.
std::string readBegin(const std::filesystem::path& path)
{
    constexpr std::streamsize length = 4096;
    std::error_code fault;
    if (!std::filesystem::exists(path, fault))
        throw RuntimeError(53, "Datenbank", fmt::format("Die Datei '{}' wurde nicht gefunden.", utf8FromPath(path)));
    std::ifstream file(path, std::ios::binary);
    std::string begin(length, '\0');
    file.read(begin.data(), length);
    if (!file.is_open() || file.bad() || std::filesystem::is_directory(path, fault))
        throw RuntimeError(75, "Datenbank",
                           fmt::format("Die Datei '{}' kann nicht gelesen werden.", utf8FromPath(path)));
    begin.resize(static_cast<std::size_t>(file.gcount()));
    return begin;
}

std::string_view firstRow(std::string_view begin)
{
    constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";
    if (begin.starts_with(utf8Mark))
        begin.remove_prefix(utf8Mark.size());
    return trim(begin.substr(0, begin.find_first_of("\r\n")));
}

bool isPostgresAddress(std::string_view text)
{
    return startsWithIgnoringCase(text, "postgresql://") || startsWithIgnoringCase(text, "postgres://");
}

DatabaseKind kindFromStart(std::string_view begin)
{
    using namespace std::string_view_literals;
    if (begin.starts_with("SQLite format 3\0"sv))
        return DatabaseKind::SQLite;
    if (begin.starts_with("\0\1\0\0Standard Jet DB\0"sv) || begin.starts_with("\0\1\0\0Standard ACE DB\0"sv))
        return DatabaseKind::Access;
    if (isPostgresAddress(firstRow(begin)))
        return DatabaseKind::PostgreSQL;
    return DatabaseKind::Unknown;
}

#ifdef _WIN32
constexpr std::string_view ACCESS_MISSING = "Dieses System hat keinen 64-Bit-Treiber für Access.\n"
                                            "Er wird mit dem 64-Bit-Access oder dessen Datenbankmodul installiert.";
#else
constexpr std::string_view ACCESS_MISSING = "Dieses System hat keinen Treiber für Access.\n"
                                            "Der Administrator übernimmt die Datei einmalig mit \"qvadmin import\".";
#endif

[[noreturn]] void tellAccess(const std::filesystem::path& path)
{
    throw RuntimeError(FAULT_GENERAL, "Datenbank",
                       fmt::format("'{}' ist eine Access-Datenbank.\n{}", utf8FromPath(path), ACCESS_MISSING));
}

} // namespace

DatabaseKind recognizeDatabase(const std::filesystem::path& path)
{
    return kindFromStart(readBegin(path));
}

Connection::~Connection() = default;
Connection::Connection(Connection&&) noexcept = default;
Connection& Connection::operator=(Connection&&) noexcept = default;

void Connection::Open(const std::filesystem::path& path)
{
    const std::string begin = readBegin(path);
    switch (kindFromStart(begin)) {
    case DatabaseKind::SQLite:
        use(openSqlite(path, false, patience_));
        return;
    case DatabaseKind::PostgreSQL:
        use(openPostgres(firstRow(begin), patience_));
        return;
    case DatabaseKind::Access:
        use(openAccess(path));
        if (!engine_)
            tellAccess(path);
        return;
    case DatabaseKind::Unknown:
        break;
    }
    throw RuntimeError(FAULT_GENERAL, "Datenbank",
                       fmt::format("'{}' ist keine Datenbank dieses Programms.", utf8FromPath(path)));
}

void Connection::openAddress(std::string_view pathOrAddress)
{
    if (isPostgresAddress(pathOrAddress))
        use(openPostgres(pathOrAddress, patience_));
    else
        Open(pathFromUtf8(pathOrAddress));
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

std::int64_t Connection::execute(sql::FixedText statement)
{
    return execute(sql::parseStatement(statement.text()));
}

std::int64_t Connection::execute(const sql::Statement& statement)
{
    if (std::holds_alternative<sql::Select>(statement))
        throw RuntimeError(FAULT_STATEMENT, "Datenbank", "Eine Auswahlabfrage kann nicht ausgeführt werden.");
    return engine().execute(statement);
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
        throw RuntimeError(3709, "Datenbank", "Die Verbindung zur Datenbank ist nicht geöffnet.");
    return *engine_;
}

} // namespace quelvarn
