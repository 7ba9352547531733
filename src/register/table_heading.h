#pragma once

#include "documents/document_tables.h"

#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

struct Labels;
struct Rights;

// What stands over the table in front and tells of its rows.
class TableHeading
{
public:
    TableHeading(const Labels& labels, const Rights& rights, const DocumentTables& tables)
        : labels_(labels), rights_(rights), tables_(tables)
    {}

    std::string countText() const;  // LabelSEDoku
    std::string accessText() const; // LblZugriffSEDoku: the limit of the statuses, or what the user may see
    bool isStatusLimited() const { return tables_.current().narrowing().statusLimit.isSet(); }
    // What filters the table, its status limit behind.
    std::vector<FilterRow> filterRows() const;
    bool showsFilterButton() const; // Button 8 shows the filter image.
    std::string_view backTip() const;

private:
    const Labels& labels_;
    const Rights& rights_;
    const DocumentTables& tables_;
};

} // namespace quelvarn
