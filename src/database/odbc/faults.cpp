#include "database/odbc/faults.h"

#include "database/catalog.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn::odbc {
namespace {

// What Access calls a file, a row or a table that another program holds, and SQLite its file.
constexpr std::array<long, 6> held{-1024, -1032, -3976, -1102, -1302, 5};

using Numbered = std::pair<long, FaultKind>;

constexpr std::array<Numbered, 10> accessNumbers{{
    {-1022, FaultKind::ConnectionLost}, // A disk or a network does not answer.
    {-1023, FaultKind::ConnectionLost}, // No such path.
    {-1811, FaultKind::FileGone},
    {-1206, FaultKind::Damaged},
    {-1028, FaultKind::Damaged},
    {-1808, FaultKind::DiskFull},
    {-1809, FaultKind::ReadOnly},
    {-3035, FaultKind::ReadOnly},
    {-1905, FaultKind::WrongPassword},
    {-1907, FaultKind::NoRight},
}};

constexpr std::array<Numbered, 8> sqliteNumbers{{
    {8, FaultKind::ReadOnly},
    {10, FaultKind::ConnectionLost},
    {11, FaultKind::Damaged},
    {13, FaultKind::DiskFull},
    {14, FaultKind::FileGone},
    {3, FaultKind::NoRight},
    {23, FaultKind::NoRight},
    {26, FaultKind::Damaged},
}};

// By the beginning of the SQLSTATE.
constexpr std::array<std::pair<std::string_view, FaultKind>, 5> states{{
    {"08", FaultKind::ConnectionLost},
    {"28", FaultKind::WrongPassword},
    {"HYT00", FaultKind::Locked},
    {"HYT01", FaultKind::ConnectionLost},
    {"42501", FaultKind::NoRight},
}};

template <class Table> FaultKind findKind(const Table& table, const auto& matches)
{
    const auto row = std::ranges::find_if(table, [&](const auto& candidate) { return matches(candidate.first); });
    return row == table.end() ? FaultKind::Other : row->second;
}

FaultKind kindOf(const Failure& failure, const Place& place)
{
    if (isHeld(failure))
        return FaultKind::Locked;
    const auto sameNumber = [&](long number) { return number == failure.number; };
    FaultKind kind = findKind(accessNumbers, sameNumber);
    if (kind == FaultKind::Other && place.source == "SQLite") // Other drivers give small numbers another meaning.
        kind = findKind(sqliteNumbers, sameNumber);
    if (kind == FaultKind::Other)
        kind = findKind(states, [&](std::string_view state) { return failure.sqlstate.starts_with(state); });
    return kind;
}

} // namespace

bool isHeld(const Failure& failure)
{
    return std::ranges::find(held, failure.number) != held.end();
}

DatabaseFault faultOf(const Failure& failure, const Place& place)
{
    const FaultKind kind = kindOf(failure, place);
    const bool statement = failure.sqlstate.starts_with("42"); // Syntax or access rule.
    const int number = statement ? FAULT_STATEMENT : FAULT_GENERAL;
    if (kind == FaultKind::Other) // It has no sentence of its own.
        return {kind, number, place.source,
                fmt::format("Die Datenbank meldet einen Fehler.{}{}", place.path.empty() ? "" : "\n", place.path),
                failure.words};
    if (isHeld(failure))
        return {kind, number, place.source, place.path,
                "Es kann auch nur ein Datensatz gesperrt sein, oder es fehlt das Recht zum Schreiben.\n" +
                    failure.words};
    return {kind, number, place.source, place.path, failure.words};
}

} // namespace quelvarn::odbc
