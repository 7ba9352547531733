#include "register/document_page.h"

#include "session/error_report.h"

namespace quelvarn {

DocumentPage::DocumentPage(SessionState& session, Ports& ports, GezeigteDateien& gezeigt)
    : session_(session), ports_(ports), gezeigt_(gezeigt), details_(session, ports),
      verwendung_(session, ports, gezeigt, *this)
{
    details_.geaendert = [this] { melde(); };
}

void DocumentPage::bediene(std::string_view titel, std::string_view text, const std::function<void()>& operation)
{
    gesichert(ports_.meldungen, titel, text, [&] {
        try {
            operation();
        } catch (...) {
            melde(); // The box lets the window repaint: it must not show rows that are gone by now.
            throw;
        }
    });
    melde();
}

void DocumentPage::bedieneZeile(const std::function<void()>& operation)
{
    berichte(operation);
    melde();
}

void DocumentPage::berichte(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const Laufzeitfehler& fehler) {
        Fehlermeldung(ports_.meldungen, fehler);
    }
}

void DocumentPage::melde()
{
    if (geaendert)
        geaendert();
}

void DocumentPage::zeilenGeaendert(int tab)
{
    ++seiten_[tab].fassung;
    melde();
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
