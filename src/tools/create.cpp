#include "database/base_rows.h"
#include "tools/commands.h"
#include "tools/new_register.h"

#include <array>

namespace quelvarn::tools {

namespace {

constexpr std::array SCHALTER{Schalter{"--ersetzen"}};

constexpr std::string_view HILFE = R"(Aufruf: qvadmin create ZIEL [--ersetzen]

Legt ein leeres Register an: alle Tabellen mit ihren Indexen und die Einstellungen, die für das ganze Büro gelten.

  ZIEL         Pfad der neuen Datenbank oder Adresse postgresql://... einer Datenbank ohne Register
  --ersetzen   Ein vorhandenes Register an dieser Stelle wird ersetzt.
)";

int create(const Argumente& argumente, Konsole& konsole)
{
    fangeAbbruch();
    const auto vorhandenes = argumente.gesetzt("--ersetzen") ? Vorhandenes::Ersetzen : Vorhandenes::Ablehnen;
    NeuesRegister reg(argumente.stelle(0), vorhandenes, konsole);
    for (const Tabellenschema& tabelle : registerschema()) {
        reg.tabelle(tabelle);
        if (tabelle.name == "Ini")
            for (const Inizeile& zeile : installationszeilen({.stand = jetzt(), .auftragsordner = {}}))
                reg.zeile(zeile);
    }
    reg.schliesseAb();
    konsole.aus << "Leeres Register angelegt.\n";
    return GUT;
}

} // namespace

const Befehl BEFEHL_CREATE{.name = "create",
                           .kurz = "legt ein leeres Register an",
                           .hilfe = HILFE,
                           .schalter = SCHALTER,
                           .ausfuehren = create};

} // namespace quelvarn::tools
