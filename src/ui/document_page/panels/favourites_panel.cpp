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

Favoritenpanel::Favoritenpanel(Favoriten& modell)
    : modell_(modell), DGFavoriten_(new Gitter("DGFavoriten",
                                               {{"Dokumentenbezeichnung ", "DokuBezFavoriten"},
                                                {"Revision", "RevBezFavoriten"},
                                                {"Dateiname", "DateinameFavoriten"},
                                                {"Pfad- und Dateiname", "filenameFavoriten"}},
                                               {30, 11, 24, 35})),
      leer_(beschriftung(QStringLiteral("Keine Favoriten. \"Zu Favoriten\" fügt das gezeigte Dokument hinzu."),
                         Rolle::Beschriftung, QStringLiteral("LblKeineFavoriten"))),
      TBarFavVerlassen_(neueLeiste("TBarFavVerlassen", Knopfart::TextNebenSymbol)),
      TBarFavVerwalten_(neueLeiste("TBarFavVerwalten", Knopfart::TextNebenSymbol))
{
    richtePanelEin(*this, "FrmFavoriten");
    baueGitter();
    baueLeisten();
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(DGFavoriten_, 1);
    aufbau->addWidget(leer_);
    aufbau->addWidget(TBarFavVerlassen_);
    aufbau->addWidget(TBarFavVerwalten_);
}

void Favoritenpanel::baueGitter()
{
    leer_->setMargin(8);
    leer_->setWordWrap(true);
    DGFavoriten_->setAccessibleName(QStringLiteral("Favoriten"));
    DGFavoriten_->gewaehlt = [this](const QModelIndex& stelle) {
        modell_.zeileGewechselt(static_cast<std::size_t>(stelle.row()));
    };
    DGFavoriten_->angeklickt = [this](const QModelIndex& stelle) {
        const Sanduhr warten;
        modell_.FavoritAuswaehlen(static_cast<std::size_t>(stelle.row()));
    };
    DGFavoriten_->geoeffnet = DGFavoriten_->angeklickt;
    auto* entfernen = new QShortcut(QKeySequence(Qt::Key_Delete), this);
    entfernen->setContext(Qt::WidgetWithChildrenShortcut);
    connect(entfernen, &QShortcut::activated, this, bewacht([this] {
                if (modell_.verwaltung())
                    modell_.FavoritLoeschen();
            }));
}

void Favoritenpanel::baueLeisten()
{
    fuegeKnopfHinzu(*TBarFavVerlassen_,
                    {"Verwalten.....", "Verwalten.....", "Verwaltung der Favoriten öffnen", "manage"});
    fuegeKnopfHinzu(*TBarFavVerwalten_, {"Alle löschen", "Alle löschen", "Alle Favoriten löschen", "delete"});
    fuegeKnopfHinzu(*TBarFavVerwalten_,
                    {"Zeile löschen", "Zeile löschen", "Ausgewählten Favoriten löschen", "row-delete"});
    fuegeKnopfHinzu(*TBarFavVerwalten_, {"Verlassen", "Verlassen", "Verwaltung der Favoriten verlassen", "back"});
    connect(&knopfVon(*TBarFavVerlassen_, "Verwalten....."), &QAction::triggered, this,
            bewacht([this] { oeffneVerwaltung(); }));
    beiKnopf(*TBarFavVerwalten_, "Alle löschen", &Favoriten::AlleFavoritenLoeschen);
    beiKnopf(*TBarFavVerwalten_, "Zeile löschen", &Favoriten::FavoritLoeschen);
    beiKnopf(*TBarFavVerwalten_, "Verlassen", &Favoriten::verlasseVerwaltung);
}

void Favoritenpanel::beiKnopf(QToolBar& leiste, const char* schluessel, void (Favoriten::*tue)())
{
    connect(&knopfVon(leiste, schluessel), &QAction::triggered, this, bewacht([&modell = modell_, tue] {
        const Sanduhr warten;
        (modell.*tue)();
    }));
}

// The focus is on the one button that Enter may press without harm.
void Favoritenpanel::oeffneVerwaltung()
{
    modell_.oeffneVerwaltung();
    TBarFavVerwalten_->widgetForAction(&knopfVon(*TBarFavVerwalten_, "Verlassen"))->setFocus();
}

void Favoritenpanel::zeigen()
{
    setVisible(modell_.zeigtFavoriten());
    DGFavoriten_->zeige(modell_.liste(), modell_.fassung());
    leer_->setVisible(!modell_.hatZeilen());
    TBarFavVerwalten_->setVisible(modell_.verwaltung());
    knopfVon(*TBarFavVerwalten_, "Alle löschen").setEnabled(modell_.hatZeilen());
    knopfVon(*TBarFavVerwalten_, "Zeile löschen").setEnabled(modell_.hatZeilen());
}

void Favoritenpanel::nimmFokus()
{
    DGFavoriten_->setFocus();
}

} // namespace quelvarn
