#include "base/windows_path.h"
#include "platform/dateien.h"
#include "register/document_page.h"
#include "register/tree_builder.h"

namespace quelvarn {

void DocumentPage::zeileGewaehlt(std::size_t position)
{
    operations_.report(Part::Document, [&] {
        Recordset& zeilen = seiten_[tab_].sichtbar();
        if (!zeilen.offen() || position >= zeilen.RecordCount())
            return;
        zeilen.setzeAbsolutePosition(position);
        ZeileAktualisieren(tab_);
    });
}

void DocumentPage::zeileVor()
{
    operations_.report(Part::Document, [&] {
        Recordset& zeilen = seiten_[tab_].sichtbar();
        if (zeilen.offen() && !zeilen.Eof())
            zeilen.MoveNext();
        ZeileAktualisieren(tab_);
    });
}

void DocumentPage::zeileGewechselt()
{
    operations_.report(Part::Document, [&] { ZeileAktualisieren(tab_); });
}

void DocumentPage::ZeileAktualisieren(int tab)
{
    Recordset& zeilen = seiten_[tab].sichtbar();
    if (zeilen.offen() && !zeilen.leer() && (zeilen.Eof() || zeilen.Bof()))
        zeilen.MoveFirst();
    baumAufbauen(tab);
}

void DocumentPage::baumAufbauen(int tab)
{
    const DokuTyp& typ = DOKUTYPEN[tab];
    Tabellenseite& seite = seiten_[tab];
    verlasseViewer();
    seite.baum.leere();
    if (seite.zustand <= NichtOffen)
        return;
    if (!seite.hatZeilen())
        return leereDokument(tab);

    seite.record = leseDokuRecord(seite.sichtbar(), typ);
    session_.AktDoku = seite.record.alsAktDoku(typ.typNachZeile);
    operations_.report([&] { // A fault leaves the tree as far as it was built; the document shows all the same.
        BaumBauer bauer(seite, typ, session_, ports_);
        bauer.eigenschaften();
        if (session_.Tree.Knoten) {
            leseDatei();
            bauer.KinderAufbauen();
        }
        bauer.obersteEbene();
    });
    stichKomm_ = {seite.record.Stichwoerter, seite.record.Kommentar};
    dateinamePanel_ = seite.record.Dateiname;
    ordnerPanel_ = Ordnername(seite.record.filename);
    statuskopf_ = quelvarn::statuskopf(seite.record, session_.Anwender, statuskopf_.farbe);
    zeigeNachModus();
}

void DocumentPage::zeigeDateiUnten(const std::string& filename)
{
    dateinamePanel_ = DateiName(filename);
    ordnerPanel_ = Ordnername(filename);
    statuskopf_.text.clear();
}

void DocumentPage::leereDokument(int tab)
{
    seiten_[tab].baum.leere();
    seiten_[tab].record = {};
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
    if (seitenModus_ == 2 && zeigeViewer())
        return;
    seitenModus_ = 1;
    zeigeAllgemein();
}

} // namespace quelvarn
