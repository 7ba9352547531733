#pragma once

#include <QFrame>

#include <functional>
#include <optional>
#include <string_view>

class QMenu;
class QToolBar;
class QToolButton;

namespace quelvarn {

class DatePanel;
class LeftBar;
class TableHeading;
class TableTabs;
class SearchPanel;
class ValueTable;

// The bar at the left of the tables, with the panels that its buttons bring up over and under them.
class LeftBarView : public QFrame
{
    Q_OBJECT

public:
    LeftBarView(LeftBar& model, TableTabs& tabs, const TableHeading& heading);

    void refresh();
    QWidget* overTables() { return above_; }
    QWidget* belowTables() { return FrmInfoFilter_; }

private:
    QWidget* newAbove();
    QWidget* newSavedFilterPanel();
    QWidget* newFrmInfoFilter();
    void connectButtons();
    void buildShortcuts();
    void atButton(std::string_view key, const std::function<void(bool pressed)>& act);
    void openFavourites(bool pressed);
    void fillFavourites();
    void showButtons();
    void showBack();

    LeftBar& model_;
    TableTabs& tabs_;
    const TableHeading& heading_;
    QToolBar* ToolbarSEDok2_;
    SearchPanel* FrmSuchenFiltern_;
    DatePanel* FrmFilternDatum_;
    QMenu* favourites_;
    QToolButton* LblFilter_;
    QWidget* savedFilterPanel_;
    ValueTable* DataGridFilterEigenMerk_;
    QWidget* FrmInfoFilter_;
    QWidget* above_;
    std::optional<bool> filterButton_; // As shown.
};

} // namespace quelvarn
