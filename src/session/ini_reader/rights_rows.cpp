#include "session/ini_reader/rights_rows.h"

#include "base/collation.h"
#include "base/text.h"
#include "platform/boxes.h"
#include "session/ini_reader/start_run.h"
#include "session/rights.h"

#include <fmt/format.h>

namespace quelvarn {

namespace {

// A new user sees released and frozen documents and may delete nothing.
constexpr std::array<int, STATUS_COUNT> VISIBLE_FOR_NEW{0, 0, 0, 1, 1, 0};

std::string welcome(std::string_view user)
{
    return lines({
        "*******************************",
        "",
        "                 W i l l k o m m e n",
        "",
        "                          bei",
        "",
        "                 Q u e l v a r n i s",
        "",
        "*******************************",
        "",
        "Sie werden als Anwender:",
        "",
        user,
        "",
        "in Quelvarnis angemeldet.",
        "",
        "Ihre Berechtigung ist:",
        "     0 (Verfügbar)            Nein",
        "     1 (In Arbeit)              Nein",
        "     2 (Wird geprüft)        Nein",
        "     3 (Freigegeben)        Ja",
        "     4 (Festgeschrieben)  Ja",
        "     5 (Ungültig)               Nein",
    });
}

void read(Rights& rights, Recordset& rows)
{
    for (rows.MoveFirst(); !rows.eof(); rows.MoveNext()) {
        const std::string key = toLower(textOrEmpty(rows, "Feld3"));
        for (std::size_t status = 0; status < rights.Sichtbar.size(); ++status) {
            if (key != fmt::format("{}_status", status))
                continue;
            rights.Sichtbar[status] = numberOrZero(rows, "Feld4");
            rights.LoeschRecht[status] = numberOrZero(rows, "Feld5");
        }
    }
}

void add(StartRun& run)
{
    const std::string& user = run.session.user.Anwender;
    for (std::size_t status = 0; status < VISIBLE_FOR_NEW.size(); ++status)
        run.ini.append(
            {user, "Berechtigung", fmt::format("{}_Status", status), VISIBLE_FOR_NEW[status] ? "1" : "0", "0"});
    run.ini.append({user, "Sicherung", "BearbeitenVon"});
    run.ini.append({user, "Sicherung", "SpeichernIn"});
    run.session.rights.Sichtbar = VISIBLE_FOR_NEW;
}

} // namespace

void readRights(StartRun& run)
{
    run.session.rights.Sichtbar.fill(0);
    run.session.rights.LoeschRecht.fill(0);
    Recordset rows = run.ini.rows(run.session.user.Anwender, "Berechtigung");
    run.newUser = rows.empty();
    run.section = run.newUser ? "Berechtigung eintragen" : "Berechtigung lesen";
    if (run.newUser)
        add(run);
    else
        read(run.session.rights, rows);
}

void applyRights(StartRun& run)
{
    if (run.newUser)
        run.ports.boxes.tell("", welcome(run.session.user.Anwender));
    run.section = "Berechtigung auswerten";
    formStatusSection(run.session.rights);
}

} // namespace quelvarn
