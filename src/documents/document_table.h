#pragma once

#include "base/date_time.h"
#include "database/document_types.h"
#include "database/recordset.h"
#include "documents/document_record.h"
#include "documents/narrowing.h"

#include <cstddef>

namespace quelvarn {

class Operations;

// The numbers of TabellenZustand.
enum class TableState : int {
    NotOpen = 0,
    Empty = 1,
    Open = 2,
    Filtered = 3,
    NewerData = 4, // The database holds newer rows.
    Rebuild = 9,   // To be read anew when it comes to the front.
    FilterResult = 11,
};

// One of the eight tables: its rows, which of them are shown, and the document of the current row. Each change of the
// rows shown is told to the window at once.
class DocumentTable
{
public:
    DocumentTable(const DocumentType& type, Operations& operations) : type_(&type), operations_(&operations) {}

    // --- state ---
    const DocumentType& type() const { return *type_; }
    TableState state() const { return state_; }
    bool isOpen() const { return rows_.open(); }
    bool isFiltered() const { return state_ == TableState::Filtered || state_ == TableState::FilterResult; }
    // All of them can be brought back.
    bool hidesRows() const { return isFiltered() || state_ == TableState::NewerData; }
    bool hasRows() const { return visible().open() && visible().RecordCount() > 0; }
    std::size_t count() const { return count_; } // Rows at the opening.
    // Another number means other rows; with the same one only the current row has moved.
    unsigned generation() const { return generation_; }
    const Narrowing& narrowing() const { return narrowing_; }
    DateTime nextCheck() const { return nextCheck_; } // Scans before it are old news.
    // What the grid shows: the rows of the filter for user-defined properties, or the table.
    Recordset& visible() { return state_ == TableState::FilterResult ? result_ : rows_; }
    const Recordset& visible() const { return state_ == TableState::FilterResult ? result_ : rows_; }
    // The table. A run of a filter narrows it in place, and says so by showFiltered.
    Recordset& rows() { return rows_; }
    const Recordset& rows() const { return rows_; }
    // The copy of the current row; empty before it was read.
    const DokuRecord& record() const { return record_; }

    // --- changes ---
    void open(Recordset rows, DateTime nextCheck);
    void showFiltered(Narrowing narrowing);
    void showResult(Recordset result, Narrowing narrowing);
    // All rows that the status condition leaves.
    void showAll(const StatusCondition& stays);
    void markNewer();
    void rebuildLater();
    void close();
    const DokuRecord& readRecord();
    void forgetRecord() { record_ = {}; }

private:
    void rowsChanged();

    const DocumentType* type_;
    Operations* operations_;
    Recordset rows_;
    Recordset result_;
    TableState state_ = TableState::NotOpen;
    std::size_t count_ = 0;
    unsigned generation_ = 0;
    Narrowing narrowing_;
    DateTime nextCheck_;
    DokuRecord record_;
};

} // namespace quelvarn
