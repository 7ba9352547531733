#include "session/rights.h"

#include "base/text.h"
#include "platform/boxes.h"

#include <fmt/format.h>
#include <numeric>

namespace quelvarn {

namespace {

constexpr int CODE_ALLES = 6;
// The codes that a caller names for an owner; others mean somebody else's document.
constexpr int CODE_EIGENE_ZEILE = 1;
constexpr int CODE_EIGENE_DATEI = 5;

constexpr std::string_view ADMINISTRATOR = "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.";

bool bekannterStatus(int status)
{
    return status >= 0 && status < ANZAHL_STATUS;
}

void verweigere(Meldungen& meldungen, int status, bool besitzer, std::string_view woraus)
{
    const std::string anfang =
        fmt::format("Sie haben nicht die Berechtigung zum Löschen von Dateien mit Status {}", status);
    const std::string text =
        besitzer ? fmt::format("{} {}.\nDies gilt auch für Dateien, bei denen Sie als Besitzer eingetragen sind!",
                               anfang, woraus)
                 : fmt::format("{}\n {}, bei denen Sie nicht als Besitzer eingetragen sind!", anfang, woraus);
    meldungen.warnung(fmt::format("Keine Berechtigung zum Löschen bei Status {}", status),
                      zeilen({text, "", ADMINISTRATOR}));
}

} // namespace

void bildeStatusbereich(SessionState& session)
{
    session.rights.WhereStatus.clear();
    session.rights.AndStatus.clear();
    // The sum decides, not the six values.
    if (std::accumulate(session.rights.Sichtbar.begin(), session.rights.Sichtbar.end(), 0) == ANZAHL_STATUS)
        return;

    std::string bedingungen;
    for (int status = 0; status < ANZAHL_STATUS; ++status) {
        if (session.rights.Sichtbar[static_cast<std::size_t>(status)] != 1)
            continue;
        if (bedingungen.empty() && status > 0)
            bedingungen = fmt::format(" Status = {}", status);
        else
            bedingungen += fmt::format("{}Status = {}", bedingungen.empty() ? "" : " OR ", status);
    }
    session.rights.WhereStatus = " WHERE (" + bedingungen + ")";
    // Only behind AND does a first status 0 have a blank before it.
    session.rights.AndStatus = fmt::format(" AND ({}{})", session.rights.Sichtbar[0] == 1 ? " " : "", bedingungen);
}

bool PruefeLoeschenDB(const SessionState& session, Meldungen& meldungen, int Status, int CodeA, int CodeB)
{
    if (!bekannterStatus(Status))
        return true;
    const int recht = session.rights.LoeschRecht[static_cast<std::size_t>(Status)];
    if (recht == CodeA || recht == CodeB || recht == CODE_ALLES)
        return true;
    verweigere(meldungen, Status, CodeA == CODE_EIGENE_ZEILE, "aus der Datenbank");
    return false;
}

bool PruefeLoeschenDatei(const SessionState& session, Meldungen& meldungen, int Status, int Mindestcode)
{
    if (!bekannterStatus(Status) || session.rights.LoeschRecht[static_cast<std::size_t>(Status)] >= Mindestcode)
        return true;
    verweigere(meldungen, Status, Mindestcode == CODE_EIGENE_DATEI, "aus dem Verzeichnis");
    return false;
}

} // namespace quelvarn
