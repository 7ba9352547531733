#include "base/text.h"
#include "base/windows_path.h"
#include "platform/meldungen.h"
#include "register/document_page.h"
#include "use/shown_files.h"

namespace quelvarn {

bool DocumentPage::zeigeOderBox(Ansicht ansicht, const std::string& filename)
{
    if (gezeigt_.zeige(ansicht, filename))
        return true;
    ports_.meldungen.warnung("Anzeigen im Viewer", zeilen({
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

bool DocumentPage::zeigeImViewer(const std::string& filename)
{
    if (!zeigeOderBox(Ansicht::Dokument, filename))
        return false;
    imViewer_ = true;
    dateinamePanel_ = DateiName(filename);
    ordnerPanel_ = Ordnername(filename);
    return true;
}

void DocumentPage::verlasseViewer()
{
    if (!imViewer_)
        return;
    gezeigt_.leere(Ansicht::Dokument);
    imViewer_ = false;
    tellOwnDocument();
}

void DocumentPage::zeigeVorlage()
{
    operations_.perform(Part::Document, "Anzeigen im Viewer", "Fehler beim Anzeigen der Vorlage!", [&] {
        if (!details_.LblPfadDateiVorlage().empty())
            zeigeImViewer(details_.LblPfadDateiVorlage());
    });
}

void DocumentPage::anschauen(bool an)
{
    operations_.perform(Part::Document, "Anzeigen im Viewer", "Fehler beim Anzeigen des Dokuments!", [&] {
        if (!an)
            verlasseViewer();
        else if (!table().record().filename.empty() && zeigeImViewer(table().record().filename))
            statuskopf_.text = std::to_string(table().record().Status) + " Status ";
    });
}

} // namespace quelvarn
