#include "filter/filter_rows.h"

#include "base/date_time.h"
#include "base/text.h"

#include <algorithm>

namespace quelvarn {
namespace {

bool isDate(const FilterStep& step)
{
    return step.code / 10 == CodeCreated / 10 || step.code / 10 == CodeChanged / 10;
}

std::string shownDate(const FilterStep& step)
{
    const auto number = static_cast<std::size_t>(step.code % 10);
    return (number < OPERATORS.size() ? std::string(OPERATORS[number]) : std::string()) + step.value;
}

FilterRow rowOf(const FilterStep& step)
{
    if (step.Feldname.empty())
        return {"BenutzDef", step.value, step.pattern};
    FilterRow row{step.row.field.empty() ? step.Feldname : step.row.field, step.row.Benennung,
                  isDate(step) ? shownDate(step) : step.value};
    if (row.Benennung.empty())
        row.Benennung = row.Feldname;
    return row;
}

FilterRow rowOf(const AdditionalValue& value)
{
    return {"ZusBenutzDef" + std::string(ADDITIONAL_COLUMNS[value.column]), value.Benennung, value.value};
}

// The operator stays when none is written.
bool setDate(FilterStep& step, std::string_view text)
{
    const auto [op, day] = splitOperator(text);
    const auto date = parseDate(trim(day));
    if (!date)
        return false;
    step.value = formatDate(*date);
    step.code = step.code / 10 * 10 + op.value_or(step.code % 10);
    return true;
}

bool setValue(FilterStep& step, std::string_view text)
{
    if (isDate(step))
        return setDate(step, text);
    (step.Feldname.empty() ? step.pattern : step.value) = text;
    return true;
}

} // namespace

std::pair<std::optional<int>, std::string_view> splitOperator(std::string_view text)
{
    for (std::size_t op = 0; op < OPERATORS.size(); ++op)
        if (const auto sign = trimRightBlanks(OPERATORS[op]); text.starts_with(sign))
            return {static_cast<int>(op), text.substr(sign.size())};
    return {std::nullopt, text};
}

std::span<const FilterStep> filledSteps(const TypeFilter& state)
{
    const auto& steps = state.FilterSchritte;
    const auto end = state.FilterAnzahl < ALL_FILLED
                         ? steps.begin() + state.FilterAnzahl
                         : std::ranges::find_if(steps, [](const FilterStep& step) { return step.value.empty(); });
    return {steps.begin(), end};
}

std::vector<FilterRow> filterRows(const TypeFilter& state)
{
    std::vector<FilterRow> rows;
    for (const FilterStep& step : filledSteps(state))
        rows.push_back(rowOf(step));
    for (const AdditionalValue& value : state.ZusBenutzDef)
        rows.push_back(rowOf(value));
    return rows;
}

void setAdditionalValue(std::vector<AdditionalValue>& values, AdditionalValue value)
{
    const auto place = std::ranges::find(values, value.column, &AdditionalValue::column);
    if (place != values.end())
        *place = std::move(value);
    else
        values.push_back(std::move(value));
}

std::string additionalValue(const TypeFilter& state, std::size_t column)
{
    const auto value = std::ranges::find(state.ZusBenutzDef, column, &AdditionalValue::column);
    return value != state.ZusBenutzDef.end() ? value->value : std::string();
}

bool setRowValue(TypeFilter& state, std::size_t row, std::string_view text)
{
    const std::size_t steps = filledSteps(state).size();
    if (trim(text).empty() || row >= steps + state.ZusBenutzDef.size())
        return false;
    if (row < steps)
        return setValue(state.FilterSchritte[row], text);
    state.ZusBenutzDef[row - steps].value = text;
    return true;
}

} // namespace quelvarn
