#include "base/text.h"
#include "database/connection.h"
#include "database/faults.h"
#include "database/sql/conditions.h"
#include "platform/boxes.h"
#include "platform/files.h"
#include "session/error_report.h"
#include "session/ini_reader/start_run.h"
#include "session/program.h"

#include <array>
#include <span>
#include <vector>

namespace quelvarn {

namespace {

struct Schritt
{
    std::string_view abschnitt;
    void (*lese)(Startlauf&);
};

constexpr std::array<Schritt, 19> SCHRITTE{{
    {"Lesen der Bezeichnungen", leseBezeichnungen},
    {"Lesen der Bezeichnungen", leseSuchtexte},
    {"Lesen der Namen der Sondertabellen", leseSondertabellen},
    {"Lesen Pfadname zum Versand- u. Plotverzeichnis", lesePlotPfad},
    {"Lesen der Einstellung zum Offline-Plotten 'Allgemein'", leseOfflineTool},
    {"Lesen der Einstellungen 'Printer' für 'Plotter/Drucker ermitteln'", lesePlotDrucker},
    {"Lesen der Einstellung 'PDF' für 'Plotter/Drucker ermitteln'", lesePdfDrucker},
    {"Lesen CheckInOut Ja/Nein", leseCheckInOut},
    {"Lesen Forward Ja/Nein", leseForward},
    {"Lesen ob Nachrichten sofort mitgeteilt werden.", leseNachricht},
    {"Lesen aktives Quelvarn Ja/Nein?", leseActiveQuelvarn},
    {"Lesen Zeitintervall", leseZeitintervall},
    {"Lesen Starttabelle", leseStarttabelle},
    {"Lesen der Einstellung der TREEVIEW des Anwenders.", leseTreeview},
    {"Lesen der Einstellung zum Offline-Plotten 'Anwender'", leseOfflineDaten},
    {"Lesen der ZIP-Daten 'Anwender'", leseZipDaten},
    {"Lesen Standardeinstellung Plotten", lesePlotVorgabe},
    {"Lesen Standardeinstellung PDF", lesePdfVorgabe},
    {"Erstellen der Recordsets", leseGespeicherteFilter},
}};

void meldeKeinRegister(Meldungen& meldungen)
{
    meldungen.warnung("Modul: Ini-Tabelle fehlt", "Es wurde keine Datenbank vom Typ 'Quelvarnis' ausgewählt\n"
                                                  "oder es fehlt die Ini-Tabelle in der Datenbank!");
}

std::string fehlertext(std::string_view pfad, std::string_view abschnitt)
{
    return zeilen({
        pfad,
        "",
        "Fehler beim Öffnen, Lesen oder Bearbeiten der Datenbank!",
        "",
        "Fehler bei: " + std::string(abschnitt),
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
void trenne(SessionState& session)
{
    session.use.CheckInOut = Recordset();
    session.database.Verbindung.Close();
}

// False when what lies there is no database at all.
bool verbinde(SessionState& session, const Dateien& dateien)
{
    trenne(session);
    const std::filesystem::path pfad = dateien.systempfad(session.database.DatenbankPfad);
    if (erkenneDatenbank(pfad) == DatenbankArt::Unbekannt)
        return false;
    session.database.Verbindung.Open(pfad);
    return true;
}

// By the user's rows of rights; whether there are any is another question.
bool isRegister(SessionState& session)
{
    try {
        Recordset zeilen;
        zeilen.Open(sql::Query("Ini").distinct().where(iniRows(session.user.Anwender, "Berechtigung")),
                    session.database.Verbindung);
        return true;
    } catch (const DatabaseFault& fehler) {
        if (fehler.kind() != FaultKind::Other) // It tells nothing of what lies there.
            throw;
        return false;
    } catch (const Laufzeitfehler&) {
        return false; // The table of settings cannot be read.
    }
}

// Most starts only look. The steps that miss rows, or find wrong ones, are repeated in one transaction that no other
// start enters meanwhile: one of the same user may have written them since. Boxes come while looking.
void run(Startlauf& lauf, std::span<const Schritt> steps)
{
    std::vector<Schritt> writing;
    for (const Schritt& step : steps) {
        lauf.abschnitt = step.abschnitt;
        lauf.ini.lookOnly();
        step.lese(lauf);
        if (lauf.ini.wantsToWrite())
            writing.push_back(step);
    }
    if (writing.empty())
        return;
    lauf.ini.writeAlone();
    for (const Schritt& step : writing) {
        lauf.abschnitt = step.abschnitt;
        step.lese(lauf);
    }
    lauf.ini.schliesseAb();
}

// False when the file is not a register; the session is filled otherwise.
bool liesRegister(SessionState& session, Ports& ports, std::string_view& abschnitt)
{
    abschnitt = "Verbindung zur Datenbank";
    if (!verbinde(session, ports.dateien))
        return false;
    Startlauf lauf{
        .session = session, .ports = ports, .abschnitt = abschnitt, .ini = IniZeilen(session.database.Verbindung)};
    return readRegister(lauf);
}

// Nothing that needs the register may seem to be there.
void verwirf(SessionState& session)
{
    trenne(session);
    session.database.DatenbankPfad.clear();
    session.use.CheckInOutOn = session.use.ForwardOn = session.pages.ActiveQuelvarn = false;
    setzeZeitintervall(session, 0);
}

} // namespace

bool readRegister(Startlauf& lauf)
{
    lauf.abschnitt = "Prüfen auf Quelvarnis-Datenbank";
    if (!isRegister(lauf.session))
        return false;

    // A new user is entered before he is greeted.
    run(lauf, std::array{Schritt{"Prüfen der Einträge", leseBerechtigung}});
    werteBerechtigungAus(lauf);
    run(lauf, SCHRITTE);
    return true;
}

bool Hauptprogramm(SessionState& session, Ports& ports)
{
    const std::string pfad = session.database.DatenbankPfad;
    std::string_view abschnitt;
    bool istRegister = false;
    const bool gelesen = gesichert(
        ports.meldungen, "Fehler beim Öffnen der Datenbank", [&] { return fehlertext(pfad, abschnitt); },
        [&] {
            try {
                istRegister = liesRegister(session, ports, abschnitt);
            } catch (...) {
                verwirf(session);
                throw;
            }
        });
    if (gelesen && !istRegister) {
        verwirf(session);
        meldeKeinRegister(ports.meldungen);
    }
    return gelesen && istRegister;
}

} // namespace quelvarn
