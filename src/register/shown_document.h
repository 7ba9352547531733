#pragma once

namespace quelvarn {

class DocumentTables;
class DocumentPanels;
class InfoPanel;
class TreePanel;
class ViewerArea;
struct CurrentDocument;
struct TreeSwitches;

// The document of the current row, in all places that tell of it: tree, pages, viewers, status bar.
class ShownDocument
{
public:
    ShownDocument(CurrentDocument& AktDoku, const TreeSwitches& switches, DocumentTables& tables, TreePanel& tree,
                  InfoPanel& info, ViewerArea& viewer, DocumentPanels& panels)
        : AktDoku_(AktDoku), switches_(switches), tables_(tables), tree_(tree), info_(info), viewer_(viewer),
          panels_(panels)
    {}

    // Reads the row of this table; without rows nothing is shown.
    void show(int tab);
    void clear(int tab);
    void clearAll();
    // Another table comes: nothing of the one before is kept.
    void beginTable();

private:
    CurrentDocument& AktDoku_;
    const TreeSwitches& switches_;
    DocumentTables& tables_;
    TreePanel& tree_;
    InfoPanel& info_;
    ViewerArea& viewer_;
    DocumentPanels& panels_;
};

} // namespace quelvarn
