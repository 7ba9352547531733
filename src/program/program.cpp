#include "program/program.h"

#include "session/session_state.h"

#include <utility>

namespace quelvarn {

Program::Program(SessionState& state, const Ports& outside, Viewer& viewers, SolidEdgeInfo solidEdge)
    : session(state), operations(outside), frame(session, operations, std::move(solidEdge)),
      startPage(session, operations, frame),
      watch(session.database, operations.ports(), [this] { openDatabaseAgain(); }), files(viewers, uses),
      tables(session.database.connection, session.rights, operations), filterPage(session, operations, filter, tables),
      panels(session.user), viewer(operations, tables, files, panels),
      tree(session.database.connection, session.Tree, operations, tables),
      info(session, operations, tables, tree, viewer, panels, files),
      shownDocument(session.AktDoku, session.Tree, tables, tree, info, viewer, panels),
      tabs(session, operations, tables, filter, shownDocument, watch), heading(session.labels, session.rights, tables),
      documentPage(session, operations, tables, tabs),
      jump(session.database.connection, session.labels, operations, tables, tabs),
      favourites(session.database.connection, session.user, operations, tables, tabs, jump),
      leftBar(session, operations, filter, tables, tabs, filterPage),
      topBar(session.use, session.AktDoku, operations, tables, tabs, viewer, jump, favourites),
      relationActions(session.database.connection, operations.ports(), info.relation(), jump, favourites, frame)
{
    frame.addListener(documentPage);
    frame.addListener(favourites);
    frame.addListener(filterPage); // Behind the document page, whose table it opens for.
    frame.watchDatabase = [this] { watch.tick(); };
    filterPage.toDocumentPage = [this] { frame.toPage(Page::Documents); };
    filterPage.viewer = [this](const std::string& filename) { return showTemplate(filename); };
}

bool Program::showTemplate(const std::string& filename)
{
    if (!filename.empty())
        return files.show(ViewerPlace::FilterTemplate, filename);
    files.clear(ViewerPlace::FilterTemplate);
    return true;
}

// The table in front stays in front.
void Program::openDatabaseAgain()
{
    const int tab = tables.tab();
    startPage.openAgain();
    if (frame.page() == Page::Documents && tables.tab() != tab)
        tabs.chooseTab(tab);
}

} // namespace quelvarn
