#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A node is known by its text: no two nodes of a tree share one.
struct Knoten
{
    std::string schluessel; // "" for the children of the first node
    std::string text;
    bool rot = false; // Marks a newer revision.
    bool offen = false;
    std::vector<Knoten> kinder;
    bool operator==(const Knoten&) const = default;
};

// The property tree of one table, rebuilt for each new row.
struct Eigenschaftsbaum
{
    std::vector<Knoten> wurzeln;
    std::string gewaehlt;       // Text of the node last clicked; "" for none.
    bool BaumAufgebaut = false; // The children of "Eigenschaften" are complete for this row.

    const Knoten* finde(std::string_view text) const;
    void leere();
};

namespace knoten {
inline constexpr std::string_view EIGENSCHAFTEN = "Eigenschaften";
inline constexpr std::string_view DATEI = "Dateieigenschaften";
inline constexpr std::string_view HAUPTMERKMALE = "Hauptmerkmale / -werte";
inline constexpr std::string_view BENUTZDEF = "Benutzerdef. Eigenschaften";
inline constexpr std::string_view VERSENDET = "Versendet an";
inline constexpr std::string_view STICHKOMM = "Stichwörter / Kommentar";
inline constexpr std::string_view ZUSDOKU = "Zusätzl. Dokumente";
inline constexpr std::string_view REVISION = "Revision";
inline constexpr std::string_view SMARTVIEWER = "SmartViewer";
inline constexpr std::string_view TIFF = "TIFF-Dokument";
inline constexpr std::string_view PDF = "PDF-Dokument";
inline constexpr std::string_view IN_BAUGRUPPE = "Enthalten in Baugruppe";
inline constexpr std::string_view IN_ZEICHNUNG = "Enthalten in Zeichnung";
inline constexpr std::string_view IN_SCHWEISSTEIL = "Enthalten in Schweißteil";
inline constexpr std::string_view BESTEHT_AUS = "Besteht aus";
inline constexpr std::string_view ENTHAELT = "Enthält";
inline constexpr std::string_view ENTHAELT_BAUGRUPPE = "Enthält Baugruppe";
} // namespace knoten

} // namespace quelvarn
