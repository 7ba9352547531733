#pragma once

#include "filter/filter_context.h"
#include "filter/value_list.h"

#include <array>
#include <string>
#include <string_view>

namespace quelvarn {

inline constexpr int PROPERTY_COUNT = 12;

// Tab 0 of the filter page: twelve properties, statuses, dates.
class PropertySection
{
public:
    explicit PropertySection(FilterContext& context);

    // --- operations ---
    void valueChosen(int index, std::string_view value); // CbEigen(1) to CbEigen(12)
    void dateChosen(const DateTime& day);                // MonthViewEigen
    void setDateField(int OpDat) { OpDat_ = OpDat; }     // 0 Erstellt, 1 Geaendert
    void setBound(int OpDatBegr) { OpDatBegr_ = OpDatBegr; }
    void statusChosen(int status, bool set); // ChFilterStat

    // --- mechanisms of the page; a fault passes through when the lists that can be filled are ---
    // Read from the columns of the open table. Reading given up leaves them empty.
    void FilterEigenNeu() { FilterListenSchmal({}); }       // All lists, no filter running.
    void FilterListenStatus() { FilterListenSchmal({}); }   // The same after the statuses changed.
    void FilterListenSchmal(std::string_view FilterString); // All lists under the running filter.

    // --- state ---
    const ValueList& list(int index) const { return lists_[static_cast<std::size_t>(index - 1)]; }
    std::string label(int index) const; // LblProjektCb and its like
    int OpDat() const { return OpDat_; }
    int OpDatBegr() const { return OpDatBegr_; }
    // Some row under the running filter has it; whether it is ticked does not matter.
    bool statusExists(int status) const { return statusExists_[static_cast<std::size_t>(status)]; }

private:
    void clear();
    void fillStatus(Recordset& table, const RowFilter& filter);
    void fillList(std::size_t number, Recordset& table, std::span<const Bookmark> rows);

    FilterContext& context_;
    std::array<ValueList, PROPERTY_COUNT> lists_;
    std::array<bool, STATUS_COUNT> statusExists_{};
    int OpDat_ = 0;
    int OpDatBegr_ = 0;
};

} // namespace quelvarn
