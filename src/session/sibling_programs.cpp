#include "session/sibling_programs.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "platform/boxes.h"
#include "platform/running_programs.h"
#include "session/program_caption.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::string_view QUELVARN = "Quelvarn Version 2";
constexpr std::string_view HARVEL = "Harvel Version 2";
constexpr std::string_view TALVIK = "Talvik Version 2";

bool contains(std::string_view title, std::string_view addressCode)
{
    return title.find(addressCode) != std::string_view::npos;
}

} // namespace

int runningCopies(const Ports& ports)
{
    const std::vector<std::string> titles = ports.programs.windowTitles();
    return static_cast<int>(
        std::count_if(titles.begin(), titles.end(), [](const std::string& t) { return contains(t, QUELVARN); }));
}

bool CheckAlreadyRunning(const Ports& ports)
{
    try {
        // One of them is this program's own window.
        if (runningCopies(ports) < 2)
            return true;
    } catch (const RuntimeError&) {
        ports.boxes.warn("'Quelvarn' bereits geöffnet?", "Fehler beim Prüfen, ob 'Quelvarn' bereits geöffnet ist!");
        return true;
    }
    return ports.boxes.ask("'Quelvarn' ist bereits gestartet",
                           lines({"'Quelvarn' ist bereits gestartet!", "", "Möchten Sie 'Quelvarn' erneut öffnen?."}));
}

bool CheckSiblingsRunning(const Ports& ports)
{
    try {
        for (const std::string& title : ports.programs.windowTitles()) {
            const bool Harvel = contains(title, HARVEL);
            if (!Harvel && !contains(title, TALVIK))
                continue;
            const std::string name = Harvel ? "'Harvel'" : "'Talvik'";
            ports.boxes.warn(name + " ist gestartet",
                             lines({name + " ist gestartet!", "",
                                    "Vor dem Wechsel der Datenbank muss " + name + " beendet werden."}));
            return true;
        }
    } catch (const RuntimeError&) {
        ports.boxes.warn("'Harvel' oder 'Talvik' geöffnet",
                         "Fehler beim Prüfen, ob 'Harvel' oder 'Talvik' geöffnet ist!");
    }
    return false;
}

bool IsHarvelRunning(const Ports& ports)
{
    try {
        const std::vector<std::string> titles = ports.programs.windowTitles();
        return std::any_of(titles.begin(), titles.end(), [](const std::string& t) { return contains(t, HARVEL); });
    } catch (const RuntimeError&) {
        return false;
    }
}

} // namespace quelvarn
