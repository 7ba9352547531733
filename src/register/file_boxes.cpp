#include "register/file_boxes.h"

#include "base/text.h"
#include "platform/boxes.h"

namespace quelvarn {

void tellFileMissing(Boxes& boxes, std::string_view documentPath, std::string_view rat)
{
    std::string text = lines({
        "Die Datei",
        documentPath,
        "ist im Verzeichnis nicht vorhanden!",
        "Mögliche Ursache:",
        "- Falscher Pfad- und/oder Dateiname.",
        "- Datei wurde im Verzeichnis gelöscht.",
    });
    if (!rat.empty())
        text = lines({text, rat});
    boxes.warn(NOT_IN_DIRECTORY, text);
}

} // namespace quelvarn
