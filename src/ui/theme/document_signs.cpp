#include "ui/theme/document_signs.h"

#include "base/windows_path.h"

namespace quelvarn {

std::string_view dokumentzeichen(std::string_view filename)
{
    switch (dateiTypCode(filename)) {
    case 1:
        return "bauteil";
    case 2:
        return "zeichnung";
    case 3:
        return "baugruppe";
    case 4:
        return "blechteil";
    case 6:
        return "schweissteil";
    default:
        return "datei";
    }
}

} // namespace quelvarn
