#include "ui/document_page/info_area.h"

#include "register/info_panel.h"
#include "register/relation_kinds.h"
#include "ui/adapters/viewer_qt.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/long_text.h"
#include "ui/controls/strip.h"
#include "ui/document_page/file_page.h"
#include "ui/document_page/file_picture.h"
#include "ui/document_page/general_page.h"
#include "ui/document_page/list_page.h"
#include "ui/document_page/list_pages.h"
#include "ui/document_page/relation_view.h"
#include "ui/text.h"
#include "ui/theme/colours.h"

#include <QHBoxLayout>
#include <QStackedWidget>

namespace quelvarn {

namespace {

// "FrmInfoDoku(1)"; the page of the sent-to list has a name of its own.
QString rahmenname(InfoSeite seite)
{
    if (seite == InfoSeite::SendTo)
        return QStringLiteral("FrmSendTo");
    if (seite == InfoSeite::Tiff)
        return QStringLiteral("FrmTiff");
    return QStringLiteral("FrmInfoDoku(%1)").arg(static_cast<int>(seite));
}

QLabel* neueWarnung(const char* name, const QString& text)
{
    auto* label = beschriftung(text, Rolle::Beschriftung, QLatin1String(name));
    label->setProperty("rolle", QStringLiteral("warnung"));
    label->hide();
    return label;
}

} // namespace

Infobereich::Infobereich(InfoPanel& modell, RelationActions& relationActions, QtViewer& viewer)
    : modell_(modell), kopf_(new KurzLabel),
      LblNichtVorhanden_(neueWarnung("LblNichtVorhanden", QStringLiteral("Datei fehlt"))),
      LblAchtungRev_(neueWarnung("LblAchtungRev", QStringLiteral("neuere Revision"))), seiten_(new QStackedWidget),
      leer_(new QWidget), allgemein_(new Allgemeinansicht), datei_(new Dateiansicht(modell)),
      tiff_(new Tiffseite(modell.details())), TextKeywords_(new LongText("TextKeywords")),
      TextComments_(new LongText("TextComments"))
{
    baueSeiten(relationActions, viewer);
    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(neuerKopf());
    aufbau->addWidget(seiten_, 1);
}

QWidget* Infobereich::neuerKopf()
{
    auto* kopf = new Streifen(Streifen::Art::Kopfzeile, "KopfInfo");
    kopf_->setObjectName(QStringLiteral("LblInfo(0)"));
    setzeRolle(*kopf_, Rolle::Kopf);
    kopf->setMinimumHeight(30); // As high as the tabs beside it.
    kopf->reihe().setContentsMargins(4, 0, 12, 0);
    kopf->reihe().addWidget(kopf_, 1);
    auto* warnings = new QVBoxLayout; // One above the other: the head beside them stays whole.
    warnings->setSpacing(0);
    for (QLabel* warning : {LblNichtVorhanden_, LblAchtungRev_})
        warnings->addWidget(warning, 0, Qt::AlignRight);
    kopf->reihe().addLayout(warnings);
    return kopf;
}

void Infobereich::baueSeiten(RelationActions& relationActions, QtViewer& viewer)
{
    seiten_->addWidget(leer_);
    fuegeSeiteHinzu(InfoSeite::Allgemein, allgemein_);
    fuegeSeiteHinzu(InfoSeite::Datei, datei_);
    fuegeSeiteHinzu(InfoSeite::StichKomm, neueStichKommSeite());
    for (auto* neueSeite :
         {neueRevisionsseite, neueBenutzDefSeite, neueHauptmerkmalseite, neueZusDokuSeite, neueSendToSeite}) {
        listen_.push_back(neueSeite(modell_));
        fuegeSeiteHinzu(listen_.back()->seite(), listen_.back());
    }
    fuegeSeiteHinzu(InfoSeite::Tiff, tiff_);
    fuegeSeiteHinzu(InfoSeite::Viewer, &viewer.platz(Ansicht::Eigenschaften));
    for (const Verwendungsnamen& namen : VERWENDUNGSNAMEN) {
        QWidget& vorschau = viewer.platz(verwendungsartVon(namen.seite).ansicht);
        auto* ansicht = new Verwendungsansicht(modell_.relation(), relationActions, namen, vorschau);
        ansicht->verlassen = [this] {
            if (zurTabelle)
                zurTabelle();
        };
        verwendung_.push_back(ansicht);
        fuegeSeiteHinzu(namen.seite, ansicht);
    }
}

void Infobereich::fuegeSeiteHinzu(InfoSeite seite, QWidget* inhalt)
{
    auto* rahmen = new QWidget;
    rahmen->setObjectName(rahmenname(seite));
    auto* aufbau = new QVBoxLayout(rahmen);
    aufbau->setContentsMargins({});
    aufbau->addWidget(inhalt);
    seite_[seite] = rahmen;
    seiten_->addWidget(rahmen);
}

QWidget* Infobereich::neueStichKommSeite()
{
    auto* seite = new QWidget;
    auto* aufbau = new QVBoxLayout(seite);
    aufbau->setContentsMargins(12, 8, 12, 8);
    aufbau->setSpacing(4);
    aufbau->addWidget(beschriftung(QStringLiteral("Stichwörter"), Rolle::Kopf));
    aufbau->addWidget(TextKeywords_, 1);
    aufbau->addSpacing(4);
    aufbau->addWidget(beschriftung(QStringLiteral("Kommentar"), Rolle::Kopf));
    aufbau->addWidget(TextComments_, 2);
    return seite;
}

void Infobereich::zeigen()
{
    zeigeKopf();
    allgemein_->zeigen(modell_.general());
    datei_->zeigen();
    for (auto* ansicht : verwendung_)
        ansicht->zeigen();
    TextKeywords_->showValue(zuQt(modell_.keywords().TextKeywords));
    TextComments_->showValue(zuQt(modell_.keywords().TextComments));
    for (Listenseite* liste : listen_)
        liste->zeigen();
    tiff_->zeigen();
    const auto seite = seite_.find(modell_.page());
    seiten_->setCurrentWidget(seite != seite_.end() ? seite->second : leer_);
}

void Infobereich::zeigeKopf()
{
    kopf_->setText(zuQt(modell_.heading()));
    const bool datei = modell_.page() == InfoSeite::Datei;
    LblNichtVorhanden_->setVisible(datei ? !modell_.file().vorhanden : modell_.general().nichtVorhanden);
    LblAchtungRev_->setVisible(modell_.general().neuereRevision);
}

} // namespace quelvarn
