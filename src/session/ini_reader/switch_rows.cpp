#include "base/collation.h"
#include "base/number_format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/document_types.h"
#include "database/faults.h"
#include "platform/boxes.h"
#include "session/ini_reader/start_run.h"
#include "session/tree_switches.h"

#include <algorithm>
#include <fmt/format.h>
#include <limits>

namespace quelvarn {

namespace {

constexpr std::int64_t GROESSTES_INTERVALL = 65535;
constexpr std::string_view DIESES_PROGRAMM = "Quelvarn";

// An OnOff row of the installation: on at 1, with a box and off where there is none.
bool leseSchalter(Startlauf& lauf, std::string_view schluessel, std::string_view pruefung1, std::string_view pruefung2)
{
    Recordset zeilen = lauf.ini.verschiedene({"Feld4"}, EIGENTUEMER_ALLE, "OnOff", schluessel);
    if (!zeilen.leer())
        return zahlOderNull(zeilen, "Feld4") == 1;

    lauf.ports.meldungen.warnung(
        "Modul: Falscher oder fehlender Eintrag Ini-Tabelle",
        quelvarn::zeilen({
            fmt::format("Falscher oder fehlender Eintrag bei 'OnOff' u. '{}' in der Ini-Tabelle!", schluessel),
            "Die im Intervall vorgenommene Überprüfung von:",
            pruefung1,
            pruefung2,
            "wird nicht durchgeführt.",
            "Eintrag muss lauten:",
            "Spalte 'Feld1' = '!QV_Ini'",
            "Spalte 'Feld2' = 'OnOff'",
            fmt::format("Spalte 'Feld3' = '{}'", schluessel),
            "Spalte 'Feld4' = '1' für Ja oder '0' für Nein",
        }));
    return false;
}

bool oeffneNutzungsregister(SessionState& session)
{
    try {
        session.use.CheckInOut.Open("Select * From CheckInOut", session.database.Verbindung, CursorTyp::Dynamisch,
                                    SperrTyp::Optimistisch);
        return true;
    } catch (const DatabaseFault& fault) {
        if (fault.kind() != FaultKind::Other)
            throw;
        return false;
    } catch (const Laufzeitfehler&) {
        return false; // A register without this table works, only nobody sees who uses what.
    }
}

// True when this program tells the user at once, and not the other one does already.
bool meldetSofort(Startlauf& lauf, std::string_view schluessel)
{
    Recordset zeilen = lauf.ini.zeilen(lauf.session.user.Anwender, "Nachricht", schluessel);
    if (zeilen.leer()) {
        lauf.ini.fuegeAn({lauf.session.user.Anwender, "Nachricht", schluessel, DIESES_PROGRAMM, "1"});
        return true;
    }
    int eigener = 0;
    int anderer = 0;
    for (; !zeilen.Eof(); zeilen.MoveNext()) {
        const bool eigeneZeile = equalText(pflichttext(zeilen, "Feld4"), DIESES_PROGRAMM);
        (eigeneZeile ? eigener : anderer) = zahlOderNull(zeilen, "Feld5");
    }
    return anderer != 1 && eigener != 0;
}

} // namespace

void leseCheckInOut(Startlauf& lauf)
{
    lauf.session.use.CheckInOutOn =
        leseSchalter(lauf, "CheckInOut", "- Beendigung 'In Arbeit'", "- Beendigung 'In Durchsicht'") &&
        oeffneNutzungsregister(lauf.session);
}

void leseForward(Startlauf& lauf)
{
    // Forwarding lives in the table of the use registry, whether or not that is kept itself.
    lauf.session.use.ForwardOn = leseSchalter(lauf, "Forward", "- Weiterleiten von Dokumenten", "- Workflow") &&
                                 (lauf.session.use.CheckInOutOn || oeffneNutzungsregister(lauf.session));
}

void leseNachricht(Startlauf& lauf)
{
    if (!lauf.session.use.ForwardOn)
        return;
    lauf.session.use.MeldenWeiterleiten = meldetSofort(lauf, "Weiterleiten");
    lauf.session.use.MeldenWorkflow = meldetSofort(lauf, "Workflow");
}

void leseActiveQuelvarn(Startlauf& lauf)
{
    const std::string& anwender = lauf.session.user.Anwender;
    Recordset zeilen = lauf.ini.activeQuelvarn(anwender);
    lauf.session.pages.ActiveQuelvarn = !zeilen.leer() && pflichttext(zeilen, "Feld3") == "1";
    if (zeilen.leer())
        lauf.ini.fuegeAn({anwender, "ActiveQuelvarn", "0"});
}

void setzeZeitintervall(SessionState& session, int millisekunden)
{
    session.use.Zeitintervall = millisekunden;
    session.use.ZeitintervallText = fmt::format(" (Zeitintervall = {} Sek.)", formatSekunden(millisekunden / 1000.0));
}

void leseZeitintervall(Startlauf& lauf)
{
    Recordset zeilen;
    zeilen.Open("SELECT DISTINCT Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND Feld2 = 'WriteDB' AND "
                "(Feld3 = 'Zeitinterval' Or Feld3 = 'Timeinterval')",
                lauf.session.database.Verbindung);
    std::int64_t wert = 0;
    if (!zeilen.leer())
        wert = wholeNumber(zeilen.Feld("Feld4"), 0, std::numeric_limits<std::int32_t>::max()).value_or(0);
    if (wert > GROESSTES_INTERVALL) {
        lauf.ports.meldungen.warnung("Zeitintervall", "Der Maximalwert für den Zeitintervall ist 65.535");
        wert = GROESSTES_INTERVALL;
    }
    setzeZeitintervall(lauf.session, static_cast<int>(wert));
}

void leseStarttabelle(Startlauf& lauf)
{
    std::string& tabelle = lauf.session.pages.Starttabelle;
    tabelle = DOKUTYPEN.front().mehrzahl;
    Recordset zeilen = lauf.ini.zeilen(lauf.session.user.Anwender, "Starttabelle");
    if (zeilen.leer())
        return lauf.ini.fuegeAn({lauf.session.user.Anwender, "Starttabelle", tabelle});

    const std::string wunsch = pflichttext(zeilen, "Feld3");
    const bool bekannt = std::any_of(DOKUTYPEN.begin(), DOKUTYPEN.end(), [&](const DokuTyp& typ) {
        return typ.sondertabelle == 0 && typ.mehrzahl == wunsch;
    });
    if (bekannt)
        tabelle = wunsch;
}

void leseTreeview(Startlauf& lauf)
{
    Recordset zeilen = lauf.ini.zeilen(lauf.session.user.Anwender, "Treeview");
    lauf.session.Tree = {};
    for (const Baumschalterzeile& schalter : BAUMSCHALTER) {
        if (!zeilen.leer())
            zeilen.MoveFirst();
        while (!zeilen.Eof() && !equalText(textOderLeer(zeilen, "Feld3"), schalter.schluessel))
            zeilen.MoveNext();
        if (zeilen.Eof()) {
            lauf.ini.fuegeAn({lauf.session.user.Anwender, "Treeview", schalter.schluessel, "1", schalter.notiz});
            continue;
        }
        // A wrong value is mended in the table, yet the switch stays on for this session.
        const std::string wert = textOderLeer(zeilen, "Feld4");
        lauf.session.Tree.*schalter.feld = wert != "0";
        if (wert != "0" && wert != "1")
            lauf.ini.aendere(zeilen, "Feld4", schalter.heilwert);
    }
}

} // namespace quelvarn
