#include "register/left_bar.h"

#include "filter/filter_page.h"
#include "filter/saved_filters.h"
#include "register/table_heading.h"
#include "session/error_report.h"

namespace quelvarn {

LinkeLeiste::LinkeLeiste(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                         TableTabs& tabs, FilterPage& filterPage)
    : session_(session), operations_(operations), ports_(operations.ports()), tables_(tables), filterPage_(filterPage),
      suche_(session, operations, tables, tabs), filter_(session, operations, filter, tables, suche_)
{
    tables_.follow(*this);
}

void LinkeLeiste::zeigeSuchen(bool FrmSuchenFiltern)
{
    zeigtSuchen_ = FrmSuchenFiltern;
    zeigtWerte_ = zeigtWerte_ && !FrmSuchenFiltern;
    operations_.changed(Part::LeftBar);
}

void LinkeLeiste::zeigeDatum(bool FrmFilternDatum)
{
    zeigtDatum_ = FrmFilternDatum;
    zeigtWerte_ = zeigtWerte_ && !FrmFilternDatum;
    operations_.changed(Part::LeftBar);
}

void LinkeLeiste::zeigeWerte(bool FrmInfoFilter)
{
    zeigtWerte_ = FrmInfoFilter;
    operations_.changed(Part::LeftBar);
}

bool LinkeLeiste::zeigeFavoriten()
{
    zeigtFavorit_ = false;
    operations_.perform(Part::LeftBar, TITEL_FILTERFAVORITEN, FEHLER_FILTERFAVORITEN, [&] {
        const Filterfavoriten liste = favoritenliste(session_, tables_.tab());
        if (liste.meldung)
            ports_.meldungen.zeige(*liste.meldung);
        zeigtFavorit_ = !liste.namen.empty();
    });
    return zeigtFavorit_;
}

std::vector<std::string> LinkeLeiste::favoritennamen()
{
    std::vector<std::string> namen;
    gesichert(ports_.meldungen, TITEL_FAVORITENMENUE, FEHLER_FAVORITENMENUE,
              [&] { namen = favoritenliste(session_, tables_.tab()).namen; });
    return namen;
}

void LinkeLeiste::waehleFavorit(std::string_view name)
{
    LblFilter_ = name;
    zeigtFavorit_ = true;
    operations_.changed(Part::LeftBar);
}

void LinkeLeiste::schliesseFavoriten()
{
    zeigtFavorit_ = false;
    operations_.changed(Part::LeftBar);
}

void LinkeLeiste::nutzeFavorit()
{
    const std::string name = LblFilter_; // The run may show another tab.
    if (gewaehlterFavorit(session_, ports_.meldungen, tables_.tab(), name))
        filterPage_.nutzeGespeicherten(name);
    operations_.changed(Part::LeftBar);
}

void LinkeLeiste::tabChanged()
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

std::vector<FilterRow> LinkeLeiste::gezeigteWerte() const
{
    if (const std::vector<FilterRow>* gesucht = suche_.gesuchteWerte())
        return *gesucht;
    return TableHeading(session_, tables_).filterRows();
}

} // namespace quelvarn
