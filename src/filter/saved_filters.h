#pragma once

#include "filter/filter_context.h"
#include "platform/boxes.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

// --- lists of saved filters, one a document type ---
// The names of a type's saved filters, in their order.
std::vector<std::string> savedNames(const PageSettings& pages, int tab);
// "" where there is none of this name; the comparison is exact.
std::string SavedFilterString(const PageSettings& pages, int tab, std::string_view Filtername);
// Writes the rows of one type in one transaction, where they differ from those stored.
void SaveFilterRows(SessionState& session, int tab);
// All eight types in their order; a fault of one has its box, and the others go on.
void saveFilterLists(SessionState& session, Boxes& boxes);

// --- the page's operations; each shows its own boxes ---
// CmFilterSave: the filter in front under this name. True when it was taken.
bool saveFilter(FilterContext& context, std::string_view TxtFilterSave);
// CmFilterDelete
void removeFilter(FilterContext& context, std::string_view CbFilterSave);
// CmFilterUse: the stored text of this name; nothing, after a box, when no name is chosen.
std::optional<std::string> chosenFilter(FilterContext& context, std::string_view CbFilterSave);
// Restores steps, ticked statuses and the part of the page. The tree, the locks and the run are up to the page.
void UseSavedFilter(FilterContext& context, std::string_view Filterstring);
// CmChangeStar: ends the values that begin with a star with one as well.
void completeStars(FilterContext& context);

// --- the document page's menu "Filtern Favo." ---
inline constexpr std::size_t MAX_FILTER_FAVOURITES = 25;
inline constexpr std::string_view TITLE_FAVOURITE_MENU = "Gespeicherte Filter";
inline constexpr std::string_view FAULT_FAVOURITE_MENU = "Fehler beim Eintrag der gespeicherten Filter!";
inline constexpr std::string_view TITLE_FILTER_FAVOURITES = "Liste mit Filterfavoriten";
inline constexpr std::string_view FAULT_FILTER_FAVOURITES = "Fehler beim Erstellen der Liste mit Filterfavoriten!";

struct FilterFavourites
{
    std::vector<std::string> names;
    std::optional<Box> box; // To be shown: there is none, or there are more than the menu takes.
};
FilterFavourites favouriteList(const PageSettings& pages, const Labels& labels, int tab);
// The stored text for the name in LblFilter; nothing, after a box, when it is empty.
std::optional<std::string> chosenFavourite(const PageSettings& pages, Boxes& boxes, int tab,
                                           std::string_view LblFilter);

} // namespace quelvarn
