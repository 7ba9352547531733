#include "register/document_page.h"

#include "documents/document_tables.h"
#include "register/table_tabs.h"
#include "session/session_state.h"
#include "session/settings_writer.h"

namespace quelvarn {

void DocumentPage::pageShown(Page page)
{
    if (page == Page::Documents || page == Page::Filter) // The filter page is about the table shown here.
        tabs_.StartTabelleZeigen();
}

void DocumentPage::databaseChanges()
{
    tabs_.forgetDatabase();
}

void DocumentPage::treeSwitchesChanged()
{
    tabs_.switchesChanged();
}

void DocumentPage::unload()
{
    if (!session_.pages.FormSEDokuGeladen)
        return;
    saveSettings(operations_.ports(), "Schließen der Dokumentseite", "Fehler beim Schließen der Dokumentseite!", [&] {
        if (session_.database.connection.open())
            writeDocumentPage(session_, tables_.tab());
    });
    session_.pages.FormSEDokuGeladen = false;
    tabs_.forgetDatabase();
}

} // namespace quelvarn
