#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quelvarn {

constexpr int ANZAHL_DOKUTYPEN = 8;

// What differs between the eight document types. The index in DOKUTYPEN is the tab.
struct DokuTyp
{
    int tab;
    std::string_view schluessel; // In saved filters and favourites.
    std::string_view tabelle;
    std::string_view tabelleBenutzDef;
    std::string_view endung;  // "" for the special tables.
    int dokuArt;              // The type number of the CAD program, as a row load writes it.
    int typNachTabwechsel;    // Differs from dokuArt for weldments; other parts of the office rely on both.
    int typNachZeile;         // The same when the tree has loaded the row.
    int stempelNummer;        // Number of its WriteDB stamp, 0 for none.
    std::string_view stempel; // Key of its WriteDB stamp.
    std::string_view einzahl; // "" where the configured name of the special table stands.
    std::string_view mehrzahl;
    std::string_view grid;
    std::string_view baum; // "Stbl2TreeView" is spelled so.
    int aenderungspanel;   // Panel of StatusBarUpdate, counted from 1. The special tables share the last one.
    bool statusbereich;    // Limited to the statuses that the user may see.
    int sondertabelle;     // 1 to 3, else 0.
};

inline constexpr std::array<DokuTyp, ANZAHL_DOKUTYPEN> DOKUTYPEN{{
    {0, "Part", "PartTabelle", "PartTabelleBenutzDef", "par", 1, 1, 1, 1, "PART", "Bauteil", "Bauteile", "PartDataGrid",
     "PartTreeView", 3, true, 0},
    {1, "SheetM", "SheetMTabelle", "SheetMTabelleBenutzDef", "psm", 4, 4, 4, 4, "SHEETM", "Blechteil", "Blechteile",
     "SheetMDataGrid", "SheetMTreeView", 5, true, 0},
    {2, "Assemb", "AssembTabelle", "AssembTabelleBenutzDef", "asm", 3, 3, 3, 3, "ASSEMB", "Baugruppe", "Baugruppen",
     "AssembDataGrid", "AssembTreeView", 7, true, 0},
    {3, "Draft", "DraftTabelle", "DraftTabelleBenutzDef", "dft", 2, 2, 2, 2, "DRAFT", "Zeichnung", "Zeichnungen",
     "DraftDataGrid", "DraftTreeView", 9, true, 0},
    {4, "Weld", "WeldTabelle", "WeldTabelleBenutzDef", "pwd", 6, 2, 1, 5, "WELD", "Schweißteil", "Schweißteile",
     "WeldDataGrid", "WeldTreeView", 11, true, 0},
    {5, "STbl1", "STbl1Tabelle", "STbl1TabelleBenutzDef", "", 1, 1, 1, 0, "", "", "", "STbl1DataGrid", "STbl1TreeView",
     11, false, 1},
    {6, "STbl2", "STbl2Tabelle", "STbl2TabelleBenutzDef", "", 1, 1, 1, 0, "", "", "", "STbl2DataGrid", "Stbl2TreeView",
     11, false, 2},
    {7, "STbl3", "STbl3Tabelle", "STbl3TabelleBenutzDef", "", 1, 1, 1, 0, "", "", "", "STbl3DataGrid", "STbl3TreeView",
     11, false, 3},
}};

constexpr int ANZAHL_STATUS = 6;

struct StatusText
{
    std::string_view name;      // "Verfügbar"
    std::string_view kurz;      // " 0=Verfügbar;" of the access line
    std::string_view inKlammer; // "(Verfügbar)" of the information pages
    unsigned farbe;             // RGB of the standard colour
};

inline constexpr std::array<StatusText, ANZAHL_STATUS> STATUS{{
    {"Verfügbar", " 0=Verfügbar;", "(Verfügbar)", 0x000000},
    {"In Arbeit", " 1=In Arbeit;", "(In Arbeit)", 0xFF0000},
    {"Wird geprüft", " 2=Wird geprüft;", "(Wird geprüft)", 0xFF00FF},
    {"Freigegeben", " 3=Freigegeben;", "(Freigegeben)", 0x0000FF},
    {"Festgeschrieben", " 4=Festgeschr.;", "(Festgeschr.)", 0x00FFFF},
    {"Ungültig", " 5=Ungültig;", "(Ungültig)", 0x008080},
}};

} // namespace quelvarn
