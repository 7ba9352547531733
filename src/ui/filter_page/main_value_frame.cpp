#include "ui/filter_page/main_value_frame.h"

#include "filter/structure_section.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/lock_look.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_list.h"
#include "ui/controls/value_model.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/value_text.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QRadioButton>

namespace quelvarn {

namespace {

constexpr int NAMENSLAENGE = 22; // Letters of a value's name; a longer one is shortened.

QLabel* neueAnzahl(const char* name, const QString& wovon)
{
    auto* anzahl = beschriftung({}, Rolle::Beschriftung, QLatin1String(name));
    anzahl->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    anzahl->setAccessibleName(wovon);
    return anzahl;
}

void zeigeName(QRadioButton& knopf, const QString& name)
{
    if (knopf.property("vollerText").toString() == name)
        return;
    knopf.setProperty("vollerText", name);
    const QFontMetrics mass = knopf.fontMetrics();
    const QString kurz = mass.elidedText(oneLine(name), Qt::ElideRight, mass.averageCharWidth() * NAMENSLAENGE);
    knopf.setText(asCaption(kurz));
    knopf.setToolTip(kurz == name ? QString() : asTip(name));
    knopf.setAccessibleName(name);
}

} // namespace

Hauptwertrahmen::Hauptwertrahmen(Strukturbereich& modell)
    : modell_(modell), auswahl_(new QButtonGroup(this)), CbHW_(new QComboBox), werte_(new Wertemodell(this)),
      ChShowAnzWerte_(neuesFeld<QCheckBox>("ChShowAnzWerte", QStringLiteral("Werte auflisten"))),
      LblAnzWert_(neueAnzahl("LblAnzWert", QStringLiteral("Anzahl Werte"))), TextBB_(new QLineEdit),
      CmHwOK_(new QPushButton(QStringLiteral("Übernehmen"))),
      ChShowAnzAlias_(neuesFeld<QCheckBox>("ChShowAnzAlias", QStringLiteral("Aliasse auflisten"))),
      LblAnzAlias_(neueAnzahl("LblAnzAlias", QStringLiteral("Anzahl Aliasse"))),
      LstHW_(new Wertefeld(QStringLiteral("LstHW")))
{
    setObjectName(QStringLiteral("FrmHWag"));
    auto* rechts = new QVBoxLayout;
    rechts->setSpacing(4);
    baueWert(*rechts);
    baueAlias(*rechts);
    auto* aufbau = new QHBoxLayout(this);
    aufbau->setSpacing(16);
    aufbau->addWidget(neueHauptwerte(), 1);
    aufbau->addLayout(rechts, 1);
    verbinde();
}

QWidget* Hauptwertrahmen::neueHauptwerte()
{
    auto* teil = new QWidget;
    auto* gitter = new QGridLayout(teil);
    gitter->setContentsMargins({});
    gitter->setColumnStretch(1, 1);
    for (int i = 0; i < ANZAHL_HAUPTWERTE; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        const QChar buchstabe(u'a' + i);
        LblHW_[stelle] = new QRadioButton;
        LblHW_[stelle]->setObjectName(QStringLiteral("LblHW") + buchstabe);
        auswahl_->addButton(LblHW_[stelle], i);
        Lbl_hw_[stelle] = new KurzLabel;
        Lbl_hw_[stelle]->setObjectName(QStringLiteral("Lbl_hw") + buchstabe);
        Lbl_hw_[stelle]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        gitter->addWidget(LblHW_[stelle], i, 0, Qt::AlignLeft);
        gitter->addWidget(Lbl_hw_[stelle], i, 1);
    }
    gitter->setRowStretch(ANZAHL_HAUPTWERTE, 1);
    return teil;
}

void Hauptwertrahmen::baueWert(QVBoxLayout& aufbau)
{
    CbHW_->setObjectName(QStringLiteral("CbHW"));
    CbHW_->setAccessibleName(QStringLiteral("Hauptwert"));
    CbHW_->setEditable(true);
    CbHW_->setInsertPolicy(QComboBox::NoInsert);
    CbHW_->setCompleter(nullptr);
    auto* liste = new QListView;
    liste->setUniformItemSizes(true);
    CbHW_->setView(liste);
    CbHW_->setModel(werte_);
    CbHW_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    TextBB_->setObjectName(QStringLiteral("TextBB"));
    TextBB_->setMaximumWidth(fontMetrics().averageCharWidth() * 12);
    CmHwOK_->setObjectName(QStringLiteral("CmHwOK"));
    auto* LblBandBreite =
        beschriftung(QStringLiteral("&Bandbreite ±"), Rolle::Beschriftung, QStringLiteral("LblBandBreite"));
    LblBandBreite->setBuddy(TextBB_);

    auto* kopf = new QHBoxLayout;
    kopf->addWidget(ChShowAnzWerte_);
    kopf->addWidget(LblAnzWert_, 1);
    auto* band = new QHBoxLayout;
    band->addWidget(LblBandBreite);
    band->addWidget(TextBB_, 1);
    band->addStretch();
    band->addWidget(CmHwOK_);
    aufbau.addLayout(kopf);
    aufbau.addWidget(CbHW_);
    aufbau.addLayout(band);
}

void Hauptwertrahmen::baueAlias(QVBoxLayout& aufbau)
{
    LstHW_->setAccessibleName(QStringLiteral("Aliasse des Hauptwerts"));
    auto* kopf = new QHBoxLayout;
    kopf->addWidget(ChShowAnzAlias_);
    kopf->addWidget(LblAnzAlias_, 1);
    aufbau.addLayout(kopf);
    LstHW_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // What the fields above leave.
    aufbau.addWidget(LstHW_, 1);
}

void Hauptwertrahmen::verbinde()
{
    connect(auswahl_, &QButtonGroup::idClicked, this,
            bewacht([this](int hauptwert) { modell_.hauptwertGewaehlt(hauptwert); }));
    connect(ChShowAnzWerte_, &QCheckBox::clicked, this,
            bewacht([this](bool an) { modell_.setzeAnzahlWerteZeigen(an); }));
    connect(ChShowAnzAlias_, &QCheckBox::clicked, this,
            bewacht([this](bool an) { modell_.setzeAnzahlAliasZeigen(an); }));
    connect(CbHW_, &QComboBox::editTextChanged, this, [this] { zeigeBereit(); });
    connect(CmHwOK_, &QPushButton::clicked, this, bewacht([this] { uebernehmen(); }));
    connect(CbHW_->lineEdit(), &QLineEdit::returnPressed, CmHwOK_, &QPushButton::click);
    connect(TextBB_, &QLineEdit::returnPressed, CmHwOK_, &QPushButton::click);
}

void Hauptwertrahmen::uebernehmen()
{
    modell_.hauptwertUebernehmen(ausQt(CbHW_->currentText()), ausQt(TextBB_->text()));
}

void Hauptwertrahmen::zeigen()
{
    zeigeGesperrt(*this, QStringLiteral("Hauptwerte"), !modell_.SperreHauptwert());
    zeigeHauptwerte();
    {
        const QSignalBlocker still(CbHW_);
        if (werte_->zeige(modell_.werte().werte))
            CbHW_->setCurrentIndex(-1);
    }
    CbHW_->setEnabled(modell_.SperreHauptwert());
    zeigeGesetzt(*ChShowAnzWerte_, modell_.zeigtAnzahlWerte());
    zeigeGesetzt(*ChShowAnzAlias_, modell_.zeigtAnzahlAlias());
    LblAnzWert_->setText(zuQt(modell_.werte().anzahl));
    LblAnzAlias_->setText(zuQt(modell_.alias().anzahl));
    LstHW_->zeige(modell_.alias().werte);
    zeigeBereit();
}

void Hauptwertrahmen::zeigeHauptwerte()
{
    for (int i = 0; i < ANZAHL_HAUPTWERTE; ++i) {
        const auto stelle = static_cast<std::size_t>(i);
        zeigeName(*LblHW_[stelle], zuQt(modell_.hauptwertName(i)));
        zeigeGesetzt(*LblHW_[stelle], modell_.hauptwert() == i);
        Lbl_hw_[stelle]->setText(zuQt(modell_.hauptwertBand(i)));
    }
}

void Hauptwertrahmen::zeigeBereit()
{
    CmHwOK_->setEnabled(modell_.SperreHauptwert() && !CbHW_->currentText().trimmed().isEmpty());
}

} // namespace quelvarn
