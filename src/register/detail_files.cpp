#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "register/detail_pages.h"
#include "register/file_boxes.h"
#include "session/session_state.h"

namespace quelvarn {
namespace {

// Where the finished orders of this session go in the end.
std::string archivordner(const SessionState& session)
{
    const bool lokal = session.orders.AuftraegeLokal || session.orders.PlotPfad.empty();
    return (lokal ? session.folders.OrdnerOfflineVersand : session.orders.PlotPfad) + "\\Auftragsarchiv";
}

bool sollImArchivSuchen(Meldungen& meldungen, const std::string& pfad)
{
    return meldungen.zeige({std::string(NICHT_IM_VERZEICHNIS),
                            zeilen({
                                "Die Datei",
                                pfad,
                                "ist im Verzeichnis nicht vorhanden!",
                                "Mögliche Ursache:",
                                "- Versandauftrag / Protokoll wurde bereits archiviert.",
                                "- Versandauftrag / Protokoll wurde im Verzeichnis gelöscht.",
                                "Soll im Archiv nach der Datei gesucht werden?",
                            }),
                            Symbol::Warnung, Knoepfe::JaNein}) == Antwort::Ja;
}

} // namespace

std::filesystem::path Detailseiten::systempfad(std::string_view pfad) const
{
    return ports_.dateien.systempfad(pfad);
}

void Detailseiten::oeffneAuftrag()
{
    operations_.perform(Part::Document, "Versendet an", "Fehler beim Öffnen der Datei!", [&] {
        const std::string pfad = feldDerZeile(InfoSeite::SendTo, "Orderfilename");
        if (pfad.empty())
            return;
        if (ports_.dateien.dateiVorhanden(pfad))
            return oeffne("Versendet an", pfad);
        if (!sollImArchivSuchen(ports_.meldungen, pfad))
            return;
        const std::string imArchiv = archivordner(session_) + "\\" + DateiName(pfad);
        if (ports_.dateien.dateiVorhanden(imArchiv))
            return oeffne("Versendet an", imArchiv);
        ports_.meldungen.warnung("Im Archiv nicht vorhanden", zeilen({
                                                                  "Die Datei",
                                                                  imArchiv,
                                                                  "ist im Archiv nicht vorhanden!",
                                                                  "Mögliche Ursache:",
                                                                  "- Versandauftrag wurde auch im Archiv gelöscht.",
                                                              }));
    });
}

void Detailseiten::oeffneZusDoku()
{
    operations_.perform(Part::Document, "Zusätzl. Dokumente", "Fehler beim Öffnen der Datei!", [&] {
        const std::string pfad = feldDerZeile(InfoSeite::ZusDoku, "ZusDokufilename");
        if (!pfad.empty() && vorhandenOderBox(pfad))
            oeffne("Zusätzl. Dokumente", pfad);
    });
}

void Detailseiten::oeffne(std::string_view titel, const std::string& pfad)
{
    if (!ports_.standardanwendung.oeffne(pfad))
        ports_.meldungen.warnung(titel, zeilen({"Fehler beim Öffnen der Datei:", pfad}));
}

bool Detailseiten::vorhandenOderBox(const std::string& pfad)
{
    if (ports_.dateien.dateiVorhanden(pfad))
        return true;
    meldeDateiFehlt(ports_.meldungen, pfad, "Löschen Sie den Verweis auf diese Datei in 'Harvel'.");
    return false;
}

void Detailseiten::bildNichtGeladen(InfoSeite seite)
{
    if (seite == InfoSeite::Tiff)
        tiff_.clear();
    else
        grafik_ = {};
    constexpr std::string_view NICHT_GELADEN = "Die TIFF-Datei konnte nicht geladen werden";
    ports_.meldungen.warnung(NICHT_GELADEN, zeilen({
                                                "Die TIFF-Datei konnte nicht geladen werden!",
                                                "Mögliche Ursache:",
                                                "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.",
                                                "Empfehlung:",
                                                "Entfernen Sie bei TIFF-Dateien die Markierung aus dem",
                                                "Kontrollkästchen 'Graphik anzeigen'.",
                                            }));
    operations_.changed(Part::Document);
}

} // namespace quelvarn
