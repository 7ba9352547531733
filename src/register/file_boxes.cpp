#include "register/file_boxes.h"

#include "base/text.h"
#include "platform/boxes.h"

namespace quelvarn {

void meldeDateiFehlt(Meldungen& meldungen, std::string_view pfad, std::string_view rat)
{
    std::string text = zeilen({
        "Die Datei",
        pfad,
        "ist im Verzeichnis nicht vorhanden!",
        "Mögliche Ursache:",
        "- Falscher Pfad- und/oder Dateiname.",
        "- Datei wurde im Verzeichnis gelöscht.",
    });
    if (!rat.empty())
        text = zeilen({text, rat});
    meldungen.warnung(NICHT_IM_VERZEICHNIS, text);
}

} // namespace quelvarn
