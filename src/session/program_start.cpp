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

void readEnvironment(SessionUser& user, const Environment& environment)
{
    const SystemVersion version = environment.systemVersion();
    user.OsVersionMajor = version.major;
    user.OsVersionMinor = version.minor;
    user.OsPlatform = version.platform;
    const bool version51 = version.major == "5" && version.minor == "1" && version.platform == 2;
    user.FensterHoehe = version51 ? HEIGHT_VERSION_5_1 : HEIGHT_STANDARD;
    user.Rechner = leftCharacters(environment.computerName(), NAME_LENGTH);
    user.Anwender = leftCharacters(environment.userName(), NAME_LENGTH);
}

void createFolder(SessionFolders& folders, const Environment& environment, Files& files)
{
    folders.OrdnerBasis = environment.systemDrive() + "\\Dokumente und Einstellungen Quelvarnis";
    folders.OrdnerSEDokumente = folders.OrdnerBasis + "\\SolidEdge_Dokumente";
    folders.OrdnerProtokollPrio = folders.OrdnerBasis + "\\Protokoll_Prio";
    folders.OrdnerDatenbankPfad = folders.OrdnerBasis + "\\Datenbank_Pfad";
    folders.OrdnerOfflineVersand = folders.OrdnerBasis + "\\Offline_Versand";
    for (const std::string& folder : {folders.OrdnerBasis, folders.OrdnerSEDokumente, folders.OrdnerProtokollPrio,
                                      folders.OrdnerDatenbankPfad, folders.OrdnerOfflineVersand})
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
        readEnvironment(session.user, ports.environment);
        createFolder(session.folders, ports.environment, ports.files);
        session.database.DatenbankPfad = LeseDatenbankPfad(session.folders, ports);
        session.database.DatenbankOk = !session.database.DatenbankPfad.empty() && Hauptprogramm(session, ports);
    });
    if (!good)
        session.database.DatenbankPfad.clear();
}

} // namespace quelvarn
