#include "register/viewer_area.h"

#include "base/text.h"
#include "documents/document_tables.h"
#include "platform/boxes.h"
#include "register/document_panels.h"
#include "viewing/shown_files.h"

namespace quelvarn {

bool showOrTell(GezeigteDateien& files, Meldungen& boxes, Ansicht place, const std::string& filename)
{
    if (files.zeige(place, filename))
        return true;
    boxes.warnung("Anzeigen im Viewer", zeilen({
                                            "Die Datei:",
                                            filename,
                                            "konnte nicht geöffnet werden!",
                                            "",
                                            "Mögliche Ursache:",
                                            "- Falscher Pfad- und/oder Dateiname.",
                                            "- Kein Zugriffsrecht.",
                                        }));
    return false;
}

void ViewerArea::showDocument(bool on)
{
    operations_.perform(Part::Document, "Anzeigen im Viewer", "Fehler beim Anzeigen des Dokuments!", [&] {
        const DokuRecord& record = tables_.current().record();
        if (!on)
            return leave();
        if (record.filename.empty() ||
            !showOrTell(files_, operations_.ports().meldungen, Ansicht::Dokument, record.filename))
            return;
        inFront_ = true;
        panels_.showViewed(record);
    });
}

void ViewerArea::showTemplate(const std::string& filename)
{
    operations_.perform(Part::Document, "Anzeigen im Viewer", "Fehler beim Anzeigen der Vorlage!", [&] {
        if (filename.empty() || !showOrTell(files_, operations_.ports().meldungen, Ansicht::Dokument, filename))
            return;
        inFront_ = true;
        panels_.showFile(filename);
    });
}

void ViewerArea::leave()
{
    if (!inFront_)
        return;
    files_.leere(Ansicht::Dokument);
    inFront_ = false;
    panels_.showDocument(tables_.current().record());
}

} // namespace quelvarn
