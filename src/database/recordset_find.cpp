#include "database/recordset_find.h"

#include "database/filter_evaluator.h"
#include "database/recordset_core.h"
#include "database/recordset_sort.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <numeric>

namespace quelvarn {

namespace {

constexpr std::size_t FIRST_STEP = 256;
constexpr std::size_t GREATEST_STEP = 1 << 16;
// What is not near is often nowhere; the texts of a column tell that sooner than its rows.
constexpr std::ptrdiff_t QUESTION_FROM_STEP = 16 * FIRST_STEP;

} // namespace

RuntimeError recordsetFault(int number, const std::string& description)
{
    return {number, "Recordset", description};
}

void Recordset::Filter(std::string_view expression, const Progress& progress)
{
    RowFilter filter{std::string(expression), {}};
    if (SharedCondition condition = sql::parseCondition(expression, sql::DateOrder::DayFirst, Wildcards::Star))
        filter.conditions.push_back(std::move(condition));
    Filter(std::move(filter), progress);
}

void Recordset::Filter(RowFilter filter, const Progress& progress)
{
    Core& core = *core_;
    core.endEdit();
    if (filter.conditions.empty()) {
        core.showAll();
    } else {
        auto found = core.choose(filter, progress);
        if (!found)
            return;
        core.show(std::move(*found));
    }
    core.filter = std::move(filter);
}

const RowFilter& Recordset::filter() const
{
    return core_->filter;
}

void Recordset::Sort(std::string_view expression)
{
    Core& core = *core_;
    core.endEdit();
    const auto fields = readSort(expression, [&](std::string_view name) { return core.rows.fieldOf(name); });
    std::vector<std::size_t> numbers(fields.size());
    std::transform(fields.begin(), fields.end(), numbers.begin(), [](const SortField& field) { return field.field; });
    core.rows.load(numbers, {});

    std::vector<bool> shown(core.rows.count());
    for (const RowNumber row : core.view.crop(0, core.view.count()))
        shown[row] = true;
    auto ordered = core.setRowOrder(fields);
    std::erase_if(ordered, [&](RowNumber row) { return !shown[row]; });
    if (ordered.size() == core.rows.count())
        core.showAll();
    else
        core.show(std::move(ordered));
}

std::vector<RowNumber> RecordsetRows::setRowOrder(const std::vector<SortField>& fields)
{
    sorted = false;
    rowOrder = {};
    auto ordered = allRows();
    if (!fields.empty()) {
        sort(ordered, fields, [&](std::size_t field) -> const Column& { return rows.column(field); });
        rowOrder = ordered;
        sorted = true;
    }
    return ordered;
}

bool Recordset::Find(std::string_view criterion, std::size_t skip, SearchDirection direction, bool fromStart,
                     const Progress& progress)
{
    Core& core = *core_;
    core.endEdit();
    const SharedCondition condition = sql::parseCondition(criterion, sql::DateOrder::DayFirst, Wildcards::Percent);
    if (!condition)
        throw recordsetFault(3001, "Das Suchkriterium ist leer.");
    if (!core.loadNamed({&condition, 1}, progress))
        return false;
    const auto selection = core.buildSelectionOf(*condition);

    const bool forward = direction == SearchDirection::Forward;
    const auto count = static_cast<std::ptrdiff_t>(core.view.count());
    const std::ptrdiff_t begin = forward ? 0 : count - 1;
    const std::ptrdiff_t start = fromStart ? begin : core.position;
    const auto further = static_cast<std::ptrdiff_t>(std::min(skip, core.view.count()));
    const auto found = core.findPosition(*selection, forward ? start + further : start - further, forward);
    core.position = found.value_or(forward ? count : -1);
    return found.has_value();
}

std::optional<std::ptrdiff_t> RecordsetRows::findPosition(Selection& selection, std::ptrdiff_t start,
                                                          bool forward) const
{
    const auto count = static_cast<std::ptrdiff_t>(view.count());
    start = std::clamp<std::ptrdiff_t>(start, forward ? 0 : -1, forward ? count : count - 1);
    for (auto step = static_cast<std::ptrdiff_t>(FIRST_STEP); forward ? start < count : start >= 0;
         step = std::min<std::ptrdiff_t>(step * 4, GREATEST_STEP)) {
        if (step == QUESTION_FROM_STEP && selection.nowhere())
            return std::nullopt;
        const std::ptrdiff_t from = forward ? start : std::max<std::ptrdiff_t>(start + 1 - step, 0);
        const std::ptrdiff_t until = forward ? std::min(start + step, count) : start + 1;
        const auto all = view.crop(static_cast<std::size_t>(from), static_cast<std::size_t>(until));
        auto hits = all;
        selection.keep(hits);
        if (!hits.empty()) {
            const RowNumber sought = forward ? hits.front() : hits.back();
            return from + (std::find(all.begin(), all.end(), sought) - all.begin());
        }
        start = forward ? until : from - 1;
    }
    return std::nullopt;
}

std::vector<RowNumber> RecordsetRows::allRows() const
{
    if (sorted)
        return rowOrder;
    std::vector<RowNumber> all(rows.count());
    std::iota(all.begin(), all.end(), RowNumber{0});
    if (!removed.empty())
        std::erase_if(all, [&](RowNumber row) { return std::binary_search(removed.begin(), removed.end(), row); });
    return all;
}

void RecordsetRows::showAll()
{
    if (sorted || !removed.empty())
        show(allRows());
    else
        view.showAll(rows.count());
    position = 0;
    buffer.clear();
}

void RecordsetRows::show(std::vector<RowNumber> found)
{
    view.show(std::move(found), !sorted);
    position = 0;
    buffer.clear();
}

std::unique_ptr<Selection> RecordsetRows::buildSelectionOf(const sql::Expression& expression) const
{
    return buildSelection(expression,
                          [this](std::string_view name) -> const Column& { return rows.column(rows.fieldOf(name)); });
}

std::optional<std::vector<RowNumber>> RecordsetRows::choose(const RowFilter& filter, const Progress& progress)
{
    if (!loadNamed(filter.conditions, progress))
        return std::nullopt;
    std::vector<RowNumber> chosen = allRows();
    for (const SharedCondition& condition : filter.conditions)
        buildSelectionOf(*condition)->keep(chosen);
    return chosen;
}

bool RecordsetRows::loadNamed(std::span<const SharedCondition> conditions, const Progress& progress)
{
    std::vector<std::size_t> fields;
    for (const SharedCondition& condition : conditions)
        for (const std::string& name : namedColumns(*condition))
            if (const std::size_t field = rows.fieldOf(name); std::ranges::find(fields, field) == fields.end())
                fields.push_back(field);
    return rows.load(fields, progress);
}

void RecordsetRows::requireOpen() const
{
    if (!open)
        throw recordsetFault(3704, "Das Recordset ist nicht geöffnet.");
}

std::size_t RecordsetRows::currentPosition() const
{
    requireOpen();
    if (!onRow())
        throw recordsetFault(3021, "Es gibt keinen aktuellen Datensatz.");
    return static_cast<std::size_t>(position);
}

void RecordsetRows::goTo(std::ptrdiff_t newPosition)
{
    requireOpen();
    position = newPosition;
}

} // namespace quelvarn
