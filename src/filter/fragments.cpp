#include "filter/fragments.h"

#include "base/date_time.h"
#include "base/number_format.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/conditions.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace quelvarn {
namespace {

using sql::DateOrder;

constexpr int FAULT_TYPES = 13;
constexpr double GREATEST_INTEGER = 1e15;

std::string DateFragment(std::string_view field, std::string_view Date, int code, DateOrder sequence)
{
    const auto time = parseDate(Date);
    if (!time)
        throw RuntimeError(FAULT_TYPES, "Filter", fmt::format("'{}' ist kein Datum.", Date));
    const std::string date = formatDate(*time);
    const std::string day = date.substr(0, 2);
    const std::string month = date.substr(3, 2);
    const bool dayFirst = sequence == DateOrder::DayFirst;
    const std::string dayInYear =
        fmt::format("#{}/{}/{}", dayFirst ? day : month, dayFirst ? month : day, date.substr(6, 2));

    std::string from = fmt::format("{} >= {} 00:00:00#", field, dayInYear);
    std::string until = fmt::format("{} <= {} 23:59:59#", field, dayInYear);
    switch (code % 10) {
    case 0:
        return from;
    case 1:
        return from + " AND " + until;
    case 2:
        return until;
    default:
        return {};
    }
}

std::int64_t integer(std::string_view value)
{
    const auto number = parseNumber(value);
    if (!number || std::abs(*number) > GREATEST_INTEGER)
        throw RuntimeError(FAULT_TYPES, "Filter", fmt::format("'{}' ist keine ganze Zahl.", value));
    return static_cast<std::int64_t>(std::nearbyint(*number));
}

std::string_view nameColumn(std::string_view Feldname)
{
    return Feldname == "Dateiname" || Feldname == "filename" ? Feldname : "DokuBez";
}

std::string doubled(std::string_view value)
{
    return replaceAll(value, "'", "''");
}

// The text of a comparison with a pattern, and its condition; nothing for "".
StepFragment textFragment(const std::string& text, std::string_view column, std::string_view pattern)
{
    return text.empty() ? StepFragment{} : StepFragment{text, text, valueCondition(column, pattern)};
}

StepFragment numberFragment(const FilterStep& step)
{
    const std::string text = NumberFragment(step.Feldname, step.value);
    return {text, text, sql::equal(step.Feldname, integer(step.value))};
}

StepFragment dateFragments(const std::string& filterForm, const std::string& sqlForm)
{
    return {filterForm, sqlForm, sql::parseCondition(filterForm)};
}

sql::ExpressionPointer limit(const std::string& column, sql::Comparison comparison, double value)
{
    return std::make_unique<sql::Expression>(sql::Expression{sql::Condition{column, comparison, value}});
}

std::string mainValueColumn(std::size_t number)
{
    return fmt::format("Hauptwert_{}", static_cast<char>('a' + number));
}

} // namespace

std::string LikeFragment(std::string_view Feldname, std::string_view value)
{
    return fmt::format("{} Like '{}'", Feldname, doubled(value));
}

std::string NumberFragment(std::string_view Feldname, std::string_view value)
{
    return fmt::format("{} = {}", Feldname, integer(value));
}

std::string DateiFragment(std::string_view Feldname, std::string_view value)
{
    return NameLike(Feldname, doubled(value));
}

std::string DateiFragmentWennGefuellt(std::string_view Feldname, std::string_view value)
{
    return NameLikeNichtLeer(Feldname, doubled(value));
}

std::string ErstelltFilterFragment(std::string_view Date, int code)
{
    return DateFragment("Erstellt", Date, code, DateOrder::DayFirst);
}

std::string ErstelltSqlFragment(std::string_view Date, int code)
{
    return DateFragment("Erstellt", Date, code, DateOrder::MonthFirst);
}

std::string GeaendertFilterFragment(std::string_view Date, int code)
{
    return DateFragment("Geaendert", Date, code, DateOrder::DayFirst);
}

std::string GeaendertSqlFragment(std::string_view Date, int code)
{
    return DateFragment("Geaendert", Date, code, DateOrder::MonthFirst);
}

std::string mainValueFragments(const std::array<MainValueBand, MAIN_VALUE_COUNT>& bounds, bool behindFilter)
{
    const auto number = [](Decimal value) { return replaceAll(value.text(), ",", "."); };
    std::string text;
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        if (!bounds[i].set())
            continue;
        text += behindFilter || !text.empty() ? " AND " : "";
        text += fmt::format("{0} >= {1} AND {0} <= {2}", mainValueColumn(i), number(bounds[i].MinWert),
                            number(bounds[i].MaxWert));
    }
    return text;
}

std::vector<sql::ExpressionPointer> mainValueConditions(const std::array<MainValueBand, MAIN_VALUE_COUNT>& bounds)
{
    std::vector<sql::ExpressionPointer> conditions;
    for (std::size_t i = 0; i < bounds.size(); ++i) {
        if (!bounds[i].set())
            continue;
        conditions.push_back(limit(mainValueColumn(i), sql::Comparison::GreaterEqual, bounds[i].MinWert.firstDouble()));
        conditions.push_back(limit(mainValueColumn(i), sql::Comparison::Less, bounds[i].MaxWert.behindDoubles()));
    }
    return conditions;
}

StepFragment stepFragment(const FilterStep& step, int number)
{
    const std::string& value = step.value;
    switch (step.code) {
    case CodeText:
        return structureFragment(step);
    case CodeCreated:
    case CodeCreated + 1:
    case CodeCreated + 2:
        return dateFragments(ErstelltFilterFragment(value, step.code), ErstelltSqlFragment(value, step.code));
    case CodeChanged:
    case CodeChanged + 1:
    case CodeChanged + 2:
        return dateFragments(GeaendertFilterFragment(value, step.code), GeaendertSqlFragment(value, step.code));
    case CodeNumber:
        return numberFragment(step);
    case CodeFile:
    case CodeFileIfFilled:
        if (number > 0)
            return {};
        return textFragment(step.code == CodeFile ? DateiFragment(step.Feldname, value)
                                                  : DateiFragmentWennGefuellt(step.Feldname, value),
                            nameColumn(step.Feldname), value);
    default:
        return {};
    }
}

StepFragment structureFragment(const FilterStep& step)
{
    if (step.value.empty())
        return {};
    return textFragment(LikeFragment(step.Feldname, step.value), step.Feldname, step.value);
}

sql::ExpressionPointer valueCondition(std::string_view column, std::string_view value)
{
    if (value.find('*') == std::string_view::npos)
        return sql::equal(column, value);
    auto pattern = sql::like(column, value, Wildcards::Star);
    if (value.ends_with('*'))
        return pattern;
    std::vector<sql::ExpressionPointer> either; // A star of the stored value is one, too.
    either.push_back(sql::equal(column, value));
    either.push_back(std::move(pattern));
    return sql::any(std::move(either));
}

sql::ExpressionPointer filterCondition(std::string_view FilterString)
{
    sql::ExpressionPointer condition = sql::parseCondition(FilterString, DateOrder::MonthFirst, Wildcards::Star);
    const auto asMeant = [](sql::ExpressionPointer& part) {
        const auto* comparison = std::get_if<sql::Condition>(&part->content);
        if (comparison && comparison->comparison == sql::Comparison::Like)
            part = valueCondition(comparison->column, asText(comparison->value));
    };
    if (!condition)
        return nullptr;
    if (auto* all = std::get_if<sql::And>(&condition->content))
        std::ranges::for_each(all->parts, asMeant);
    else
        asMeant(condition);
    return condition;
}

} // namespace quelvarn
