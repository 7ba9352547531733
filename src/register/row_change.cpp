#include "base/windows_path.h"
#include "platform/dateien.h"
#include "register/document_page.h"
#include "register/tree_builder.h"

namespace quelvarn {

void DocumentPage::zeileGewaehlt(std::size_t position)
{
    operations_.report(Part::Document, [&] {
        Recordset& zeilen = table().visible();
        if (!zeilen.offen() || position >= zeilen.RecordCount())
            return;
        zeilen.setzeAbsolutePosition(position);
        ZeileAktualisieren(tab());
    });
}

void DocumentPage::zeileVor()
{
    operations_.report(Part::Document, [&] {
        Recordset& zeilen = table().visible();
        if (zeilen.offen() && !zeilen.Eof())
            zeilen.MoveNext();
        ZeileAktualisieren(tab());
    });
}

void DocumentPage::zeileGewechselt()
{
    operations_.report(Part::Document, [&] { ZeileAktualisieren(tab()); });
}

void DocumentPage::ZeileAktualisieren(int tab)
{
    Recordset& zeilen = tables_[tab].visible();
    if (zeilen.offen() && !zeilen.leer() && (zeilen.Eof() || zeilen.Bof()))
        zeilen.MoveFirst();
    BaumAufbauen(tab);
}

void DocumentPage::BaumAufbauen(int tab)
{
    DocumentTable& shown = tables_[tab];
    verlasseViewer();
    trees_[static_cast<std::size_t>(tab)].leere();
    facts_ = {};
    if (!shown.isOpen())
        return;
    if (!shown.hasRows())
        return leereDokument(tab);

    const DokuRecord& record = shown.readRecord();
    session_.AktDoku = record.alsAktDoku(shown.type().typNachZeile);
    operations_.report([&] { // After a fault the document shows with what was found.
        if (session_.Tree.Knoten) {
            leseDatei();
            findPropertyFacts(facts_, record, shown.type(), session_);
        }
        findFacts(facts_, record, shown.type(), session_, ports_);
    });
    trees_[static_cast<std::size_t>(tab)] = treeOf(record, facts_, shown.type(), session_.Tree);
    stichKomm_ = {record.Stichwoerter, record.Kommentar};
    tellOwnDocument();
    zeigeNachModus();
}

void DocumentPage::tellOwnDocument()
{
    const DokuRecord& record = table().record();
    dateinamePanel_ = record.Dateiname;
    ordnerPanel_ = Ordnername(record.filename);
    statuskopf_ = quelvarn::statuskopf(record, session_.Anwender, statuskopf_.farbe);
}

void DocumentPage::zeigeDateiUnten(const std::string& filename)
{
    dateinamePanel_ = DateiName(filename);
    ordnerPanel_ = Ordnername(filename);
    statuskopf_.text.clear();
}

void DocumentPage::leereDokument(int tab)
{
    verlasseViewer();
    trees_[static_cast<std::size_t>(tab)].leere();
    facts_ = {};
    tables_[tab].forgetRecord();
    session_.AktDoku = {};
    session_.Dateiinfo = {};
    seitenModus_ = 1;
    zeigeSeite(InfoSeite::Keine);
    allgemein_ = {};
    datei_ = {};
    stichKomm_ = {};
    details_.leere();
    dateinamePanel_.clear();
    ordnerPanel_.clear();
    statuskopf_.text.clear();
}

void DocumentPage::zeigeNachModus()
{
    fillGeneralPage(); // Also beside the viewer: its warnings stand over every page.
    if (seitenModus_ == 2 && zeigeViewer()) {
        treeInFront().gewaehlt = knoten::SMARTVIEWER;
        return;
    }
    seitenModus_ = 1;
    zeigeAllgemein();
}

} // namespace quelvarn
