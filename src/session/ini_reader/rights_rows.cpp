#include "base/collation.h"
#include "base/text.h"
#include "platform/boxes.h"
#include "session/ini_reader/start_run.h"
#include "session/rights.h"

#include <fmt/format.h>

namespace quelvarn {

namespace {

// A new user sees released and frozen documents and may delete nothing.
constexpr std::array<int, ANZAHL_STATUS> SICHTBAR_FUER_NEUE{0, 0, 0, 1, 1, 0};

std::string willkommen(std::string_view anwender)
{
    return zeilen({
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
        anwender,
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

void lies(SessionState& session, Recordset& zeilen)
{
    for (zeilen.MoveFirst(); !zeilen.Eof(); zeilen.MoveNext()) {
        const std::string schluessel = toLower(textOderLeer(zeilen, "Feld3"));
        for (std::size_t status = 0; status < session.rights.Sichtbar.size(); ++status) {
            if (schluessel != fmt::format("{}_status", status))
                continue;
            session.rights.Sichtbar[status] = zahlOderNull(zeilen, "Feld4");
            session.rights.LoeschRecht[status] = zahlOderNull(zeilen, "Feld5");
        }
    }
}

void trageEin(Startlauf& lauf)
{
    const std::string& anwender = lauf.session.user.Anwender;
    for (std::size_t status = 0; status < SICHTBAR_FUER_NEUE.size(); ++status)
        lauf.ini.fuegeAn(
            {anwender, "Berechtigung", fmt::format("{}_Status", status), SICHTBAR_FUER_NEUE[status] ? "1" : "0", "0"});
    lauf.ini.fuegeAn({anwender, "Sicherung", "BearbeitenVon"});
    lauf.ini.fuegeAn({anwender, "Sicherung", "SpeichernIn"});
    lauf.session.rights.Sichtbar = SICHTBAR_FUER_NEUE;
}

} // namespace

void leseBerechtigung(Startlauf& lauf)
{
    lauf.session.rights.Sichtbar.fill(0);
    lauf.session.rights.LoeschRecht.fill(0);
    Recordset zeilen = lauf.ini.zeilen(lauf.session.user.Anwender, "Berechtigung");
    lauf.newUser = zeilen.leer();
    lauf.abschnitt = lauf.newUser ? "Berechtigung eintragen" : "Berechtigung lesen";
    if (lauf.newUser)
        trageEin(lauf);
    else
        lies(lauf.session, zeilen);
}

void werteBerechtigungAus(Startlauf& lauf)
{
    if (lauf.newUser)
        lauf.ports.meldungen.hinweis("", willkommen(lauf.session.user.Anwender));
    lauf.abschnitt = "Berechtigung auswerten";
    bildeStatusbereich(lauf.session);
}

} // namespace quelvarn
