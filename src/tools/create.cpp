#include "database/base_rows.h"
#include "tools/commands.h"
#include "tools/new_register.h"

#include <array>

namespace quelvarn::tools {

namespace {

constexpr std::array OPTION{Option{"--replace"}};

constexpr std::string_view HELP = R"(Aufruf: qvadmin create ZIEL [--replace]

Legt ein leeres Register an: alle Tabellen mit ihren Indexen und die Einstellungen, die für das ganze Büro gelten.

  ZIEL         Pfad der neuen Datenbank oder Adresse postgresql://... einer Datenbank ohne Register
  --replace    Ein vorhandenes Register an dieser Stelle wird ersetzt.
)";

int create(const Arguments& arguments, Console& console)
{
    catchCancel();
    const auto existing = arguments.set("--replace") ? Existing::Replace : Existing::Refuse;
    NewRegister reg(arguments.position(0), existing, console);
    for (const TableSchema& table : registerSchema()) {
        reg.table(table);
        if (table.name == "Ini")
            for (const IniRow& row : installationRows({.state = now(), .orderFolder = {}}))
                reg.row(row);
    }
    reg.commit();
    console.out << "Leeres Register angelegt.\n";
    return GOOD;
}

} // namespace

const Command CREATE_COMMAND{
    .name = "create", .shortText = "legt ein leeres Register an", .help = HELP, .option = OPTION, .execute = create};

} // namespace quelvarn::tools
