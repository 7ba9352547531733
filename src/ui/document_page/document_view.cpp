#include "ui/document_page/document_view.h"

#include "program/program.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/controls/tab_bar.h"
#include "ui/document_page/document_status_bar.h"
#include "ui/document_page/info_area.h"
#include "ui/document_page/left_bar_view.h"
#include "ui/document_page/panels/favourites_panel.h"
#include "ui/document_page/panels/panels.h"
#include "ui/document_page/table_view.h"
#include "ui/document_page/tool_bars.h"
#include "ui/document_page/top_bar_view.h"
#include "ui/text.h"
#include "ui/value_text.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QShortcut>
#include <QSplitter>
#include <QTabBar>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr int ERSTE_SONDERTABELLE = 5;

} // namespace

FormSEDoku::FormSEDoku(Program& program, QtViewer& viewer)
    : program_(program), viewer_(viewer), LabelSEDoku_(new KurzLabel), LblZugriffSEDoku_(new KurzLabel),
      oben_(new ObereLeistenansicht(program.topBar, this)),
      links_(new LinkeLeistenansicht(program.leftBar, program.tabs, program.heading)),
      info_(new Infobereich(program.info, program.relationActions, viewer)), status_(new StatusBarDatei)
{
    setObjectName(QStringLiteral("FormSEDoku"));
    SSTabDGDoku_ = neueReiter();
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(neueKopfzeile());
    aufbau->addWidget(neueLeiste());
    aufbau->addWidget(neueMitte(), 1);
    aufbau->addWidget(status_);
    baueTasten();
}

QWidget* FormSEDoku::neueKopfzeile()
{
    auto* zeile = new Streifen(Streifen::Art::Kopfzeile, "KopfSEDoku");
    LabelSEDoku_->setObjectName(QStringLiteral("LabelSEDoku"));
    setzeRolle(*LabelSEDoku_, Rolle::Titel);
    LblZugriffSEDoku_->setObjectName(QStringLiteral("LblZugriffSEDoku"));
    LblZugriffSEDoku_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setzeRolle(*LblZugriffSEDoku_, Rolle::Klein);
    zeile->reihe().setContentsMargins(4, 0, 10, 0);
    zeile->reihe().addWidget(LabelSEDoku_);
    zeile->reihe().addWidget(LblZugriffSEDoku_, 1);
    return zeile;
}

QWidget* FormSEDoku::neueLeiste()
{
    auto* zeile = new Streifen(Streifen::Art::Leiste, "LeisteSEDoku");
    auto* ToolbarSEDok3 = neueToolbarSEDok3();
    ToolbarSEDok3->hide();
    zeile->reihe().addWidget(oben_->ToolbarSEDokTop(), 1);
    zeile->reihe().addWidget(ToolbarSEDok3);
    zeile->reihe().addWidget(neueToolbarSEDok4());
    return zeile;
}

QWidget* FormSEDoku::neueMitte()
{
    auto* teiler = new QSplitter;
    teiler->setObjectName(QStringLiteral("FrmDokuSmartView_Doku"));
    teiler->setChildrenCollapsible(false);
    teiler->addWidget(neueTabellenseite());
    teiler->addWidget(info_);
    teiler->setStretchFactor(0, 3);
    teiler->setStretchFactor(1, 2);
    teiler->setSizes({604, 335});

    FrmDokuSmartView_Doku_ = teiler;
    FrmDokuSmartView_SmartView_ = new QWidget;
    FrmDokuSmartView_SmartView_->setObjectName(QStringLiteral("FrmDokuSmartView_SmartView"));
    auto* viewerplatz = new QVBoxLayout(FrmDokuSmartView_SmartView_);
    viewerplatz->addWidget(&viewer_.platz(Ansicht::Dokument));
    FrmDokuSmartView_SmartView_->setFocusPolicy(Qt::ClickFocus);
    FrmDokuSmartView_SmartView_->hide();
    auto* mitte = new QWidget;
    auto* reihe = new QHBoxLayout(mitte);
    reihe->setContentsMargins({});
    reihe->setSpacing(0);
    reihe->addWidget(teiler);
    reihe->addWidget(FrmDokuSmartView_SmartView_);
    reihe->addWidget(neueAuftragsliste());
    return mitte;
}

QWidget* FormSEDoku::neueTabellenseite()
{
    auto* tabellen = new QVBoxLayout;
    tabellen->setSpacing(0);
    tabellen->addWidget(links_->ueberTabellen());
    tabellen->addWidget(neuesFrmDelete());
    tabellen->addWidget(SSTabDGDoku_, 1);
    tabellen->addWidget(links_->unterTabellen());
    for (QWidget* panel :
         std::initializer_list<QWidget*>{oben_->FrmFavoriten(), neuesFrmNutzer(), neuesFrmForwardMessage()})
        tabellen->addWidget(panel, 1);

    auto* seite = new QWidget;
    auto* aufbau = new QHBoxLayout(seite);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(links_);
    aufbau->addLayout(tabellen, 1);
    return seite;
}

