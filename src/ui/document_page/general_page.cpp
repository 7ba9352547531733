#include "ui/document_page/general_page.h"

#include "register/info_pages.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/status_marks.h"
#include "ui/controls/strip.h"
#include "ui/controls/wrapping_label.h"
#include "ui/text.h"
#include "ui/theme/colours.h"

#include <QGridLayout>
#include <QLabel>

#include <utility>

namespace quelvarn {

namespace {

struct Zeile
{
    int index; // Of the caption in LblInfo; the value is the next one.
    const char* kopf;
    std::string AllgemeineSeite::*feld;
};

constexpr Zeile DOKUMENT[]{{1, "Dokumentname", &AllgemeineSeite::DokuBez}, {3, "Revision", &AllgemeineSeite::RevBez}};
constexpr Zeile EIGENSCHAFTEN[]{
    {10, "Titel", &AllgemeineSeite::Titel},     {12, "Thema", &AllgemeineSeite::Thema},
    {14, "Projekt", &AllgemeineSeite::Projekt}, {16, "Material", &AllgemeineSeite::Material},
    {18, "Firma", &AllgemeineSeite::Firma},     {20, "Kategorie", &AllgemeineSeite::Kategorie},
    {22, "Manager", &AllgemeineSeite::Manager},
};
constexpr Zeile DATEI[]{{30, "Dateiname", &AllgemeineSeite::Dateiname}, {32, "Pfad", &AllgemeineSeite::filename}};

QString name(int index)
{
    return QStringLiteral("LblInfo(%1)").arg(index);
}

// With its distances, so that it can go without leaving them.
QWidget* trenne(QGridLayout& gitter, int zeile)
{
    auto* platz = new QWidget;
    auto* aufbau = new QVBoxLayout(platz);
    aufbau->setContentsMargins(0, 6, 0, 6);
    aufbau->addWidget(trennlinie());
    gitter.addWidget(platz, zeile, 0, 1, 2);
    return platz;
}

} // namespace

Allgemeinansicht::Allgemeinansicht() : punkt_(new Statuspunkt), inhalt_(new QWidget)
{
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* gitter = new QGridLayout(inhalt_);
    gitter->setContentsMargins(12, 8, 12, 8);
    gitter->setHorizontalSpacing(12);
    gitter->setVerticalSpacing(3);
    gitter->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("Dokumentname")));
    gitter->setColumnStretch(1, 1);

    int zeile = 0;
    for (const Zeile& teil : DOKUMENT)
        baueZeile(*gitter, zeile++, teil.index, QString::fromUtf8(teil.kopf), teil.feld);
    setzeRolle(*werte_.front().label, Rolle::Kopf);
    baueStatus(*gitter, zeile++);
    trenne(*gitter, zeile++);
    for (const Zeile& teil : EIGENSCHAFTEN)
        baueZeile(*gitter, zeile++, teil.index, QString::fromUtf8(teil.kopf), teil.feld);
    trenne(*gitter, zeile++);
    baueAenderung(*gitter, zeile++, 24, QStringLiteral("Geändert"), &AllgemeineSeite::Geaendert,
                  &AllgemeineSeite::Bearbeiter);
    baueAenderung(*gitter, zeile++, 27, QStringLiteral("Erstellt"), &AllgemeineSeite::Erstellt,
                  &AllgemeineSeite::Autor);
    baueVerwendung(*gitter, zeile);
    zeile += 3;
    trenne(*gitter, zeile++);
    for (const Zeile& teil : DATEI)
        baueZeile(*gitter, zeile++, teil.index, QString::fromUtf8(teil.kopf), teil.feld);
    gitter->setRowStretch(zeile, 1);
    setWidget(inhalt_);
}

QLabel* Allgemeinansicht::neuerKopf(int index, const QString& text)
{
    auto* kopf = beschriftung(text, Rolle::Beschriftung, name(index));
    kopf->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return kopf;
}

QLabel* Allgemeinansicht::neuerWert(int index, std::string AllgemeineSeite::*feld, bool umbrechen)
{
    QLabel* wert = umbrechen ? static_cast<QLabel*>(new Umbruchlabel) : new KurzLabel;
    wert->setObjectName(name(index));
    if (!umbrechen)
        wert->setContentsMargins(UEBERHANG, 0, 0, 0);
    werte_.push_back({wert, feld});
    return wert;
}

void Allgemeinansicht::baueZeile(QGridLayout& gitter, int zeile, int index, const QString& kopf,
                                 std::string AllgemeineSeite::*feld)
{
    gitter.addWidget(neuerKopf(index, kopf), zeile, 0);
    gitter.addWidget(neuerWert(index + 1, feld, true), zeile, 1);
}

void Allgemeinansicht::baueStatus(QGridLayout& gitter, int zeile)
{
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(5);
    reihe->addWidget(punkt_);
    reihe->addWidget(neuerWert(6, &AllgemeineSeite::Status));
    statusName_ = new Statustext;
    statusName_->setObjectName(name(7));
    reihe->addWidget(statusName_);
    reihe->addStretch(1);
    gitter.addWidget(neuerKopf(5, QStringLiteral("Status")), zeile, 0);
    gitter.addLayout(reihe, zeile, 1);
}

void Allgemeinansicht::baueAenderung(QGridLayout& gitter, int zeile, int index, const QString& kopf,
                                     std::string AllgemeineSeite::*datum, std::string AllgemeineSeite::*wer)
{
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(12);
    reihe->addWidget(neuerWert(index + 1, datum), 0, Qt::AlignTop);
    reihe->addWidget(neuerWert(index + 2, wer, true), 1);
    gitter.addWidget(neuerKopf(index, kopf), zeile, 0);
    gitter.addLayout(reihe, zeile, 1);
}

// What stands there, and whether anything does, depends on the kind of document.
void Allgemeinansicht::baueVerwendung(QGridLayout& gitter, int zeile)
{
    const auto zeige = [&, this](int index, std::string AllgemeineSeite::*kopf, std::string AllgemeineSeite::*wert) {
        auto* label = neuerWert(index, kopf);
        label->setContentsMargins({});
        setzeRolle(*label, Rolle::Beschriftung);
        gitter.addWidget(label, zeile, 0, Qt::AlignTop);
        gitter.addWidget(neuerWert(index + 1, wert, true), zeile++, 1);
    };
    verwendung_ = trenne(gitter, zeile++);
    zeige(8, &AllgemeineSeite::kopf8, &AllgemeineSeite::wert9);
    zeige(39, &AllgemeineSeite::kopf39, &AllgemeineSeite::wert40);
}

// A line without a caption takes no room.
void Allgemeinansicht::zeigeVerwendung(const AllgemeineSeite& seite)
{
    const std::pair<int, bool> zeilen[]{{8, !seite.kopf8.empty()}, {39, !seite.kopf39.empty()}};
    for (const auto& [index, da] : zeilen)
        for (const int stelle : {index, index + 1})
            inhalt_->findChild<QLabel*>(name(stelle))->setVisible(da);
    verwendung_->setVisible(zeilen[0].second || zeilen[1].second);
}

void Allgemeinansicht::zeigen(const AllgemeineSeite& seite)
{
    for (const Wert& wert : werte_)
        wert.label->setText(zuQt(seite.*wert.feld));
    zeigeVerwendung(seite);
    punkt_->setVisible(!seite.leer);
    punkt_->setzeFarbe(seite.statusfarbe);
    statusName_->setText(zuQt(seite.StatusName));
    statusName_->setzeFarbe(seite.statusfarbe);
}

} // namespace quelvarn
