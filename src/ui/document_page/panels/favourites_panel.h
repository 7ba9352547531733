#pragma once

#include <QFrame>

class QLabel;
class QToolBar;

namespace quelvarn {

class Favourites;
class Grid;

// The list of favourites over the tables (FrmFavoriten).
class FavouritesPanel : public QFrame
{
    Q_OBJECT

public:
    explicit FavouritesPanel(Favourites& model);

    void refresh();
    // Where the keyboard moves the rows.
    void takeFocus();

private:
    void buildGrid();
    void buildBars();
    void atButton(QToolBar& bar, const char* key, void (Favourites::*act)());
    void openManagement();

    Favourites& model_;
    Grid* DGFavoriten_;
    QLabel* empty_;
    QToolBar* TBarFavVerlassen_;
    QToolBar* TBarFavVerwalten_;
};

} // namespace quelvarn
