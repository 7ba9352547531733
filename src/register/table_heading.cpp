#include "register/table_heading.h"

#include "session/access_line.h"
#include "session/rights.h"
#include "session/session_state.h"

#include <fmt/format.h>

namespace quelvarn {

std::string TableHeading::countText() const
{
    const DocumentTable& table = tables_.current();
    if (!table.isOpen())
        return {};
    std::string text =
        fmt::format("  Solid Edge - Dokumente, {}, Anzahl: {}", labels_.plural(tables_.tab()), table.count());
    const bool quickFilter = !table.narrowing().quickFilter.empty() && table.rows().RecordCount() > 0;
    if (!filterRows().empty() || quickFilter)
        text += fmt::format("; Filteranzahl: {}", table.visible().RecordCount());
    return text;
}

std::string TableHeading::accessText() const
{
    return isStatusLimited() ? tables_.current().narrowing().statusLimit.legend : accessLine(rights_);
}

std::vector<FilterRow> TableHeading::filterRows() const
{
    std::vector<FilterRow> rows = tables_.current().narrowing().values;
    if (isStatusLimited())
        rows.push_back(tables_.current().narrowing().statusLimit.row());
    return rows;
}

bool TableHeading::showsFilterButton() const
{
    const TableState state = tables_.current().state();
    return state == TableState::Filtered || state == TableState::NewerData;
}

std::string_view TableHeading::backTip() const
{
    return showsFilterButton() ? "Filterung aufheben, alle Dokumente anzeigen" : "Zum Anfang der Tabelle";
}

} // namespace quelvarn
