#include "filter/user_defined_match.h"

#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/sql/conditions.h"

#include <algorithm>

namespace quelvarn {

namespace {

constexpr std::string_view SEND_ORDER = "*Versand";

} // namespace

UserDefinedSteps::Step::Step(const std::string& caption, const std::string& text)
    : name(caption), value(text), pattern(trimRightBlanks(text), Wildcards::Star), patternAtShort(text.ends_with('*')),
      sendOrder(text.starts_with(SEND_ORDER))
{}

bool UserDefinedSteps::Step::eachValue() const
{
    return value == "*" || sendOrder;
}

bool UserDefinedSteps::Step::fitsPattern(std::string_view text) const
{
    const std::string_view trimmed = trimRightBlanks(text);
    return pattern.matches(text) || (trimmed.size() < text.size() && pattern.matches(trimmed));
}

bool UserDefinedSteps::Step::fits(std::string_view text, bool longText) const
{
    if (value == "*" || equalText(text, value))
        return true;
    if (longText && sendOrder)
        return true; // The pattern is then the file name of the row itself.
    return (longText || patternAtShort) && fitsPattern(text);
}

sql::ExpressionPointer UserDefinedSteps::Step::condition() const
{
    if (eachValue())
        return nullptr;
    if (value.find('*') == std::string::npos)
        return sql::equal("Wert", value);
    return sql::like("Wert", std::string(trimRightBlanks(value)) + (value.ends_with('*') ? "" : "*"), Wildcards::Star);
}

UserDefinedSteps::UserDefinedSteps(const TypeFilter& state)
{
    if (state.FilterSchritte[0].value.empty() || state.FilterAnzahl >= ALL_FILLED)
        return;
    for (std::size_t i = 0; i < static_cast<std::size_t>(state.FilterAnzahl); ++i)
        steps_.emplace_back(state.FilterSchritte[i].value, state.FilterSchritte[i].pattern);
}

bool UserDefinedSteps::meets(std::string_view caption, std::string_view text) const
{
    if (last_ && caption == lastName_ && text == lastValue_)
        return *last_;
    lastName_ = caption;
    lastValue_ = text;
    last_ = fits(caption, text);
    return *last_;
}

bool UserDefinedSteps::fits(std::string_view caption, std::string_view text) const
{
    const bool longText = countCharacters(text) >= FROM_PATH;
    return std::ranges::any_of(
        steps_, [&](const Step& step) { return equalText(step.name, caption) && step.fits(text, longText); });
}

std::vector<sql::ExpressionPointer> UserDefinedSteps::preselection() const
{
    std::vector<sql::ExpressionPointer> conditions;
    for (auto first = steps_.begin(); first != steps_.end(); ++first) {
        const auto same = [&](const Step& step) { return equalText(step.name, first->name); };
        if (std::any_of(steps_.begin(), first, same))
            continue;
        std::vector<sql::ExpressionPointer> values;
        bool each = false;
        for (auto step = first; step != steps_.end(); ++step) {
            if (!same(*step))
                continue;
            each = each || step->eachValue();
            if (!step->eachValue())
                values.push_back(step->condition());
        }
        auto name = sql::equal("Name", first->name);
        conditions.push_back(each ? std::move(name) : sql::all(std::move(name), sql::any(std::move(values))));
    }
    return conditions;
}

} // namespace quelvarn
