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

struct Eigenschaftsbaum
{
    std::vector<Knoten> wurzeln;
    std::string gewaehlt; // Text of the node last clicked; "" for none.
    bool KinderGebaut = false; // The children of "Eigenschaften" are complete for this row.

    const Knoten* finde(std::string_view text) const;
};

} // namespace quelvarn
