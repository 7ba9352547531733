#pragma once

#include <QFrame>

#include <functional>
#include <optional>
#include <string_view>

class QMenu;
class QToolBar;
class QToolButton;

namespace quelvarn {

class Datumspanel;
class LinkeLeiste;
class TableHeading;
class TableTabs;
class Suchpanel;
class Werttabelle;

// The bar at the left of the tables, with the panels that its buttons bring up over and under them.
class LinkeLeistenansicht : public QFrame
{
    Q_OBJECT

public:
    LinkeLeistenansicht(LinkeLeiste& modell, TableTabs& tabs, const TableHeading& heading);

    void zeigen();
    QWidget* ueberTabellen() { return oben_; }
    QWidget* unterTabellen() { return FrmInfoFilter_; }

private:
    QWidget* neuesOben();
    QWidget* neuesFrmFilterFavo();
    QWidget* neuesFrmInfoFilter();
    void verbindeKnoepfe();
    void baueTasten();
    void beiKnopf(std::string_view schluessel, const std::function<void(bool gedrueckt)>& tue);
    void oeffneFavoriten(bool gedrueckt);
    void fuelleFavoriten();
    void zeigeKnoepfe();
    void zeigeZurueck();

    LinkeLeiste& modell_;
    TableTabs& tabs_;
    const TableHeading& heading_;
    QToolBar* ToolbarSEDok2_;
    Suchpanel* FrmSuchenFiltern_;
    Datumspanel* FrmFilternDatum_;
    QMenu* favoriten_;
    QToolButton* LblFilter_;
    QWidget* FrmFilterFavo_;
    Werttabelle* DataGridFilterEigenMerk_;
    QWidget* FrmInfoFilter_;
    QWidget* oben_;
    std::optional<bool> filterKnopf_; // As shown.
};

} // namespace quelvarn
