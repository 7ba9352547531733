#include "ui/filter_page/structure_tab.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/click_choice.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/lock_look.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/filter_page/feature_tree.h"
#include "ui/filter_page/main_value_frame.h"
#include "ui/text.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QTreeView>

#include <algorithm>

namespace quelvarn {

namespace {

constexpr int EIGENSCHAFT_FIRMA = 4; // Places in the captions of tab 0.
constexpr int EIGENSCHAFT_MATERIAL = 6;

QLabel* neueAnzahl(const char* name)
{
    auto* anzahl = beschriftung({}, Rolle::Beschriftung, QLatin1String(name));
    anzahl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    anzahl->setMinimumWidth(anzahl->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    return anzahl;
}

// The value of the step of a column, "" when there is none.
std::string wertVon(const Filterkontext& kontext, std::string_view Feldname)
{
    const auto steps = filledSteps(kontext.zustand());
    const auto step = std::ranges::find(steps, Feldname, &FilterSchritt::Feldname);
    return step != steps.end() ? step->Wert : std::string();
}

} // namespace

Strukturreiter::Strukturreiter(FilterPage& modell)
    : modell_(modell), struktur_(modell.struktur()), FrmTreeViemerk_(new QGroupBox), TreeViewStrukMerk_(new QTreeView),
      knoten_(new Merkmalbaum(this)), statuszeile_(new KurzLabel), FrmMarterialFirma_(new QGroupBox),
      CbMaterialMW_(new Wertekombo(QStringLiteral("CbMaterialMW"))),
      CbFirmaMW_(new Wertekombo(QStringLiteral("CbFirmaMW"))), LblMaterialMW_(beschriftung({}, Rolle::Beschriftung)),
      LblFirmaMW_(beschriftung({}, Rolle::Beschriftung)), LblAnzMaterialMW_(neueAnzahl("LblAnzMaterialMW")),
      LblAnzFirmaMW_(neueAnzahl("LblAnzFirmaMW")), FrmHWag_(new Hauptwertrahmen(struktur_)),
      TxtPfadDateiVorlage_(new KurzLabel(nullptr, Qt::ElideMiddle))
{
    auto* rechts = new QVBoxLayout;
    rechts->addWidget(neuesMaterialFirma());
    rechts->addWidget(FrmHWag_, 1);
    auto* aufbau = new QGridLayout(this);
    aufbau->setContentsMargins(12, 4, 12, 8);
    aufbau->setHorizontalSpacing(16);
    aufbau->addWidget(neuerBaum(), 0, 0);
    aufbau->addLayout(rechts, 0, 1);
    aufbau->addWidget(neueVorlage(), 1, 0, 1, 2);
    aufbau->setColumnStretch(0, 2);
    aufbau->setColumnStretch(1, 3);
    aufbau->setRowStretch(0, 1);
    setFocusProxy(TreeViewStrukMerk_);
}

QWidget* Strukturreiter::neuerBaum()
{
    FrmTreeViemerk_->setObjectName(QStringLiteral("FrmTreeViemerk"));
    TreeViewStrukMerk_->setObjectName(QStringLiteral("TreeViewStrukMerk"));
    TreeViewStrukMerk_->setAccessibleName(QStringLiteral("Strukturmerkmale"));
    TreeViewStrukMerk_->setProperty("rahmen", true);
    TreeViewStrukMerk_->setHeaderHidden(true);
    TreeViewStrukMerk_->setUniformRowHeights(true);
    TreeViewStrukMerk_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    TreeViewStrukMerk_->setExpandsOnDoubleClick(false);
    TreeViewStrukMerk_->setModel(knoten_);
    TreeViewStrukMerk_->expand(knoten_->finde({}));
    statuszeile_->setObjectName(QStringLiteral("LblStatusStrukMerk"));
    setzeRolle(*statuszeile_, Rolle::Klein);
    waehltPerKlick(*TreeViewStrukMerk_, [this](const QModelIndex& stelle) { knotenGewaehlt(stelle); });
    auto* aufbau = new QVBoxLayout(FrmTreeViemerk_);
    aufbau->setSpacing(4);
    aufbau->addWidget(TreeViewStrukMerk_, 1);
    aufbau->addWidget(statuszeile_);
    return FrmTreeViemerk_;
}

QWidget* Strukturreiter::neuesMaterialFirma()
{
    FrmMarterialFirma_->setObjectName(QStringLiteral("FrmMarterialFirma"));
    auto* gitter = new QGridLayout(FrmMarterialFirma_);
    gitter->setColumnStretch(1, 1);
    auto zeile = [gitter, nummer = 0](QLabel* text, Wertekombo* kombo, QLabel* anzahl) mutable {
        text->setBuddy(kombo);
        gitter->addWidget(text, nummer, 0);
        gitter->addWidget(kombo, nummer, 1);
        gitter->addWidget(anzahl, nummer++, 2);
    };
    zeile(LblMaterialMW_, CbMaterialMW_, LblAnzMaterialMW_);
    zeile(LblFirmaMW_, CbFirmaMW_, LblAnzFirmaMW_);
    CbMaterialMW_->gewaehlt = [this](const std::string& wert) {
        struktur_.materialGewaehlt(wert);
        zeigen();
    };
    CbFirmaMW_->gewaehlt = [this](const std::string& wert) {
        struktur_.firmaGewaehlt(wert);
        zeigen();
    };
    return FrmMarterialFirma_;
}

QWidget* Strukturreiter::neueVorlage()
{
    auto* teil = new QWidget;
    TxtPfadDateiVorlage_->setObjectName(QStringLiteral("TxtPfadDateiVorlage"));
    TxtPfadDateiVorlage_->setAccessibleName(QStringLiteral("Pfad der Vorlage"));
    auto* reihe = new QHBoxLayout(teil);
    reihe->setContentsMargins({});
    reihe->addWidget(beschriftung(QStringLiteral("Vorlage"), Rolle::Beschriftung));
    reihe->addWidget(TxtPfadDateiVorlage_, 1);
    return teil;
}

void Strukturreiter::knotenGewaehlt(const QModelIndex& stelle)
{
    const Sanduhr warten;
    const auto pfad = knoten_->pfad(stelle);
    gezeigterPfad_.reset(); // A refused choice goes back to the node before.
    if (pfad.empty())
        TreeViewStrukMerk_->expand(stelle);
    struktur_.knotenGewaehlt(pfad);
    zeigen();
}

void Strukturreiter::zeigen()
{
    zeigeBaum();
    zeigeMaterialFirma();
    FrmHWag_->zeigen();
    TxtPfadDateiVorlage_->setText(zuQt(modell_.vorlagePfad()));
}

void Strukturreiter::zeigeBaum()
{
    zeigeGesperrt(*FrmTreeViemerk_, QStringLiteral("Strukturmerkmale"), !struktur_.SperreBaum());
    zeigeGesperrt(*TreeViewStrukMerk_, !struktur_.SperreBaum());
    knoten_->zeige(struktur_.wurzel());
    TreeViewStrukMerk_->expand(knoten_->finde({}));
    const auto& pfad = struktur_.letzterPfad();
    const QModelIndex stelle = knoten_->finde(pfad);
    statuszeile_->setText(knoten_->statuszeile(stelle));
    if (gezeigterPfad_ == pfad && TreeViewStrukMerk_->currentIndex().isValid())
        return;
    gezeigterPfad_ = pfad;
    TreeViewStrukMerk_->setCurrentIndex(stelle);
    TreeViewStrukMerk_->expand(stelle);
    // The next choice is among the children: as many of them in sight as there is room for.
    TreeViewStrukMerk_->scrollTo(knoten_->index(knoten_->rowCount(stelle) - 1, 0, stelle));
    TreeViewStrukMerk_->scrollTo(stelle);
}

void Strukturreiter::zeigeMaterialFirma()
{
    const bool material = struktur_.SperreMaterial();
    const bool firma = struktur_.SperreFirma();
    zeigeGesperrt(*FrmMarterialFirma_, QStringLiteral("Innerhalb der Struktur"), !material && !firma);
    zeigeGesperrt(*CbMaterialMW_, !material);
    zeigeGesperrt(*CbFirmaMW_, !firma);
    LblMaterialMW_->setText(zuQt(modell_.eigenschaften().bezeichnung(EIGENSCHAFT_MATERIAL)));
    LblFirmaMW_->setText(zuQt(modell_.eigenschaften().bezeichnung(EIGENSCHAFT_FIRMA)));
    CbMaterialMW_->zeige(struktur_.material().werte);
    CbFirmaMW_->zeige(struktur_.firma().werte);
    CbMaterialMW_->zeigeGewaehlt(wertVon(modell_.kontext(), "Material"));
    CbFirmaMW_->zeigeGewaehlt(wertVon(modell_.kontext(), "Firma"));
    LblAnzMaterialMW_->setText(zuQt(struktur_.material().anzahl));
    LblAnzFirmaMW_->setText(zuQt(struktur_.firma().anzahl));
}

} // namespace quelvarn
