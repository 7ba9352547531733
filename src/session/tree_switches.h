#pragma once

#include <array>
#include <string_view>

namespace quelvarn {

// The switches of the property tree. Valid for this session; a row of the table may say otherwise.
struct Baumschalter
{
    bool Knoten = true;
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
struct Baumschalterzeile
{
    std::string_view schluessel;
    std::string_view notiz;
    std::string_view heilwert; // Written over a value that is neither "0" nor "1".
    std::string_view beschriftung;
    bool Baumschalter::*feld;
};

inline constexpr std::size_t ANZAHL_INFOPRIO1 = 4; // The first four stand in Frame1, the others in Frame2.

inline constexpr std::array<Baumschalterzeile, 10> BAUMSCHALTER{{
    {"Knoten", "Knoten immer geöffnet", "1", "Knoten immer geöffnet", &Baumschalter::Knoten},
    {"Verwendung", "Verwendung anzeigen", "1", "Verwendung anzeigen", &Baumschalter::Verwendung},
    {"TIFFDoku", "TIFF-Dokumente (bei Zeichnung)", "0", "TIFF-Dokument (bei Zeichnung) Dateiname = Zeichnungsname",
     &Baumschalter::TIFFDoku},
    {"PDFDoku", "PDF-Dokumente (bei Zeichnung)", "0", "PDF-Dokument (bei Zeichnung) Dateiname = Zeichnungsname",
     &Baumschalter::PDFDoku},
    {"Revision", "Revision", "1", "Revision", &Baumschalter::Revision},
    {"HauptMerk", "Hauptmerkmale und Hauptwerte", "0", "Hauptmerkmale und Hauptwerte", &Baumschalter::HauptMerk},
    {"BenutzDef", "Benutzerdefinierte Eigenschaften", "0", "Benutzerdefinierte Eigenschaften",
     &Baumschalter::BenutzDef},
    {"StichKomm", "Stichwörter / Kommentar", "0", "Stichwörter, Kommentar", &Baumschalter::StichKomm},
    {"ZusDoku", "Zusätzliche Dokumente", "0", "Zusätzliche Dokumente", &Baumschalter::ZusDoku},
    {"Versendet", "Versendet an", "0", "Versendet an", &Baumschalter::Versendet},
}};

} // namespace quelvarn
