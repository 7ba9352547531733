#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/connection.h"
#include "database/document_types.h"
#include "database/engine.h"
#include "database/sql/conditions.h"
#include "tools/commands.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <limits>
#include <map>

namespace quelvarn::tools {

namespace {

constexpr std::array OPTION{Option{"--see", OptionValue::Needed}, Option{"--delete", OptionValue::Needed},
                            Option{"--new"}};

constexpr std::string_view HELP =
    R"(Aufruf: qvadmin rights ZIEL [ANWENDER] [--see STATI] [--delete STATUS=CODE,...] [--new]

Zeigt die Rechte der Anwender oder setzt die eines Anwenders. Sie gelten ab seinem nächsten Start.

  ANWENDER     Anmeldename; ohne ihn werden alle gezeigt
  --see        die sichtbaren Stati, etwa 0,1,2,3; alle anderen werden unsichtbar
  --delete     Löschcode je Status, etwa 0=5,1=1; nicht genannte bleiben
               0 nichts, 1 eigene Datensätze, 2 fremde Datensätze, 5 eigene Datensätze und Dateien, 6 alles
               (3 und 4 gibt es, sie erlauben nichts)
  --new        legt einen Anwender an, den das Register noch nicht kennt; er sieht die Stati 3 und 4,
               wenn --see nichts anderes sagt

Stati: 0 Verfügbar, 1 In Arbeit, 2 Wird geprüft, 3 Freigegeben, 4 Festgeschrieben, 5 Ungültig
)";

constexpr std::string_view GROUP = "Berechtigung";
constexpr int HIGHEST_CODE = 6;

struct UserRights
{
    std::array<std::int64_t, STATUS_COUNT> visible{0, 0, 0, 1, 1, 0};
    std::array<std::int64_t, STATUS_COUNT> deletionRight{};
};

std::string key(int status)
{
    return fmt::format("{}_Status", status);
}

sql::ExpressionPointer rightRows()
{
    return sql::equal("Feld2", GROUP);
}

sql::ExpressionPointer rightRows(std::string_view user)
{
    return sql::all(sql::equal("Feld1", user), rightRows());
}

// As the program reads it: what is no number of 16 bits counts as 0.
std::int64_t number(const Value& value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return wholeNumber(value, Limits::min(), Limits::max()).value_or(0);
}

void adopt(const RowReader& row, UserRights& rights)
{
    const std::string position = toLower(row.isNull(1) ? "" : row.text(1));
    for (int status = 0; status < STATUS_COUNT; ++status) {
        if (position != toLower(key(status)))
            continue;
        rights.visible[status] = number(row.value(2));
        rights.deletionRight[status] = number(row.value(3));
    }
}

// Users in the order of their names, with the spelling of their first row.
std::map<std::string, std::pair<std::string, UserRights>> readRights(Engine& engine)
{
    const sql::Select select = sql::Query("Ini").columns({"Feld1", "Feld3", "Feld4", "Feld5"}).where(rightRows());
    std::map<std::string, std::pair<std::string, UserRights>> all;
    const auto rows = engine.read(select, WithKey::No);
    while (rows->next()) {
        if (rows->isNull(0))
            continue;
        const std::string name(rows->text(0));
        auto& entry =
            all.try_emplace(sortKey(name), name, UserRights{.visible = {}, .deletionRight = {}}).first->second;
        adopt(*rows, entry.second);
    }
    return all;
}

void show(const std::string& user, const UserRights& rights, Console& console)
{
    console.out << user << '\n';
    for (int status = 0; status < STATUS_COUNT; ++status)
        console.out << fmt::format("  {} {}{}  {:<8}  Löschcode {}\n", status, STATUS[status].name,
                                   std::string(16 - countCharacters(STATUS[status].name), ' '),
                                   rights.visible[status] != 0 ? "sichtbar" : "-", rights.deletionRight[status]);
}

int status(std::string_view text)
{
    const auto number = parseInteger(trim(text));
    if (!number || *number < 0 || *number >= STATUS_COUNT)
        throw UsageFault(fmt::format("'{}' ist kein Status von 0 bis 5.", text));
    return static_cast<int>(*number);
}

void setVisible(UserRights& rights, std::string_view list)
{
    rights.visible.fill(0);
    for (const std::string& part : split(list, ','))
        rights.visible[status(part)] = 1;
}

void setDeletionRight(UserRights& rights, std::string_view list)
{
    for (const std::string& part : split(list, ',')) {
        const auto pair = split(part, '=');
        const auto code = pair.size() == 2 ? parseInteger(trim(pair[1])) : std::nullopt;
        if (!code || *code < 0 || *code > HIGHEST_CODE)
            throw UsageFault(fmt::format("'{}' ist kein STATUS=CODE mit einem Code von 0 bis 6.", part));
        rights.deletionRight[status(pair[0])] = *code;
    }
}

void write(Connection& connection, const std::string& user, const UserRights& rights, bool isNew)
{
    Transaction transaction(connection);
    Engine& engine = connection.engine();
    engine.execute(sql::Delete{"Ini", rightRows(user)});
    const auto insert = [&](std::string_view group, const std::string& field3, Value field4, Value field5) {
        const std::array<sql::Assignment, 5> values{{{"Feld1", user},
                                                     {"Feld2", std::string(group)},
                                                     {"Feld3", field3},
                                                     {"Feld4", std::move(field4)},
                                                     {"Feld5", std::move(field5)}}};
        engine.insert("Ini", values);
    };
    for (int status = 0; status < STATUS_COUNT; ++status)
        insert(GROUP, key(status), std::to_string(rights.visible[status]),
               std::to_string(rights.deletionRight[status]));
    if (isNew) // A first start would write these with the rights and passes them over when those are there.
        for (const char* field3 : {"BearbeitenVon", "SpeichernIn"})
            insert("Sicherung", field3, {}, {});
    transaction.commit();
}

int set(const Arguments& arguments, Connection& connection, Console& console)
{
    const auto all = readRights(connection.engine());
    const std::string& sought = arguments.position(1);
    const auto found = all.find(sortKey(sought));
    const bool isNew = found == all.end();
    if (isNew && !arguments.set("--new"))
        throw toolFault(fmt::format("Den Anwender '{}' kennt das Register nicht. Mit --new wird er angelegt.", sought));
    const std::string user = isNew ? sought : found->second.first;
    UserRights rights = isNew ? UserRights{} : found->second.second;
    if (const auto list = arguments.findValue("--see"))
        setVisible(rights, *list);
    if (const auto list = arguments.findValue("--delete"))
        setDeletionRight(rights, *list);
    if (isNew || arguments.set("--see") || arguments.set("--delete"))
        write(connection, user, rights, isNew);
    show(user, rights, console);
    return GOOD;
}

int rights(const Arguments& arguments, Console& console)
{
    const bool changes = arguments.set("--see") || arguments.set("--delete") || arguments.set("--new");
    if (changes && arguments.count() < 2)
        throw UsageFault("Wessen Rechte? Es fehlt der Anwender.");
    Connection connection;
    connection.openAddress(arguments.position(0));
    if (arguments.count() == 2)
        return set(arguments, connection, console);
    const auto all = readRights(connection.engine());
    for (const auto& [_, entry] : all)
        show(entry.first, entry.second, console);
    if (all.empty())
        console.out << "Im Register ist kein Anwender eingetragen.\n";
    return GOOD;
}

} // namespace

const Command RIGHTS_COMMAND{.name = "rights",
                             .shortText = "zeigt und setzt die Rechte der Anwender",
                             .help = HELP,
                             .atLeast = 1,
                             .atMost = 2,
                             .option = OPTION,
                             .execute = rights};

} // namespace quelvarn::tools
