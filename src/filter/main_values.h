#pragma once

#include "filter/filter_context.h"
#include "filter/value_list.h"

#include <string>
#include <string_view>

namespace quelvarn {

// The main values a (0) to g (6) of tab 1: their bounds in the filter, and the lists of the one whose label is chosen.
// The lists are read from the open table.
class MainValues
{
public:
    // `branch` is the condition that the rows of the lists meet. It stays the caller's, who fills them when it changes.
    MainValues(FilterContext& context, const std::string& branch) : context_(context), branch_(branch) {}

    // --- operations ---
    void chooseLabel(int mainValue); // Label a to g: whose lists are shown
    void showValueCount(bool set);   // ChShowAnzWerte; without it there is no list of values either.
    void showAliasCount(bool set);   // ChShowAnzAlias

    // --- mechanisms of the tab ---
    // Bounds for the one chosen. False when a text is no number, which shows its box.
    bool setBounds(std::string_view CbHW, std::string_view TextBB);
    void clearBounds();
    // A list that cannot be filled shows its box and stays empty.
    void fillLists();
    void clearLists() { values_ = alias_ = {}; }

    // --- state ---
    int chosen() const { return chosen_; }
    const ValueList& values() const { return values_; } // CbHW, LblAnzWert
    const ValueList& alias() const { return alias_; }   // LstHW, LblAnzAlias
    bool showsValueCount() const { return ChShowAnzWerte_; }
    bool showsAliasCount() const { return ChShowAnzAlias_; }
    // LblHWa and Lbl_hwa: name of the value, and its band "10 - 12", "10" for a band of 0, "" for none.
    std::string name(int mainValue) const;
    std::string band(int mainValue) const;

private:
    Recordset& table() { return context_.table().rows(); }

    FilterContext& context_;
    const std::string& branch_;
    ValueList values_, alias_;
    int chosen_ = 0;
    bool ChShowAnzWerte_ = true;
    bool ChShowAnzAlias_ = true;
};

} // namespace quelvarn
