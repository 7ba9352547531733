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
std::vector<std::string> gespeicherteNamen(const SessionState& session, int tab);
// "" where there is none of this name; the comparison is exact.
std::string SavedFilterString(const SessionState& session, int tab, std::string_view Filtername);
// Writes the rows of one type in one transaction, where they differ from those stored.
void SaveFilterRows(SessionState& session, int tab);
// All eight types in their order; a fault of one has its box, and the others go on.
void speichereFilterlisten(SessionState& session, Meldungen& meldungen);

// --- the page's operations; each shows its own boxes ---
// CmFilterSave: the filter in front under this name. True when it was taken.
bool speichereFilter(Filterkontext& kontext, std::string_view TxtFilterSave);
// CmFilterDelete
void loescheFilter(Filterkontext& kontext, std::string_view CbFilterSave);
// CmFilterUse: the stored text of this name; nothing, after a box, when no name is chosen.
std::optional<std::string> gewaehlterFilter(Filterkontext& kontext, std::string_view CbFilterSave);
// Restores steps, ticked statuses and the part of the page. The tree, the locks and the run are up to the page.
void UseSavedFilter(Filterkontext& kontext, std::string_view Filterstring);
// CmChangeStar: ends the values that begin with a star with one as well.
void ergaenzeSterne(Filterkontext& kontext);

// --- the document page's menu "Filtern Favo." ---
inline constexpr std::size_t MAX_FILTERFAVORITEN = 25;
inline constexpr std::string_view TITEL_FAVORITENMENUE = "Gespeicherte Filter";
inline constexpr std::string_view FEHLER_FAVORITENMENUE = "Fehler beim Eintrag der gespeicherten Filter!";
inline constexpr std::string_view TITEL_FILTERFAVORITEN = "Liste mit Filterfavoriten";
inline constexpr std::string_view FEHLER_FILTERFAVORITEN = "Fehler beim Erstellen der Liste mit Filterfavoriten!";

struct Filterfavoriten
{
    std::vector<std::string> namen;
    std::optional<Meldung> meldung; // To be shown: there is none, or there are more than the menu takes.
};
Filterfavoriten favoritenliste(const SessionState& session, int tab);
// The stored text for the name in LblFilter; nothing, after a box, when it is empty.
std::optional<std::string> gewaehlterFavorit(const SessionState& session, Meldungen& meldungen, int tab,
                                             std::string_view LblFilter);

} // namespace quelvarn
