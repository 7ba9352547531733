#include "session/session_state.h"

#include <algorithm>

namespace quelvarn {

std::string zugriffstext(const SessionState& session)
{
    constexpr std::string_view KOPF = "Zugriffsberechtigung:             ";
    if (session.rights.siehtAlleStati())
        return std::string(KOPF) + "Alle Stati von 0 bis 5";

    const bool einziger = std::count(session.rights.Sichtbar.begin(), session.rights.Sichtbar.end(), 1) == 1;
    if (einziger && session.rights.Sichtbar[3] == 1)
        return std::string(KOPF) + "3=Freigegeben";
    if (einziger && session.rights.Sichtbar[4] == 1)
        return std::string(KOPF) + "4=Festgeschr.";

    std::string text = "Berechtigung:";
    for (std::size_t status = 0; status < STATUS.size(); ++status)
        if (session.rights.Sichtbar[status] == 1)
            text += STATUS[status].kurz;
    return text;
}

} // namespace quelvarn
