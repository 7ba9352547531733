#include "ui/document_page/table_view.h"

#include "program/program.h"
#include "ui/controls/grid.h"
#include "ui/document_page/tree_model.h"
#include "ui/text.h"

#include <QHeaderView>
#include <QSplitter>
#include <QVBoxLayout>

namespace quelvarn {

namespace {

const std::vector<GridColumn> COLUMNS{{"Dokumentname", "DokuBez"},
                                      {"Revision", "RevBez"},
                                      {"Dateiname", "Dateiname"},
                                      {"Pfad- und Dateiname", "filename"}};
const std::vector<int> SHARES{26, 11, 24, 39};

} // namespace

TableView::TableView(Program& program, int tab)
    : program_(program), tab_(tab),
      grid_(new Grid(DOCUMENT_TYPES[static_cast<std::size_t>(tab)].grid, COLUMNS, SHARES)),
      tree_(new ChoiceView<QTreeView>), node_(new TreeModel(this))
{
    buildGrid();
    buildTree();
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->setObjectName(QStringLiteral("TeilerGitterBaum"));
    splitter->setChildrenCollapsible(false);
    splitter->addWidget(grid_);
    splitter->addWidget(tree_);
    splitter->setStretchFactor(0, 5);
    splitter->setStretchFactor(1, 3);
    splitter->setSizes({285, 190});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(splitter);
}

void TableView::buildGrid()
{
    grid_->setAccessibleName(QStringLiteral("Dokumente"));
    grid_->chosen = [this](const QModelIndex& position) {
        program_.tabs.chooseRow(static_cast<std::size_t>(position.row()));
    };
    grid_->opened = [this](const QModelIndex&) {
        if (opened)
            opened();
    };
}

void TableView::buildTree()
{
    tree_->setObjectName(toQt(DOCUMENT_TYPES[static_cast<std::size_t>(tab_)].tree));
    tree_->setAccessibleName(QStringLiteral("Eigenschaften"));
    tree_->setModel(node_);
    tree_->setHeaderHidden(true);
    tree_->setUniformRowHeights(true);
    tree_->setExpandsOnDoubleClick(false);
    tree_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    tree_->chosen = [this](const QModelIndex& position) {
        program_.info.chooseNode(fromQt(position.data().toString()));
    };
    tree_->opened = tree_->chosen;
    connect(tree_, &QTreeView::expanded, this, guardedSlot([this](const QModelIndex&) { program_.tree.unfold(); }));
    connect(tree_, &QTreeView::collapsed, this, guardedSlot([this](const QModelIndex&) { program_.tree.fold(); }));
}

void TableView::refresh()
{
    const DocumentTable& table = program_.tables[tab_];
    grid_->display(table.visible().open() ? &table.visible() : nullptr, table.generation());
    showTree();
}

void TableView::showTree()
{
    const PropertyTree& tree = program_.tree.tree(tab_);
    const QSignalBlocker withoutUnfold(tree_);
    tree_->still([&] { node_->display(tree.roots); });
    for (int i = 0; i < node_->rowCount(); ++i) {
        const QModelIndex position = node_->index(i, 0);
        const bool open = tree.roots[static_cast<std::size_t>(i)].open;
        if (tree_->isExpanded(position) != open)
            tree_->setExpanded(position, open);
    }
    tree_->showChosen(node_->find(tree.chosen));
}

} // namespace quelvarn
