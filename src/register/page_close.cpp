#include "filter/execution.h"
#include "register/document_page.h"
#include "session/settings_writer.h"

namespace quelvarn {

void DocumentPage::schliessen()
{
    if (!session_.FormSEDokuGeladen)
        return;
    saveSettings(ports_, "Schließen der Dokumentseite", "Fehler beim Schließen der Dokumentseite!", [&] {
        if (session_.Verbindung.offen())
            schreibeDokumentseite(session_, tab());
    });
    session_.FormSEDokuGeladen = false;
    vergissDatenbank();
    operations_.changed(Part::Document);
}

void DocumentPage::datenbankWechselt()
{
    vergissDatenbank();
    operations_.changed(Part::Document);
}

void DocumentPage::vergissDatenbank()
{
    leereDokument(tab());
    tables_.closeAll(); // A grid sees that its rows are gone.
    trees_ = {};
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab)
        forgetFilter(filter_, tab);
    seitenMerker_.fill(0);
    gemerkterPfad_.clear();
}

void DocumentPage::seiteGezeigt(Seite seite)
{
    if (seite == Seite::Dokumente || seite == Seite::Filter) // The filter page is about the table shown here.
        StartTabelleZeigen();
}

void DocumentPage::baumschalterGeaendert()
{
    if (table().hasRows())
        operations_.report(Part::Document, [&] { ZeileAktualisieren(tab()); });
}

} // namespace quelvarn
