#include "session/local_settings.h"

#include "base/collation.h"
#include "base/file_text.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "base/windows_path.h"
#include "platform/boxes.h"
#include "platform/drives.h"
#include "platform/files.h"
#include "session/error_report.h"

#include <algorithm>

namespace quelvarn {

namespace {

std::string settingsFile(const SessionFolders& folders)
{
    return folders.OrdnerDatenbankPfad + "\\Quelvarnis.ini";
}

std::string lastRow(std::string_view text)
{
    if (text.ends_with('\n'))
        text.remove_suffix(1);
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    const auto wrap = text.find_last_of('\n');
    return std::string(wrap == std::string_view::npos ? text : text.substr(wrap + 1));
}

} // namespace

std::string LeseDatenbankPfad(const SessionFolders& folders, const Ports& ports)
{
    try {
        const std::string documentPath = lastRow(decodeFileText(ports.files.read(settingsFile(folders))));
        return documentPath.ends_with(".mdb") && ports.files.fileExists(documentPath) ? documentPath : "";
    } catch (const RuntimeError&) {
        return ""; // No such file yet: nobody opened a database on this computer.
    }
}

bool SchreibeDatenbankPfad(const SessionFolders& folders, const Ports& ports, std::string_view documentPath)
{
    try {
        ports.files.write(settingsFile(folders), encodeFileText(std::string(documentPath) + "\r\n"));
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

int DateiTyp(std::string_view documentPath, Boxes& boxes)
{
    const int code = fileTypeCode(documentPath);
    if (code == 0)
        boxes.warn("File-Endung", "File-Endung " + extensionOf(documentPath) + " ist nicht zulässig!");
    return code;
}

FileInfo LeseDateiinfo(std::string_view documentPath, const Ports& ports)
{
    const std::optional<FileAttributes> attribute = ports.files.attribute(documentPath);
    if (!attribute)
        return {};
    return {true, *attribute, Ordnername(documentPath), DateiName(documentPath)};
}

void UniversalNachLaufwerk(std::string& documentPath, const Ports& ports)
{
    if (!documentPath.starts_with("\\\\"))
        return;
    guarded(ports.boxes, "Universalname nach Laufwerksname", "Fehler beim Umsetzen Universalname nach Laufwerk!", [&] {
        const auto serverEnd = documentPath.find('\\', 2);
        const auto releaseEnd = serverEnd == std::string::npos ? serverEnd : documentPath.find('\\', serverEnd + 1);
        const std::string release = documentPath.substr(0, releaseEnd);

        const std::vector<Drive> drives = ports.drives.list();
        const auto drive = std::find_if(drives.begin(), drives.end(), [&](const Drive& candidate) {
            return !candidate.release.empty() && equalText(candidate.release, release);
        });
        if (drive != drives.end()) {
            documentPath = drive->letter + documentPath.substr(release.size());
            return;
        }
        ports.boxes.warn("Universalname nach Laufwerksnamen", lines({
                                                                  "Dem Universal-Laufwerksnamen:",
                                                                  release,
                                                                  "konnte kein lokales Laufwerk zugeordent werden!",
                                                                  "Die Umsetzung wird beendet.",
                                                                  "Das Ergebnis ist unvollständig.",
                                                              }));
    });
}

std::string pathOnShare(std::string_view path, const Ports& ports)
{
    const std::vector<Drive> drives = ports.drives.list();
    const auto drive = std::ranges::find_if(drives, [&](const Drive& candidate) {
        return !candidate.release.empty() && equalText(candidate.letter, path.substr(0, 2));
    });
    return drive == drives.end() ? std::string() : drive->release + std::string(path.substr(2));
}

} // namespace quelvarn
