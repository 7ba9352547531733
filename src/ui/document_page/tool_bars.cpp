#include "ui/document_page/tool_bars.h"

#include "ui/controls/tool_bar.h"

#include <QAction>
#include <QToolBar>

#include <array>

namespace quelvarn {

namespace {

constexpr std::array<BarButton, 7> ABOVE{{
    {"Neuaufbau", "Neuaufbau", "Neuaufbau der Tabelle u. Auswahlfelder", "rebuild"},
    {"Anschauen", "Anschauen", "Anschauen des aktuellen SE-Dokuments", "", true},
    {"Pfad in ZwSp", "Pfad in ZwSp", "Pfad- u. Dateiname aktuelles SE-Doku. in Zw-Spch.", ""},
    {"Pfad aus ZwSp", "Pfad aus ZwSp.", "Pfad- u. Dateiname SE-Dokument aus Zw-Speicher", ""},
    {"Zu Favoriten", "Zu Favoriten", "Aktuelles SE-Dokument zu Favoriten hinzufügen", "favourite-new"},
    {"Favoriten....", "Favoriten....", "Favoriten anzeigen", "", true},
    {"In Benutzung..", "In Benutzung..", "Dokumente In Arbeit/In Durchsicht von Benutzer(n).", "", true},
}};

constexpr std::array<BarButton, 5> LINKS{{
    {"Suche/Filtern", "Suche/Filtern", "Nach Zeichenfolge suchen / filtern in Spalte...", "search", true},
    {"Filtern Datum", "Filtern Datum", "Filtern Heute / Filter zurückliegende Tage...", "date", true},
    {"Filtern Favo.", "Filtern Favo.", "Liste der gespeicherte Filterfavoriten anzeigen.", "bookmark", true},
    {"Filterwerte", "Anzeigen der Filterwerte >>", "Anzeigen der Filterwerte >>", "values", true},
    {"Zurück", "Zurück", "Zum Anfang der Tabelle", "first"},
}};

constexpr std::array<BarButton, 2> ORDER{{
    {"Zu Auftragslst", "Zu Auftragslst", "Aktuelles Dokument zur Auftragsliste hinzufügen", "plus"},
    {"Auftragsliste", "Auftragsliste", "Auftragsliste anzeigen", "list", true},
}};

QToolBar* newOrderBar(std::string_view name)
{
    auto* bar = newBar(name, ButtonKind::TextBesideIcon);
    for (const BarButton& button : ORDER)
        addBarButton(*bar, button)->setEnabled(false);
    return bar;
}

} // namespace

QToolBar* newToolbarSEDokTop()
{
    auto* bar = newBar("ToolbarSEDokTop", ButtonKind::TextBesideIcon);
    for (const BarButton& button : ABOVE) {
        if (button.key == "Pfad in ZwSp" || button.key == "Zu Favoriten")
            bar->addSeparator();
        addBarButton(*bar, button);
    }
    buttonOf(*bar, "Neuaufbau").setShortcut(QKeySequence(Qt::Key_F5));
    return bar;
}

QToolBar* newToolbarSEDok2()
{
    auto* bar = newBar("ToolbarSEDok2", ButtonKind::IconOnly, Qt::Vertical);
    for (const BarButton& button : LINKS)
        addBarButton(*bar, button);
    return bar;
}

QToolBar* newToolbarSEDok3()
{
    return newOrderBar("ToolbarSEDok3");
}

QToolBar* newToolbarSEDok4()
{
    return newOrderBar("ToolbarSEDok4");
}

} // namespace quelvarn
