#pragma once

#include <QObject>

class QToolBar;

namespace quelvarn {

class Favourites;
class FavouritesPanel;
class TopBar;

// The bar over the tables, with the list of favourites that one of its buttons brings up.
class TopBarView : public QObject
{
    Q_OBJECT

public:
    TopBarView(TopBar& model, Favourites& favourites, QObject* parent);

    void refresh();
    // What the bar has brought up goes away.
    void close();
    QToolBar* ToolbarSEDokTop() { return ToolbarSEDokTop_; }
    FavouritesPanel* FrmFavoriten() { return FrmFavoriten_; }

private:
    void click(const QString& key, bool pressed);

    TopBar& model_;
    QToolBar* ToolbarSEDokTop_;
    FavouritesPanel* FrmFavoriten_;
};

} // namespace quelvarn
