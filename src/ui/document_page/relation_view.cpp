#include "ui/document_page/relation_view.h"

#include "register/relation_actions.h"
#include "register/relation_kinds.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/grid.h"
#include "ui/controls/status_marks.h"
#include "ui/controls/strip.h"
#include "ui/controls/tool_bar.h"
#include "ui/controls/wrapping_label.h"
#include "ui/guard.h"
#include "ui/text.h"
#include "ui/theme/document_signs.h"
#include "ui/theme/icons.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QToolBar>

namespace quelvarn {

namespace {

constexpr std::string_view TABELLE_TEIL = "Wechseln zur Tabelle des markierten Teils.";
constexpr std::string_view TABELLE_MODELL = "Wechseln zur Tabelle des markierten Modells.";
constexpr std::string_view MODELL = "Anschauen des Solid Edge-Modells";

struct Feld
{
    const char* titel;
    std::string AllgemeineSeite::*wert;
};

// Of a component the grid has only the file.
constexpr std::array NAME{Feld{"Dokumentname", &AllgemeineSeite::DokuBez}, Feld{"Revision", &AllgemeineSeite::RevBez}};
constexpr std::array FELDER{
    Feld{"Titel", &AllgemeineSeite::Titel},           Feld{"Thema", &AllgemeineSeite::Thema},
    Feld{"Projekt", &AllgemeineSeite::Projekt},       Feld{"Material", &AllgemeineSeite::Material},
    Feld{"Firma", &AllgemeineSeite::Firma},           Feld{"Kategorie", &AllgemeineSeite::Kategorie},
    Feld{"Manager", &AllgemeineSeite::Manager},       Feld{"Geändert", &AllgemeineSeite::Geaendert},
    Feld{"Bearbeiter", &AllgemeineSeite::Bearbeiter}, Feld{"Erstellt", &AllgemeineSeite::Erstellt},
    Feld{"Autor", &AllgemeineSeite::Autor},
};

std::vector<Gitterspalte> spalten(const Verwendungsart& art)
{
    const Dokumentfelder& felder = art.felder;
    if (art.bestandteile())
        return {{"Dateiname", felder.Dateiname}, {"Pfad- u. Dateiname", felder.filename}};
    return {{"Dokumentname", felder.DokuBez},
            {"Revision", felder.RevBez},
            {"Dateiname", felder.Dateiname},
            {"Pfad- u. Dateiname", felder.filename}};
}

std::vector<int> anteile(const Verwendungsart& art)
{
    return art.bestandteile() ? std::vector{40, 60} : std::vector{31, 18, 24, 27};
}

} // namespace

const std::array<Verwendungsnamen, 6> VERWENDUNGSNAMEN{{
    {InfoSeite::InBaugruppe, "", "InfoAssembDG", "TlbPartInAssemb", "Anschauen Baugruppe", TABELLE_TEIL,
     "SVPEnthaltenIn", "LblInfoAssemb", 0},
    {InfoSeite::InZeichnung, "", "InfoDraftDG", "TlbModellInDraft", "Anschauen Zeichnung.", TABELLE_TEIL,
     "SVDEnthaltenIn", "LblInfoDraft", 1},
    {InfoSeite::BestehtAus, "FrmInfoBestehtAus", "DGAssembBestehtAus", "TlbAssembMadeOf", "Anschauen Teil.",
     TABELLE_TEIL, "SVPartBestehtAus", "LblInfoBestehtAus", 2},
    {InfoSeite::Enthaelt, "FrmInfoEnthaelt", "DGDraftEnthaelt", "TlbDrawingMadeOf", MODELL, TABELLE_MODELL,
     "SVPartEnthaelt", "LblInfoEnthaelt", 3},
    {InfoSeite::InSchweissteil, "", "InfoAssembWeldDG", "TlbAssembInWeld", "Anschauen Baugruppe", TABELLE_TEIL,
     "SVPEnthaltenInWeld", "LblInfoAssembWeld", 4},
    {InfoSeite::EnthaeltBaugruppe, "", "DGWeldEnthaelt", "TlbWeldMadeOf", MODELL, TABELLE_MODELL, "SVWeldEnthaelt",
     "LblInfoWeldEnthaelt", 5},
}};

Verwendungsansicht::Verwendungsansicht(Verwendungsseite& modell, RelationActions& actions,
                                       const Verwendungsnamen& namen, QWidget& vorschau)
    : modell_(modell), actions_(actions), namen_(namen), art_(verwendungsartVon(namen.seite)),
      gitter_(new Gitter(namen.gitter, spalten(art_), anteile(art_))),
      leiste_(quelvarn::neueLeiste(namen.leiste, Knopfart::NurText)),
      ChViewGrafik_(new QCheckBox(QStringLiteral("Graphik anzeigen"))), leer_(new QLabel), vorschau_(&vorschau)
{
    setObjectName(zuQt(namen.rahmen));
    auto* titel = beschriftung(zuQt(art_.knoten), Rolle::Kopf);
    titel->setContentsMargins(12, 8, 12, 4);
    baueGitter();
    felder_ = neueFelder();
    vorschau_->setObjectName(zuQt(namen.vorschau));
    vorschau_->hide();
    leer_->setText(QStringLiteral("Keine Einträge"));
    leer_->setAlignment(Qt::AlignCenter);
    setzeRolle(*leer_, Rolle::Beschriftung);

    auto* aufbau = new QVBoxLayout(this);
    aufbau->setContentsMargins({});
    aufbau->setSpacing(0);
    aufbau->addWidget(titel);
    aufbau->addWidget(gitter_, 3);
    aufbau->addWidget(leer_, 3);
    aufbau->addWidget(neueLeiste());
    aufbau->addWidget(felder_, 4);
    aufbau->addWidget(vorschau_, 4);
}

void Verwendungsansicht::baueGitter()
{
    gitter_->setAccessibleName(zuQt(art_.knoten));
    gitter_->gewaehlt = [this](const QModelIndex& stelle) {
        modell_.zeileGewaehlt(static_cast<std::size_t>(stelle.row()));
    };
    gitter_->geoeffnet = [this](const QModelIndex&) { bediene([this] { actions_.open(); }); };
    gitter_->eingegeben = [this](const QModelIndex&) { bediene([this] { actions_.goToTable(); }); };
}

QAction* Verwendungsansicht::fuegeKnopf(std::string_view schluessel, std::string_view beschriftung,
                                        std::string_view tipp, const std::function<void()>& operation)
{
    auto* knopf = fuegeKnopfHinzu(*leiste_, {schluessel, beschriftung, tipp, ""});
    connect(knopf, &QAction::triggered, this, bewacht([this, operation] { bediene(operation); }));
    return knopf;
}

QWidget* Verwendungsansicht::neueLeiste()
{
    anschauen_ = fuegeKnopf("Anschauen", "Anschauen", namen_.tippAnschauen, [this] { modell_.anschauen(); });
    fuegeKnopf("Pfad in ZwSp", "   Pfad in ZwSp", "Pfad-/Dateiname in Zwischenspeicher.",
               [this] { modell_.pfadInZwSp(); });
    fuegeKnopf("Zu Favoriten", "Zu Favoriten", "Zu Favoriten hinzufügen.", [this] { actions_.addToFavourites(); });
    fuegeKnopf("Wechseln zu", "Wechseln zu", namen_.tippWechseln, [this] { actions_.goToTable(); });
    leiste_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    leiste_->setProperty("schmal", true);
    ChViewGrafik_->setObjectName(QStringLiteral("ChViewGrafik(%1)").arg(namen_.grafik));
    connect(ChViewGrafik_, &QCheckBox::clicked, this, bewacht([this](bool gesetzt) { modell_.setzeGrafik(gesetzt); }));

    auto* unten = new QWidget;
    auto* aufbau = new QVBoxLayout(unten);
    aufbau->setContentsMargins(0, 4, 0, 4);
    aufbau->setSpacing(2);
    aufbau->addWidget(leiste_);
    auto* grafik = new QHBoxLayout;
    grafik->setContentsMargins(8, 0, 8, 0);
    grafik->addWidget(ChViewGrafik_);
    aufbau->addLayout(grafik);
    return unten;
}

QWidget* Verwendungsansicht::neueFelder()
{
    auto* inhalt = new QWidget;
    auto* gitter = new QGridLayout(inhalt);
    gitter->setContentsMargins(12, 4, 12, 8);
    gitter->setHorizontalSpacing(12);
    gitter->setVerticalSpacing(2);
    gitter->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("Dokumentname")));
    gitter->setColumnStretch(1, 1);
    int zeile = 0;
    const auto fuege = [&](const Feld& feld) {
        auto* kopf = beschriftung(QString::fromUtf8(feld.titel), Rolle::Beschriftung);
        kopf->setAlignment(Qt::AlignLeft | Qt::AlignTop);
        auto* wert = new Umbruchlabel;
        wert->setObjectName(QStringLiteral("%1(%2)").arg(zuQt(namen_.felder)).arg(zeile));
        gitter->addWidget(kopf, zeile, 0);
        gitter->addWidget(wert, zeile++, 1);
        werte_.push_back({wert, feld.wert});
    };
    baueStatus(*gitter, zeile++);
    if (art_.bestandteile())
        std::ranges::for_each(NAME, fuege);
    std::ranges::for_each(FELDER, fuege);
    gitter->setRowStretch(zeile, 1);

    auto* rollbereich = new QScrollArea;
    rollbereich->setFrameShape(QFrame::NoFrame);
    rollbereich->setWidgetResizable(true);
    rollbereich->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rollbereich->setFocusPolicy(Qt::NoFocus);
    rollbereich->setWidget(inhalt);
    return rollbereich;
}

