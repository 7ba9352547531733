#include "session/rights.h"

#include "base/text.h"
#include "platform/boxes.h"

#include <fmt/format.h>
#include <numeric>

namespace quelvarn {

namespace {

constexpr int CODE_ALL = 6;
// The codes that a caller names for an owner; others mean somebody else's document.
constexpr int CODE_OWN_ROW = 1;
constexpr int CODE_OWN_FILE = 5;

constexpr std::string_view ADMINISTRATOR = "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.";

bool knownStatus(int status)
{
    return status >= 0 && status < STATUS_COUNT;
}

void refuse(Boxes& boxes, int status, bool owner, std::string_view ofWhat)
{
    const std::string begin =
        fmt::format("Sie haben nicht die Berechtigung zum Löschen von Dateien mit Status {}", status);
    const std::string text =
        owner ? fmt::format("{} {}.\nDies gilt auch für Dateien, bei denen Sie als Besitzer eingetragen sind!", begin,
                            ofWhat)
              : fmt::format("{}\n {}, bei denen Sie nicht als Besitzer eingetragen sind!", begin, ofWhat);
    boxes.warn(fmt::format("Keine Berechtigung zum Löschen bei Status {}", status), lines({text, "", ADMINISTRATOR}));
}

} // namespace

void formStatusSection(Rights& rights)
{
    rights.WhereStatus.clear();
    rights.AndStatus.clear();
    // The sum decides, not the six values.
    if (std::accumulate(rights.Sichtbar.begin(), rights.Sichtbar.end(), 0) == STATUS_COUNT)
        return;

    std::string conditions;
    for (int status = 0; status < STATUS_COUNT; ++status) {
        if (rights.Sichtbar[static_cast<std::size_t>(status)] != 1)
            continue;
        if (conditions.empty() && status > 0)
            conditions = fmt::format(" Status = {}", status);
        else
            conditions += fmt::format("{}Status = {}", conditions.empty() ? "" : " OR ", status);
    }
    rights.WhereStatus = " WHERE (" + conditions + ")";
    // Only behind AND does a first status 0 have a blank before it.
    rights.AndStatus = fmt::format(" AND ({}{})", rights.Sichtbar[0] == 1 ? " " : "", conditions);
}

bool PruefeLoeschenDB(const Rights& rights, Boxes& boxes, int Status, int CodeA, int CodeB)
{
    if (!knownStatus(Status))
        return true;
    const int right = rights.LoeschRecht[static_cast<std::size_t>(Status)];
    if (right == CodeA || right == CodeB || right == CODE_ALL)
        return true;
    refuse(boxes, Status, CodeA == CODE_OWN_ROW, "aus der Datenbank");
    return false;
}

bool PruefeLoeschenDatei(const Rights& rights, Boxes& boxes, int Status, int Mindestcode)
{
    if (!knownStatus(Status) || rights.LoeschRecht[static_cast<std::size_t>(Status)] >= Mindestcode)
        return true;
    refuse(boxes, Status, Mindestcode == CODE_OWN_FILE, "aus dem Verzeichnis");
    return false;
}

} // namespace quelvarn
