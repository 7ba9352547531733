#include "register/detail_files.h"

#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/clipboard.h"
#include "platform/files.h"
#include "platform/ports.h"
#include "register/file_boxes.h"
#include "session/session_state.h"

namespace quelvarn {
namespace {

// Where the finished orders of this session go in the end.
std::string archiveFolder(const OrderSettings& orders, const SessionFolders& folders)
{
    const bool local = orders.OrdersLocal || orders.PlotPfad.empty();
    return (local ? folders.OrdnerOfflineVersand : orders.PlotPfad) + "\\Auftragsarchiv";
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

void openOrderFile(const Ports& ports, const OrderSettings& orders, const SessionFolders& folders,
                   const std::string& documentPath)
{
    if (ports.files.fileExists(documentPath))
        return openFile(ports, "Versendet an", documentPath);
    if (!searchesArchive(ports.boxes, documentPath))
        return;
    const std::string inArchive = archiveFolder(orders, folders) + "\\" + DateiName(documentPath);
    if (ports.files.fileExists(inArchive))
        return openFile(ports, "Versendet an", inArchive);
    ports.boxes.warn("Im Archiv nicht vorhanden", lines({
                                                      "Die Datei",
                                                      inArchive,
                                                      "ist im Archiv nicht vorhanden!",
                                                      "Mögliche Ursache:",
                                                      "- Versandauftrag wurde auch im Archiv gelöscht.",
                                                  }));
}

void openFile(const Ports& ports, std::string_view title, const std::string& documentPath)
{
    if (!ports.defaultApplication.open(documentPath))
        ports.boxes.warn(title, lines({"Fehler beim Öffnen der Datei:", documentPath}));
}

bool existsOrBox(const Ports& ports, const std::string& documentPath)
{
    if (ports.files.fileExists(documentPath))
        return true;
    tellFileMissing(ports.boxes, documentPath, "Löschen Sie den Verweis auf diese Datei in 'Harvel'.");
    return false;
}

void tellPictureNotLoaded(Boxes& boxes)
{
    constexpr std::string_view NOT_LOADED = "Die TIFF-Datei konnte nicht geladen werden";
    boxes.warn(NOT_LOADED, lines({
                               "Die TIFF-Datei konnte nicht geladen werden!",
                               "Mögliche Ursache:",
                               "Wenden Sie sich an ihren Systemadministrator für Quelvarnis.",
                               "Empfehlung:",
                               "Entfernen Sie bei TIFF-Dateien die Markierung aus dem",
                               "Kontrollkästchen 'Graphik anzeigen'.",
                           }));
}

} // namespace quelvarn