QTabWidget* FormSEDoku::neueReiter()
{
    auto* reiter = new Reiter(ERSTE_SONDERTABELLE);
    reiter->setObjectName(QStringLiteral("SSTabDGDoku"));
    reiter->setDocumentMode(true);
    reiter->tabBar()->setElideMode(Qt::ElideMiddle);
    reiter->tabBar()->setUsesScrollButtons(false);
    reiter->tabBar()->setExpanding(false);
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab) {
        auto* tabelle = new Tabellenansicht(program_, tab);
        tabelle->geoeffnet = [this] { program_.frame.edit(); };
        tabellen_.push_back(tabelle);
        reiter->addTab(tabelle, {});
    }
    connect(reiter, &QTabWidget::currentChanged, this, bewacht([this](int tab) {
                const Sanduhr warten;
                program_.tabs.chooseTab(tab);
                if (!SSTabDGDoku_->tabBar()->hasFocus()) // There the arrow keys go on from tab to tab.
                    setFocus();
            }));
    connect(reiter, &QTabWidget::tabBarClicked, this, bewacht([this](int tab) {
                if (tab == program_.tables.tab()) // Nothing changes, and the keyboard is wanted here all the same.
                    setFocus();
            }));
    return reiter;
}

void FormSEDoku::baueTasten()
{
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab) {
        auto* taste = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)), this);
        connect(taste, &QShortcut::activated, this, bewacht([this, tab] {
                    const Sanduhr warten;
                    program_.tabs.chooseTab(tab);
                    setFocus();
                }));
    }
    // Back from wherever the focus went, and from what the upper bar has brought up.
    auto* zurueck = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    const auto zurTabelle = [this] {
        oben_->schliesse();
        tabellen_[static_cast<std::size_t>(program_.tables.tab())]->gitter().setFocus();
    };
    connect(zurueck, &QShortcut::activated, this, bewacht(zurTabelle));
    info_->zurTabelle = zurTabelle;
}

void FormSEDoku::zeigen()
{
    LabelSEDoku_->setText(zuQt(program_.heading.countText()));
    LblZugriffSEDoku_->setText(zuQt(program_.heading.accessText()));
    showNote(*LblZugriffSEDoku_, program_.heading.isStatusLimited());
    zeigeReiter();
    zeigeLinks();
    zeigeOben();
    refreshRows();
    info_->zeigen();
    zeigeViewerseite();
    status_->zeigen(program_.panels);
}

void FormSEDoku::zeigeReiter()
{
    const QSignalBlocker still(SSTabDGDoku_);
    for (int tab = 0; tab < ANZAHL_DOKUTYPEN; ++tab) {
        const QString name = zuQt(program_.session.mehrzahl(tab));
        const QString text = asCaption(name);
        if (SSTabDGDoku_->tabText(tab) == text)
            continue;
        SSTabDGDoku_->setTabText(tab, text);
        SSTabDGDoku_->setTabToolTip(tab, asTip(name));
    }
    SSTabDGDoku_->setCurrentIndex(program_.tables.tab());
    setFocusProxy(&mainControl());
}

QWidget& FormSEDoku::mainControl() const
{
    if (program_.viewer.isInFront())
        return *FrmDokuSmartView_SmartView_;
    return tabellen_[static_cast<std::size_t>(program_.tables.tab())]->gitter();
}

void FormSEDoku::zeigeViewerseite()
{
    QWidget& behind = program_.viewer.isInFront() ? *FrmDokuSmartView_Doku_ : *FrmDokuSmartView_SmartView_;
    QWidget& front = program_.viewer.isInFront() ? *FrmDokuSmartView_SmartView_ : *FrmDokuSmartView_Doku_;
    if (!front.isHidden())
        return;
    const bool hadFocus = behind.isAncestorOf(QApplication::focusWidget());
    front.show();
    if (hadFocus) // Else it would go to the next control of the window, and keys with it.
        setFocus();
    behind.hide();
}

void FormSEDoku::refreshRows()
{
    for (auto* tabelle : tabellen_)
        tabelle->zeigen();
}

void FormSEDoku::zeigeLinks()
{
    links_->zeigen();
}

void FormSEDoku::zeigeOben()
{
    oben_->zeigen();
}

} // namespace quelvarn
