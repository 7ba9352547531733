#include "database/connection.h"
#include "database/sql/parser.h"
#include "tools/commands.h"
#include "tools/query_result.h"

#include <array>

namespace quelvarn::tools {

namespace {

constexpr std::array SCHALTER{Schalter{"--json"}};

constexpr std::string_view HILFE = R"(Aufruf: qvadmin query ZIEL "ANWEISUNG" [--json]

Führt eine Anweisung (SELECT, INSERT, UPDATE oder DELETE) in der SQL-Form des Programms aus, gleich welche
Datenbank dahinter steht: Texte in '..', Datumswerte als #mm/dd/yy hh:mm:ss#, LIKE mit %, _ und [..].

Ein SELECT schreibt eine Kopfzeile und je Zeile eine Zeile, durch Tabulatoren getrennt. Tabulator und Zeilenende
in einem Text stehen als \t, \n und \r. Null und der leere Text sind beide leer; --json hält sie auseinander.
Die anderen Anweisungen schreiben, wie viele Zeilen betroffen waren.

  --json   je Zeile ein JSON-Array, zuerst die Namen der Spalten; Null ist null. Datumswerte stehen als
           "JJJJ-MM-TT hh:mm:ss", Kommazahlen immer mit Punkt.
)";

int query(const Argumente& argumente, Konsole& konsole)
{
    const sql::Anweisung anweisung = sql::parseAnweisung(argumente.stelle(1));
    Connection verbindung;
    verbindung.OpenAdresse(argumente.stelle(0));
    const auto* select = std::get_if<sql::Select>(&anweisung);
    if (select == nullptr) {
        konsole.aus << verbindung.engine().fuehreAus(anweisung) << '\n';
        return GUT;
    }
    ResultBuffer result;
    gibZeilenAus(*verbindung.engine().lese(*select, MitSchluessel::Nein),
                 argumente.gesetzt("--json") ? Ausgabeform::Json : Ausgabeform::Tabulator, result);
    verbindung.Close(); // A person with a pager reads for hours.
    result.writeTo(konsole.aus);
    return GUT;
}

} // namespace

const Befehl BEFEHL_QUERY{.name = "query",
                          .kurz = "führt eine SQL-Anweisung aus",
                          .hilfe = HILFE,
                          .mindestens = 2,
                          .hoechstens = 2,
                          .schalter = SCHALTER,
                          .ausfuehren = query};

} // namespace quelvarn::tools
