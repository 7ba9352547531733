#include "ui/filter_page/saved_filter_frame.h"

#include "filter/filter_page.h"
#include "ui/busy_pointer.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/controls/value_combo.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace quelvarn {

namespace {

QHBoxLayout* neueReihe(QWidget& teil)
{
    auto* reihe = new QHBoxLayout(&teil);
    reihe->setContentsMargins({});
    return reihe;
}

} // namespace

GespeicherteFilterRahmen::GespeicherteFilterRahmen(FilterPage& modell)
    : QGroupBox(QStringLiteral("Filter sichern")), modell_(modell),
      LblAnzFilterwerte_(beschriftung({}, Rolle::Klein, QStringLiteral("LblAnzFilterwerte"))),
      CbFilterSave_(new Wertekombo(QStringLiteral("CbFilterSave"))), TxtFilterSave_(new QLineEdit)
{
    setObjectName(QStringLiteral("FrmFilterSave"));
    CbFilterSave_->setAccessibleName(QStringLiteral("Gespeicherte Filter"));
    auto* auswahl = new QWidget;
    auto* reihe = neueReihe(*auswahl);
    reihe->addWidget(CbFilterSave_, 1);
    reihe->addWidget(LblAnzFilterwerte_);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins(10, 4, 10, 8);
    aufbau->setSpacing(6);
    aufbau->addWidget(auswahl);
    aufbau->addWidget(neueAuswahl());
    aufbau->addWidget(neuesSpeichern());
    aufbau->addStretch(1);
}

QWidget* GespeicherteFilterRahmen::neueAuswahl()
{
    auto* teil = new QWidget;
    auto* verwenden = neuesFeld<QPushButton>("CmFilterUse", QStringLiteral("Ver&wenden"));
    auto* loeschen = neuesFeld<QPushButton>("CmFilterDelete", QStringLiteral("&Löschen"));
    connect(verwenden, &QPushButton::clicked, this, bewacht([this] {
                const Sanduhr warten;
                modell_.filterVerwenden(gewaehlter());
            }));
    connect(loeschen, &QPushButton::clicked, this, bewacht([this] { modell_.filterLoeschen(gewaehlter()); }));
    auto* reihe = neueReihe(*teil);
    reihe->addWidget(verwenden, 1);
    reihe->addWidget(loeschen, 1);
    return teil;
}

QWidget* GespeicherteFilterRahmen::neuesSpeichern()
{
    auto* teil = new QWidget;
    TxtFilterSave_->setObjectName(QStringLiteral("TxtFilterSave"));
    TxtFilterSave_->setPlaceholderText(QStringLiteral("Name des Filters"));
    TxtFilterSave_->setAccessibleName(QStringLiteral("Name des Filters"));
    auto* speichern = neuesFeld<QPushButton>("CmFilterSave", QStringLiteral("&Speichern"));
    connect(speichern, &QPushButton::clicked, this, bewacht([this] {
                if (beforeSaving)
                    beforeSaving();
                if (modell_.filterSpeichern(ausQt(TxtFilterSave_->text())))
                    TxtFilterSave_->clear();
            }));
    connect(TxtFilterSave_, &QLineEdit::returnPressed, speichern, &QPushButton::click);
    auto* reihe = neueReihe(*teil);
    reihe->addWidget(TxtFilterSave_, 1);
    reihe->addWidget(speichern);
    return teil;
}

std::string GespeicherteFilterRahmen::gewaehlter() const
{
    return CbFilterSave_->currentIndex() < 0 ? std::string() : ausQt(CbFilterSave_->currentText());
}

void GespeicherteFilterRahmen::zeigen()
{
    const auto namen = modell_.gespeicherteFilter();
    CbFilterSave_->zeige(namen);
    LblAnzFilterwerte_->setText(QString::number(namen.size()));
}

} // namespace quelvarn
