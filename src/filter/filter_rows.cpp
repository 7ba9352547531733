#include "filter/filter_rows.h"

#include "base/date_time.h"
#include "base/text.h"

#include <algorithm>

namespace quelvarn {
namespace {

bool isDate(const FilterSchritt& step)
{
    return step.code / 10 == CodeErstellt / 10 || step.code / 10 == CodeGeaendert / 10;
}

std::string shownDate(const FilterSchritt& step)
{
    const auto number = static_cast<std::size_t>(step.code % 10);
    return (number < OPERATORS.size() ? std::string(OPERATORS[number]) : std::string()) + step.Wert;
}

FilterRow rowOf(const FilterSchritt& step)
{
    if (step.Feldname.empty())
        return {"BenutzDef", step.Wert, step.Muster};
    FilterRow row{step.row.field.empty() ? step.Feldname : step.row.field, step.row.Benennung,
                  isDate(step) ? shownDate(step) : step.Wert};
    if (row.Benennung.empty())
        row.Benennung = row.Feldname;
    return row;
}

FilterRow rowOf(const AdditionalValue& value)
{
    return {"ZusBenutzDef" + std::string(ZUSATZSPALTEN[value.column]), value.Benennung, value.Wert};
}

// The operator stays when none is written.
bool setDate(FilterSchritt& step, std::string_view text)
{
    const auto [op, day] = splitOperator(text);
    const auto date = parseDatum(trim(day));
    if (!date)
        return false;
    step.Wert = formatDatum(*date);
    step.code = step.code / 10 * 10 + op.value_or(step.code % 10);
    return true;
}

bool setValue(FilterSchritt& step, std::string_view text)
{
    if (isDate(step))
        return setDate(step, text);
    (step.Feldname.empty() ? step.Muster : step.Wert) = text;
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

std::span<const FilterSchritt> filledSteps(const Filterzustand& zustand)
{
    const auto& steps = zustand.FilterSchritte;
    const auto end = zustand.FilterAnzahl < ALLE_GEFUELLT
                         ? steps.begin() + zustand.FilterAnzahl
                         : std::ranges::find_if(steps, [](const FilterSchritt& step) { return step.Wert.empty(); });
    return {steps.begin(), end};
}

std::vector<FilterRow> filterRows(const Filterzustand& zustand)
{
    std::vector<FilterRow> rows;
    for (const FilterSchritt& step : filledSteps(zustand))
        rows.push_back(rowOf(step));
    for (const AdditionalValue& value : zustand.ZusBenutzDef)
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

std::string additionalValue(const Filterzustand& zustand, std::size_t column)
{
    const auto value = std::ranges::find(zustand.ZusBenutzDef, column, &AdditionalValue::column);
    return value != zustand.ZusBenutzDef.end() ? value->Wert : std::string();
}

bool setRowValue(Filterzustand& zustand, std::size_t row, std::string_view text)
{
    const std::size_t steps = filledSteps(zustand).size();
    if (trim(text).empty() || row >= steps + zustand.ZusBenutzDef.size())
        return false;
    if (row < steps)
        return setValue(zustand.FilterSchritte[row], text);
    zustand.ZusBenutzDef[row - steps].Wert = text;
    return true;
}

} // namespace quelvarn
