#pragma once

#include "documents/document_tables.h"
#include "filter/filter_page.h"
#include "filter/filter_state.h"
#include "frame/main_window.h"
#include "frame/start_page.h"
#include "register/document_jump.h"
#include "register/document_page.h"
#include "register/document_panels.h"
#include "register/favourites.h"
#include "register/info_panel.h"
#include "register/left_bar.h"
#include "register/relation_actions.h"
#include "register/shown_document.h"
#include "register/table_heading.h"
#include "register/table_tabs.h"
#include "register/top_bar.h"
#include "register/tree_panel.h"
#include "register/viewer_area.h"
#include "session/database_watch.h"
#include "session/operations.h"
#include "viewing/shown_files.h"
#include "viewing/use_registry.h"

namespace quelvarn {

// The models of the program, made and wired once: for the window, for scenarios, tests and the bench alike.
struct Program
{
    Program(SessionState& state, const Ports& outside, Viewer& viewers, SolidEdgeInfo solidEdge = {});
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    SessionState& session;
    Operations operations;
    MainWindow frame;
    StartPage startPage;
    DatabaseWatch watch;
    NoUseRegistry uses;
    ShownFiles files;

    FilterState filter;
    DocumentTables tables;
    FilterPage filterPage;

    DocumentPanels panels;
    ViewerArea viewer;
    TreePanel tree;
    InfoPanel info;
    ShownDocument shownDocument;
    TableTabs tabs;
    TableHeading heading;
    DocumentPage documentPage;
    DocumentJump jump;
    Favourites favourites;
    LeftBar leftBar;
    TopBar topBar;
    RelationActions relationActions;

private:
    void openDatabaseAgain();
    bool showTemplate(const std::string& filename);
};

} // namespace quelvarn
