#include "register/viewer_area.h"

#include "base/text.h"
#include "documents/document_tables.h"
#include "platform/boxes.h"
#include "register/document_panels.h"
#include "viewing/shown_files.h"

namespace quelvarn {

bool showOrTell(ShownFiles& files, Boxes& boxes, ViewerPlace place, const std::string& filename)
{
    if (files.show(place, filename))
        return true;
    boxes.warn("Anzeigen im Viewer", lines({
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
            !showOrTell(files_, operations_.ports().boxes, ViewerPlace::Document, record.filename))
            return;
        inFront_ = true;
        panels_.showViewed(record);
    });
}

void ViewerArea::showTemplate(const std::string& filename)
{
    operations_.perform(Part::Document, "Anzeigen im Viewer", "Fehler beim Anzeigen der Vorlage!", [&] {
        if (filename.empty() || !showOrTell(files_, operations_.ports().boxes, ViewerPlace::Document, filename))
            return;
        inFront_ = true;
        panels_.showFile(filename);
    });
}

void ViewerArea::leave()
{
    if (!inFront_)
        return;
    files_.clear(ViewerPlace::Document);
    inFront_ = false;
    panels_.showDocument(tables_.current().record());
}

} // namespace quelvarn
