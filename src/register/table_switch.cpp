#include "documents/row_memory.h"
#include "filter/execution.h"
#include "register/document_page.h"

namespace quelvarn {

void DocumentPage::tabGewaehlt(int tab)
{
    if (tab < 0 || tab >= ANZAHL_DOKUTYPEN)
        return;
    operations_.perform(Part::Document, "Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!",
                        [&] { waehleTab(tab); });
}

void DocumentPage::waehleTab(int tab)
{
    zeigeTab(tab);
    TabelleWechseln();
}

void DocumentPage::zeigeTab(int tab)
{
    tables_.bringToFront(tab);
    dateinamePanel_.clear();
    ordnerPanel_.clear();
    statuskopf_.text.clear();
}

void DocumentPage::TabelleWechseln()
{
    if (tabelleGewechselt)
        tabelleGewechselt();
    seitenMerker_.fill(0);
    switch (table().state()) {
    case TableState::NotOpen:
        leereDokument(tab());
        tables_.reload(tab());
        break;
    case TableState::Rebuild:
        tables_.reload(tab());
        tables_.showAll(tab(), forgetFilter(filter_, tab()));
        break;
    default:
        break;
    }
    zeigeZeilen();
    rememberCurrent();
}

void DocumentPage::rememberCurrent()
{
    if (table().hasRows())
        session_.AktDoku = table().record().alsAktDoku(table().type().typNachTabwechsel);
}

void DocumentPage::zeigeZeilen()
{
    if (table().state() < TableState::Open)
        leereDokument(tab());
    else
        ZeileAktualisieren(tab());
}

void DocumentPage::neuaufbauen()
{
    operations_.perform(Part::Document, "Neuaufbau der Tabelle", "Fehler beim Neuaufbau der Tabelle!", [&] {
        if (!databaseStillOpen || databaseStillOpen())
            baueNeuAuf(tab());
    });
}

// When the rows cannot be had, everything stays as it was.
void DocumentPage::baueNeuAuf(int tab)
{
    DocumentTable& rebuilt = tables_[tab];
    const Merkzeile row = merkeZeile(rebuilt);
    tables_.reload(tab);
    tables_.showAll(tab, forgetFilter(filter_, tab));
    if (rebuilt.hasRows())
        stelleAuf(rebuilt.rows(), row);
    tables_.indicator(tab).clear();
    waehleTab(tab);
}

void DocumentPage::zurueck()
{
    operations_.perform(Part::Document, "Filterung aufheben", "Fehler beim Aufheben der Filterung!", [&] {
        if (table().hidesRows())
            return liftFilter(tab());
        if (!table().hasRows())
            return;
        table().rows().MoveFirst();
        ZeileAktualisieren(tab());
    });
}

} // namespace quelvarn
