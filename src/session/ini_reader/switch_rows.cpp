#include "session/ini_reader/switch_rows.h"

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

constexpr std::int64_t GREATEST_INTERVAL = 65535;
constexpr std::string_view THIS_PROGRAM = "Quelvarn";

// An OnOff row of the installation: on at 1, with a box and off where there is none.
bool readOption(StartRun& run, std::string_view key, std::string_view check1, std::string_view check2)
{
    Recordset rows = run.ini.distinct({"Feld4"}, OWNER_ALL, "OnOff", key);
    if (!rows.empty())
        return numberOrZero(rows, "Feld4") == 1;

    run.ports.boxes.warn(
        "Modul: Falscher oder fehlender Eintrag Ini-Tabelle",
        quelvarn::lines({
            fmt::format("Falscher oder fehlender Eintrag bei 'OnOff' u. '{}' in der Ini-Tabelle!", key),
            "Die im Intervall vorgenommene Überprüfung von:",
            check1,
            check2,
            "wird nicht durchgeführt.",
            "Eintrag muss lauten:",
            "Spalte 'Feld1' = '!QV_Ini'",
            "Spalte 'Feld2' = 'OnOff'",
            fmt::format("Spalte 'Feld3' = '{}'", key),
            "Spalte 'Feld4' = '1' für Ja oder '0' für Nein",
        }));
    return false;
}

bool openUseRegistry(OpenDatabase& database, UseSettings& use)
{
    try {
        use.CheckInOut.Open("Select * From CheckInOut", database.connection, CursorType::Dynamic, LockType::Optimistic);
        return true;
    } catch (const DatabaseFault& fault) {
        if (fault.kind() != FaultKind::Other)
            throw;
        return false;
    } catch (const RuntimeError&) {
        return false; // A register without this table works, only nobody sees who uses what.
    }
}

// True when this program tells the user at once, and not the other one does already.
bool tellsAtOnce(StartRun& run, std::string_view key)
{
    Recordset rows = run.ini.rows(run.session.user.Anwender, "Nachricht", key);
    if (rows.empty()) {
        run.ini.append({run.session.user.Anwender, "Nachricht", key, THIS_PROGRAM, "1"});
        return true;
    }
    int own = 0;
    int other = 0;
    for (; !rows.eof(); rows.MoveNext()) {
        const bool ownRow = equalText(requiredText(rows, "Feld4"), THIS_PROGRAM);
        (ownRow ? own : other) = numberOrZero(rows, "Feld5");
    }
    return other != 1 && own != 0;
}

} // namespace

void readCheckInOut(StartRun& run)
{
    run.session.use.CheckInOutOn =
        readOption(run, "CheckInOut", "- Beendigung 'In Arbeit'", "- Beendigung 'In Durchsicht'") &&
        openUseRegistry(run.session.database, run.session.use);
}

void readForward(StartRun& run)
{
    // Forwarding lives in the table of the use registry, whether or not that is kept itself.
    run.session.use.ForwardOn =
        readOption(run, "Forward", "- Weiterleiten von Dokumenten", "- Workflow") &&
        (run.session.use.CheckInOutOn || openUseRegistry(run.session.database, run.session.use));
}

void readMessageSwitches(StartRun& run)
{
    if (!run.session.use.ForwardOn)
        return;
    run.session.use.MeldenWeiterleiten = tellsAtOnce(run, "Weiterleiten");
    run.session.use.MeldenWorkflow = tellsAtOnce(run, "Workflow");
}

void readActiveQuelvarn(StartRun& run)
{
    const std::string& user = run.session.user.Anwender;
    Recordset rows = run.ini.activeQuelvarn(user);
    run.session.pages.ActiveQuelvarn = !rows.empty() && requiredText(rows, "Feld3") == "1";
    if (rows.empty())
        run.ini.append({user, "ActiveQuelvarn", "0"});
}

void setZeitintervall(UseSettings& use, int milliseconds)
{
    use.Zeitintervall = milliseconds;
    use.ZeitintervallText = fmt::format(" (Zeitintervall = {} Sek.)", formatSeconds(milliseconds / 1000.0));
}

void readZeitintervall(StartRun& run)
{
    Recordset rows;
    rows.Open("SELECT DISTINCT Feld4 FROM Ini WHERE  Feld1 = '!QV_Ini' AND Feld2 = 'WriteDB' AND "
              "(Feld3 = 'Zeitinterval' Or Feld3 = 'Timeinterval')",
              run.session.database.connection);
    std::int64_t value = 0;
    if (!rows.empty())
        value = wholeNumber(rows.field("Feld4"), 0, std::numeric_limits<std::int32_t>::max()).value_or(0);
    if (value > GREATEST_INTERVAL) {
        run.ports.boxes.warn("Zeitintervall", "Der Maximalwert für den Zeitintervall ist 65.535");
        value = GREATEST_INTERVAL;
    }
    setZeitintervall(run.session.use, static_cast<int>(value));
}

void readStarttabelle(StartRun& run)
{
    std::string& table = run.session.pages.Starttabelle;
    table = DOCUMENT_TYPES.front().plural;
    Recordset rows = run.ini.rows(run.session.user.Anwender, "Starttabelle");
    if (rows.empty())
        return run.ini.append({run.session.user.Anwender, "Starttabelle", table});

    const std::string wish = requiredText(rows, "Feld3");
    const bool known = std::any_of(DOCUMENT_TYPES.begin(), DOCUMENT_TYPES.end(), [&](const DocumentType& type) {
        return type.specialTable == 0 && type.plural == wish;
    });
    if (known)
        table = wish;
}

void readTreeview(StartRun& run)
{
    Recordset rows = run.ini.rows(run.session.user.Anwender, "Treeview");
    run.session.Tree = {};
    for (const TreeSwitchRow& option : TREE_SWITCHES) {
        if (!rows.empty())
            rows.MoveFirst();
        while (!rows.eof() && !equalText(textOrEmpty(rows, "Feld3"), option.key))
            rows.MoveNext();
        if (rows.eof()) {
            run.ini.append({run.session.user.Anwender, "Treeview", option.key, "1", option.note});
            continue;
        }
        // A wrong value is mended in the table, yet the switch stays on for this session.
        const std::string value = textOrEmpty(rows, "Feld4");
        run.session.Tree.*option.field = value != "0";
        if (value != "0" && value != "1")
            run.ini.update(rows, "Feld4", option.mendedValue);
    }
}

} // namespace quelvarn
