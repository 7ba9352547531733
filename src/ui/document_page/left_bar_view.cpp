#include "ui/document_page/left_bar_view.h"

#include "register/left_bar.h"
#include "register/table_heading.h"
#include "register/table_tabs.h"
#include "ui/busy_pointer.h"
#include "ui/controls/filter_value_grid.h"
#include "ui/controls/strip.h"
#include "ui/document_page/panels/date_panel.h"
#include "ui/document_page/panels/panel_parts.h"
#include "ui/document_page/panels/search_panel.h"
#include "ui/document_page/tool_bars.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/icons.h"
#include "ui/value_text.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QToolBar>
#include <QToolButton>

namespace quelvarn {

namespace {

constexpr int HOEHE_WERTE = 120;

} // namespace

LinkeLeistenansicht::LinkeLeistenansicht(LinkeLeiste& modell, TableTabs& tabs, const TableHeading& heading)
    : modell_(modell), tabs_(tabs), heading_(heading), ToolbarSEDok2_(neueToolbarSEDok2()),
      FrmSuchenFiltern_(new Suchpanel(modell)), FrmFilternDatum_(new Datumspanel(modell)), favoriten_(new QMenu(this)),
      LblFilter_(new QToolButton), FrmFilterFavo_(neuesFrmFilterFavo()),
      DataGridFilterEigenMerk_(new Werttabelle("DataGridFilterEigenMerk")), FrmInfoFilter_(neuesFrmInfoFilter()),
      oben_(neuesOben())
{
    setObjectName(QStringLiteral("RandSEDoku"));
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(3, 4, 3, 4);
    aufbau->addWidget(ToolbarSEDok2_);
    aufbau->addStretch(1);
    verbindeKnoepfe();
    baueTasten();
}

QWidget* LinkeLeistenansicht::neuesOben()
{
    auto* oben = new QWidget;
    auto* aufbau = new QVBoxLayout(oben);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    for (QWidget* panel : std::initializer_list<QWidget*>{FrmSuchenFiltern_, FrmFilternDatum_, FrmFilterFavo_})
        aufbau->addWidget(panel);
    return oben;
}

QWidget* LinkeLeistenansicht::neuesFrmFilterFavo()
{
    auto* panel = neuesPanel("FrmFilterFavo");
    favoriten_->setObjectName(QStringLiteral("MenuFilternFavo"));
    connect(favoriten_, &QMenu::aboutToShow, this, bewacht([this] { fuelleFavoriten(); }));
    LblFilter_->setObjectName(QStringLiteral("LblFilter"));
    LblFilter_->setAccessibleName(QStringLiteral("Filterfavorit anwenden"));
    LblFilter_->setToolTip(QStringLiteral("Diesen Filter auf die Tabelle anwenden"));
    LblFilter_->setPopupMode(QToolButton::MenuButtonPopup);
    LblFilter_->setMenu(favoriten_);
    LblFilter_->setMinimumWidth(180);
    LblFilter_->setProperty("rahmen", true);
    connect(LblFilter_, &QToolButton::clicked, this, bewacht([this] {
                const Sanduhr warten;
                modell_.nutzeFavorit();
            }));
    auto* reihe = new QHBoxLayout(panel);
    reihe->setContentsMargins(8, 6, 8, 6);
    reihe->addWidget(beschriftung(QStringLiteral("Filterfavorit"), Rolle::Beschriftung));
    reihe->addWidget(LblFilter_);
    reihe->addStretch(1);
    return panel;
}

QWidget* LinkeLeistenansicht::neuesFrmInfoFilter()
{
    auto* panel = neuesPanel("FrmInfoFilter");
    auto* aufbau = new QVBoxLayout(panel);
    aufbau->setContentsMargins({});
    aufbau->addWidget(DataGridFilterEigenMerk_);
    panel->setFixedHeight(HOEHE_WERTE);
    return panel;
}

void LinkeLeistenansicht::beiKnopf(std::string_view schluessel, const std::function<void(bool gedrueckt)>& tue)
{
    connect(&knopfVon(*ToolbarSEDok2_, schluessel), &QAction::triggered, this,
            bewacht([tue](bool gedrueckt) { tue(gedrueckt); }));
}

void LinkeLeistenansicht::verbindeKnoepfe()
{
    beiKnopf("Suche/Filtern", [this](bool gedrueckt) {
        modell_.zeigeSuchen(gedrueckt);
        if (gedrueckt)
            FrmSuchenFiltern_->nimmFokus();
    });
    beiKnopf("Filtern Datum", [this](bool gedrueckt) { modell_.zeigeDatum(gedrueckt); });
    beiKnopf("Filtern Favo.", [this](bool gedrueckt) { oeffneFavoriten(gedrueckt); });
    beiKnopf("Filterwerte", [this](bool gedrueckt) { modell_.zeigeWerte(gedrueckt); });
    beiKnopf("Zurück", [this](bool) {
        const Sanduhr warten;
        tabs_.back();
    });
}

void LinkeLeistenansicht::baueTasten()
{
    auto* suchen = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), this);
    connect(suchen, &QShortcut::activated, this, bewacht([this] {
                modell_.zeigeSuchen(true);
                FrmSuchenFiltern_->nimmFokus();
            }));
    auto* weiter = new QShortcut(QKeySequence(Qt::Key_F3), this);
    connect(weiter, &QShortcut::activated, this, bewacht([this] {
                modell_.zeigeSuchen(true);
                FrmSuchenFiltern_->weitersuchen();
            }));
}

