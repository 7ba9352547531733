#include "base/file_path.h"
#include "base/number_format.h"
#include "sample/document_row.h"
#include "sample/sample_files.h"
#include "sample/sample_register.h"
#include "tools/commands.h"
#include "tools/new_register.h"

#include <array>
#include <fmt/format.h>

namespace quelvarn::tools {

namespace {

constexpr std::array OPTION{Option{"--documents", OptionValue::Needed}, Option{"--files", OptionValue::Needed},
                            Option{"--seed", OptionValue::Needed}, Option{"--replace"}};

constexpr std::string_view HELP =
    R"(Aufruf: qvadmin sample ZIEL [--documents ANZAHL] [--files ORDNER] [--seed ZAHL] [--replace]

Legt ein Register zum Ausprobieren an: Förderanlagen, Getriebe und Rahmen eines erfundenen Büros mit Stücklisten,
Zeichnungen, Normteilen, den Anwendern Meier, Schröder und Weber, ihren Filtern, Favoriten und Nachrichten.

  ZIEL          Pfad der neuen Datenbank oder Adresse postgresql://... einer Datenbank ohne Register
  --documents   Anzahl der Dokumente aller acht Tabellen zusammen (2000)
  --files       schreibt zu den ersten 5.000 Dokumenten kleine Dateien; der Ordner steht für Laufwerk W:
  --seed        Startzahl (1); dieselbe Zahl ergibt dasselbe Register
  --replace     Ein vorhandenes Register an dieser Stelle wird ersetzt.
)";

constexpr std::int64_t DEFAULT_COUNT = 2000;
constexpr std::int64_t COUNT_LIMIT = 10'000'000;

std::int64_t writeFiles(const sample::Documents& documents, std::string_view folder, Console& console)
{
    ProgressLine progress(console);
    return static_cast<std::int64_t>(sample::writeFiles(documents, pathFromUtf8(folder),
                                                        [&](std::uint64_t done) { progress.notify("Dateien", done); }));
}

int makeSample(const Arguments& arguments, Console& console)
{
    const auto count = arguments.findNumber("--documents", 1, COUNT_LIMIT).value_or(DEFAULT_COUNT);
    const auto start = arguments.findNumber("--seed", 0, INT64_MAX).value_or(1);
    catchCancel();
    const auto existing = arguments.set("--replace") ? Existing::Replace : Existing::Refuse;
    NewRegister reg(arguments.position(0), existing, console);
    const sample::Plan plan(static_cast<std::uint64_t>(count), static_cast<std::uint64_t>(start));
    const sample::Documents documents(plan);
    sample::writeSampleRegister(documents, reg);
    reg.commit();
    console.out << fmt::format("Register mit {} Dokumenten angelegt, zusammen {} Zeilen.\n", formatInteger(count),
                               formatInteger(static_cast<std::int64_t>(reg.rows())));
    if (const auto folder = arguments.findValue("--files"))
        console.out << fmt::format("{} Dateien geschrieben.\n", formatInteger(writeFiles(documents, *folder, console)));
    return GOOD;
}

} // namespace

const Command SAMPLE_COMMAND{.name = "sample",
                             .shortText = "legt ein Register zum Ausprobieren an",
                             .help = HELP,
                             .option = OPTION,
                             .execute = makeSample};

} // namespace quelvarn::tools
