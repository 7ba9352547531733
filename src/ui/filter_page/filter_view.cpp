#include "ui/filter_page/filter_view.h"

#include "base/windows_path.h"
#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/progress_field.h"
#include "ui/controls/strip.h"
#include "ui/controls/tab_bar.h"
#include "ui/controls/tool_bar.h"
#include "ui/filter_page/property_tab.h"
#include "ui/filter_page/running_filter.h"
#include "ui/filter_page/saved_filter_frame.h"
#include "ui/filter_page/structure_tab.h"
#include "ui/filter_page/user_defined_tab.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QAbstractButton>
#include <QAction>
#include <QHBoxLayout>
#include <QShortcut>
#include <QStackedWidget>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr std::array<const char*, 3> REITER{"Eigenschaften und Datum", "Hauptmerkmale und Hauptwerte",
                                            "Benutzerdefinierte Eigenschaften"};
constexpr int HOEHE_FILTER = 160; // Head, five steps and the statuses.
constexpr int BREITE_GESPEICHERTE = 262;

QWidget* neuerVorlagenrahmen(QWidget& vorlage)
{
    auto* rahmen = new QWidget;
    rahmen->setObjectName(QStringLiteral("FrmVorlageSmartViewDraft"));
    vorlage.setObjectName(QStringLiteral("SEDraftVorlage"));
    auto* aufbau = new QVBoxLayout(rahmen);
    aufbau->addWidget(&vorlage);
    return rahmen;
}

} // namespace

FormSEFiltern::FormSEFiltern(FilterPage& modell, QWidget& vorlage)
    : modell_(modell), LblKopfSEFiltern_(new KurzLabel), LblZugriffSEFiltern_(new KurzLabel),
      ToolbarSEFilter_(quelvarn::neueLeiste("ToolbarSEFilter", Knopfart::TextNebenSymbol)),
      FrmGesamtFilter_(new QStackedWidget), SSTabDGFilter_(new Reiter(static_cast<int>(REITER.size()))),
      eigenschaften_(new Eigenschaftsreiter(modell)), struktur_(new Strukturreiter(modell)),
      benutzDef_(new BenutzDefReiter(modell)), filter_(new LaufenderFilter(modell)),
      gespeicherte_(new GespeicherteFilterRahmen(modell)), vorlage_(neuerVorlagenrahmen(vorlage)),
      dateiname_(new KurzLabel), pfadname_(new KurzLabel(nullptr, Qt::ElideMiddle)),
      fortschritt_(new Fortschrittsfeld("PrgBarBenutzDef", "LblProgBar", "CmAbbrechenBenutzDef"))
{
    setObjectName(QStringLiteral("FormSEFiltern"));
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(neueKopfzeile());
    aufbau->addWidget(neueLeiste());
    aufbau->addWidget(neuerInhalt(), 1);
    aufbau->addWidget(neueStatuszeile());
    baueTasten();
    setFocusProxy(SSTabDGFilter_);
}

QWidget* FormSEFiltern::neueKopfzeile()
{
    auto* zeile = new Streifen(Streifen::Art::Kopfzeile, "KopfSEFiltern");
    LblKopfSEFiltern_->setObjectName(QStringLiteral("LblKopfSEFiltern"));
    setzeRolle(*LblKopfSEFiltern_, Rolle::Titel);
    LblZugriffSEFiltern_->setObjectName(QStringLiteral("LblZugriffSEFiltern"));
    LblZugriffSEFiltern_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setzeRolle(*LblZugriffSEFiltern_, Rolle::Klein);
    zeile->reihe().setContentsMargins(4, 0, 10, 0);
    zeile->reihe().addWidget(LblKopfSEFiltern_);
    zeile->reihe().addWidget(LblZugriffSEFiltern_, 1);
    return zeile;
}

