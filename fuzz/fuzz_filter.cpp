// Any text as a recordset filter: it is refused, or it is one condition that reads the same when written out again.
// The same text, line by line, as values that a person chose for filter steps: each value is compared with its own
// column and nothing else is, in the text of the filter as in its conditions.
#include "base/runtime_error.h"
#include "database/sql/access_text.h"
#include "database/sql/parser.h"
#include "filter/filter_run.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <variant>

using namespace quelvarn;

namespace {

constexpr std::array COLUMNS{"Projekt", "Autor", "Titel", "Hauptmerkmal_A", "Stichwoerter"};

void require(bool condition)
{
    if (!condition)
        std::abort();
}

TypeFilter stateFrom(std::string_view text)
{
    TypeFilter state;
    for (const char* column : COLUMNS) {
        const std::size_t end = text.find('\n');
        if (const std::string value(text.substr(0, end)); !value.empty())
            state.FilterSchritte[static_cast<std::size_t>(state.FilterAnzahl++)] = {column, value, CodeText, {}};
        if (end == text.npos)
            break;
        text.remove_prefix(end + 1);
    }
    return state;
}

bool isComparison(const sql::Expression& condition, const FilterStep& step, sql::Comparison kind)
{
    const auto* comparison = std::get_if<sql::Condition>(&condition.content);
    return comparison && comparison->column == step.Feldname && comparison->comparison == kind &&
           (kind != sql::Comparison::Like || comparison->wildcards == Wildcards::Star) &&
           std::get<std::string>(comparison->value) == step.value;
}

// The comparison of a step at its place among others: equal, like a pattern, or either where the last sign is no star.
void requireComparison(const sql::Expression& condition, const FilterStep& step)
{
    if (step.value.find('*') == std::string::npos)
        return require(isComparison(condition, step, sql::Comparison::Equal));
    if (step.value.ends_with('*'))
        return require(isComparison(condition, step, sql::Comparison::Like));
    const auto* either = std::get_if<sql::Or>(&condition.content);
    require(either && either->parts.size() == 2 && isComparison(*either->parts[0], step, sql::Comparison::Equal) &&
            isComparison(*either->parts[1], step, sql::Comparison::Like));
}

void requireSteps(const sql::Expression& expression, const TypeFilter& state, std::size_t before, std::size_t behind)
{
    const auto count = static_cast<std::size_t>(state.FilterAnzahl);
    if (before + count + behind == 1)
        return requireComparison(expression, state.FilterSchritte[0]);
    const auto* both = std::get_if<sql::And>(&expression.content);
    require(both && both->parts.size() == before + count + behind);
    for (std::size_t i = 0; i < count; ++i)
        requireComparison(*both->parts[before + i], state.FilterSchritte[i]);
}

void runSteps(std::string_view text)
{
    const TypeFilter state = stateFrom(text);
    if (state.FilterAnzahl == 0)
        return;
    const auto chain = formChain(state, stepFragment);
    const std::string& filter = chain.back().sqlForm;
    requireSteps(*filterCondition(filter), state, 0, 0);
    requireSteps(*filterCondition(" ( Status >= 1  AND Status <= 3) AND " + filter), state, 1, 0);
    requireSteps(*filterCondition("Firma NOT LIKE '' AND Firma NOT LIKE ' ' And " + filter +
                                  " AND ( Status >= 1  AND Status <= 3)"),
                 state, 2, 1);
    const auto& conditions = chain.back().conditions;
    require(conditions.size() == static_cast<std::size_t>(state.FilterAnzahl));
    for (std::size_t i = 0; i < conditions.size(); ++i)
        requireComparison(*conditions[i], state.FilterSchritte[i]);
}

void readAsFilter(std::string_view text)
{
    const sql::ExpressionPointer filter = sql::parseCondition(text);
    if (!filter)
        return;
    const std::string written = sql::asAccessText(*filter);
    require(sql::asAccessText(*sql::parseCondition(written, sql::DateOrder::MonthFirst)) == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes), size);
    for (const auto attempt : {readAsFilter, runSteps}) {
        try {
            attempt(text);
        } catch (const RuntimeError&) {
            // Refused.
        }
    }
    return 0;
}
