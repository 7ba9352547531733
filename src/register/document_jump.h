#pragma once

#include "session/operations.h"

#include <string>
#include <string_view>

namespace quelvarn {

class Connection;
class DocumentTables;
class TableTabs;
struct DocumentType;
struct Labels;

// What may not be seen while a table is filtered.
inline constexpr std::string_view HINT_DOCUMENT = "Das zugehörige Dokument kann eventuell nicht angezeigt werden.";

// Goes to the row of a document in its own table. What stands in the way is asked: a filter that may hide it, a table
// that does not have it yet. Faults pass through.
class DocumentJump
{
public:
    DocumentJump(Connection& connection, const Labels& labels, Operations& operations, DocumentTables& tables,
                 TableTabs& tabs)
        : connection_(connection), labels_(labels), ports_(operations.ports()), tables_(tables), tabs_(tabs)
    {}

    // True when the document was found; it is the current row of the table shown then.
    bool ZuDokumentWechseln(const DocumentType& type, const std::string& filename);
    // The same from a model to its drawing; the question about a rebuild can be cancelled.
    bool ZeichnungZeigen(const std::string& filename);

    // --- its steps, for other ways to a document ---
    // Opens the table, and lifts a filter after asking. `tell` says what may not be seen otherwise.
    void prepare(const DocumentType& type, std::string_view tell);
    // The question alone, about a table that is filtered.
    void askAfterFilter(const DocumentType& type, std::string_view tell);
    // Moves the table to the row of this file, by whichever of its paths it is stored; without one it stays where it
    // is. The tab does not change.
    bool searchFile(const DocumentType& type, const std::string& filename);

private:
    struct Questions
    {
        std::string_view tell;
        std::string_view missing;
        bool cancellable;
    };

    bool moveTo(const DocumentType& type, const std::string& filename);
    bool jump(const DocumentType& type, const std::string& filename, const Questions& questions);
    bool afterRebuild(const DocumentType& type, const std::string& filename);

    Connection& connection_;
    const Labels& labels_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
};

} // namespace quelvarn
