#pragma once

#include <array>
#include <string_view>

namespace quelvarn {

// The switches of the property tree. Valid for this session; a row of the table may say otherwise.
struct TreeSwitches
{
    bool Node = true;
    bool Verwendung = true;
    bool TIFFDoku = true;
    bool PDFDoku = true;
    bool Revision = true;
    bool HauptMerk = true;
    bool BenutzDef = true;
    bool StichKomm = true;
    bool ZusDoku = true;
    bool Versendet = true;
};

// One switch of the property tree: its row in Ini and its box on the start page.
struct TreeSwitchRow
{
    std::string_view key;
    std::string_view note;
    std::string_view mendedValue; // Written over a value that is neither "0" nor "1".
    std::string_view caption;
    bool TreeSwitches::*field;
};

inline constexpr std::size_t INFO_PRIO_1_COUNT = 4; // The first four stand in Frame1, the others in Frame2.

inline constexpr std::array<TreeSwitchRow, 10> TREE_SWITCHES{{
    {"Knoten", "Knoten immer geöffnet", "1", "Knoten immer geöffnet", &TreeSwitches::Node},
    {"Verwendung", "Verwendung anzeigen", "1", "Verwendung anzeigen", &TreeSwitches::Verwendung},
    {"TIFFDoku", "TIFF-Dokumente (bei Zeichnung)", "0", "TIFF-Dokument (bei Zeichnung) Dateiname = Zeichnungsname",
     &TreeSwitches::TIFFDoku},
    {"PDFDoku", "PDF-Dokumente (bei Zeichnung)", "0", "PDF-Dokument (bei Zeichnung) Dateiname = Zeichnungsname",
     &TreeSwitches::PDFDoku},
    {"Revision", "Revision", "1", "Revision", &TreeSwitches::Revision},
    {"HauptMerk", "Hauptmerkmale und Hauptwerte", "0", "Hauptmerkmale und Hauptwerte", &TreeSwitches::HauptMerk},
    {"BenutzDef", "Benutzerdefinierte Eigenschaften", "0", "Benutzerdefinierte Eigenschaften",
     &TreeSwitches::BenutzDef},
    {"StichKomm", "Stichwörter / Kommentar", "0", "Stichwörter, Kommentar", &TreeSwitches::StichKomm},
    {"ZusDoku", "Zusätzliche Dokumente", "0", "Zusätzliche Dokumente", &TreeSwitches::ZusDoku},
    {"Versendet", "Versendet an", "0", "Versendet an", &TreeSwitches::Versendet},
}};

} // namespace quelvarn
