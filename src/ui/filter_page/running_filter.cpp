#include "ui/filter_page/running_filter.h"

#include "filter/filter_page.h"
#include "ui/controls/filter_value_grid.h"
#include "ui/controls/grid.h"
#include "ui/controls/strip.h"
#include "ui/filter_page/main_value_model.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>

namespace quelvarn {

namespace {

constexpr int BREITE_HAUPTWERTE = 210;
constexpr int BREITE_NUMMER = 26;

} // namespace

LaufenderFilter::LaufenderFilter(FilterPage& modell)
    : modell_(modell), LblKopfFilterWerte_(beschriftung({}, Rolle::Kopf, QStringLiteral("LblKopfFilterWerte"))),
      CmChangeStar_(new QPushButton(QStringLiteral("Sterne ergän&zen"))),
      DataGridFilterEigenMerk_(new Werttabelle("DataGridFilterEigenMerk")),
      DataGridStatus_(new Werttabelle("DataGridStatus")), DGFilternWerte_(new QTableView),
      hauptwerte_(new Hauptwertmodell(this))
{
    baueSchritte();
    baueHauptwerte();
    auto* schritte = new QFrame;
    schritte->setProperty("rahmen", true);
    auto* status = new QHBoxLayout;
    status->setContentsMargins(BREITE_NUMMER, 0, 0, 0); // Below the names of the steps.
    status->addWidget(DataGridStatus_);
    auto* senkrecht = new QVBoxLayout(schritte);
    senkrecht->setContentsMargins(1, 1, 1, 1);
    senkrecht->setSpacing(0);
    senkrecht->addWidget(neuerKopf());
    senkrecht->addWidget(DataGridFilterEigenMerk_, 1);
    senkrecht->addWidget(trennlinie());
    senkrecht->addLayout(status);
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->addWidget(schritte, 1);
    aufbau->addWidget(DGFilternWerte_);
}

QWidget* LaufenderFilter::neuerKopf()
{
    auto* kopf = new Streifen(Streifen::Art::Kopfzeile, "KopfFilterWerte");
    kopf->reihe().setContentsMargins(2, 1, 2, 1);
    CmChangeStar_->setObjectName(QStringLiteral("CmChangeStar"));
    CmChangeStar_->setToolTip(QStringLiteral("Geänderte Werte mit * am Ende in den Filter übernehmen"));
    CmChangeStar_->setProperty("flach", true);
    connect(CmChangeStar_, &QPushButton::clicked, this, bewacht([this] {
                takeInput();
                modell_.sterneErgaenzen();
            }));
    kopf->reihe().addWidget(LblKopfFilterWerte_, 1);
    kopf->reihe().addWidget(CmChangeStar_);
    return kopf;
}

void LaufenderFilter::baueSchritte()
{
    DataGridFilterEigenMerk_->zeilen().bearbeitet = [this](std::size_t zeile, const std::string& wert) {
        modell_.wertGeaendert(zeile, wert);
    };
    DataGridFilterEigenMerk_->verticalHeader()->show();
    DataGridFilterEigenMerk_->installEventFilter(this);
    for (Werttabelle* tabelle : {DataGridFilterEigenMerk_, DataGridStatus_})
        tabelle->horizontalHeader()->hide();
    DataGridFilterEigenMerk_->verticalHeader()->setFixedWidth(BREITE_NUMMER);
    DataGridStatus_->setFixedHeight(DataGridStatus_->verticalHeader()->defaultSectionSize());
    DataGridStatus_->setFocusPolicy(Qt::NoFocus);
    DataGridStatus_->setSelectionMode(QAbstractItemView::NoSelection);
    DataGridStatus_->setAccessibleName(QStringLiteral("Status"));
}

void LaufenderFilter::baueHauptwerte()
{
    DGFilternWerte_->setObjectName(QStringLiteral("DGFilternWerte"));
    DGFilternWerte_->setAccessibleName(QStringLiteral("Grenzen der Hauptwerte"));
    DGFilternWerte_->setProperty("rahmen", true);
    DGFilternWerte_->setModel(hauptwerte_);
    stelleGitterEin(*DGFilternWerte_);
    DGFilternWerte_->setFixedWidth(BREITE_HAUPTWERTE);
    DGFilternWerte_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    DGFilternWerte_->verticalHeader()->setMinimumSectionSize(DGFilternWerte_->fontMetrics().height());
    DGFilternWerte_->verticalHeader()->setDefaultSectionSize(DGFilternWerte_->fontMetrics().height() + 2);
    DGFilternWerte_->setColumnWidth(0, BREITE_HAUPTWERTE / 5);
    DGFilternWerte_->setColumnWidth(1, BREITE_HAUPTWERTE * 2 / 5);
}

// Enter runs the filter; F2 and typing edit a value.
bool LaufenderFilter::eventFilter(QObject* empfaenger, QEvent* ereignis)
{
    if (empfaenger == DataGridFilterEigenMerk_ && ereignis->type() == QEvent::KeyPress) {
        const int taste = static_cast<QKeyEvent*>(ereignis)->key();
        // The key that ends the editing of a value comes here as well, before the value is taken.
        const bool schreibt =
            DataGridFilterEigenMerk_->isPersistentEditorOpen(DataGridFilterEigenMerk_->currentIndex());
        if ((taste == Qt::Key_Return || taste == Qt::Key_Enter) && filtern && !schreibt) {
            filtern();
            return true;
        }
    }
    return QWidget::eventFilter(empfaenger, ereignis);
}

void LaufenderFilter::takeInput()
{
    DataGridFilterEigenMerk_->takeInput();
}

void LaufenderFilter::zeigen()
{
    const Filterkontext& kontext = modell_.kontext();
    LblKopfFilterWerte_->setText(zuQt(modell_.kopfFilterwerte()));
    CmChangeStar_->setEnabled(!kontext.FilterWerteTabelle().empty());
    DataGridFilterEigenMerk_->zeilen().zeige(kontext.FilterWerteTabelle());
    zeigeStatus();
    hauptwerte_->zeige(kontext.zustand().HauptwertBereich);
    DGFilternWerte_->setVisible(kontext.bereich() == Filterbereich::Struktur);
}

void LaufenderFilter::zeigeStatus()
{
    const std::string& kurz = modell_.kontext().filter.status.kurz;
    DataGridStatus_->zeilen().zeige(kurz.empty() ? std::vector<FilterRow>{}
                                                 : std::vector<FilterRow>{{"", "Status", kurz}});
}

} // namespace quelvarn
