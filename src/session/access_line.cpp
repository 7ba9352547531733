#include "session/access_line.h"

#include "session/session_state.h"

#include <algorithm>

namespace quelvarn {

std::string accessLine(const Rights& rights)
{
    constexpr std::string_view HEADING = "Zugriffsberechtigung:             ";
    if (rights.seesAllStatuses())
        return std::string(HEADING) + "Alle Stati von 0 bis 5";

    const bool only = std::count(rights.Sichtbar.begin(), rights.Sichtbar.end(), 1) == 1;
    if (only && rights.Sichtbar[3] == 1)
        return std::string(HEADING) + "3=Freigegeben";
    if (only && rights.Sichtbar[4] == 1)
        return std::string(HEADING) + "4=Festgeschr.";

    std::string text = "Berechtigung:";
    for (std::size_t status = 0; status < STATUS.size(); ++status)
        if (rights.Sichtbar[status] == 1)
            text += STATUS[status].shortText;
    return text;
}

} // namespace quelvarn
