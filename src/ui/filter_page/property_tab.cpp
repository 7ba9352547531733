#include "ui/filter_page/property_tab.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/calendar.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalBlocker>

namespace quelvarn {

namespace {

constexpr std::array<const char*, ANZAHL_EIGENSCHAFTEN> BEZEICHNUNGEN{
    "LblProjektCb", "LblTitelCb",   "LblThemaCb",      "LblFirmaCb",    "LblKategorieCb", "LblMaterialCb",
    "LblAutorCb",   "LblManagerCb", "LblBearbeiterCb", "LblHauptMerkA", "LblHauptMerkB",  "LblKeywordCb",
};
constexpr std::array<const char*, 2> DATUMSARTEN{"&Erstellt", "&Geändert"};
constexpr std::array<const char*, 3> BEGRENZUNGEN{">=  a&b dem Datum", "=  a&m Datum", "<=  b&is zum Datum"};

// Options of one frame, one below the other.
template <std::size_t Anzahl, typename Wahl>
void fuelleOptionen(QGroupBox& rahmen, const char* name, const std::array<const char*, Anzahl>& texte,
                    std::array<QAbstractButton*, Anzahl>& knoepfe, const Wahl& wahl)
{
    auto* aufbau = new QVBoxLayout(&rahmen);
    aufbau->setContentsMargins(10, 4, 10, 6);
    aufbau->setSpacing(4);
    for (std::size_t i = 0; i < Anzahl; ++i) {
        auto* knopf = neuesFeld<QRadioButton>(QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(i),
                                              QString::fromUtf8(texte[i]));
        QObject::connect(knopf, &QRadioButton::clicked, &rahmen, bewacht([wahl, i] { wahl(static_cast<int>(i)); }));
        knoepfe[i] = knopf;
        aufbau->addWidget(knopf);
    }
}

} // namespace

Eigenschaftsreiter::Eigenschaftsreiter(FilterPage& modell) : modell_(modell)
{
    auto* links = neueEigenschaften();
    auto* mitte = new QVBoxLayout;
    mitte->setSpacing(6);
    mitte->addWidget(neueStati());
    mitte->addWidget(neueDatumsart());
    mitte->addStretch(1);
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(6);
    rechts->addWidget(neuerKalender());
    rechts->addWidget(neueBegrenzung());
    rechts->addStretch(1);
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setContentsMargins(12, 4, 12, 0);
    aufbau->setSpacing(12);
    aufbau->addWidget(links, 1);
    aufbau->addLayout(mitte);
    aufbau->addLayout(rechts);
    setFocusProxy(CbEigen_.front());
}

// --- properties ------------------------------------------------------------------------------------------------

QWidget* Eigenschaftsreiter::neueEigenschaften()
{
    auto* teil = new QWidget;
    teil->setObjectName(QStringLiteral("FrmTabEigen"));
    auto* gitter = new QGridLayout(teil);
    gitter->setContentsMargins(0, 4, 0, 0);
    gitter->setHorizontalSpacing(8);
    gitter->setVerticalSpacing(3);
    gitter->setColumnStretch(1, 1);
    for (int index = 1; index <= ANZAHL_EIGENSCHAFTEN; ++index)
        neueEigenschaft(index, *gitter);
    gitter->setRowStretch(ANZAHL_EIGENSCHAFTEN + 1, 1);
    return teil;
}

void Eigenschaftsreiter::neueEigenschaft(int index, QGridLayout& gitter)
{
    const auto stelle = static_cast<std::size_t>(index - 1);
    auto* caption = new KurzLabel;
    caption->setObjectName(QLatin1String(BEZEICHNUNGEN[stelle]));
    caption->setFixedWidth(caption->fontMetrics().horizontalAdvance(QStringLiteral("Hauptmerkmal A")) + 8);
    setzeRolle(*caption, Rolle::Beschriftung);
    auto* kombo = new Wertekombo(QStringLiteral("CbEigen(%1)").arg(index));
    kombo->gewaehlt = [this, index](const std::string& wert) { modell_.eigenschaften().wertGewaehlt(index, wert); };
    auto* anzahl = beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblAnzEigen(%1)").arg(index));
    anzahl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    anzahl->setMinimumWidth(anzahl->fontMetrics().horizontalAdvance(QStringLiteral("000000")));
    gitter.addWidget(captions_[stelle] = caption, index, 0);
    gitter.addWidget(CbEigen_[stelle] = kombo, index, 1);
    gitter.addWidget(LblAnzEigen_[stelle] = anzahl, index, 2);
}

void Eigenschaftsreiter::zeigeEigenschaften()
{
    const Eigenschaftsbereich& bereich = modell_.eigenschaften();
    for (int index = 1; index <= ANZAHL_EIGENSCHAFTEN; ++index) {
        const auto stelle = static_cast<std::size_t>(index - 1);
        const QString bezeichnung = zuQt(bereich.bezeichnung(index));
        captions_[stelle]->setText(bezeichnung);
        CbEigen_[stelle]->setAccessibleName(bezeichnung);
        CbEigen_[stelle]->zeige(bereich.liste(index).werte, modell_.listenfassung());
        LblAnzEigen_[stelle]->setText(zuQt(bereich.liste(index).anzahl));
    }
}

// --- statuses --------------------------------------------------------------------------------------------------

QWidget* Eigenschaftsreiter::neueStati()
{
    auto* rahmen = neuesFeld<QGroupBox>("FrmChStatus", QStringLiteral("Status"));
    auto* aufbau = new QVBoxLayout(rahmen);
    aufbau->setContentsMargins(10, 4, 10, 6);
    aufbau->setSpacing(4);
    for (std::size_t status = 0; status < ChFilterStat_.size(); ++status) {
        auto* kasten = new QCheckBox(QStringLiteral("%1 %2").arg(status).arg(zuQt(STATUS[status].name)));
        connect(kasten, &QCheckBox::clicked, this, bewacht([this, status](bool an) {
                    modell_.eigenschaften().statusGewaehlt(static_cast<int>(status), an);
                }));
        aufbau->addWidget(ChFilterStat_[status] = kasten);
    }
    auto* FrmStatLeg = new QWidget;
    FrmStatLeg->setObjectName(QStringLiteral("FrmStatLeg"));
    auto* reihe = new QHBoxLayout(FrmStatLeg);
    reihe->setContentsMargins({});
    reihe->addWidget(legende_ = beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblStatLeg")));
    aufbau->addWidget(FrmStatLeg);
    return rahmen;
}

void Eigenschaftsreiter::zeigeStati()
{
    const int tab = modell_.kontext().tab;
    const auto& haken = modell_.kontext().zustand().ChFilterStat;
    for (std::size_t status = 0; status < ChFilterStat_.size(); ++status) {
        QCheckBox& kasten = *ChFilterStat_[status];
        kasten.setObjectName(QStringLiteral("ChFilterStat(%1)").arg(tab * 10 + static_cast<int>(status)));
        kasten.setEnabled(modell_.eigenschaften().statusVorhanden(static_cast<int>(status)));
        zeigeGesetzt(kasten, haken[status]);
    }
    const StatusCondition& bedingung = modell_.kontext().filter.status;
    legende_->setText(bedingung.kurz.empty() ? QStringLiteral("Alle Stati") : zuQt("Status" + bedingung.kurz));
    showNote(*legende_, bedingung.isSet());
}

// --- dates -----------------------------------------------------------------------------------------------------

QWidget* Eigenschaftsreiter::neueDatumsart()
{
    auto* rahmen = neuesFeld<QGroupBox>("frmDatum", QStringLiteral("Datum"));
    fuelleOptionen(*rahmen, "OpDat", DATUMSARTEN, OpDat_,
                   [this](int feld) { modell_.eigenschaften().setzeDatumsfeld(feld); });
    return rahmen;
}

QWidget* Eigenschaftsreiter::neueBegrenzung()
{
    auto* rahmen = neuesFeld<QGroupBox>("frmDatumBegr", QStringLiteral("Begrenzung"));
    fuelleOptionen(*rahmen, "OpDatBegr", BEGRENZUNGEN, OpDatBegr_,
                   [this](int begrenzung) { modell_.eigenschaften().setzeBegrenzung(begrenzung); });
    return rahmen;
}

QWidget* Eigenschaftsreiter::neuerKalender()
{
    auto* rahmen = neuesFeld<QGroupBox>("FrmKalender", QStringLiteral("Tag wählen"));
    MonthViewEigen_ = new Kalender("MonthViewEigen");
    MonthViewEigen_->gewaehlt = [this](const QDate& tag) { datumGewaehlt(tag); };
    auto* aufbau = new QVBoxLayout(rahmen);
    aufbau->setContentsMargins(4, 2, 4, 4);
    aufbau->addWidget(MonthViewEigen_);
    return rahmen;
}

void Eigenschaftsreiter::datumGewaehlt(const QDate& tag)
{
    modell_.eigenschaften().datumGewaehlt(Zeitpunkt::aus({tag.year(), tag.month(), tag.day()}));
    if (datumUebernommen)
        datumUebernommen();
}

void Eigenschaftsreiter::zeigeDatum()
{
    for (std::size_t i = 0; i < OpDat_.size(); ++i)
        zeigeGesetzt(*OpDat_[i], modell_.eigenschaften().OpDat() == static_cast<int>(i));
    for (std::size_t i = 0; i < OpDatBegr_.size(); ++i)
        zeigeGesetzt(*OpDatBegr_[i], modell_.eigenschaften().OpDatBegr() == static_cast<int>(i));
}

void Eigenschaftsreiter::zeigeHeute()
{
    const Kalenderzeit heute = modell_.heute().kalender();
    const QSignalBlocker still(MonthViewEigen_);
    MonthViewEigen_->setSelectedDate({heute.jahr, heute.monat, heute.tag});
}

void Eigenschaftsreiter::zeigen()
{
    zeigeEigenschaften();
    zeigeStati();
    zeigeDatum();
}

} // namespace quelvarn
