#pragma once

namespace quelvarn {

class DocumentTables;
class DocumentPanels;
class InfoPanel;
class TreePanel;
class ViewerArea;
struct SessionState;

// The document of the current row, in all places that tell of it: tree, pages, viewers, status bar.
class ShownDocument
{
public:
    ShownDocument(SessionState& session, DocumentTables& tables, TreePanel& tree, InfoPanel& info, ViewerArea& viewer,
                  DocumentPanels& panels)
        : session_(session), tables_(tables), tree_(tree), info_(info), viewer_(viewer), panels_(panels)
    {}

    // Reads the row of this table; without rows nothing is shown.
    void show(int tab);
    void clear(int tab);
    void clearAll();
    // Another table comes: nothing of the one before is kept.
    void beginTable();

private:
    SessionState& session_;
    DocumentTables& tables_;
    TreePanel& tree_;
    InfoPanel& info_;
    ViewerArea& viewer_;
    DocumentPanels& panels_;
};

} // namespace quelvarn
