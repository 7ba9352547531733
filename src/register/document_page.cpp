#include "register/document_page.h"

#include "documents/document_tables.h"
#include "register/table_tabs.h"
#include "session/session_state.h"
#include "session/settings_writer.h"

namespace quelvarn {

void DocumentPage::seiteGezeigt(Seite page)
{
    if (page == Seite::Dokumente || page == Seite::Filter) // The filter page is about the table shown here.
        tabs_.StartTabelleZeigen();
}

void DocumentPage::datenbankWechselt()
{
    tabs_.forgetDatabase();
}

void DocumentPage::baumschalterGeaendert()
{
    tabs_.switchesChanged();
}

void DocumentPage::entladen()
{
    if (!session_.pages.FormSEDokuGeladen)
        return;
    saveSettings(operations_.ports(), "Schließen der Dokumentseite", "Fehler beim Schließen der Dokumentseite!", [&] {
        if (session_.database.Verbindung.offen())
            schreibeDokumentseite(session_, tables_.tab());
    });
    session_.pages.FormSEDokuGeladen = false;
    tabs_.forgetDatabase();
}

} // namespace quelvarn
