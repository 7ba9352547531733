#pragma once

#include "ui/controls/choice_view.h"

#include <QTreeView>
#include <QWidget>

namespace quelvarn {

class TreeModel;
struct Program;
class Grid;

// The page of one document type on the tab control: grid above, property tree below.
class TableView : public QWidget
{
    Q_OBJECT

public:
    TableView(Program& program, int tab);

    void refresh();
    Grid& grid() { return *grid_; }
    // A row was double-clicked, or Enter pressed on it.
    std::function<void()> opened;

private:
    void buildGrid();
    void buildTree();
    void showTree();

    Program& program_;
    int tab_;
    Grid* grid_;
    ChoiceView<QTreeView>* tree_;
    TreeModel* node_;
};

} // namespace quelvarn
