#include "session/access_line.h"

#include "session/session_state.h"

#include <algorithm>

namespace quelvarn {

std::string accessLine(const SessionState& session)
{
    constexpr std::string_view HEADING = "Zugriffsberechtigung:             ";
    if (session.rights.seesAllStatuses())
        return std::string(HEADING) + "Alle Stati von 0 bis 5";

    const bool only = std::count(session.rights.Sichtbar.begin(), session.rights.Sichtbar.end(), 1) == 1;
    if (only && session.rights.Sichtbar[3] == 1)
        return std::string(HEADING) + "3=Freigegeben";
    if (only && session.rights.Sichtbar[4] == 1)
        return std::string(HEADING) + "4=Festgeschr.";

    std::string text = "Berechtigung:";
    for (std::size_t status = 0; status < STATUS.size(); ++status)
        if (session.rights.Sichtbar[status] == 1)
            text += STATUS[status].shortText;
    return text;
}

} // namespace quelvarn
