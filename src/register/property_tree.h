#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// A node is known by its text: no two nodes of a tree share one.
struct Node
{
    std::string key; // "" for the children of the first node
    std::string text;
    bool red = false; // Marks a newer revision.
    bool open = false;
    std::vector<Node> children;
    bool operator==(const Node&) const = default;
};

// The property tree of one table, rebuilt for each new row.
struct PropertyTree
{
    std::vector<Node> roots;
    std::string chosen;         // Text of the node last clicked; "" for none.
    bool BaumAufgebaut = false; // The children of "Eigenschaften" are complete for this row.

    const Node* find(std::string_view text) const;
    void clear();
};

namespace nodes {
inline constexpr std::string_view PROPERTIES = "Eigenschaften";
inline constexpr std::string_view FILE = "Dateieigenschaften";
inline constexpr std::string_view STRUCTURE_FEATURES = "Hauptmerkmale / -werte";
inline constexpr std::string_view USER_DEFINED = "Benutzerdef. Eigenschaften";
inline constexpr std::string_view SENT = "Versendet an";
inline constexpr std::string_view KEYWORDS = "Stichwörter / Kommentar";
inline constexpr std::string_view ZUSDOKU = "Zusätzl. Dokumente";
inline constexpr std::string_view REVISION = "Revision";
inline constexpr std::string_view SMARTVIEWER = "SmartViewer";
inline constexpr std::string_view TIFF = "TIFF-Dokument";
inline constexpr std::string_view PDF = "PDF-Dokument";
inline constexpr std::string_view IN_ASSEMBLY = "Enthalten in Baugruppe";
inline constexpr std::string_view IN_DRAWING = "Enthalten in Zeichnung";
inline constexpr std::string_view IN_WELDMENT = "Enthalten in Schweißteil";
inline constexpr std::string_view CONSISTS_OF = "Besteht aus";
inline constexpr std::string_view CONTAINS = "Enthält";
inline constexpr std::string_view CONTAINS_ASSEMBLY = "Enthält Baugruppe";
} // namespace nodes

} // namespace quelvarn