QWidget* FormSEFiltern::neueLeiste()
{
    auto* zeile = new Streifen(Streifen::Art::Leiste, "LeisteSEFilter");
    QToolBar& leiste = *ToolbarSEFilter_;
    const auto fuege = [this, &leiste](const Leistenknopf& knopf) {
        auto* aktion = fuegeKnopfHinzu(leiste, knopf);
        aktion->setShortcutContext(Qt::WindowShortcut);
        return aktion;
    };
    auto* filtern = fuege({"Filtern", "Filtern", "Filtern der Tabelle (Strg+Eingabe)", ""});
    leiste.widgetForAction(filtern)->setProperty("haupt", true);
    filtern->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::Key_Return), QKeySequence(Qt::CTRL | Qt::Key_Enter), QKeySequence(Qt::Key_F5)});
    auto* zurueck = fuege({"Zurück", "Zurück", "Filterwerte zurücksetzen", "filter-lift"});
    auto* werte = fuege({"Werte", "Werte", "Grenzen der Hauptwerte a bis g zurücksetzen", "values"});
    auto* vorlage = fuege({"Vorlage", "Vorlage", "Zeichnungsvorlage des Strukturmerkmals anzeigen", "eye", true});
    fuegeDehnerHinzu(leiste);
    auto* verlassen =
        fuege({"Verlassen", "Verlassen", "Zurück zu den Dokumenten; die Tabelle bleibt gefiltert", "back"});
    connect(filtern, &QAction::triggered, this, bewacht([this] { this->filtern(); }));
    connect(zurueck, &QAction::triggered, this, bewacht([this] {
                const Sanduhr warten;
                modell_.zurueck();
            }));
    connect(werte, &QAction::triggered, this, bewacht([this] { modell_.werte(); }));
    connect(vorlage, &QAction::triggered, this, bewacht([this](bool gedrueckt) { modell_.vorlage(gedrueckt); }));
    connect(verlassen, &QAction::triggered, this, bewacht([this] {
                filter_->takeInput();
                modell_.verlassen();
            }));
    zeile->reihe().addWidget(ToolbarSEFilter_);
    return zeile;
}

QWidget* FormSEFiltern::neuerInhalt()
{
    baueReiter();
    auto* FrmFilterSmart = new QWidget;
    FrmFilterSmart->setObjectName(QStringLiteral("FrmFilterSmart"));
    filter_->filtern = [this] { Waechter::aktuell().fuehreAus([this] { filtern(); }); };
    gespeicherte_->beforeSaving = [this] { filter_->takeInput(); };
    filter_->setFixedHeight(HOEHE_FILTER);
    gespeicherte_->setFixedWidth(BREITE_GESPEICHERTE);
    auto* unten = new QHBoxLayout;
    unten->setContentsMargins(12, 4, 12, 8);
    unten->setSpacing(12);
    unten->addWidget(filter_, 1);
    unten->addWidget(gespeicherte_);
    auto* aufbau = new QVBoxLayout(FrmFilterSmart);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(SSTabDGFilter_, 1);
    aufbau->addLayout(unten);

    FrmGesamtFilter_->setObjectName(QStringLiteral("FrmGesamtFilter"));
    FrmGesamtFilter_->addWidget(FrmFilterSmart);
    FrmGesamtFilter_->addWidget(vorlage_);
    return FrmGesamtFilter_;
}

void FormSEFiltern::baueReiter()
{
    SSTabDGFilter_->setObjectName(QStringLiteral("SSTabDGFilter"));
    SSTabDGFilter_->setDocumentMode(true);
    SSTabDGFilter_->tabBar()->setExpanding(false);
    const std::array<QWidget*, 3> seiten{eigenschaften_, struktur_, benutzDef_};
    for (std::size_t i = 0; i < REITER.size(); ++i)
        SSTabDGFilter_->addTab(seiten[i], QString::fromUtf8(REITER[i]));
    connect(SSTabDGFilter_, &QTabWidget::currentChanged, this, bewacht([this](int tab) {
                const Sanduhr warten;
                modell_.bereichGewaehlt(static_cast<Filterbereich>(tab));
            }));
    eigenschaften_->datumUebernommen = [this] { SSTabDGFilter_->tabBar()->setFocus(); };
}

