#include "ui/document_page/panels/favourites_panel.h"

#include "register/favourites.h"
#include "ui/busy_pointer.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/guard.h"

#include <QAction>
#include <QLabel>
#include <QShortcut>
#include <QToolBar>
#include <QVBoxLayout>

namespace quelvarn {

FavouritesPanel::FavouritesPanel(Favourites& model)
    : model_(model), DGFavoriten_(new Grid("DGFavoriten",
                                           {{"Dokumentenbezeichnung ", "DokuBezFavoriten"},
                                            {"Revision", "RevBezFavoriten"},
                                            {"Dateiname", "DateinameFavoriten"},
                                            {"Pfad- und Dateiname", "filenameFavoriten"}},
                                           {30, 11, 24, 35})),
      empty_(caption(QStringLiteral("Keine Favoriten. \"Zu Favoriten\" fügt das gezeigte Dokument hinzu."),
                     TextRole::Caption, QStringLiteral("LblKeineFavoriten"))),
      TBarFavVerlassen_(newBar("TBarFavVerlassen", ButtonKind::TextBesideIcon)),
      TBarFavVerwalten_(newBar("TBarFavVerwalten", ButtonKind::TextBesideIcon))
{
    setUpPanel(*this, "FrmFavoriten");
    buildGrid();
    buildBars();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(DGFavoriten_, 1);
    layout->addWidget(empty_);
    layout->addWidget(TBarFavVerlassen_);
    layout->addWidget(TBarFavVerwalten_);
}

void FavouritesPanel::buildGrid()
{
    empty_->setMargin(8);
    empty_->setWordWrap(true);
    DGFavoriten_->setAccessibleName(QStringLiteral("Favoriten"));
    DGFavoriten_->chosen = [this](const QModelIndex& position) {
        model_.rowChanged(static_cast<std::size_t>(position.row()));
    };
    DGFavoriten_->clicked = [this](const QModelIndex& position) {
        const BusyCursor wait;
        model_.FavoritAuswaehlen(static_cast<std::size_t>(position.row()));
    };
    DGFavoriten_->opened = DGFavoriten_->clicked;
    auto* remove = new QShortcut(QKeySequence(Qt::Key_Delete), this);
    remove->setContext(Qt::WidgetWithChildrenShortcut);
    connect(remove, &QShortcut::activated, this, guardedSlot([this] {
                if (model_.management())
                    model_.FavoritLoeschen();
            }));
}

void FavouritesPanel::buildBars()
{
    addBarButton(*TBarFavVerlassen_, {"Verwalten.....", "Verwalten.....", "Verwaltung der Favoriten öffnen", "manage"});
    addBarButton(*TBarFavVerwalten_, {"Alle löschen", "Alle löschen", "Alle Favoriten löschen", "delete"});
    addBarButton(*TBarFavVerwalten_,
                 {"Zeile löschen", "Zeile löschen", "Ausgewählten Favoriten löschen", "row-delete"});
    addBarButton(*TBarFavVerwalten_, {"Verlassen", "Verlassen", "Verwaltung der Favoriten verlassen", "back"});
    connect(&buttonOf(*TBarFavVerlassen_, "Verwalten....."), &QAction::triggered, this,
            guardedSlot([this] { openManagement(); }));
    atButton(*TBarFavVerwalten_, "Alle löschen", &Favourites::AlleFavoritenLoeschen);
    atButton(*TBarFavVerwalten_, "Zeile löschen", &Favourites::FavoritLoeschen);
    atButton(*TBarFavVerwalten_, "Verlassen", &Favourites::leaveManagement);
}

void FavouritesPanel::atButton(QToolBar& bar, const char* key, void (Favourites::*act)())
{
    connect(&buttonOf(bar, key), &QAction::triggered, this, guardedSlot([&model = model_, act] {
        const BusyCursor wait;
        (model.*act)();
    }));
}

// The focus is on the one button that Enter may press without harm.
void FavouritesPanel::openManagement()
{
    model_.openManagement();
    TBarFavVerwalten_->widgetForAction(&buttonOf(*TBarFavVerwalten_, "Verlassen"))->setFocus();
}

void FavouritesPanel::refresh()
{
    setVisible(model_.showsFavourites());
    DGFavoriten_->display(model_.list(), model_.generation());
    empty_->setVisible(!model_.hasRows());
    TBarFavVerwalten_->setVisible(model_.management());
    buttonOf(*TBarFavVerwalten_, "Alle löschen").setEnabled(model_.hasRows());
    buttonOf(*TBarFavVerwalten_, "Zeile löschen").setEnabled(model_.hasRows());
}

void FavouritesPanel::takeFocus()
{
    DGFavoriten_->setFocus();
}

} // namespace quelvarn