void LinkeLeistenansicht::oeffneFavoriten(bool gedrueckt)
{
    if (!gedrueckt)
        return modell_.schliesseFavoriten();
    if (!modell_.zeigeFavoriten())
        return;
    QWidget* knopf = ToolbarSEDok2_->widgetForAction(&knopfVon(*ToolbarSEDok2_, "Filtern Favo."));
    favoriten_->popup(knopf->mapToGlobal(knopf->rect().topRight()));
}

void LinkeLeistenansicht::fuelleFavoriten()
{
    favoriten_->clear();
    for (const std::string& name : modell_.favoritennamen()) {
        QAction* eintrag = favoriten_->addAction(asCaption(zuQt(name)));
        connect(eintrag, &QAction::triggered, this, bewacht([this, name] {
                    favoriten_->close();
                    modell_.waehleFavorit(name);
                }));
    }
}

void LinkeLeistenansicht::zeigen()
{
    FrmSuchenFiltern_->setVisible(modell_.zeigtSuchen());
    FrmFilternDatum_->setVisible(modell_.zeigtDatum());
    FrmFilterFavo_->setVisible(modell_.zeigtFavorit());
    FrmInfoFilter_->setVisible(modell_.zeigtWerte());
    if (modell_.zeigtSuchen())
        FrmSuchenFiltern_->zeigen();
    if (modell_.zeigtDatum())
        FrmFilternDatum_->zeigen();
    LblFilter_->setText(asCaption(zuQt(modell_.LblFilter())));
    DataGridFilterEigenMerk_->zeilen().zeige(modell_.gezeigteWerte());
    zeigeKnoepfe();
    zeigeZurueck();
}

void LinkeLeistenansicht::zeigeKnoepfe()
{
    knopfVon(*ToolbarSEDok2_, "Suche/Filtern").setChecked(modell_.zeigtSuchen());
    knopfVon(*ToolbarSEDok2_, "Filtern Datum").setChecked(modell_.zeigtDatum());
    knopfVon(*ToolbarSEDok2_, "Filtern Favo.").setChecked(modell_.zeigtFavorit());
    QAction& werte = knopfVon(*ToolbarSEDok2_, "Filterwerte");
    werte.setChecked(modell_.zeigtWerte());
    const QString text = zuQt(modell_.knopfWerte());
    if (werte.toolTip() == text)
        return;
    werte.setText(text);
    werte.setToolTip(text);
}

void LinkeLeistenansicht::zeigeZurueck()
{
    if (filterKnopf_ == heading_.showsFilterButton()) // A new icon makes the whole page lay itself out again.
        return;
    filterKnopf_ = heading_.showsFilterButton();
    QAction& knopf = knopfVon(*ToolbarSEDok2_, "Zurück");
    knopf.setToolTip(zuQt(heading_.backTip()));
    knopf.setIcon(symbol(heading_.showsFilterButton() ? "filter-lift" : "first"));
}

} // namespace quelvarn
