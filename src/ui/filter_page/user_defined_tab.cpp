#include "ui/filter_page/user_defined_tab.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/lock_look.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/controls/value_list.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>

namespace quelvarn {

namespace {

// Places of Autor, Bearbeiter, Material and Projekt in the captions of tab 0.
constexpr std::array<int, ANZAHL_ZUSBENUTZDEF> EIGENSCHAFTEN{7, 9, 6, 1};

QLabel* neueAnzahl(const QString& name)
{
    auto* anzahl = beschriftung({}, Rolle::Beschriftung, name);
    anzahl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    anzahl->setMinimumWidth(anzahl->fontMetrics().horizontalAdvance(QStringLiteral("00000")));
    return anzahl;
}

} // namespace

BenutzDefReiter::BenutzDefReiter(FilterPage& modell)
    : modell_(modell), benutzDef_(modell.benutzDef()), FrmBenutzDef_(new QGroupBox),
      LblAnzEigenBenutzDef_(neueAnzahl(QStringLiteral("LblAnzEigenBenutzDef"))),
      DLstBenutzDefName_(new Wertefeld(QStringLiteral("DLstBenutzDefName"))), LblNaemWert_(new KurzLabel),
      ChReceiver_(new QCheckBox(QStringLiteral("Empfänger"))),
      DLstBenutzDefWert_(new Wertefeld(QStringLiteral("DLstBenutzDefWert")))
{
    FrmBenutzDef_->setObjectName(QStringLiteral("FrmBenutzDef"));
    auto* listen = new QHBoxLayout(FrmBenutzDef_);
    listen->setSpacing(16);
    listen->addWidget(neueNamen(), 2);
    listen->addWidget(neueWerte(), 3);

    auto* rechts = new QVBoxLayout;
    rechts->addWidget(neueZusaetze());
    rechts->addStretch(1);

    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins(12, 4, 12, 8);
    aufbau->setSpacing(16);
    aufbau->addWidget(FrmBenutzDef_, 2);
    aufbau->addLayout(rechts, 1);
    setFocusProxy(DLstBenutzDefName_);
}

QWidget* BenutzDefReiter::neueNamen()
{
    auto* teil = new QWidget;
    auto* LblEigenBenutzDef =
        beschriftung(QStringLiteral("Eigenschaft"), Rolle::Beschriftung, QStringLiteral("LblEigenBenutzDef"));
    DLstBenutzDefName_->setAccessibleName(LblEigenBenutzDef->text());
    DLstBenutzDefName_->gewaehlt = [this](const std::string& name) {
        const Sanduhr warten;
        benutzDef_.nameGewaehlt(name);
        zeigen();
    };
    auto* aufbau = new QGridLayout(teil);
    aufbau->setContentsMargins({});
    aufbau->setVerticalSpacing(4);
    aufbau->setRowMinimumHeight(0, ChReceiver_->sizeHint().height()); // Both lists begin on one line.
    aufbau->addWidget(LblEigenBenutzDef, 0, 0);
    aufbau->addWidget(LblAnzEigenBenutzDef_, 0, 1);
    aufbau->addWidget(DLstBenutzDefName_, 1, 0, 1, 2);
    aufbau->setColumnStretch(0, 1);
    return teil;
}

QWidget* BenutzDefReiter::neueWerte()
{
    auto* teil = new QWidget;
    LblNaemWert_->setObjectName(QStringLiteral("LblNaemWert"));
    setzeRolle(*LblNaemWert_, Rolle::Kopf);
    ChReceiver_->setObjectName(QStringLiteral("ChReceiver"));
    ChReceiver_->setToolTip(QStringLiteral("Empfänger statt ihrer Kennung auflisten"));
    connect(ChReceiver_, &QCheckBox::clicked, this, bewacht([this](bool an) {
                const Sanduhr warten;
                benutzDef_.setzeEmpfaenger(an);
                zeigen();
            }));
    DLstBenutzDefWert_->setAccessibleName(QStringLiteral("Wert"));
    DLstBenutzDefWert_->gewaehlt = [this](const std::string& wert) {
        benutzDef_.wertGewaehlt(wert);
        DLstBenutzDefWert_->markiere({}); // The grid of the filter values has it now, or it was refused.
        zeigen();
    };
    auto* aufbau = new QGridLayout(teil);
    aufbau->setContentsMargins({});
    aufbau->setVerticalSpacing(4);
    aufbau->addWidget(beschriftung(QStringLiteral("Werte"), Rolle::Beschriftung), 0, 0);
    aufbau->addWidget(LblNaemWert_, 0, 1);
    aufbau->addWidget(ChReceiver_, 0, 2);
    aufbau->addWidget(DLstBenutzDefWert_, 1, 0, 1, 3);
    aufbau->setColumnStretch(1, 1);
    return teil;
}

QWidget* BenutzDefReiter::neueZusaetze()
{
    auto* rahmen = new QGroupBox(QStringLiteral("Zusätzlich, höchstens zwei"));
    auto* gitter = new QGridLayout(rahmen);
    gitter->setColumnStretch(1, 1);
    for (int i = 0; i < ANZAHL_ZUSBENUTZDEF; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        LblEigenZus_[stelle] = beschriftung({}, Rolle::Beschriftung);
        LblAnzZus_[stelle] = neueAnzahl({});
        CbEigenBenutzDef_[stelle] = new Wertekombo(QStringLiteral("CbEigenBenutzDef(%1)").arg(i));
        CbEigenBenutzDef_[stelle]->gewaehlt = [this, i](const std::string& wert) {
            benutzDef_.zusatzGewaehlt(i, wert);
            zeigen();
        };
        LblEigenZus_[stelle]->setBuddy(CbEigenBenutzDef_[stelle]);
        gitter->addWidget(LblEigenZus_[stelle], i, 0);
        gitter->addWidget(CbEigenBenutzDef_[stelle], i, 1);
        gitter->addWidget(LblAnzZus_[stelle], i, 2);
    }
    return rahmen;
}

void BenutzDefReiter::zeigen()
{
    const bool gesperrt = !benutzDef_.SperreBenutzDef();
    zeigeGesperrt(*FrmBenutzDef_, QStringLiteral("Benutzerdefinierte Eigenschaften"), gesperrt);
    zeigeGesperrt(*DLstBenutzDefName_, gesperrt);
    zeigeGesperrt(*DLstBenutzDefWert_, gesperrt);
    LblAnzEigenBenutzDef_->setText(zuQt(benutzDef_.namen().anzahl));
    DLstBenutzDefName_->zeige(benutzDef_.namen().werte);
    DLstBenutzDefName_->markiere(benutzDef_.name());
    LblNaemWert_->setText(zuQt(benutzDef_.name()));
    zeigeGesetzt(*ChReceiver_, benutzDef_.ChReceiver());
    DLstBenutzDefWert_->zeige(benutzDef_.werte().werte);
    zeigeZusaetze();
}

void BenutzDefReiter::zeigeZusaetze()
{
    for (int i = 0; i < ANZAHL_ZUSBENUTZDEF; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        const QString text = zuQt(modell_.eigenschaften().bezeichnung(EIGENSCHAFTEN[stelle]));
        LblEigenZus_[stelle]->setText(text);
        CbEigenBenutzDef_[stelle]->setAccessibleName(text);
        CbEigenBenutzDef_[stelle]->zeige(benutzDef_.zusatz(i).werte);
        CbEigenBenutzDef_[stelle]->zeigeGewaehlt(additionalValue(modell_.kontext().zustand(), stelle));
        LblAnzZus_[stelle]->setText(zuQt(benutzDef_.zusatz(i).anzahl));
    }
}

} // namespace quelvarn