QWidget* FormSEFiltern::neueStatuszeile()
{
    auto* zeile = new Streifen(Streifen::Art::Statuszeile, "StatusBarDatei");
    dateiname_->setObjectName(QStringLiteral("StatusBarDatei(2)"));
    pfadname_->setObjectName(QStringLiteral("StatusBarDatei(4)"));
    QHBoxLayout& reihe = zeile->reihe();
    reihe.addWidget(beschriftung(QStringLiteral("Dateiname"), Rolle::Klein, QStringLiteral("StatusBarDatei(1)")));
    reihe.addWidget(dateiname_);
    reihe.addSpacing(8);
    reihe.addWidget(beschriftung(QStringLiteral("Pfadname"), Rolle::Klein, QStringLiteral("StatusBarDatei(3)")));
    reihe.addWidget(pfadname_, 1);
    fortschritt_->abbrechen().setProperty("flach", true);
    reihe.addWidget(fortschritt_);
    return zeile;
}

void FormSEFiltern::baueTasten()
{
    auto* verlassen = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    verlassen->setContext(Qt::WidgetWithChildrenShortcut);
    connect(verlassen, &QShortcut::activated, this, bewacht([this] { modell_.verlassen(); }));
    for (int tab = 0; tab < SSTabDGFilter_->count(); ++tab) {
        auto* taste = new QShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + tab)), this);
        taste->setContext(Qt::WidgetWithChildrenShortcut);
        connect(taste, &QShortcut::activated, this, bewacht([this, tab] {
                    if (SSTabDGFilter_->isTabVisible(tab))
                        SSTabDGFilter_->setCurrentIndex(tab);
                }));
    }
}

void FormSEFiltern::filtern()
{
    filter_->takeInput();
    const Sanduhr warten;
    modell_.filtern();
}

void FormSEFiltern::showEvent(QShowEvent* ereignis)
{
    QWidget::showEvent(ereignis);
    eigenschaften_->zeigeHeute();
}

// --- projection ------------------------------------------------------------------------------------------------

void FormSEFiltern::zeigen()
{
    LblKopfSEFiltern_->setText(zuQt(modell_.titel()));
    LblZugriffSEFiltern_->setText(zuQt(modell_.zugriffText()));
    zeigeLeiste();
    zeigeReiter();
    filter_->zeigen();
    gespeicherte_->zeigen();
    const bool vorlage = modell_.zeigtVorlage();
    FrmGesamtFilter_->setCurrentIndex(vorlage ? 1 : 0);
    dateiname_->setText(vorlage ? zuQt(DateiName(modell_.vorlagePfad())) : QString());
    pfadname_->setText(vorlage ? zuQt(Ordnername(modell_.vorlagePfad())) : QString());
}

void FormSEFiltern::zeigeLeiste()
{
    const bool vorlage = modell_.zeigtVorlage();
    for (const char* knopf : {"Filtern", "Zurück"})
        knopfVon(*ToolbarSEFilter_, knopf).setEnabled(!vorlage);
    knopfVon(*ToolbarSEFilter_, "Werte").setEnabled(!vorlage && modell_.kontext().bereich() == Filterbereich::Struktur);
    knopfVon(*ToolbarSEFilter_, "Vorlage").setChecked(vorlage);
}

void FormSEFiltern::zeigeReiter()
{
    const Filterbereich bereich = modell_.kontext().bereich();
    const QSignalBlocker still(SSTabDGFilter_);
    constexpr int BENUTZDEF = static_cast<int>(Filterbereich::BenutzDef);
    SSTabDGFilter_->setTabVisible(BENUTZDEF, modell_.bereichVorhanden(Filterbereich::BenutzDef));
    SSTabDGFilter_->setCurrentIndex(static_cast<int>(bereich));
    fortschritt_->setzeVerliehen(bereich == Filterbereich::BenutzDef);
    switch (bereich) {
    case Filterbereich::Eigenschaften:
        return eigenschaften_->zeigen();
    case Filterbereich::Struktur:
        return struktur_->zeigen();
    case Filterbereich::BenutzDef:
        return benutzDef_->zeigen();
    }
}

} // namespace quelvarn
