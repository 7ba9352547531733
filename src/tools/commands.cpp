#include "tools/commands.h"

#include "base/file_path.h"
#include "base/runtime_error.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fmt/format.h>
#include <new>

namespace quelvarn::tools {

namespace {

const std::array<const Command*, 6> COMMANDS{&CREATE_COMMAND, &IMPORT_COMMAND, &SAMPLE_COMMAND,
                                             &CHECK_COMMAND,  &QUERY_COMMAND,  &RIGHTS_COMMAND};

constexpr std::string_view HELP = "--help";

std::string overview()
{
    std::string text = "Aufruf: qvadmin BEFEHL ...\n\nWerkzeug zur Verwaltung eines Dokumentenregisters.\n\n";
    for (const Command* command : COMMANDS)
        text += fmt::format("  {:<8} {}\n", command->name, command->shortText);
    text += "\nqvadmin BEFEHL --help zeigt, was ein Befehl kann.\n"
            "ZIEL ist der Pfad einer Datenbank oder eine Adresse postgresql://...\n"
            "Ergebnis: 0 gut, 1 Fehler, 2 falscher Aufruf.\n";
    return text;
}

int usageFault(Console& console, const Command& command, std::string_view text)
{
    const auto call = command.help.substr(0, command.help.find('\n'));
    console.log << fmt::format("{}\n{}\nMehr mit: qvadmin {} --help\n", text, call, command.name);
    return WRONG_OPERATED;
}

// A German sentence first; the words of an engine or of the system stand below it.
int tellFault(Console& console, std::string_view text)
{
    console.out.flush();
    console.log << "Fehler: " << text << '\n';
    return FAILED;
}

int execute(const Command& command, std::span<const std::string> words, Console& console)
{
    if (std::ranges::find(words, HELP) != words.end()) {
        console.out << command.help;
        return GOOD;
    }
    try {
        const Arguments arguments(words, command.option);
        if (arguments.count() < command.atLeast)
            return usageFault(console, command, "Es fehlt eine Angabe.");
        if (arguments.count() > command.atMost)
            return usageFault(console, command,
                              fmt::format("Eine Angabe zuviel: {}", arguments.position(command.atMost)));
        return command.execute(arguments, console);
    } catch (const UsageFault& fault) {
        return usageFault(console, command, fault.what());
    } catch (const RuntimeError& fault) {
        return tellFault(console, fault.what());
    } catch (const std::bad_alloc&) {
        return tellFault(console, "Der Arbeitsspeicher reicht nicht.");
    } catch (const std::filesystem::filesystem_error& fault) {
        return tellFault(console, fmt::format("Das Dateisystem lässt es nicht zu.\n{}\n{}", utf8FromPath(fault.path1()),
                                              fault.code().message()));
    } catch (const std::exception& fault) {
        return tellFault(console, fmt::format("Das ist ein Fehler des Programms selbst.\n{}", fault.what()));
    }
}

} // namespace

int execute(std::span<const std::string> words, Console& console)
{
    if (words.empty()) {
        console.log << overview();
        return WRONG_OPERATED;
    }
    if (words[0] == HELP) {
        console.out << overview();
        return GOOD;
    }
    const auto command = std::ranges::find(COMMANDS, words[0], &Command::name);
    if (command == COMMANDS.end()) {
        console.log << fmt::format("Unbekannter Befehl: {}\n\n{}", words[0], overview());
        return WRONG_OPERATED;
    }
    return execute(**command, words.subspan(1), console);
}

} // namespace quelvarn::tools
