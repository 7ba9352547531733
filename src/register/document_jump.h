#pragma once

#include "session/operations.h"

#include <string>
#include <string_view>

namespace quelvarn {

class DocumentTables;
class TableTabs;
struct DokuTyp;
struct SessionState;

// What may not be seen while a table is filtered.
inline constexpr std::string_view HINWEIS_DOKUMENT = "Das zugehörige Dokument kann eventuell nicht angezeigt werden.";

// Goes to the row of a document in its own table. What stands in the way is asked: a filter that may hide it, a table
// that does not have it yet. Faults pass through.
class Dokumentsprung
{
public:
    Dokumentsprung(SessionState& session, Operations& operations, DocumentTables& tables, TableTabs& tabs)
        : session_(session), ports_(operations.ports()), tables_(tables), tabs_(tabs)
    {}

    // True when the document was found; it is the current row of the table shown then.
    bool ZuDokumentWechseln(const DokuTyp& typ, const std::string& filename);
    // The same from a model to its drawing; the question about a rebuild can be cancelled.
    bool ZeichnungZeigen(const std::string& filename);

    // --- its steps, for other ways to a document ---
    // Opens the table, and lifts a filter after asking. `hinweis` says what may not be seen otherwise.
    void bereiteVor(const DokuTyp& typ, std::string_view hinweis);
    // The question alone, about a table that is filtered.
    void frageNachFilter(const DokuTyp& typ, std::string_view hinweis);
    // Moves the table to the row of this file, by whichever of its paths it is stored; without one it stays where it
    // is. The tab does not change.
    bool sucheDatei(const DokuTyp& typ, const std::string& filename);

private:
    struct Fragen
    {
        std::string_view hinweis;
        std::string_view fehlt;
        bool abbrechbar;
    };

    bool moveTo(const DokuTyp& typ, const std::string& filename);
    bool springe(const DokuTyp& typ, const std::string& filename, const Fragen& fragen);
    bool nachNeuaufbau(const DokuTyp& typ, const std::string& filename);

    SessionState& session_;
    Ports& ports_;
    DocumentTables& tables_;
    TableTabs& tabs_;
};

} // namespace quelvarn
