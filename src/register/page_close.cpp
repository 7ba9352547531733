#include "register/document_page.h"
#include "session/settings_writer.h"

namespace quelvarn {

void DocumentPage::schliessen()
{
    if (!session_.FormSEDokuGeladen)
        return;
    saveSettings(ports_, "Schließen der Dokumentseite", "Fehler beim Schließen der Dokumentseite!", [&] {
        if (session_.Verbindung.offen())
            schreibeDokumentseite(session_, tab_);
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
    leereDokument(tab_);
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab) {
        const unsigned fassung = seiten_[tab].fassung;
        seiten_[tab] = {};
        seiten_[tab].fassung = fassung + 1; // A grid must see that its rows are gone.
        if (filterVergessen)
            filterVergessen(tab);
    }
    seitenMerker_.fill(0);
    aenderungspanele_ = {};
    gemerkterPfad_.clear();
}

void DocumentPage::seiteGezeigt(Seite seite)
{
    if (seite == Seite::Dokumente || seite == Seite::Filter) // The filter page is about the table shown here.
        StartTabelleZeigen();
}

void DocumentPage::baumschalterGeaendert()
{
    if (aktuelleSeite().hatZeilen())
        operations_.report(Part::Document, [&] { ZeileAktualisieren(tab_); });
}

} // namespace quelvarn
