#include "register/left_bar.h"

#include "filter/filter_page.h"
#include "filter/saved_filters.h"
#include "register/table_heading.h"
#include "session/error_report.h"

namespace quelvarn {

LeftBar::LeftBar(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                 TableTabs& tabs, FilterPage& filterPage)
    : session_(session), operations_(operations), ports_(operations.ports()), tables_(tables), filterPage_(filterPage),
      search_(session.pages.SearchTexts, operations, tables, tabs),
      filter_(session, operations, filter, tables, search_)
{
    tables_.follow(*this);
}

void LeftBar::showSearch(bool FrmSuchenFiltern)
{
    showsSearch_ = FrmSuchenFiltern;
    showsValues_ = showsValues_ && !FrmSuchenFiltern;
    operations_.changed(Part::LeftBar);
}

void LeftBar::showDate(bool FrmFilternDatum)
{
    showsDate_ = FrmFilternDatum;
    showsValues_ = showsValues_ && !FrmFilternDatum;
    operations_.changed(Part::LeftBar);
}

void LeftBar::showValues(bool FrmInfoFilter)
{
    showsValues_ = FrmInfoFilter;
    operations_.changed(Part::LeftBar);
}

bool LeftBar::showFavourites()
{
    showsFavourite_ = false;
    operations_.perform(Part::LeftBar, TITLE_FILTER_FAVOURITES, FAULT_FILTER_FAVOURITES, [&] {
        const FilterFavourites list = favouriteList(session_.pages, session_.labels, tables_.tab());
        if (list.box)
            ports_.boxes.show(*list.box);
        showsFavourite_ = !list.names.empty();
    });
    return showsFavourite_;
}

std::vector<std::string> LeftBar::favouriteNames()
{
    std::vector<std::string> names;
    guarded(ports_.boxes, TITLE_FAVOURITE_MENU, FAULT_FAVOURITE_MENU,
            [&] { names = favouriteList(session_.pages, session_.labels, tables_.tab()).names; });
    return names;
}

void LeftBar::chooseFavourite(std::string_view name)
{
    LblFilter_ = name;
    showsFavourite_ = true;
    operations_.changed(Part::LeftBar);
}

void LeftBar::closeFavourites()
{
    showsFavourite_ = false;
    operations_.changed(Part::LeftBar);
}

void LeftBar::useFavourite()
{
    const std::string name = LblFilter_; // The run may show another tab.
    if (chosenFavourite(session_.pages, ports_.boxes, tables_.tab(), name))
        filterPage_.useSaved(name);
    operations_.changed(Part::LeftBar);
}

void LeftBar::tabChanged()
{
    filter_.forgetStep();
    showsValues_ = false;
    showsFavourite_ = false;
    LblFilter_.clear(); // The filters of another table have names of their own.
}

std::string_view LeftBar::valuesButton() const
{
    return showsValues_ ? "Ausblenden der Filterwerte <<" : "Anzeigen der Filterwerte >>";
}

std::vector<FilterRow> LeftBar::shownValues() const
{
    if (const std::vector<FilterRow>* sought = search_.soughtValues())
        return *sought;
    return TableHeading(session_.labels, session_.rights, tables_).filterRows();
}

} // namespace quelvarn