void Verwendungsansicht::baueStatus(QGridLayout& gitter, int zeile)
{
    punkt_ = new Statuspunkt;
    statusName_ = new Statustext;
    statusName_->setObjectName(zuQt(namen_.felder) + QStringLiteral("Status"));
    auto* nummer = new KurzLabel;
    nummer->setObjectName(QStringLiteral("%1(%2)").arg(zuQt(namen_.felder)).arg(zeile));
    werte_.push_back({nummer, &AllgemeineSeite::Status});
    auto* reihe = new QHBoxLayout;
    reihe->setSpacing(5);
    reihe->setContentsMargins(UEBERHANG, 0, 0, 0);
    reihe->addWidget(punkt_);
    reihe->addWidget(nummer);
    reihe->addWidget(statusName_);
    reihe->addStretch(1);
    gitter.addWidget(beschriftung(QStringLiteral("Status"), Rolle::Beschriftung), zeile, 0);
    gitter.addLayout(reihe, zeile, 1);
}

bool Verwendungsansicht::istVorn() const
{
    return modell_.art() == &art_;
}

void Verwendungsansicht::bediene(const std::function<void()>& operation)
{
    const Sanduhr warten;
    operation();
    if (!istVorn() && verlassen)
        verlassen();
}

void Verwendungsansicht::zeigen()
{
    if (!istVorn())
        return gitter_->zeige(nullptr, modell_.fassung());
    const bool voll = modell_.hatZeilen();
    gitter_->zeige(voll ? &modell_.zeilen() : nullptr, modell_.fassung());
    gitter_->setVisible(voll);
    leer_->setVisible(!voll);
    for (QAction* knopf : leiste_->actions())
        knopf->setEnabled(modell_.bedienbar());
    ChViewGrafik_->setEnabled(voll);
    ChViewGrafik_->setChecked(modell_.ChViewGrafik());
    vorschau_->setVisible(modell_.zeigtVorschau());
    felder_->setVisible(!modell_.zeigtVorschau());
    zeigeDetails();
}

void Verwendungsansicht::zeigeDetails()
{
    const AllgemeineSeite& details = modell_.details();
    for (const Wert& wert : werte_)
        wert.label->setText(zuQt(details.*wert.feld));
    punkt_->setVisible(!details.leer);
    punkt_->setzeFarbe(details.statusfarbe);
    statusName_->setText(zuQt(details.StatusName));
    statusName_->setzeFarbe(details.statusfarbe);
    const std::string_view zeichen =
        modell_.SondertabelleNr() != 0 ? ZEICHEN_SONDERTABELLE : dokumentzeichen(modell_.filename());
    if (zeichen == zeichen_)
        return;
    zeichen_ = zeichen;
    anschauen_->setIcon(symbol(zeichen));
}

} // namespace quelvarn
