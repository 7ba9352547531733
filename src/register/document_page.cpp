#include "register/document_page.h"

namespace quelvarn {

DocumentPage::DocumentPage(SessionState& session, Operations& operations, GezeigteDateien& gezeigt)
    : session_(session), operations_(operations), ports_(operations.ports()), gezeigt_(gezeigt),
      details_(session, operations), verwendung_(session, operations, gezeigt, *this)
{}

void DocumentPage::zeilenGeaendert(int tab)
{
    ++seiten_[tab].fassung;
    operations_.changed(Part::Rows);
    operations_.changed(Part::Document);
}

std::string DocumentPage::anzahlText() const
{
    const Tabellenseite& seite = aktuelleSeite();
    if (!seite.geoeffnet())
        return {};
    std::string text =
        "  Solid Edge - Dokumente, " + session_.mehrzahl(tab_) + ", Anzahl: " + std::to_string(seite.anzahl);
    const bool quickfilter = !seite.filterBeschreibung.empty() && seite.tabelle.RecordCount() > 0;
    if (!gezeigteWerte().empty() || quickfilter)
        text += "; Filteranzahl: " + std::to_string(seite.sichtbar().RecordCount());
    return text;
}

std::string DocumentPage::zugriffText() const
{
    return statusLimited() ? aktuelleSeite().statusLimit.legende : zugriffstext(session_);
}

std::vector<Filterwert> DocumentPage::gezeigteWerte() const
{
    std::vector<Filterwert> werte = aktuelleSeite().gezeigteWerte;
    if (statusLimited())
        werte.push_back(aktuelleSeite().statusLimit.row());
    return werte;
}

std::string DocumentPage::infoKopf() const
{
    return "  Eigenschaften " + session_.einzahl(tab_);
}

bool DocumentPage::filterKnopf() const
{
    const int zustand = aktuelleSeite().zustand;
    return zustand == Gefiltert || zustand == NeuereDaten;
}

std::string_view DocumentPage::zurueckTooltip() const
{
    return filterKnopf() ? "Filterung aufheben, alle Dokumente anzeigen" : "Zum Anfang der Tabelle";
}

// Text and indicator panels take turns behind the head of the bar: the indicators are 3, 5, 7, 9 and 11.
std::string& DocumentPage::aenderungspanel(int tab)
{
    return aenderungspanele_[static_cast<std::size_t>((DOKUTYPEN[tab].aenderungspanel - 3) / 2)];
}

} // namespace quelvarn
