#pragma once

#include "register/left_bar.h"
#include "register_fixture.h"

namespace quelvarn {

// The document page with the bar at its left.
class QuickTest : public RegisterTest
{
protected:
    std::string current() const { return session_.AktDoku.DokuBez + "/" + session_.AktDoku.RevBez; }
    static std::string rows(const std::vector<FilterRow>& values)
    {
        std::string text;
        for (const FilterRow& value : values)
            text += value.Feldname + "|" + value.Benennung + "|" + value.value + "\n";
        return text;
    }
    std::string rows() const { return rows(bar_.shownValues()); }

    LeftBar& bar_ = program_.leftBar;
    QuickSearch& search_ = bar_.search();
    QuickFilter& quick_ = bar_.filter();
};

} // namespace quelvarn
