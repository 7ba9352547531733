#pragma once

#include <string>
#include <vector>

namespace quelvarn::scenario {

// Gestures on single entries of views that hold more than a list of texts.

// A click on a node of a tree, told by the texts from a node above it downwards.
void clickNode(const std::string& tree, const std::vector<std::string>& path);
// Writes into a cell of a grid that can be edited.
void editCell(const std::string& grid, int row, int column, const std::string& text, bool finish);
// A click on a day of a calendar, "15.11.2026".
void clickDay(const std::string& calendar, const std::string& day);
// The first cells of each row of a grid, joined with " ; ", or the entries of a list or combo box.
std::vector<std::string> linesOf(const std::string& name, int columns);

} // namespace quelvarn::scenario
