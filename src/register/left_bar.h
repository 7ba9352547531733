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
class LeftBar : public TableFollower
{
public:
    LeftBar(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables, TableTabs& tabs,
            FilterPage& filterPage);

    // --- operations ---
    void showSearch(bool FrmSuchenFiltern);
    void showDate(bool FrmFilternDatum);
    void showValues(bool FrmInfoFilter);
    // "Filtern Favo.": a box where there are none or too many. False: there is nothing to choose.
    bool showFavourites();
    void chooseFavourite(std::string_view name);
    void closeFavourites();
    void useFavourite(); // A click on LblFilter.

    QuickSearch& search() { return search_; }
    QuickFilter& filter() { return filter_; }

    // --- state ---
    bool showsSearch() const { return showsSearch_; }
    bool showsDate() const { return showsDate_; }
    bool showsValues() const { return showsValues_; }
    std::string_view valuesButton() const; // Caption of the button of the filter values.
    bool showsFavourite() const { return showsFavourite_; }
    std::vector<std::string> favouriteNames(); // For the menu; a fault has its box.
    const std::string& LblFilter() const { return LblFilter_; }
    // Rows of DataGridFilterEigenMerk: what was searched last, or what filters the table.
    std::vector<FilterRow> shownValues() const;

    void tabChanged() override;

private:
    SessionState& session_;
    Operations& operations_;
    Ports& ports_;
    DocumentTables& tables_;
    FilterPage& filterPage_;
    QuickSearch search_;
    QuickFilter filter_;
    bool showsSearch_ = false;
    bool showsDate_ = false;
    bool showsValues_ = false;
    bool showsFavourite_ = false;
    std::string LblFilter_;
};

} // namespace quelvarn
