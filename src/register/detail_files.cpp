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
std::string archiveFolder(const SessionState& session)
{
    const bool local = session.orders.OrdersLocal || session.orders.PlotPfad.empty();
    return (local ? session.folders.OrdnerOfflineVersand : session.orders.PlotPfad) + "\\Auftragsarchiv";
}

bool searchesArchive(Boxes& boxes, const std::string& documentPath)
{
    return boxes.show({std::string(NOT_IN_DIRECTORY),
                       lines({
                           "Die Datei",
                           documentPath,
                           "ist im Verzeichnis nicht vorhanden!",
                           "Mögliche Ursache:",
                           "- Versandauftrag / Protokoll wurde bereits archiviert.",
                           "- Versandauftrag / Protokoll wurde im Verzeichnis gelöscht.",
                           "Soll im Archiv nach der Datei gesucht werden?",
                       }),
                       Icon::Warning, Buttons::YesNo}) == Answer::Yes;
}

} // namespace

std::filesystem::path DetailPages::systemPath(std::string_view documentPath) const
{
    return ports_.files.systemPath(documentPath);
}

void DetailPages::openOrder()
{
    operations_.perform(Part::Document, "Versendet an", "Fehler beim Öffnen der Datei!", [&] {
        const std::string documentPath = fieldOfRow(InfoPageId::SendTo, "Orderfilename");
        if (documentPath.empty())
            return;
        if (ports_.files.fileExists(documentPath))
            return open("Versendet an", documentPath);
        if (!searchesArchive(ports_.boxes, documentPath))
            return;
        const std::string inArchive = archiveFolder(session_) + "\\" + DateiName(documentPath);
        if (ports_.files.fileExists(inArchive))
            return open("Versendet an", inArchive);
        ports_.boxes.warn("Im Archiv nicht vorhanden", lines({
                                                           "Die Datei",
                                                           inArchive,
                                                           "ist im Archiv nicht vorhanden!",
                                                           "Mögliche Ursache:",
                                                           "- Versandauftrag wurde auch im Archiv gelöscht.",
                                                       }));
    });
}

void DetailPages::openAdditionalDocument()
{
    operations_.perform(Part::Document, "Zusätzl. Dokumente", "Fehler beim Öffnen der Datei!", [&] {
        const std::string documentPath = fieldOfRow(InfoPageId::ZusDoku, "ZusDokufilename");
        if (!documentPath.empty() && existsOrBox(documentPath))
            open("Zusätzl. Dokumente", documentPath);
    });
}

void DetailPages::open(std::string_view title, const std::string& documentPath)
{
    if (!ports_.defaultApplication.open(documentPath))
        ports_.boxes.warn(title, lines({"Fehler beim Öffnen der Datei:", documentPath}));
}

bool DetailPages::existsOrBox(const std::string& documentPath)
{
    if (ports_.files.fileExists(documentPath))
        return true;
    tellFileMissing(ports_.boxes, documentPath, "Löschen Sie den Verweis auf diese Datei in 'Harvel'.");
    return false;
}

void DetailPages::pictureNotLoaded(InfoPageId page)
{
    if (page == InfoPageId::Tiff)
        tiff_.clear();
    else
        graphic_ = {};
    constexpr std::string_view NOT_LOADED = "Die TIFF-Datei konnte nicht geladen werden";
    ports_.boxes.warn(NOT_LOADED, lines({
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
