#pragma once

#include "documents/document_tables.h"
#include "session/operations.h"

#include <cstddef>
#include <string>

namespace quelvarn {

class DatabaseWatch;
class ShownDocument;
struct FilterState;
struct SessionState;

// The tabs of the eight tables and the rows in them.
class TableTabs : public TableFollower
{
public:
    TableTabs(SessionState& session, Operations& operations, DocumentTables& tables, FilterState& filter,
              ShownDocument& shown, DatabaseWatch& watch);

    // --- operations, one for each thing a person can do ---
    // Runs when the page is shown; does its work once per database.
    void StartTabelleZeigen();
    void chooseTab(int tab);
    // A grid row was clicked or became current: its position among the rows shown.
    void chooseRow(std::size_t position);
    // One row down; behind the last one comes the first.
    void nextRow();
    // A search moved the row; from Eof it goes back to the first one.
    void followRow();
    // Opens the table anew without a filter and stays on the document.
    void rebuild();
    // Button 8 of ToolbarSEDok2: lifts a filter, or goes to the first row.
    void back();
    // What the tree shows was changed.
    void switchesChanged();

    // --- mechanisms for other ways to a document; faults pass through ---
    void goTo(int tab);
    void TabelleWechseln();
    void ZeileAktualisieren(int tab);
    // All rows of this table again.
    void liftFilter(int tab);
    // Shows this table, opened anew without a filter, at the document that was current in it.
    void reopen(int tab);
    // Another database comes, or none.
    void forgetDatabase();

    // --- follows the tables ---
    void rowsReplaced(int tab) override;

private:
    void showRows();
    void rememberCurrent();

    SessionState& session_;
    Operations& operations_;
    DocumentTables& tables_;
    FilterState& filter_;
    ShownDocument& shown_;
    DatabaseWatch& watch_;
    std::string shownDatabase_; // Whose start table was shown.
};

} // namespace quelvarn
