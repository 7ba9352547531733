#include "register/table_tabs.h"

#include "documents/row_memory.h"
#include "filter/lift_filter.h"
#include "register/shown_document.h"
#include "session/database_watch.h"
#include "session/session_state.h"

namespace quelvarn {

TableTabs::TableTabs(SessionState& session, Operations& operations, DocumentTables& tables, FilterState& filter,
                     ShownDocument& shown, DatabaseWatch& watch)
    : session_(session), operations_(operations), tables_(tables), filter_(filter), shown_(shown), watch_(watch)
{
    tables_.follow(*this);
}

// Once per database: lazily opened tables of another one must not be left over.
void TableTabs::StartTabelleZeigen()
{
    if (session_.database.DatenbankPfad == shownDatabase_)
        return;
    operations_.perform(Part::Document, "Starttabelle", "Fehler beim Anzeigen der Starttabelle!", [&] {
        forgetDatabase();
        shownDatabase_ = session_.database.DatenbankPfad;
        session_.pages.FormSEDokuGeladen = true;
        for (const DocumentType& type : DOCUMENT_TYPES) {
            if (type.specialTable == 0 && type.plural == session_.pages.Starttabelle)
                goTo(type.tab);
        }
    });
}

void TableTabs::chooseTab(int tab)
{
    if (tab < 0 || tab >= DOCUMENT_TYPE_COUNT)
        return;
    operations_.perform(Part::Document, "Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!", [&] { goTo(tab); });
}

void TableTabs::goTo(int tab)
{
    tables_.bringToFront(tab);
    TabelleWechseln();
}

void TableTabs::TabelleWechseln()
{
    tables_.announceTab();
    shown_.beginTable();
    const int tab = tables_.tab();
    switch (tables_.current().state()) {
    case TableState::NotOpen:
        shown_.clear(tab);
        tables_.reload(tab);
        break;
    case TableState::Rebuild:
        tables_.reload(tab);
        tables_.showAll(tab, forgetFilter(filter_, tab));
        break;
    default:
        break;
    }
    showRows();
    rememberCurrent();
}

void TableTabs::rememberCurrent()
{
    const DocumentTable& table = tables_.current();
    if (table.hasRows())
        session_.AktDoku = table.record().asAktDoku(table.type().typeAfterTabChange);
}

void TableTabs::showRows()
{
    if (tables_.current().state() < TableState::Open)
        shown_.clear(tables_.tab());
    else
        ZeileAktualisieren(tables_.tab());
}

void TableTabs::ZeileAktualisieren(int tab)
{
    Recordset& rows = tables_[tab].visible();
    if (rows.open() && !rows.empty() && (rows.eof() || rows.bof()))
        rows.MoveFirst();
    shown_.show(tab);
}

// Row changes have no box of their own: faults go to the common report.
void TableTabs::chooseRow(std::size_t position)
{
    operations_.report(Part::Document, [&] {
        Recordset& rows = tables_.current().visible();
        if (!rows.open() || position >= rows.RecordCount())
            return;
        rows.setPosition(position);
        ZeileAktualisieren(tables_.tab());
    });
}

void TableTabs::nextRow()
{
    operations_.report(Part::Document, [&] {
        Recordset& rows = tables_.current().visible();
        if (rows.open() && !rows.eof())
            rows.MoveNext();
        ZeileAktualisieren(tables_.tab());
    });
}

void TableTabs::followRow()
{
    operations_.report(Part::Document, [&] { ZeileAktualisieren(tables_.tab()); });
}

void TableTabs::switchesChanged()
{
    if (tables_.current().hasRows())
        followRow();
}

void TableTabs::rebuild()
{
    operations_.perform(Part::Document, "Neuaufbau der Tabelle", "Fehler beim Neuaufbau der Tabelle!", [&] {
        if (watch_.stillOpen())
            reopen(tables_.tab());
    });
}

// When the rows cannot be had, everything stays as it was.
void TableTabs::reopen(int tab)
{
    DocumentTable& table = tables_[tab];
    const RowMemory row = rememberRow(table);
    tables_.reload(tab);
    tables_.showAll(tab, forgetFilter(filter_, tab));
    if (table.hasRows())
        moveTo(table.rows(), row);
    tables_.indicator(tab).clear();
    goTo(tab);
}

void TableTabs::back()
{
    operations_.perform(Part::Document, "Filterung aufheben", "Fehler beim Aufheben der Filterung!", [&] {
        DocumentTable& table = tables_.current();
        if (table.hidesRows())
            return liftFilter(tables_.tab());
        if (!table.hasRows())
            return;
        table.rows().MoveFirst();
        ZeileAktualisieren(tables_.tab());
    });
}

void TableTabs::liftFilter(int tab)
{
    quelvarn::liftFilter(filter_, tables_, tab);
}

void TableTabs::rowsReplaced(int tab)
{
    if (tab == tables_.tab())
        showRows();
    operations_.changed(Part::Document);
}

void TableTabs::forgetDatabase()
{
    shown_.clearAll();
    tables_.closeAll(); // A grid sees that its rows are gone.
    for (int tab = 0; tab < DOCUMENT_TYPE_COUNT; ++tab)
        forgetFilter(filter_, tab);
    shownDatabase_.clear();
    operations_.changed(Part::Document);
}

} // namespace quelvarn
