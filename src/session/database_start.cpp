#include "session/database_start.h"

#include "base/text.h"
#include "database/connection.h"
#include "database/faults.h"
#include "database/sql/conditions.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "session/error_report.h"
#include "session/ini_reader/label_rows.h"
#include "session/ini_reader/order_rows.h"
#include "session/ini_reader/plot_rows.h"
#include "session/ini_reader/print_defaults.h"
#include "session/ini_reader/rights_rows.h"
#include "session/ini_reader/saved_filter_rows.h"
#include "session/ini_reader/start_run.h"
#include "session/ini_reader/switch_rows.h"

#include <array>
#include <span>
#include <vector>

namespace quelvarn {

namespace {

struct Step
{
    std::string_view section;
    void (*read)(StartRun&);
};

constexpr std::array<Step, 19> STEPS{{
    {"Lesen der Bezeichnungen", readLabels},
    {"Lesen der Bezeichnungen", readSearchTexts},
    {"Lesen der Namen der Sondertabellen", readSpecialTables},
    {"Lesen Pfadname zum Versand- u. Plotverzeichnis", readPlotPfad},
    {"Lesen der Einstellung zum Offline-Plotten 'Allgemein'", readOfflineTool},
    {"Lesen der Einstellungen 'Printer' für 'Plotter/Drucker ermitteln'", readPlotDrucker},
    {"Lesen der Einstellung 'PDF' für 'Plotter/Drucker ermitteln'", readPdfDrucker},
    {"Lesen CheckInOut Ja/Nein", readCheckInOut},
    {"Lesen Forward Ja/Nein", readForward},
    {"Lesen ob Nachrichten sofort mitgeteilt werden.", readMessageSwitches},
    {"Lesen aktives Quelvarn Ja/Nein?", readActiveQuelvarn},
    {"Lesen Zeitintervall", readZeitintervall},
    {"Lesen Starttabelle", readStarttabelle},
    {"Lesen der Einstellung der TREEVIEW des Anwenders.", readTreeview},
    {"Lesen der Einstellung zum Offline-Plotten 'Anwender'", readOfflineData},
    {"Lesen der ZIP-Daten 'Anwender'", readZipData},
    {"Lesen Standardeinstellung Plotten", readPlotDefaults},
    {"Lesen Standardeinstellung PDF", readPdfDefaults},
    {"Erstellen der Recordsets", readSavedFilters},
}};

void tellNoRegister(Boxes& boxes)
{
    boxes.warn("Modul: Ini-Tabelle fehlt", "Es wurde keine Datenbank vom Typ 'Quelvarnis' ausgewählt\n"
                                           "oder es fehlt die Ini-Tabelle in der Datenbank!");
}

std::string faultText(std::string_view path, std::string_view section)
{
    return lines({
        path,
        "",
        "Fehler beim Öffnen, Lesen oder Bearbeiten der Datenbank!",
        "",
        "Fehler bei: " + std::string(section),
        "",
        "Mögliche Ursache:",
        "- Datenbank ist schreibgeschützt.",
        "- Vergleichen sie den Aufbau ihrer Tabellen mit der neuesten Template.",
        "- Falscher Eintrag beim Editieren der Ini-Tabelle.",
        "- Sie benutzen ein älteres Format von Access.",
        "- Alle Benutzer der Datenbank benötigen 'Vollzugriff'.",
        "   Überprüfen Sie die Sicherheitseinstellungen der Datenbank.",
    });
}

// Lets go of everything that stood on the connection, and of the connection.
void separate(SessionState& session)
{
    session.use.CheckInOut = Recordset();
    session.database.connection.Close();
}

// False when what lies there is no database at all.
bool connect(SessionState& session, const Files& files)
{
    separate(session);
    const std::filesystem::path path = files.systemPath(session.database.DatenbankPfad);
    if (recognizeDatabase(path) == DatabaseKind::Unknown)
        return false;
    session.database.connection.Open(path);
    return true;
}

// By the user's rows of rights; whether there are any is another question.
bool isRegister(SessionState& session)
{
    try {
        Recordset rows;
        rows.Open(sql::Query("Ini").distinct().where(iniRows(session.user.Anwender, "Berechtigung")),
                  session.database.connection);
        return true;
    } catch (const DatabaseFault& fault) {
        if (fault.kind() != FaultKind::Other) // It tells nothing of what lies there.
            throw;
        return false;
    } catch (const RuntimeError&) {
        return false; // The table of settings cannot be read.
    }
}

// Most starts only look. The steps that miss rows, or find wrong ones, are repeated in one transaction that no other
// start enters meanwhile: one of the same user may have written them since. Boxes come while looking.
void runSteps(StartRun& run, std::span<const Step> steps)
{
    std::vector<Step> writing;
    for (const Step& step : steps) {
        run.section = step.section;
        run.ini.lookOnly();
        step.read(run);
        if (run.ini.wantsToWrite())
            writing.push_back(step);
    }
    if (writing.empty())
        return;
    run.ini.writeAlone();
    for (const Step& step : writing) {
        run.section = step.section;
        step.read(run);
    }
    run.ini.commit();
}

// False when the file is not a register; the session is filled otherwise.
bool liesRegister(SessionState& session, Ports& ports, std::string_view& section)
{
    section = "Verbindung zur Datenbank";
    if (!connect(session, ports.files))
        return false;
    StartRun run{.session = session, .ports = ports, .section = section, .ini = IniRows(session.database.connection)};
    return readRegister(run);
}

// Nothing that needs the register may seem to be there.
void discard(SessionState& session)
{
    separate(session);
    session.database.DatenbankPfad.clear();
    session.use.CheckInOutOn = session.use.ForwardOn = session.pages.ActiveQuelvarn = false;
    setZeitintervall(session.use, 0);
}

} // namespace

bool readRegister(StartRun& run)
{
    run.section = "Prüfen auf Quelvarnis-Datenbank";
    if (!isRegister(run.session))
        return false;

    // A new user is entered before he is greeted.
    runSteps(run, std::array{Step{"Prüfen der Einträge", readRights}});
    applyRights(run);
    runSteps(run, STEPS);
    return true;
}

bool Hauptprogramm(SessionState& session, Ports& ports)
{
    const std::string path = session.database.DatenbankPfad;
    std::string_view section;
    bool isRegister = false;
    const bool read = guarded(
        ports.boxes, "Fehler beim Öffnen der Datenbank", [&] { return faultText(path, section); },
        [&] {
            try {
                isRegister = liesRegister(session, ports, section);
            } catch (...) {
                discard(session);
                throw;
            }
        });
    if (read && !isRegister) {
        discard(session);
        tellNoRegister(ports.boxes);
    }
    return read && isRegister;
}

} // namespace quelvarn
