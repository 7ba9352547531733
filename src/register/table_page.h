#pragma once

#include "database/recordset.h"
#include "register/document_record.h"
#include "register/property_tree.h"

#include <cstddef>
#include <string>

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

// One of the eight tables with its row copy and tree.
struct Tabellenseite
{
    Recordset tabelle;
    Recordset FilterErgebnis;
    std::size_t anzahl = 0; // Rows at the opening.
    int zustand = NichtOffen;
    // Rises with each change of the rows shown (opened anew, filtered, the other recordset bound): a grid
    // then asks for everything again; otherwise only the current row has moved.
    unsigned fassung = 0;
    Zeitpunkt naechstePruefung; // Opening plus a minute; scans before it are old news.
    DokuRecord record;
    Eigenschaftsbaum baum;
    bool filterListeGefuellt = false; // The page's list of filter values has rows.
    std::string filterBeschreibung;   // Text of a quick filter, "" for none.

    bool geoeffnet() const { return tabelle.offen(); }
    bool gefiltert() const { return zustand == Gefiltert || zustand == Filterergebnis; }
    // What the grid shows: FilterErgebnis at state 11, else the table.
    Recordset& sichtbar() { return zustand == Filterergebnis ? FilterErgebnis : tabelle; }
    const Recordset& sichtbar() const { return zustand == Filterergebnis ? FilterErgebnis : tabelle; }
    bool hatZeilen() const { return sichtbar().offen() && sichtbar().RecordCount() > 0; }
};

} // namespace quelvarn
