#pragma once

#include <string>
#include <vector>

namespace quelvarn {

// A row of filter values as pages list it.
struct FilterRow
{
    std::string Feldname;
    std::string Benennung;
    std::string value;
    bool operator==(const FilterRow&) const = default;
};

// A limit of the statuses as it is told; both empty for none.
struct StatusLimit
{
    std::string legend;    // "             Status >= 1 und <= 3"
    std::string shortText; // " >= 1 und <= 3"

    bool isSet() const { return !shortText.empty(); }
    FilterRow row() const { return {"", "Status", shortText}; }
};

// The status condition, common to all types: it follows the boxes changed last. All empty for no condition.
struct StatusCondition : StatusLimit
{
    std::string StatusFilter;      // " ( Status >= 1  AND Status <= 3)"
    std::string StatusFilterWhere; // " WHERE ( ..."
    std::string StatusFilterAnd;   // " AND ( ..."
};

// What the rows of a table were narrowed by.
struct Narrowing
{
    std::vector<FilterRow> values; // Of the run, also of steps that left nothing.
    StatusLimit statusLimit;
    std::string quickFilter; // Text of a quick filter, "" for another one.
};

} // namespace quelvarn
