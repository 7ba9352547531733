#include "register/left_bar.h"

#include "filter/saved_filters.h"
#include "register/document_page.h"
#include "session/error_report.h"

namespace quelvarn {

LinkeLeiste::LinkeLeiste(SessionState& session, Ports& ports, FilterState& filter, DocumentPage& seite)
    : session_(session), ports_(ports), seite_(seite), suche_(session, ports, seite),
      filter_(session, ports, filter, seite, suche_)
{
    suche_.geaendert = [this] { melde(); };
    filter_.geaendert = [this] { melde(); };
}

void LinkeLeiste::zeigeSuchen(bool FrmSuchenFiltern)
{
    zeigtSuchen_ = FrmSuchenFiltern;
    zeigtWerte_ = zeigtWerte_ && !FrmSuchenFiltern;
    melde();
}

void LinkeLeiste::zeigeDatum(bool FrmFilternDatum)
{
    zeigtDatum_ = FrmFilternDatum;
    zeigtWerte_ = zeigtWerte_ && !FrmFilternDatum;
    melde();
}

void LinkeLeiste::zeigeWerte(bool FrmInfoFilter)
{
    zeigtWerte_ = FrmInfoFilter;
    melde();
}

bool LinkeLeiste::zeigeFavoriten()
{
    Filterfavoriten liste;
    gesichert(ports_.meldungen, TITEL_FILTERFAVORITEN, FEHLER_FILTERFAVORITEN, [&] {
        liste = favoritenliste(session_, seite_.tab());
        if (liste.meldung)
            ports_.meldungen.zeige(*liste.meldung);
    });
    zeigtFavorit_ = !liste.namen.empty();
    melde();
    return zeigtFavorit_;
}

std::vector<std::string> LinkeLeiste::favoritennamen()
{
    std::vector<std::string> namen;
    gesichert(ports_.meldungen, TITEL_FAVORITENMENUE, FEHLER_FAVORITENMENUE,
              [&] { namen = favoritenliste(session_, seite_.tab()).namen; });
    return namen;
}

void LinkeLeiste::waehleFavorit(std::string_view name)
{
    LblFilter_ = name;
    zeigtFavorit_ = true;
    melde();
}

void LinkeLeiste::schliesseFavoriten()
{
    zeigtFavorit_ = false;
    melde();
}

void LinkeLeiste::nutzeFavorit()
{
    const std::string name = LblFilter_; // The run may show another tab.
    if (gewaehlterFavorit(session_, ports_.meldungen, seite_.tab(), name) && nutzeGespeicherten)
        nutzeGespeicherten(name);
    melde();
}

void LinkeLeiste::tabelleGewechselt()
{
    filter_.vergissSchritt();
    zeigtWerte_ = false;
    zeigtFavorit_ = false;
    LblFilter_.clear(); // The filters of another table have names of their own.
}

std::string_view LinkeLeiste::knopfWerte() const
{
    return zeigtWerte_ ? "Ausblenden der Filterwerte <<" : "Anzeigen der Filterwerte >>";
}

std::vector<Filterwert> LinkeLeiste::gezeigteWerte() const
{
    if (const std::vector<Filterwert>* gesucht = suche_.gesuchteWerte())
        return *gesucht;
    return seite_.gezeigteWerte();
}

void LinkeLeiste::melde() const
{
    if (geaendert)
        geaendert();
}

} // namespace quelvarn
