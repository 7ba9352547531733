#include "register/document_page.h"
#include "register/row_memory.h"

#include <utility>

namespace quelvarn {

void DocumentPage::tabGewaehlt(int tab)
{
    if (tab < 0 || tab >= ANZAHL_DOKUTYPEN)
        return;
    operations_.perform(Part::Document, "Wechsel der Tabelle", "Fehler beim Wechsel der Tabelle!",
                        [&] { waehleTab(tab); });
}

void DocumentPage::waehleTab(int tab)
{
    zeigeTab(tab);
    TabelleWechseln();
}

void DocumentPage::zeigeTab(int tab)
{
    tab_ = tab;
    dateinamePanel_.clear();
    ordnerPanel_.clear();
    statuskopf_.text.clear();
}

void DocumentPage::TabelleWechseln()
{
    wechsle(nullptr);
}

void DocumentPage::wechsle(const Merkzeile* rueckkehr)
{
    if (tabelleGewechselt)
        tabelleGewechselt();
    seitenMerker_.fill(0);
    Tabellenseite& seite = seiten_[tab_];
    switch (seite.zustand) {
    case NichtOffen:
        leereDokument(tab_);
        TabelleNeuLaden(tab_);
        zeigeZeilen();
        break;
    case Leer:
        leereDokument(tab_);
        break;
    case Offen:
    case Gefiltert:
    case NeuereDaten:
    case Filterergebnis:
        ZeileAktualisieren(tab_);
        break;
    case Neuaufbau:
        TabelleNeuLaden(tab_);
        bindeOhneFilter(tab_);
        if (rueckkehr && seite.hatZeilen())
            stelleAuf(seite.tabelle, *rueckkehr);
        zeigeZeilen();
        break;
    default:
        break;
    }
    if (seite.hatZeilen())
        session_.AktDoku = seite.record.alsAktDoku(DOKUTYPEN[tab_].typNachTabwechsel);
}

void DocumentPage::zeigeZeilen()
{
    if (seiten_[tab_].zustand < Offen)
        leereDokument(tab_);
    else
        ZeileAktualisieren(tab_);
}

void DocumentPage::neuaufbauen()
{
    operations_.perform(Part::Document, "Neuaufbau der Tabelle", "Fehler beim Neuaufbau der Tabelle!", [&] {
        if (!databaseStillOpen || databaseStillOpen())
            baueNeuAuf(tab_);
    });
}

void DocumentPage::baueNeuAuf(int tab)
{
    Tabellenseite& seite = seiten_[tab];
    const Merkzeile zeile = merkeZeile(seite);
    const int vorher = std::exchange(seite.zustand, Neuaufbau);
    const std::string dateiname = dateinamePanel_;
    const std::string ordner = ordnerPanel_;
    const std::string kopf = statuskopf_.text;
    const int vorherigerTab = tab_;
    try {
        zeigeTab(tab);
        wechsle(&zeile);
    } catch (...) {
        if (seite.zustand == Neuaufbau) { // The rows could not be had: those shown stay, with their filter.
            seite.zustand = vorher;
            tab_ = vorherigerTab;
            dateinamePanel_ = dateiname;
            ordnerPanel_ = ordner;
            statuskopf_.text = kopf;
        }
        throw;
    }
    aenderungspanel(tab).clear();
}

void DocumentPage::zurueck()
{
    operations_.perform(Part::Document, "Filterung aufheben", "Fehler beim Aufheben der Filterung!", [&] {
        Tabellenseite& seite = seiten_[tab_];
        if (seite.gefiltert() || seite.zustand == NeuereDaten)
            return filterAufheben(tab_);
        if (!seite.hatZeilen())
            return;
        seite.tabelle.MoveFirst();
        ZeileAktualisieren(tab_);
    });
}

} // namespace quelvarn
