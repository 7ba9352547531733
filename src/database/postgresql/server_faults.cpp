#include "database/postgresql/server_faults.h"

#include "base/text.h"
#include "database/catalog.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <fmt/format.h>
#include <libpq-fe.h>
#include <memory>
#include <optional>
#include <utility>

namespace quelvarn::postgresql {
namespace {

// By the beginning of the SQLSTATE.
constexpr std::array<std::pair<std::string_view, FaultKind>, 18> kinds{{
    {"08", FaultKind::ConnectionLost},
    {"57P01", FaultKind::ConnectionLost}, // The administrator ended the connection.
    {"57P02", FaultKind::ConnectionLost}, // A process of the server crashed.
    {"57P03", FaultKind::ConnectionLost}, // The server starts or stops.
    {"57P05", FaultKind::ConnectionLost}, // Ended for doing nothing.
    {"25P03", FaultKind::ConnectionLost}, // The same in a transaction.
    {"28", FaultKind::WrongPassword},
    {"3D000", FaultKind::NoDatabase},
    {"57P04", FaultKind::NoDatabase}, // It was dropped.
    {"42501", FaultKind::NoRight},
    {"53100", FaultKind::DiskFull},
    {"55P03", FaultKind::Locked},
    {"55006", FaultKind::Locked},
    {"40P01", FaultKind::Locked}, // Two programs waited for one another.
    {"25006", FaultKind::ReadOnly},
    {"XX001", FaultKind::Damaged},
    {"XX002", FaultKind::Damaged},
    {"58P01", FaultKind::Damaged}, // A file of the server is missing.
}};

constexpr std::string_view statementClass = "42"; // The statement itself is at fault.
constexpr std::size_t sqlstateLength = 5;
constexpr std::string_view behindSeverity = ":  ";

// Where a SQLSTATE stands in "FATAL:  28P01: ...".
std::optional<std::size_t> findSqlstate(std::string_view text)
{
    for (auto place = text.find(behindSeverity); place != text.npos; place = text.find(behindSeverity, place + 1)) {
        const std::string_view rest = text.substr(place + behindSeverity.size());
        const bool code = rest.size() > sqlstateLength && rest[sqlstateLength] == ':' &&
                          std::all_of(rest.begin(), rest.begin() + sqlstateLength,
                                      [](char c) { return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z'); });
        if (code)
            return place + behindSeverity.size();
    }
    return std::nullopt;
}

// "LOCATION:  auth_failed, auth.c:335", whatever the language.
bool isSourcePlace(std::string_view line)
{
    const auto dot = line.rfind(".c:");
    return dot != line.npos && line.find(behindSeverity) != line.npos && line.find(", ") != line.npos &&
           line.find_first_not_of("0123456789\r", dot + 3) == line.npos;
}

// Takes out what PQERRORS_VERBOSE adds, and returns the last SQLSTATE.
std::string takeSqlstate(std::string& text)
{
    std::string sqlstate;
    while (const auto place = findSqlstate(text)) {
        sqlstate = text.substr(*place, sqlstateLength);
        text.erase(*place, sqlstateLength + 2);
    }
    std::vector<std::string> kept;
    for (std::string& line : split(text, '\n'))
        if (!isSourcePlace(line))
            kept.push_back(std::move(line));
    text = join(kept, "\n");
    return sqlstate;
}

} // namespace

std::string addressOf(pg_conn* connection)
{
    const std::unique_ptr<PQconninfoOption, decltype(&PQconninfoFree)> options(PQconninfo(connection), PQconninfoFree);
    const auto option = [&](std::string_view keyword) -> std::string {
        for (const PQconninfoOption* o = options.get(); o && o->keyword; ++o)
            if (o->keyword == keyword && o->val)
                return o->val;
        return "";
    };
    const std::string user = option("user");
    const std::string host = option("host").empty() ? option("hostaddr") : option("host");
    const std::string port = option("port");
    const bool folder = host.starts_with('/') || host.empty(); // Of a socket on this machine.
    return fmt::format("postgresql://{}{}{}/{}{}", user.empty() ? "" : user + "@", folder ? "" : host,
                       folder || port.empty() ? "" : ":" + port, option("dbname"),
                       folder && !host.empty() ? "?host=" + host : "");
}

FaultKind kindOf(std::string_view sqlstate)
{
    const auto kind = std::ranges::find_if(kinds, [&](const auto& row) { return sqlstate.starts_with(row.first); });
    return kind == kinds.end() ? FaultKind::Other : kind->second;
}

std::string_view sqlstateOf(const pg_result* answer)
{
    const char* text = answer ? PQresultErrorField(answer, PG_DIAG_SQLSTATE) : nullptr;
    return text ? text : "";
}

bool endsConnection(const pg_result* answer)
{
    const char* text = answer ? PQresultErrorField(answer, PG_DIAG_SEVERITY_NONLOCALIZED) : nullptr;
    const std::string_view severity = text ? text : "";
    return severity == "FATAL" || severity == "PANIC";
}

DatabaseFault serverFault(FaultKind kind, std::string_view sqlstate, std::string_view where, std::string_view words)
{
    const int number = sqlstate.starts_with(statementClass) ? FAULT_STATEMENT : FAULT_GENERAL;
    if (kind == FaultKind::Other) // It has no sentence of its own.
        return {kind, number, "PostgreSQL", fmt::format("Die Datenbank meldet einen Fehler.\n{}", where), trim(words)};
    return {kind, number, "PostgreSQL", where, trim(words)};
}

DatabaseFault connectFault(pg_conn* connection)
{
    std::string words(trim(PQerrorMessage(connection)));
    const std::string sqlstate = takeSqlstate(words);
    FaultKind kind = kindOf(sqlstate);
    if (PQconnectionNeedsPassword(connection))
        kind = FaultKind::WrongPassword;
    else if (kind == FaultKind::Other)
        kind = FaultKind::ConnectionLost;
    return {kind, FAULT_GENERAL, "PostgreSQL", addressOf(connection),
            fmt::format("Die Verbindung zur PostgreSQL-Datenbank kann nicht hergestellt werden.\n{}", trim(words))};
}

} // namespace quelvarn::postgresql
