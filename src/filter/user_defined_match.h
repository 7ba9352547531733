#pragma once

#include "base/like_pattern.h"
#include "database/sql/ast.h"
#include "filter/filter_state.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace quelvarn {

inline constexpr std::size_t FROM_PATH = 32; // A Wert of so many characters is taken for a path.

// The steps for user-defined properties: which rows (Name, Wert) meet one of them.
class UserDefinedSteps
{
public:
    explicit UserDefinedSteps(const TypeFilter& state);

    std::size_t count() const { return steps_.size(); }
    // A row counts once, however many steps it meets.
    bool meets(std::string_view Name, std::string_view value) const;
    // Conditions that every row with a hit meets; no row meets two of them. Others may meet them as well.
    std::vector<sql::ExpressionPointer> preselection() const;

private:
    struct Step
    {
        Step(const std::string& Name, const std::string& value);
        bool fits(std::string_view text, bool longText) const;
        bool fitsPattern(std::string_view text) const;
        bool eachValue() const;
        sql::ExpressionPointer condition() const; // Of the Wert; nothing where each may fit.

        std::string name;
        std::string value;
        LikePattern pattern;
        bool patternAtShort; // The step's value ends with a star.
        bool sendOrder;
    };
    bool fits(std::string_view Name, std::string_view value) const;

    std::vector<Step> steps_;
    // Rows of the same name and value come one behind the other.
    mutable std::string lastName_, lastValue_;
    mutable std::optional<bool> last_;
};

} // namespace quelvarn
