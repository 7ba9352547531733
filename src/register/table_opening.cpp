#include "database/sql/conditions.h"
#include "platform/uhr.h"
#include "register/document_page.h"

namespace quelvarn {
namespace {

// On its first row. A revision that sorts higher stands before the older ones of its document.
Recordset OpenDokuTabelle(const DokuTyp& typ, SessionState& session)
{
    const std::string_view bereich = typ.statusbereich ? std::string_view(session.WhereStatus) : std::string_view();
    Recordset tabelle;
    tabelle.Open(sql::Query(typ.tabelle).where(sql::statusScope(bereich)).sortedBy("DokuBez").sortedDownBy("RevBez"),
                 session.Verbindung, CursorTyp::Dynamisch, SperrTyp::NurLesen);
    if (!tabelle.leer())
        tabelle.MoveFirst();
    return tabelle;
}

constexpr std::int64_t SEKUNDEN_BIS_PRUEFUNG = 60;

} // namespace

void DocumentPage::TabelleNeuLaden(int tab)
{
    const DokuTyp& typ = DOKUTYPEN[tab];
    Recordset neue = OpenDokuTabelle(typ, session_); // When that fails the table stays as it is.
    const bool dateityp = typ.sondertabelle == 0;
    Tabellenseite& seite = seiten_[tab];
    if (seite.gefiltert() || (dateityp && seite.zustand == NeuereDaten))
        leereFilter(tab);
    seite.filterBeschreibung.clear();
    seite.gezeigteWerte.clear();
    seite.statusLimit = {};

    seite.tabelle = std::move(neue);
    seite.anzahl = seite.tabelle.RecordCount();
    seite.zustand = seite.tabelle.leer() ? Leer : Offen;
    if (dateityp) {
        seite.naechstePruefung = ports_.uhr.jetzt().plusSekunden(SEKUNDEN_BIS_PRUEFUNG);
        aenderungspanel(tab).clear();
    }
    zeilenGeaendert(tab);
}

Statusbedingung DocumentPage::leereFilter(int tab)
{
    Tabellenseite& seite = seiten_[tab];
    seite.zustand = seite.anzahl > 0 ? Offen : Leer;
    seite.FilterErgebnis = Recordset();
    seite.gezeigteWerte.clear();
    seite.statusLimit = {};
    seite.filterBeschreibung.clear();
    return filterVergessen ? filterVergessen(tab) : Statusbedingung{};
}

void DocumentPage::bindeOhneFilter(int tab)
{
    const Statusbedingung bleibt = leereFilter(tab);
    Recordset& tabelle = seiten_[tab].tabelle;
    if (tabelle.filterText() != bleibt.StatusFilter)
        tabelle.Filter(bleibt.StatusFilter);
    seiten_[tab].statusLimit = bleibt;
    zeilenGeaendert(tab);
}

GefilterteTabelle& DocumentPage::filterTabelle(int tab)
{
    if (!seiten_[tab].geoeffnet())
        TabelleNeuLaden(tab);
    return seiten_[tab];
}

void DocumentPage::filterGewechselt(int tab)
{
    zeilenGeaendert(tab);
    if (tab == tab_)
        zeigeZeilen();
    operations_.changed(Part::Document);
}

void DocumentPage::filterAufheben(int tab)
{
    if (!seiten_[tab].geoeffnet())
        return;
    if (seiten_[tab].zustand == NeuereDaten)
        TabelleNeuLaden(tab);
    bindeOhneFilter(tab);
    if (tab == tab_)
        zeigeZeilen();
    operations_.changed(Part::Document);
}

// Once per database: lazily opened tables of another one must not be left over.
void DocumentPage::StartTabelleZeigen()
{
    if (session_.DatenbankPfad == gemerkterPfad_)
        return;
    operations_.perform(Part::Document, "Starttabelle", "Fehler beim Anzeigen der Starttabelle!", [&] {
        vergissDatenbank();
        gemerkterPfad_ = session_.DatenbankPfad;
        session_.FormSEDokuGeladen = true;
        for (const DokuTyp& typ : DOKUTYPEN) {
            if (typ.sondertabelle == 0 && typ.mehrzahl == session_.Starttabelle)
                waehleTab(typ.tab);
        }
    });
}

} // namespace quelvarn
