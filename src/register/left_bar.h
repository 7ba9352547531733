#pragma once

#include "documents/document_tables.h"
#include "register/quick_filter.h"
#include "register/quick_search.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

class FilterPage;

// What the buttons at the left of the tables bring up (ToolbarSEDok2): quick search, quick filters, the values of the
// running filter, saved filters.
class LinkeLeiste : public TableFollower
{
public:
    LinkeLeiste(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                TableTabs& tabs, FilterPage& filterPage);

    // --- operations ---
    void zeigeSuchen(bool FrmSuchenFiltern);
    void zeigeDatum(bool FrmFilternDatum);
    void zeigeWerte(bool FrmInfoFilter);
    // "Filtern Favo.": a box where there are none or too many. False: there is nothing to choose.
    bool zeigeFavoriten();
    void waehleFavorit(std::string_view name);
    void schliesseFavoriten();
    void nutzeFavorit(); // A click on LblFilter.

    Schnellsuche& suche() { return suche_; }
    Schnellfilter& filter() { return filter_; }

    // --- state ---
    bool zeigtSuchen() const { return zeigtSuchen_; }
    bool zeigtDatum() const { return zeigtDatum_; }
    bool zeigtWerte() const { return zeigtWerte_; }
    std::string_view knopfWerte() const; // Caption of the button of the filter values.
    bool zeigtFavorit() const { return zeigtFavorit_; }
    std::vector<std::string> favoritennamen(); // For the menu; a fault has its box.
    const std::string& LblFilter() const { return LblFilter_; }
    // Rows of DataGridFilterEigenMerk: what was searched last, or what filters the table.
    std::vector<FilterRow> gezeigteWerte() const;

    void tabChanged() override;

private:
    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    FilterPage& filterPage_;
    Schnellsuche suche_;
    Schnellfilter filter_;
    bool zeigtSuchen_ = false;
    bool zeigtDatum_ = false;
    bool zeigtWerte_ = false;
    bool zeigtFavorit_ = false;
    std::string LblFilter_;
};

} // namespace quelvarn
