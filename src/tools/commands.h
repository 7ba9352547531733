#pragma once

#include "tools/arguments.h"
#include "tools/console.h"

#include <span>
#include <string>
#include <string_view>

namespace quelvarn::tools {

inline constexpr int GUT = 0;
inline constexpr int FEHLGESCHLAGEN = 1;
inline constexpr int FALSCH_BEDIENT = 2;

// One command of the program.
struct Befehl
{
    std::string_view name;
    std::string_view kurz;
    std::string_view hilfe;     // Whole text of --help; the first line is the call.
    std::size_t mindestens = 1; // Positional arguments.
    std::size_t hoechstens = 1;
    std::span<const Schalter> schalter;
    int (*ausfuehren)(const Argumente&, Konsole&);
};

extern const Befehl BEFEHL_CREATE;
extern const Befehl BEFEHL_IMPORT;
extern const Befehl BEFEHL_SAMPLE;
extern const Befehl BEFEHL_CHECK;
extern const Befehl BEFEHL_QUERY;
extern const Befehl BEFEHL_RIGHTS;

// Runs the command that the words name and reports what goes wrong. The exit code of the process.
int fuehreAus(std::span<const std::string> worte, Konsole& konsole);

} // namespace quelvarn::tools
