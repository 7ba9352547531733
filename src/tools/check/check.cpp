#include "database/connection.h"
#include "tools/check/cells.h"
#include "tools/check/documents.h"
#include "tools/check/findings.h"
#include "tools/check/ini.h"
#include "tools/check/links.h"
#include "tools/check/pages.h"
#include "tools/check/schema.h"
#include "tools/commands.h"
#include "tools/console.h"

#include <array>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

constexpr std::array OPTION{Option{"--files"}, Option{"--repair"}, Option{"--strict"}};

constexpr std::string_view HELP = R"(Aufruf: qvadmin check ZIEL [--files] [--repair] [--strict]

Prüft ein Register: ob die Datenbank beschädigt ist, Tabellen, Spalten und Indexe, Dokumente ohne Schlüssel, mit
falschem Status oder doppelt, Verweise auf Dokumente, die es nicht gibt, und Einstellungen, die ein Start bemängelt
oder ersetzt. Solange ihre Seiten geprüft werden, warten in einer SQLite-Datei alle, die schreiben.

  --files        sucht auch die Dateien der Dokumente auf den Laufwerken dieses Rechners
  --repair       baut fehlende Indexe
  --strict       auch Warnungen gelten als Fehler

Ergebnis: 0, wenn nichts fehlerhaft ist, sonst 1.
)";

int check(const Arguments& arguments, Console& console)
{
    Connection connection;
    connection.openAddress(arguments.position(0));
    Engine& engine = connection.engine();
    Findings findings(console.out);
    {
        ProgressLine display(console);
        DocumentKey key;
        const auto part = [&](std::string_view what, const auto& work) { attempt(what, findings, work); };
        display.step("Seiten und Indexe", 0, 0);
        part("Seiten und Indexe", [&] { checkPages(engine, findings); });
        part("Der Aufbau",
             [&] { checkSchema(engine, arguments.set("--repair") ? Indexes::Build : Indexes::Check, findings); });
        checkCells(engine, findings, display);
        part("Die Dokumente", [&] { checkDocuments(engine, findings, display, key); });
        part("Die Verbindungen", [&] { checkLinks(engine, findings, display, key); });
        part("Die Tabelle Ini", [&] { checkIni(engine, findings); });
        if (arguments.set("--files"))
            part("Die Dateinamen", [&] { checkFiles(engine, findings, display); });
    }
    console.out << fmt::format("{} Fehler, {} Warnungen\n", findings.faultCount(), findings.warningCount());
    const bool good = findings.faultCount() == 0 && (findings.warningCount() == 0 || !arguments.set("--strict"));
    return good ? GOOD : FAILED;
}

} // namespace

const Command CHECK_COMMAND{
    .name = "check", .shortText = "prüft ein Register", .help = HELP, .option = OPTION, .execute = check};

} // namespace quelvarn::tools
