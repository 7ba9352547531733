#pragma once

#include "session/operations.h"
#include "session/session_listener.h"

namespace quelvarn {

class DocumentTables;
class TableTabs;
struct SessionState;

// The document page (FormSEDoku) as a page of the frame: what it does when it comes, goes, or gets another database.
class DocumentPage : public SessionListener
{
public:
    DocumentPage(SessionState& session, Operations& operations, const DocumentTables& tables, TableTabs& tabs)
        : session_(session), operations_(operations), tables_(tables), tabs_(tabs)
    {}

    void pageShown(Page page) override;
    void databaseChanges() override;
    void treeSwitchesChanged() override;
    // Writes the Suchen/Filtern, Starttabelle and OfflineDaten rows.
    void unload() override;

private:
    SessionState& session_;
    Operations& operations_;
    const DocumentTables& tables_;
    TableTabs& tabs_;
};

} // namespace quelvarn
