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

const std::array<const Befehl*, 6> BEFEHLE{&BEFEHL_CREATE, &BEFEHL_IMPORT, &BEFEHL_SAMPLE,
                                           &BEFEHL_CHECK,  &BEFEHL_QUERY,  &BEFEHL_RIGHTS};

constexpr std::string_view HILFE = "--help";

std::string uebersicht()
{
    std::string text = "Aufruf: qvadmin BEFEHL ...\n\nWerkzeug zur Verwaltung eines Dokumentenregisters.\n\n";
    for (const Befehl* befehl : BEFEHLE)
        text += fmt::format("  {:<8} {}\n", befehl->name, befehl->kurz);
    text += "\nqvadmin BEFEHL --help zeigt, was ein Befehl kann.\n"
            "ZIEL ist der Pfad einer Datenbank oder eine Adresse postgresql://...\n"
            "Ergebnis: 0 gut, 1 Fehler, 2 falscher Aufruf.\n";
    return text;
}

int bedienfehler(Konsole& konsole, const Befehl& befehl, std::string_view text)
{
    const auto aufruf = befehl.hilfe.substr(0, befehl.hilfe.find('\n'));
    konsole.meldungen << fmt::format("{}\n{}\nMehr mit: qvadmin {} --help\n", text, aufruf, befehl.name);
    return FALSCH_BEDIENT;
}

// A German sentence first; the words of an engine or of the system stand below it.
int fault(Konsole& konsole, std::string_view text)
{
    konsole.aus.flush();
    konsole.meldungen << "Fehler: " << text << '\n';
    return FEHLGESCHLAGEN;
}

int fuehreAus(const Befehl& befehl, std::span<const std::string> worte, Konsole& konsole)
{
    if (std::ranges::find(worte, HILFE) != worte.end()) {
        konsole.aus << befehl.hilfe;
        return GUT;
    }
    try {
        const Argumente argumente(worte, befehl.schalter);
        if (argumente.anzahl() < befehl.mindestens)
            return bedienfehler(konsole, befehl, "Es fehlt eine Angabe.");
        if (argumente.anzahl() > befehl.hoechstens)
            return bedienfehler(konsole, befehl,
                                fmt::format("Eine Angabe zuviel: {}", argumente.stelle(befehl.hoechstens)));
        return befehl.ausfuehren(argumente, konsole);
    } catch (const Bedienfehler& fehler) {
        return bedienfehler(konsole, befehl, fehler.what());
    } catch (const Laufzeitfehler& fehler) {
        return fault(konsole, fehler.what());
    } catch (const std::bad_alloc&) {
        return fault(konsole, "Der Arbeitsspeicher reicht nicht.");
    } catch (const std::filesystem::filesystem_error& fehler) {
        return fault(konsole, fmt::format("Das Dateisystem lässt es nicht zu.\n{}\n{}", utf8FromPath(fehler.path1()),
                                          fehler.code().message()));
    } catch (const std::exception& fehler) {
        return fault(konsole, fmt::format("Das ist ein Fehler des Programms selbst.\n{}", fehler.what()));
    }
}

} // namespace

int fuehreAus(std::span<const std::string> worte, Konsole& konsole)
{
    if (worte.empty()) {
        konsole.meldungen << uebersicht();
        return FALSCH_BEDIENT;
    }
    if (worte[0] == HILFE) {
        konsole.aus << uebersicht();
        return GUT;
    }
    const auto befehl = std::ranges::find(BEFEHLE, worte[0], &Befehl::name);
    if (befehl == BEFEHLE.end()) {
        konsole.meldungen << fmt::format("Unbekannter Befehl: {}\n\n{}", worte[0], uebersicht());
        return FALSCH_BEDIENT;
    }
    return fuehreAus(**befehl, worte.subspan(1), konsole);
}

} // namespace quelvarn::tools
