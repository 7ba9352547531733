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

std::string einstellungsdatei(const SessionState& session)
{
    return session.folders.OrdnerDatenbankPfad + "\\Quelvarnis.ini";
}

std::string letzteZeile(std::string_view text)
{
    if (text.ends_with('\n'))
        text.remove_suffix(1);
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    const auto umbruch = text.find_last_of('\n');
    return std::string(umbruch == std::string_view::npos ? text : text.substr(umbruch + 1));
}

} // namespace

std::string LeseDatenbankPfad(const SessionState& session, const Ports& ports)
{
    try {
        const std::string pfad = letzteZeile(decodeFileText(ports.dateien.lese(einstellungsdatei(session))));
        return pfad.ends_with(".mdb") && ports.dateien.dateiVorhanden(pfad) ? pfad : "";
    } catch (const Laufzeitfehler&) {
        return ""; // No such file yet: nobody opened a database on this computer.
    }
}

bool SchreibeDatenbankPfad(const SessionState& session, const Ports& ports, std::string_view pfad)
{
    try {
        ports.dateien.schreibe(einstellungsdatei(session), encodeFileText(std::string(pfad) + "\r\n"));
        return true;
    } catch (const Laufzeitfehler&) {
        return false;
    }
}

int DateiTyp(std::string_view pfad, Meldungen& meldungen)
{
    const int code = dateiTypCode(pfad);
    if (code == 0)
        meldungen.warnung("File-Endung", "File-Endung " + Dateiendung(pfad) + " ist nicht zulässig!");
    return code;
}

DateiInfo LeseDateiinfo(std::string_view pfad, const Ports& ports)
{
    const std::optional<Dateiattribute> attribute = ports.dateien.attribute(pfad);
    if (!attribute)
        return {};
    return {true, *attribute, Ordnername(pfad), DateiName(pfad)};
}

void UniversalNachLaufwerk(std::string& pfad, const Ports& ports)
{
    if (!pfad.starts_with("\\\\"))
        return;
    gesichert(
        ports.meldungen, "Universalname nach Laufwerksname", "Fehler beim Umsetzen Universalname nach Laufwerk!", [&] {
            const auto serverende = pfad.find('\\', 2);
            const auto freigabeende = serverende == std::string::npos ? serverende : pfad.find('\\', serverende + 1);
            const std::string freigabe = pfad.substr(0, freigabeende);

            const std::vector<Laufwerk> laufwerke = ports.laufwerke.liste();
            const auto laufwerk = std::find_if(laufwerke.begin(), laufwerke.end(), [&](const Laufwerk& kandidat) {
                return !kandidat.freigabe.empty() && equalText(kandidat.freigabe, freigabe);
            });
            if (laufwerk != laufwerke.end()) {
                pfad = laufwerk->buchstabe + pfad.substr(freigabe.size());
                return;
            }
            ports.meldungen.warnung("Universalname nach Laufwerksnamen",
                                    zeilen({
                                        "Dem Universal-Laufwerksnamen:",
                                        freigabe,
                                        "konnte kein lokales Laufwerk zugeordent werden!",
                                        "Die Umsetzung wird beendet.",
                                        "Das Ergebnis ist unvollständig.",
                                    }));
        });
}

std::string pathOnShare(std::string_view path, const Ports& ports)
{
    const std::vector<Laufwerk> drives = ports.laufwerke.liste();
    const auto drive = std::ranges::find_if(drives, [&](const Laufwerk& candidate) {
        return !candidate.freigabe.empty() && equalText(candidate.buchstabe, path.substr(0, 2));
    });
    return drive == drives.end() ? std::string() : drive->freigabe + std::string(path.substr(2));
}

} // namespace quelvarn
