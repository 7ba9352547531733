#include "filter/property_section.h"

#include "base/date_time.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/recordset_columns.h"
#include "database/recordset_lists.h"
#include "database/sql/conditions.h"
#include "filter/filter_context.h"
#include "filter/fragments.h"
#include "filter/status_filter.h"
#include "filter/steps.h"
#include "platform/progress.h"

#include <exception>
#include <functional>
#include <optional>

namespace quelvarn {
namespace {

struct Property
{
    std::string_view field;
    bool onlyBlankCounts; // A value of blanks alone is listed.
};

// By the index of CbEigen, minus 1.
constexpr std::array<Property, PROPERTY_COUNT> PROPERTIES{{
    {"Projekt", false},
    {"Titel", false},
    {"Thema", false},
    {"Firma", false},
    {"Kategorie", false},
    {"Material", false},
    {"Autor", false},
    {"Manager", false},
    {"Bearbeiter", false},
    {"Hauptmerkmal_A", true},
    {"Hauptmerkmal_B", true},
    {"Stichwoerter", false},
}};

// Those columns of the lists that the table has; one that it lacks is a fault of its own list.
std::vector<std::string> columnsOfLists(const Recordset& table)
{
    std::vector<std::string> columns{"Status"};
    for (const Property& property : PROPERTIES)
        columns.emplace_back(property.field);
    std::erase_if(columns, [&](const std::string& name) { return !hasField(table, name); });
    return columns;
}

} // namespace

PropertySection::PropertySection(FilterContext& context) : context_(context)
{
    clear();
}

std::string PropertySection::label(int index) const
{
    return displayName(context_.session.labels, PROPERTIES[static_cast<std::size_t>(index - 1)].field);
}

void PropertySection::valueChosen(int index, std::string_view value)
{
    if (value.empty())
        return;
    const std::string_view field = PROPERTIES[static_cast<std::size_t>(index - 1)].field;
    AddFilterStep(context_, value, field, 0, {"", label(index)});
    context_.operations.changed(Part::FilterPage);
}

void PropertySection::dateChosen(const DateTime& day)
{
    const std::string field = OpDat_ == 1 ? "Geaendert" : "Erstellt";
    const int Operator = OpDatBegr_ == 0 || OpDatBegr_ == 1 ? OpDatBegr_ : 2;
    AddFilterStep(context_, formatDate(day), field, Operator, {"Kalender", field});
    context_.operations.changed(Part::FilterPage);
}

void PropertySection::statusChosen(int status, bool set)
{
    context_.state().ChFilterStat[static_cast<std::size_t>(status)] = set;
    BuildStatusFilter(context_.filter, context_.tab);
    context_.operations.changed(Part::FilterPage);
}

void PropertySection::clear()
{
    lists_ = {};
    statusExists_.fill(true);
}

void PropertySection::FilterListenSchmal(std::string_view FilterString)
{
    clear();
    Recordset& table = context_.table().rows();
    LongWork work(context_.ports().progress, "Filterlisten werden gefüllt ...");
    if (!loadColumns(table, columnsOfLists(table), std::ref(work)))
        return;
    RowFilter filter;
    if (SharedCondition condition = filterCondition(FilterString))
        filter.conditions.push_back(std::move(condition));
    fillStatus(table, filter);
    if (SharedCondition status = sql::statusScope(context_.filter.status.StatusFilterWhere))
        filter.conditions.push_back(std::move(status));
    const auto rows = choose(table, filter, std::ref(work));
    if (!rows)
        return;
    std::exception_ptr first;
    for (std::size_t i = 0; i < PROPERTIES.size() && work(i, PROPERTIES.size()); ++i) {
        try {
            fillList(i, table, *rows);
        } catch (const RuntimeError&) {
            first = first ? first : std::current_exception();
        }
    }
    if (first)
        std::rethrow_exception(first);
}

void PropertySection::fillStatus(Recordset& table, const RowFilter& filter)
{
    const auto rows = choose(table, filter);
    statusExists_.fill(false);
    for (const double status : distinctNumbers(table, "Status", *rows))
        if (status >= 0 && status < STATUS_COUNT)
            statusExists_[static_cast<std::size_t>(status)] = true;
}

void PropertySection::fillList(std::size_t number, Recordset& table, std::span<const Bookmark> rows)
{
    const auto [field, onlyBlankCounts] = PROPERTIES[number];
    const auto counts = [onlyBlankCounts = onlyBlankCounts](std::string_view text) {
        return !(onlyBlankCounts ? text : trimRightBlanks(text)).empty();
    };
    lists_[number] = valueList(distinctTexts(table, field, rows, counts));
}

} // namespace quelvarn
