#include "register/file_boxes.h"

#include "base/text.h"
#include "platform/meldungen.h"

namespace quelvarn {

void meldeDateiFehlt(Meldungen& meldungen, std::string_view pfad)
{
    meldungen.warnung("Im Verzeichnis nicht vorhanden", zeilen({
                                                            "Die Datei",
                                                            pfad,
                                                            "ist im Verzeichnis nicht vorhanden!",
                                                            "Mögliche Ursache:",
                                                            "- Falscher Pfad- und/oder Dateiname.",
                                                            "- Datei wurde im Verzeichnis gelöscht.",
                                                        }));
}

} // namespace quelvarn
