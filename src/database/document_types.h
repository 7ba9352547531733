#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace quelvarn {

constexpr int DOCUMENT_TYPE_COUNT = 8;

// What differs between the eight document types. The index in DOCUMENT_TYPES is the tab.
struct DocumentType
{
    int tab;
    std::string_view key; // In saved filters and favourites.
    std::string_view table;
    std::string_view tableUserDef;
    std::string_view extension; // "" for the special tables.
    int documentKind;           // The type number of the CAD program, as a row load writes it.
    int typeAfterTabChange;     // Differs from documentKind for weldments; other parts of the office rely on both.
    int typeAfterRow;           // The same when the tree has loaded the row.
    int stampNumber;            // Number of its WriteDB stamp, 0 for none.
    std::string_view stamp;     // Key of its WriteDB stamp.
    std::string_view singular;  // "" where the configured name of the special table stands.
    std::string_view plural;
    std::string_view grid;
    std::string_view tree; // "Stbl2TreeView" is spelled so.
    int indicatorPanel;    // Panel of StatusBarUpdate, counted from 1. The special tables share the last one.
    bool statusScope;      // Limited to the statuses that the user may see.
    int specialTable;      // 1 to 3, else 0.
};

inline constexpr std::array<DocumentType, DOCUMENT_TYPE_COUNT> DOCUMENT_TYPES{{
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

constexpr int STATUS_COUNT = 6;

struct StatusText
{
    std::string_view name;      // "Verfügbar"
    std::string_view shortText; // " 0=Verfügbar;" of the access line
    std::string_view inBracket; // "(Verfügbar)" of the information pages
    unsigned colour;            // RGB of the standard colour
};

inline constexpr std::array<StatusText, STATUS_COUNT> STATUS{{
    {"Verfügbar", " 0=Verfügbar;", "(Verfügbar)", 0x000000},
    {"In Arbeit", " 1=In Arbeit;", "(In Arbeit)", 0xFF0000},
    {"Wird geprüft", " 2=Wird geprüft;", "(Wird geprüft)", 0xFF00FF},
    {"Freigegeben", " 3=Freigegeben;", "(Freigegeben)", 0x0000FF},
    {"Festgeschrieben", " 4=Festgeschr.;", "(Festgeschr.)", 0x00FFFF},
    {"Ungültig", " 5=Ungültig;", "(Ungültig)", 0x008080},
}};

} // namespace quelvarn
