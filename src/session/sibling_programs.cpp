#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/boxes.h"
#include "platform/running_programs.h"
#include "session/program.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::string_view QUELVARN = "Quelvarn Version 2";
constexpr std::string_view HARVEL = "Harvel Version 2";
constexpr std::string_view TALVIK = "Talvik Version 2";

bool enthaelt(std::string_view titel, std::string_view kennung)
{
    return titel.find(kennung) != std::string_view::npos;
}

} // namespace

std::string versionstext()
{
    return fmt::format("    Quelvarn Version {}.{}.{}", VERSION_MAJOR, VERSION_MINOR, VERSION_REVISION);
}

std::string fenstertitel(const SessionState& session)
{
    return session.database.DatenbankPfad + versionstext();
}

int laufendeKopien(const Ports& ports)
{
    const std::vector<std::string> titel = ports.programme.fenstertitel();
    return static_cast<int>(
        std::count_if(titel.begin(), titel.end(), [](const std::string& t) { return enthaelt(t, QUELVARN); }));
}

bool CheckAlreadyRunning(const Ports& ports)
{
    try {
        // One of them is this program's own window.
        if (laufendeKopien(ports) < 2)
            return true;
    } catch (const Laufzeitfehler&) {
        ports.meldungen.warnung("'Quelvarn' bereits geöffnet?",
                                "Fehler beim Prüfen, ob 'Quelvarn' bereits geöffnet ist!");
        return true;
    }
    return ports.meldungen.frage(
        "'Quelvarn' ist bereits gestartet",
        zeilen({"'Quelvarn' ist bereits gestartet!", "", "Möchten Sie 'Quelvarn' erneut öffnen?."}));
}

bool CheckSiblingsRunning(const Ports& ports)
{
    try {
        for (const std::string& titel : ports.programme.fenstertitel()) {
            const bool harvel = enthaelt(titel, HARVEL);
            if (!harvel && !enthaelt(titel, TALVIK))
                continue;
            const std::string name = harvel ? "'Harvel'" : "'Talvik'";
            ports.meldungen.warnung(name + " ist gestartet",
                                    zeilen({name + " ist gestartet!", "",
                                            "Vor dem Wechsel der Datenbank muss " + name + " beendet werden."}));
            return true;
        }
    } catch (const Laufzeitfehler&) {
        ports.meldungen.warnung("'Harvel' oder 'Talvik' geöffnet",
                                "Fehler beim Prüfen, ob 'Harvel' oder 'Talvik' geöffnet ist!");
    }
    return false;
}

bool IsHarvelRunning(const Ports& ports)
{
    try {
        const std::vector<std::string> titel = ports.programme.fenstertitel();
        return std::any_of(titel.begin(), titel.end(), [](const std::string& t) { return enthaelt(t, HARVEL); });
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

} // namespace quelvarn
