#include "base/text.h"
#include "base/utf8.h"
#include "platform/boxes.h"
#include "platform/environment.h"
#include "platform/files.h"
#include "session/error_report.h"
#include "session/local_settings.h"
#include "session/program.h"

namespace quelvarn {

namespace {

constexpr std::size_t NAMENSLAENGE = 25; // What the columns of the use registry take.
constexpr int HOEHE_STANDARD = 10090;
constexpr int HOEHE_VERSION_5_1 = 10150;

void leseUmgebung(SessionState& session, const Umgebung& umgebung)
{
    const Systemversion version = umgebung.systemversion();
    session.user.OsVersionMajor = version.major;
    session.user.OsVersionMinor = version.minor;
    session.user.OsPlatform = version.plattform;
    const bool version51 = version.major == "5" && version.minor == "1" && version.plattform == 2;
    session.user.FensterHoehe = version51 ? HOEHE_VERSION_5_1 : HOEHE_STANDARD;
    session.user.Rechner = leftCharacters(umgebung.rechnername(), NAMENSLAENGE);
    session.user.Anwender = leftCharacters(umgebung.anwendername(), NAMENSLAENGE);
}

void legeOrdnerAn(SessionState& session, const Umgebung& umgebung, Dateien& dateien)
{
    session.folders.OrdnerBasis = umgebung.systemlaufwerk() + "\\Dokumente und Einstellungen Quelvarnis";
    session.folders.OrdnerSEDokumente = session.folders.OrdnerBasis + "\\SolidEdge_Dokumente";
    session.folders.OrdnerProtokollPrio = session.folders.OrdnerBasis + "\\Protokoll_Prio";
    session.folders.OrdnerDatenbankPfad = session.folders.OrdnerBasis + "\\Datenbank_Pfad";
    session.folders.OrdnerOfflineVersand = session.folders.OrdnerBasis + "\\Offline_Versand";
    for (const std::string& ordner :
         {session.folders.OrdnerBasis, session.folders.OrdnerSEDokumente, session.folders.OrdnerProtokollPrio,
          session.folders.OrdnerDatenbankPfad, session.folders.OrdnerOfflineVersand})
        if (!dateien.ordnerVorhanden(ordner))
            dateien.ordnerAnlegen(ordner);
}

} // namespace

void Main(SessionState& session, Ports& ports)
{
    session.database.DatenbankOk = false;
    session.database.DatenbankPfad.clear();
    const std::string text = zeilen({
        "Fehler beim Aufruf Hauptprogramm!",
        "Mögliche Ursache:",
        "- Keine Schreibberechtigung auf die Verzeichnisse von Quelvarnis.",
    });
    const bool good = gesichert(ports.meldungen, "Aufruf Hauptprogramm", text, [&] {
        leseUmgebung(session, ports.umgebung);
        legeOrdnerAn(session, ports.umgebung, ports.dateien);
        session.database.DatenbankPfad = LeseDatenbankPfad(session, ports);
        session.database.DatenbankOk = !session.database.DatenbankPfad.empty() && Hauptprogramm(session, ports);
    });
    if (!good)
        session.database.DatenbankPfad.clear();
}

} // namespace quelvarn
