#pragma once

#include "register/info_pages.h"
#include "viewing/viewer.h"

#include <array>
#include <string_view>

namespace quelvarn {

// Fields of a link table that tell of one document. Of a component it has the file alone.
struct Dokumentfelder
{
    std::string_view DokuBez, RevBez, Dateiname, filename;
};

// A link table, read from one of its two sides: `spalten` of the rows that belong to the document shown. It is known
// by its path (`pfad`), or by its name and revision.
struct Verbindungstabelle
{
    std::string_view tabelle;
    std::string_view spalten;
    std::string_view pfad;
    std::string_view DokuBez, RevBez;
};

// Which link tables a page is filled from.
enum class Quellwahl {
    Erste,
    NachTyp, // The first for what is built in as a part, the second for assemblies.
    Alle,    // One after the other.
};

// What differs between the six pages of composition and where-used.
struct Verwendungsart
{
    InfoSeite seite;
    std::string_view knoten; // Node of the tree.
    Ansicht ansicht;
    std::array<Verbindungstabelle, 2> tabellen;
    Quellwahl quellwahl;
    Dokumentfelder felder;       // Of the grid.
    std::string_view zieltyp;    // Key of the documents in the grid; "" where the ending of the file tells.
    std::string_view zugriffAuf; // Goes into the box that tells of a missing right.

    bool bestandteile() const { return felder.DokuBez.empty(); }
};

extern const std::array<Verwendungsart, 6> VERWENDUNGSARTEN;
// nullptr when the page is none of the six.
const Verwendungsart* findVerwendungsart(InfoSeite seite);
const Verwendungsart& verwendungsartVon(InfoSeite seite);

} // namespace quelvarn
