#include "database/connection.h"
#include "database/sql/parser.h"
#include "tools/commands.h"
#include "tools/query_result.h"

#include <array>

namespace quelvarn::tools {

namespace {

constexpr std::array OPTION{Option{"--json"}};

constexpr std::string_view HELP = R"(Aufruf: qvadmin query ZIEL "ANWEISUNG" [--json]

Führt eine Anweisung (SELECT, INSERT, UPDATE oder DELETE) in der SQL-Form des Programms aus, gleich welche
Datenbank dahinter steht: Texte in '..', Datumswerte als #mm/dd/yy hh:mm:ss#, LIKE mit %, _ und [..].

Ein SELECT schreibt eine Kopfzeile und je Zeile eine Zeile, durch Tabulatoren getrennt. Tabulator und Zeilenende
in einem Text stehen als \t, \n und \r. Null und der leere Text sind beide leer; --json hält sie auseinander.
Die anderen Anweisungen schreiben, wie viele Zeilen betroffen waren.

  --json   je Zeile ein JSON-Array, zuerst die Namen der Spalten; Null ist null. Datumswerte stehen als
           "JJJJ-MM-TT hh:mm:ss", Kommazahlen immer mit Punkt.
)";

int query(const Arguments& arguments, Console& console)
{
    const sql::Statement statement = sql::parseStatement(arguments.position(1));
    Connection connection;
    connection.openAddress(arguments.position(0));
    const auto* select = std::get_if<sql::Select>(&statement);
    if (select == nullptr) {
        console.out << connection.engine().execute(statement) << '\n';
        return GOOD;
    }
    ResultBuffer result;
    printRows(*connection.engine().read(*select, WithKey::No),
              arguments.set("--json") ? OutputForm::Json : OutputForm::Tabulator, result);
    connection.Close(); // A person with a pager reads for hours.
    result.writeTo(console.out);
    return GOOD;
}

} // namespace

const Command QUERY_COMMAND{.name = "query",
                            .shortText = "führt eine SQL-Anweisung aus",
                            .help = HELP,
                            .atLeast = 2,
                            .atMost = 2,
                            .option = OPTION,
                            .execute = query};

} // namespace quelvarn::tools
