#include "database/connection.h"
#include "tools/check/checks.h"
#include "tools/commands.h"

#include <array>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

constexpr std::array SCHALTER{Schalter{"--files"}, Schalter{"--reparieren"}, Schalter{"--streng"}};

constexpr std::string_view HILFE = R"(Aufruf: qvadmin check ZIEL [--files] [--reparieren] [--streng]

Prüft ein Register: ob die Datenbank beschädigt ist, Tabellen, Spalten und Indexe, Dokumente ohne Schlüssel, mit
falschem Status oder doppelt, Verweise auf Dokumente, die es nicht gibt, und Einstellungen, die ein Start bemängelt
oder ersetzt. Solange ihre Seiten geprüft werden, warten in einer SQLite-Datei alle, die schreiben.

  --files        sucht auch die Dateien der Dokumente auf den Laufwerken dieses Rechners
  --reparieren   baut fehlende Indexe
  --streng       auch Warnungen gelten als Fehler

Ergebnis: 0, wenn nichts fehlerhaft ist, sonst 1.
)";

int check(const Argumente& argumente, Konsole& konsole)
{
    Connection verbindung;
    verbindung.OpenAdresse(argumente.stelle(0));
    Engine& engine = verbindung.engine();
    Befund befund(konsole.aus);
    {
        Verlaufsanzeige anzeige(konsole);
        Dokumentschluessel schluessel;
        const auto part = [&](std::string_view what, const auto& work) { attempt(what, befund, work); };
        anzeige.schritt("Seiten und Indexe", 0, 0);
        part("Seiten und Indexe", [&] { checkPages(engine, befund); });
        part("Der Aufbau", [&] {
            pruefeSchema(engine, argumente.gesetzt("--reparieren") ? Indexe::Bauen : Indexe::Pruefen, befund);
        });
        checkCells(engine, befund, anzeige);
        part("Die Dokumente", [&] { pruefeDokumente(engine, befund, anzeige, schluessel); });
        part("Die Verbindungen", [&] { pruefeVerbindungen(engine, befund, anzeige, schluessel); });
        part("Die Tabelle Ini", [&] { pruefeIni(engine, befund); });
        if (argumente.gesetzt("--files"))
            part("Die Dateinamen", [&] { pruefeDateien(engine, befund, anzeige); });
    }
    konsole.aus << fmt::format("{} Fehler, {} Warnungen\n", befund.anzahlFehler(), befund.anzahlWarnungen());
    const bool gut = befund.anzahlFehler() == 0 && (befund.anzahlWarnungen() == 0 || !argumente.gesetzt("--streng"));
    return gut ? GUT : FEHLGESCHLAGEN;
}

} // namespace

const Befehl BEFEHL_CHECK{
    .name = "check", .kurz = "prüft ein Register", .hilfe = HILFE, .schalter = SCHALTER, .ausfuehren = check};

} // namespace quelvarn::tools
