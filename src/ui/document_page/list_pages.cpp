#include "ui/document_page/list_pages.h"

#include "register/info_panel.h"
#include "ui/busy_pointer.h"
#include "ui/controls/elided_label.h"
#include "ui/controls/fields.h"
#include "ui/controls/strip.h"
#include "ui/document_page/file_picture.h"
#include "ui/document_page/list_page.h"
#include "ui/guard.h"
#include "ui/text.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>

#include <array>

namespace quelvarn {

namespace {

// With the hourglass, since a program or a database may take its time.
QPushButton* neueTaste(const char* name, const QString& text, std::function<void()> tun)
{
    auto* taste = neuesFeld<QPushButton>(name, text);
    QObject::connect(taste, &QPushButton::clicked, taste, bewacht([tun = std::move(tun)] {
                         const Sanduhr warten;
                         tun();
                     }));
    return taste;
}

bool hatZeilen(const Detailseiten& details, InfoSeite seite)
{
    const Recordset* liste = details.liste(seite);
    return liste != nullptr && !liste->leer();
}

} // namespace

Listenseite* neueRevisionsseite(InfoPanel& modell)
{
    auto* seite = new Listenseite(
        modell, InfoSeite::Revisionen, QStringLiteral("Revision"), "DataGridRevision",
        {{"Revision", "RevBez"}, {"Datum", "Geaendert"}, {"Name", "Bearbeiter"}, {"Änderung", "Aenderung"}},
        {17, 19, 24, 40});
    seite->zeigeGanz("Aenderung");
    QHBoxLayout& reihe = seite->neueReihe();
    constexpr std::array ANSICHTEN{std::pair("OpRevErstBearb(0)", "Erstellt"),
                                   std::pair("OpRevErstBearb(1)", "Bearbeitet")};
    for (std::size_t i = 0; i < ANSICHTEN.size(); ++i) {
        auto* knopf = neuesFeld<QRadioButton>(ANSICHTEN[i].first, QLatin1String(ANSICHTEN[i].second));
        const auto ansicht = static_cast<RevErstBearb>(i);
        QObject::connect(knopf, &QRadioButton::clicked, knopf,
                         bewacht([&modell, ansicht] { modell.details().setzeRevErstBearb(ansicht); }));
        seite->folge([knopf, ansicht, &modell] { zeigeGesetzt(*knopf, modell.details().OpRevErstBearb() == ansicht); });
        reihe.addWidget(knopf);
    }
    reihe.addStretch(1);
    return seite;
}

Listenseite* neueBenutzDefSeite(InfoPanel& modell)
{
    auto* seite = new Listenseite(modell, InfoSeite::BenutzDef, QStringLiteral("Benutzerdef. Eigenschaften"),
                                  "DataGridBenutzDef", {{"Name", "Name"}, {"Wert", "Wert"}}, {40, 60});
    seite->zeigeGanz("Wert");
    return seite;
}

Listenseite* neueHauptmerkmalseite(InfoPanel& modell)
{
    auto* seite =
        new Listenseite(modell, InfoSeite::Hauptmerkmale, QStringLiteral("Hauptmerkmale / -werte"), "DataGridMerkWert",
                        {{"Bezeichn.", "Bezeichn"}, {"Inhalt", "Inhalt"}, {"Benennung", "Benennung"}}, {22, 42, 36});
    auto* vorlage = new KurzLabel(nullptr, Qt::ElideMiddle);
    vorlage->setObjectName(QStringLiteral("LblPfadDateiVorlage"));
    auto* anschauen = neueTaste("CmViewVorlage", QStringLiteral("Anschauen"), [&modell] { modell.showTemplate(); });
    QHBoxLayout& reihe = seite->neueReihe();
    reihe.addWidget(beschriftung(QStringLiteral("Vorlage"), Rolle::Beschriftung));
    reihe.addWidget(vorlage, 1);
    reihe.addWidget(anschauen);
    seite->folge([vorlage, anschauen, &modell] {
        const std::string& pfad = modell.details().LblPfadDateiVorlage();
        vorlage->setText(zuQt(pfad));
        anschauen->setEnabled(!pfad.empty());
    });
    return seite;
}

Listenseite* neueZusDokuSeite(InfoPanel& modell)
{
    auto* seite = new Listenseite(modell, InfoSeite::ZusDoku, QStringLiteral("Zusätzl. Dokumente"), "DataGridZusDoku",
                                  {{"Datum/Uhrzeit", "ZusDokuDatum"},
                                   {"Objekt ", "ZusDokuDateiname"},
                                   {"Senden", "ZusDokuSenden"},
                                   {"Pfad- u. Dateiname", "ZusDokufilename"}},
                                  {33, 28, 18, 21});
    seite->zeigeGanz("ZusDokufilename");
    auto* info = beschriftung({}, Rolle::Beschriftung, QStringLiteral("LblInfoZusDoku"));
    info->setContentsMargins(12, 6, 12, 0);
    auto* bild = new Dateibildansicht(modell.details());
    auto* grafik = neuesFeld<QCheckBox>("ChViewGrafikZusDoku", QStringLiteral("Graphik anzeigen"));
    QObject::connect(grafik, &QCheckBox::clicked, grafik,
                     bewacht([&modell](bool an) { modell.details().setzeViewGrafikZusDoku(an); }));
    auto* starten =
        neueTaste("CmStartZusDoku", QStringLiteral("Anschauen"), [&modell] { modell.details().oeffneZusDoku(); });
    seite->setzeOeffnen([&modell] { modell.details().oeffneZusDoku(); });
    seite->aufbau().addWidget(info);
    QHBoxLayout& reihe = seite->neueReihe();
    reihe.addWidget(grafik, 1);
    reihe.addWidget(starten);
    seite->aufbau().addWidget(bild, 2);
    seite->folge([=, &modell] {
        const Detailseiten& details = modell.details();
        const bool zeilen = hatZeilen(details, InfoSeite::ZusDoku);
        info->setText(zuQt(details.LblInfoZusDoku()));
        grafik->setEnabled(zeilen);
        zeigeGesetzt(*grafik, details.ChViewGrafikZusDoku());
        starten->setEnabled(zeilen);
        bild->zeigen();
    });
    return seite;
}

Listenseite* neueSendToSeite(InfoPanel& modell)
{
    auto* seite = new Listenseite(modell, InfoSeite::SendTo, QStringLiteral("Versendet an"), "DataGridSendTo",
                                  {{"Datum/Uhrzeit", "SendToDatum"},
                                   {"Versendet an", "Kennung"},
                                   {"Auftrag / Protokoll", "OrderDateiname"},
                                   {"Pfad- u. Dateiname Speicherort", "Orderfilename"}},
                                  {34, 24, 22, 20});
    seite->zeigeGanz("Orderfilename");
    auto* oeffnen = neueTaste("CmSendTo", QStringLiteral("Öffnen"), [&modell] { modell.details().oeffneAuftrag(); });
    seite->setzeOeffnen([&modell] { modell.details().oeffneAuftrag(); });
    QHBoxLayout& reihe = seite->neueReihe();
    reihe.addStretch(1);
    reihe.addWidget(oeffnen);
    seite->folge([oeffnen, &modell] { oeffnen->setEnabled(hatZeilen(modell.details(), InfoSeite::SendTo)); });
    return seite;
}

} // namespace quelvarn
