#include "session/program_start.h"

#include "base/text.h"
#include "base/utf8.h"
#include "platform/boxes.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "session/database_start.h"
#include "session/error_report.h"
#include "session/local_settings.h"

namespace quelvarn {

namespace {

constexpr std::size_t NAME_LENGTH = 25; // What the columns of the use registry take.
constexpr int HEIGHT_STANDARD = 10090;
constexpr int HEIGHT_VERSION_5_1 = 10150;

void readEnvironment(SessionState& session, const Environment& environment)
{
    const SystemVersion version = environment.systemVersion();
    session.user.OsVersionMajor = version.major;
    session.user.OsVersionMinor = version.minor;
    session.user.OsPlatform = version.platform;
    const bool version51 = version.major == "5" && version.minor == "1" && version.platform == 2;
    session.user.FensterHoehe = version51 ? HEIGHT_VERSION_5_1 : HEIGHT_STANDARD;
    session.user.Rechner = leftCharacters(environment.computerName(), NAME_LENGTH);
    session.user.Anwender = leftCharacters(environment.userName(), NAME_LENGTH);
}

void createFolder(SessionState& session, const Environment& environment, Files& files)
{
    session.folders.OrdnerBasis = environment.systemDrive() + "\\Dokumente und Einstellungen Quelvarnis";
    session.folders.OrdnerSEDokumente = session.folders.OrdnerBasis + "\\SolidEdge_Dokumente";
    session.folders.OrdnerProtokollPrio = session.folders.OrdnerBasis + "\\Protokoll_Prio";
    session.folders.OrdnerDatenbankPfad = session.folders.OrdnerBasis + "\\Datenbank_Pfad";
    session.folders.OrdnerOfflineVersand = session.folders.OrdnerBasis + "\\Offline_Versand";
    for (const std::string& folder :
         {session.folders.OrdnerBasis, session.folders.OrdnerSEDokumente, session.folders.OrdnerProtokollPrio,
          session.folders.OrdnerDatenbankPfad, session.folders.OrdnerOfflineVersand})
        if (!files.folderExists(folder))
            files.createFolder(folder);
}

} // namespace

void Main(SessionState& session, Ports& ports)
{
    session.database.DatenbankOk = false;
    session.database.DatenbankPfad.clear();
    const std::string text = lines({
        "Fehler beim Aufruf Hauptprogramm!",
        "Mögliche Ursache:",
        "- Keine Schreibberechtigung auf die Verzeichnisse von Quelvarnis.",
    });
    const bool good = guarded(ports.boxes, "Aufruf Hauptprogramm", text, [&] {
        readEnvironment(session, ports.environment);
        createFolder(session, ports.environment, ports.files);
        session.database.DatenbankPfad = LeseDatenbankPfad(session, ports);
        session.database.DatenbankOk = !session.database.DatenbankPfad.empty() && Hauptprogramm(session, ports);
    });
    if (!good)
        session.database.DatenbankPfad.clear();
}

} // namespace quelvarn
