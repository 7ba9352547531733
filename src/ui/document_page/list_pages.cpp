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
QPushButton* newPushButton(const char* name, const QString& text, std::function<void()> act)
{
    auto* key = newField<QPushButton>(name, text);
    QObject::connect(key, &QPushButton::clicked, key, guardedSlot([act = std::move(act)] {
                         const BusyCursor wait;
                         act();
                     }));
    return key;
}

bool hasRows(const DetailPages& details, InfoPageId page)
{
    const Recordset* list = details.list(page);
    return list != nullptr && !list->empty();
}

} // namespace

ListPage* newRevisionPage(InfoPanel& model)
{
    auto* page = new ListPage(
        model, InfoPageId::Revisions, QStringLiteral("Revision"), "DataGridRevision",
        {{"Revision", "RevBez"}, {"Datum", "Geaendert"}, {"Name", "Bearbeiter"}, {"Änderung", "Aenderung"}},
        {17, 19, 24, 40});
    page->showWhole("Aenderung");
    QHBoxLayout& layoutRow = page->newStripRow();
    constexpr std::array VIEWER_PLACES{std::pair("OpRevErstBearb(0)", "Erstellt"),
                                       std::pair("OpRevErstBearb(1)", "Bearbeitet")};
    for (std::size_t i = 0; i < VIEWER_PLACES.size(); ++i) {
        auto* button = newField<QRadioButton>(VIEWER_PLACES[i].first, QLatin1String(VIEWER_PLACES[i].second));
        const auto view = static_cast<RevisionFilter>(i);
        QObject::connect(button, &QRadioButton::clicked, button,
                         guardedSlot([&model, view] { model.details().setRevisionFilter(view); }));
        page->sequence([button, view, &model] { showSet(*button, model.details().OpRevErstBearb() == view); });
        layoutRow.addWidget(button);
    }
    layoutRow.addStretch(1);
    return page;
}

ListPage* newUserDefPage(InfoPanel& model)
{
    auto* page = new ListPage(model, InfoPageId::UserDefined, QStringLiteral("Benutzerdef. Eigenschaften"),
                              "DataGridBenutzDef", {{"Name", "Name"}, {"Wert", "Wert"}}, {40, 60});
    page->showWhole("Wert");
    return page;
}

ListPage* newStructureFeaturePage(InfoPanel& model)
{
    auto* page =
        new ListPage(model, InfoPageId::StructureFeatures, QStringLiteral("Hauptmerkmale / -werte"), "DataGridMerkWert",
                     {{"Bezeichn.", "Bezeichn"}, {"Inhalt", "Inhalt"}, {"Benennung", "Benennung"}}, {22, 42, 36});
    auto* drawingTemplate = new ShortLabel(nullptr, Qt::ElideMiddle);
    drawingTemplate->setObjectName(QStringLiteral("LblPfadDateiVorlage"));
    auto* openInViewer =
        newPushButton("CmViewVorlage", QStringLiteral("Anschauen"), [&model] { model.showTemplate(); });
    QHBoxLayout& layoutRow = page->newStripRow();
    layoutRow.addWidget(caption(QStringLiteral("Vorlage"), TextRole::Caption));
    layoutRow.addWidget(drawingTemplate, 1);
    layoutRow.addWidget(openInViewer);
    page->sequence([drawingTemplate, openInViewer, &model] {
        const std::string& documentPath = model.details().LblPfadDateiVorlage();
        drawingTemplate->setText(toQt(documentPath));
        openInViewer->setEnabled(!documentPath.empty());
    });
    return page;
}

ListPage* newAdditionalDocumentPage(InfoPanel& model)
{
    auto* page = new ListPage(model, InfoPageId::ZusDoku, QStringLiteral("Zusätzl. Dokumente"), "DataGridZusDoku",
                              {{"Datum/Uhrzeit", "ZusDokuDatum"},
                               {"Objekt ", "ZusDokuDateiname"},
                               {"Senden", "ZusDokuSenden"},
                               {"Pfad- u. Dateiname", "ZusDokufilename"}},
                              {33, 28, 18, 21});
    page->showWhole("ZusDokufilename");
    auto* info = caption({}, TextRole::Caption, QStringLiteral("LblInfoZusDoku"));
    info->setContentsMargins(12, 6, 12, 0);
    auto* picture = new FilePictureView(model.details());
    auto* graphic = newField<QCheckBox>("ChViewGrafikZusDoku", QStringLiteral("Graphik anzeigen"));
    QObject::connect(graphic, &QCheckBox::clicked, graphic,
                     guardedSlot([&model](bool on) { model.details().setChViewGrafikZusDoku(on); }));
    auto* start = newPushButton("CmStartZusDoku", QStringLiteral("Anschauen"),
                                [&model] { model.details().openAdditionalDocument(); });
    page->setOpen([&model] { model.details().openAdditionalDocument(); });
    page->layout().addWidget(info);
    QHBoxLayout& layoutRow = page->newStripRow();
    layoutRow.addWidget(graphic, 1);
    layoutRow.addWidget(start);
    page->layout().addWidget(picture, 2);
    page->sequence([=, &model] {
        const DetailPages& details = model.details();
        const bool rows = hasRows(details, InfoPageId::ZusDoku);
        info->setText(toQt(details.LblInfoZusDoku()));
        graphic->setEnabled(rows);
        showSet(*graphic, details.ChViewGrafikZusDoku());
        start->setEnabled(rows);
        picture->refresh();
    });
    return page;
}

ListPage* newSendToPage(InfoPanel& model)
{
    auto* page = new ListPage(model, InfoPageId::SendTo, QStringLiteral("Versendet an"), "DataGridSendTo",
                              {{"Datum/Uhrzeit", "SendToDatum"},
                               {"Versendet an", "Kennung"},
                               {"Auftrag / Protokoll", "OrderDateiname"},
                               {"Pfad- u. Dateiname Speicherort", "Orderfilename"}},
                              {34, 24, 22, 20});
    page->showWhole("Orderfilename");
    auto* open = newPushButton("CmSendTo", QStringLiteral("Öffnen"), [&model] { model.details().openOrder(); });
    page->setOpen([&model] { model.details().openOrder(); });
    QHBoxLayout& layoutRow = page->newStripRow();
    layoutRow.addStretch(1);
    layoutRow.addWidget(open);
    page->sequence([open, &model] { open->setEnabled(hasRows(model.details(), InfoPageId::SendTo)); });
    return page;
}

} // namespace quelvarn
