#include "base/file_path.h"
#include "base/number_format.h"
#include "sample/sample_files.h"
#include "sample/sample_register.h"
#include "tools/commands.h"
#include "tools/new_register.h"

#include <array>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

constexpr std::array SCHALTER{Schalter{"--documents", Wert::Noetig}, Schalter{"--files", Wert::Noetig},
                              Schalter{"--seed", Wert::Noetig}, Schalter{"--ersetzen"}};

constexpr std::string_view HILFE =
    R"(Aufruf: qvadmin sample ZIEL [--documents ANZAHL] [--files ORDNER] [--seed ZAHL] [--ersetzen]

Legt ein Register zum Ausprobieren an: Förderanlagen, Getriebe und Rahmen eines erfundenen Büros mit Stücklisten,
Zeichnungen, Normteilen, den Anwendern Meier, Schröder und Weber, ihren Filtern, Favoriten und Nachrichten.

  ZIEL          Pfad der neuen Datenbank oder Adresse postgresql://... einer Datenbank ohne Register
  --documents   Anzahl der Dokumente aller acht Tabellen zusammen (2000)
  --files       schreibt zu den ersten 5.000 Dokumenten kleine Dateien; der Ordner steht für Laufwerk W:
  --seed        Startzahl (1); dieselbe Zahl ergibt dasselbe Register
  --ersetzen    Ein vorhandenes Register an dieser Stelle wird ersetzt.
)";

constexpr std::int64_t ANZAHL_OHNE_ANGABE = 2000;
constexpr std::int64_t ANZAHL_HOECHSTENS = 10'000'000;

std::int64_t writeFiles(const sample::Dokumente& documents, std::string_view folder, Konsole& console)
{
    Verlaufsanzeige progress(console);
    return static_cast<std::int64_t>(sample::schreibeDateien(
        documents, pathFromUtf8(folder), [&](std::uint64_t done) { progress.melde("Dateien", done); }));
}

int makeSample(const Argumente& argumente, Konsole& konsole)
{
    const auto anzahl = argumente.findZahl("--documents", 1, ANZAHL_HOECHSTENS).value_or(ANZAHL_OHNE_ANGABE);
    const auto start = argumente.findZahl("--seed", 0, INT64_MAX).value_or(1);
    fangeAbbruch();
    const auto vorhandenes = argumente.gesetzt("--ersetzen") ? Vorhandenes::Ersetzen : Vorhandenes::Ablehnen;
    NeuesRegister reg(argumente.stelle(0), vorhandenes, konsole);
    const sample::Plan plan(static_cast<std::uint64_t>(anzahl), static_cast<std::uint64_t>(start));
    const sample::Dokumente dokumente(plan);
    sample::schreibeMusterregister(dokumente, reg);
    reg.schliesseAb();
    konsole.aus << fmt::format("Register mit {} Dokumenten angelegt, zusammen {} Zeilen.\n", formatGanzzahl(anzahl),
                               formatGanzzahl(static_cast<std::int64_t>(reg.zeilen())));
    if (const auto ordner = argumente.findWert("--files"))
        konsole.aus << fmt::format("{} Dateien geschrieben.\n",
                                   formatGanzzahl(writeFiles(dokumente, *ordner, konsole)));
    return GUT;
}

} // namespace

const Befehl BEFEHL_SAMPLE{.name = "sample",
                           .kurz = "legt ein Register zum Ausprobieren an",
                           .hilfe = HILFE,
                           .schalter = SCHALTER,
                           .ausfuehren = makeSample};

} // namespace quelvarn::tools
