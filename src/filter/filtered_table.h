#pragma once

#include "database/recordset.h"
#include "filter/filter_state.h"

#include <cstddef>
#include <string>
#include <vector>

namespace quelvarn {

// Plain numbers: the update timer and the filters set them too.
enum TabellenZustand : int {
    NichtOffen = 0,
    Leer = 1,
    Offen = 2,
    Gefiltert = 3,
    NeuereDaten = 4,
    Neuaufbau = 9,
    Filterergebnis = 11,
};

// One of the eight tables as the filters see it: its rows, and what is shown of them.
struct GefilterteTabelle
{
    Recordset tabelle;
    Recordset FilterErgebnis; // Rows of the filter for user-defined properties, while the state is 11.
    std::size_t anzahl = 0;   // Rows at the opening.
    int zustand = NichtOffen;
    // Rises with each change of the rows shown (opened anew, filtered, the other recordset bound): a grid
    // then asks for everything again; otherwise only the current row has moved.
    unsigned fassung = 0;
    // What the rows were narrowed by: the values of the run, as the page lists them, and the limit of the statuses.
    std::vector<Filterwert> gezeigteWerte;
    StatusLimit statusLimit;
    std::string filterBeschreibung; // Text of a quick filter, "" for none.

    bool geoeffnet() const { return tabelle.offen(); }
    bool gefiltert() const { return zustand == Gefiltert || zustand == Filterergebnis; }
    // What the grid shows: FilterErgebnis at state 11, else the table.
    Recordset& sichtbar() { return zustand == Filterergebnis ? FilterErgebnis : tabelle; }
    const Recordset& sichtbar() const { return zustand == Filterergebnis ? FilterErgebnis : tabelle; }
    bool hatZeilen() const { return sichtbar().offen() && sichtbar().RecordCount() > 0; }
};

// What the filters ask of the page that owns the tables.
class Tabellenherr
{
public:
    virtual ~Tabellenherr() = default;
    virtual int filterTab() const = 0;                     // The tab of the table shown.
    virtual GefilterteTabelle& filterTabelle(int tab) = 0; // Opened when it was not.
    // Other rows are shown now: the page goes to the current one of them.
    virtual void filterGewechselt(int tab) = 0;
    // All rows of a table again; one with newer data in the database is opened anew.
    virtual void filterAufheben(int tab) = 0;
};

} // namespace quelvarn
