#pragma once

#include "documents/document_tables.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

struct SessionState;

// What stands over the table in front and tells of its rows.
class TableHeading
{
public:
    TableHeading(const SessionState& session, const DocumentTables& tables) : session_(session), tables_(tables) {}

    std::string countText() const;  // LabelSEDoku
    std::string accessText() const; // LblZugriffSEDoku: the limit of the statuses, or what the user may see
    bool isStatusLimited() const { return tables_.current().narrowing().statusLimit.isSet(); }
    // What filters the table, its status limit behind.
    std::vector<FilterRow> filterRows() const;
    bool showsFilterButton() const; // Button 8 shows the filter image.
    std::string_view backTip() const;

private:
    const SessionState& session_;
    const DocumentTables& tables_;
};

} // namespace quelvarn
