#include "ui/document_page/tool_bars.h"

#include "ui/controls/tool_bar.h"

#include <QAction>
#include <QToolBar>

#include <array>

namespace quelvarn {

namespace {

constexpr std::array<Leistenknopf, 7> OBEN{{
    {"Neuaufbau", "Neuaufbau", "Neuaufbau der Tabelle u. Auswahlfelder", "rebuild"},
    {"Anschauen", "Anschauen", "Anschauen des aktuellen SE-Dokuments", "", true},
    {"Pfad in ZwSp", "Pfad in ZwSp", "Pfad- u. Dateiname aktuelles SE-Doku. in Zw-Spch.", ""},
    {"Pfad aus ZwSp", "Pfad aus ZwSp.", "Pfad- u. Dateiname SE-Dokument aus Zw-Speicher", ""},
    {"Zu Favoriten", "Zu Favoriten", "Aktuelles SE-Dokument zu Favoriten hinzufügen", "favourite-new"},
    {"Favoriten....", "Favoriten....", "Favoriten anzeigen", "", true},
    {"In Benutzung..", "In Benutzung..", "Dokumente In Arbeit/In Durchsicht von Benutzer(n).", "", true},
}};

constexpr std::array<Leistenknopf, 5> LINKS{{
    {"Suche/Filtern", "Suche/Filtern", "Nach Zeichenfolge suchen / filtern in Spalte...", "search", true},
    {"Filtern Datum", "Filtern Datum", "Filtern Heute / Filter zurückliegende Tage...", "date", true},
    {"Filtern Favo.", "Filtern Favo.", "Liste der gespeicherte Filterfavoriten anzeigen.", "bookmark", true},
    {"Filterwerte", "Anzeigen der Filterwerte >>", "Anzeigen der Filterwerte >>", "values", true},
    {"Zurück", "Zurück", "Zum Anfang der Tabelle", "first"},
}};

constexpr std::array<Leistenknopf, 2> AUFTRAG{{
    {"Zu Auftragslst", "Zu Auftragslst", "Aktuelles Dokument zur Auftragsliste hinzufügen", "plus"},
    {"Auftragsliste", "Auftragsliste", "Auftragsliste anzeigen", "list", true},
}};

QToolBar* neueAuftragsleiste(std::string_view name)
{
    auto* leiste = neueLeiste(name, Knopfart::TextNebenSymbol);
    for (const Leistenknopf& knopf : AUFTRAG)
        fuegeKnopfHinzu(*leiste, knopf)->setEnabled(false);
    return leiste;
}

} // namespace

QToolBar* neueToolbarSEDokTop()
{
    auto* leiste = neueLeiste("ToolbarSEDokTop", Knopfart::TextNebenSymbol);
    for (const Leistenknopf& knopf : OBEN) {
        if (knopf.schluessel == "Pfad in ZwSp" || knopf.schluessel == "Zu Favoriten")
            leiste->addSeparator();
        fuegeKnopfHinzu(*leiste, knopf);
    }
    knopfVon(*leiste, "Neuaufbau").setShortcut(QKeySequence(Qt::Key_F5));
    return leiste;
}

QToolBar* neueToolbarSEDok2()
{
    auto* leiste = neueLeiste("ToolbarSEDok2", Knopfart::NurSymbol, Qt::Vertical);
    for (const Leistenknopf& knopf : LINKS)
        fuegeKnopfHinzu(*leiste, knopf);
    return leiste;
}

QToolBar* neueToolbarSEDok3()
{
    return neueAuftragsleiste("ToolbarSEDok3");
}

QToolBar* neueToolbarSEDok4()
{
    return neueAuftragsleiste("ToolbarSEDok4");
}

} // namespace quelvarn
