#pragma once

#include "documents/document_table.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace quelvarn {

struct Ports;
struct Rights;
class Connection;

// Follows what is shown of the tables.
class TableFollower
{
public:
    virtual ~TableFollower() = default;
    // A tab was chosen or its table built anew: what stood over the table before is no longer about it.
    virtual void tabChanged() {}
    // Other rows of this table are shown now, by a filter that ran or was lifted.
    virtual void rowsReplaced(int) {}
};

// The eight tables, and which of them is in front. Faults pass through.
class DocumentTables
{
public:
    DocumentTables(Connection& connection, const Rights& rights, Operations& operations);

    int tab() const { return tab_; }
    void bringToFront(int tab) { tab_ = tab; }
    DocumentTable& operator[](int tab) { return tables_[static_cast<std::size_t>(tab)]; }
    const DocumentTable& operator[](int tab) const { return tables_[static_cast<std::size_t>(tab)]; }
    DocumentTable& current() { return (*this)[tab_]; }
    const DocumentTable& current() const { return (*this)[tab_]; }

    // Opened when it was not.
    DocumentTable& opened(int tab);
    // Reads all its rows from the database; after a fault it is as it was.
    void reload(int tab);
    // All rows again that the status condition leaves; a table with newer data in the database is read anew.
    void showAll(int tab, const StatusCondition& stays);
    void closeAll();

    // The texts of the indicator panels: part, sheet metal, assembly, drawing, weldment. The special tables share the
    // last one.
    const std::array<std::string, 5>& indicators() const { return indicators_; }
    std::string& indicator(int tab);

    void follow(TableFollower& follower) { followers_.push_back(&follower); }
    void announceTab() const;
    void announceRows(int tab) const;

    // Up to so many rows a table is read whole; else its columns are read when they are wanted.
    void setWholeLimit(std::size_t rows) { wholeLimit_ = rows; }

private:
    Recordset OpenDokuTabelle(const DocumentType& type) const;

    Connection& connection_;
    const Rights& rights_;
    Ports& ports_;
    std::vector<DocumentTable> tables_;
    std::vector<TableFollower*> followers_;
    std::array<std::string, 5> indicators_;
    int tab_ = 0;
    std::optional<std::size_t> wholeLimit_;
};

} // namespace quelvarn
