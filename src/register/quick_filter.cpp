#include "register/quick_filter.h"

#include "documents/document_tables.h"
#include "filter/filter_context.h"
#include "filter/filter_run.h"
#include "filter/no_records.h"
#include "filter/steps.h"
#include "platform/boxes.h"
#include "platform/clock.h"
#include "register/quick_search.h"
#include "session/error_report.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <utility>

namespace quelvarn {
namespace {

constexpr std::size_t MAX_TEXTS = 2;

// What differs between the two dates of a document.
struct DateField
{
    std::string_view field;
    std::string_view person; // Who did it.
    int code;
};
constexpr std::array<DateField, 2> DATE_FIELDS{{
    {"Erstellt", "Autor", CodeCreated},
    {"Geaendert", "Bearbeiter", CodeChanged},
}};

FilterRow rowForText(const FilterStep& step)
{
    const auto field = std::find_if(SEARCH_FIELDS.begin(), SEARCH_FIELDS.end(),
                                    [&](const SearchField& candidate) { return candidate.field == step.Feldname; });
    return {"DokubezDateiFile", std::string(field->caption), step.value};
}

std::string description(const std::vector<FilterRow>& values)
{
    std::string text;
    for (const FilterRow& value : values)
        text += (text.empty() ? "" : "; ") + value.Benennung + " " + value.value;
    return text;
}

} // namespace

QuickFilter::QuickFilter(SessionState& session, Operations& operations, FilterState& filter, DocumentTables& tables,
                         const QuickSearch& search)
    : session_(session), operations_(operations), ports_(operations.ports()), filter_(filter), tables_(tables),
      search_(search)
{}

void QuickFilter::textFilter()
{
    if (search_.CombSuchStr().empty())
        return;
    SuchTextMerken(session_.pages.SearchTexts, search_.CombSuchStr());
    operations_.perform(Part::LeftBar, "Filterung Text", "Fehler bei der Filterung nach Text!",
                        [this] { filterText(); });
}

void QuickFilter::filterText()
{
    const auto soFar = static_cast<std::size_t>(step());
    if (soFar == MAX_TEXTS)
        return ports_.boxes.warn("Filterung Text", "Es sind nur maximal 2 Zeichenfolgen möglich!");
    steps_.resize(soFar);

    std::vector<FilterStep> steps = steps_;
    const std::string_view before = search_.method() == TextAny ? "*" : "";
    steps.push_back({std::string(search_.field().field),
                     fmt::format("{}{}*", before, search_.CombSuchStr()),
                     soFar == 0 ? CodeFile : CodeText,
                     {}});
    std::vector<FilterRow> values;
    std::transform(steps.begin(), steps.end(), std::back_inserter(values), rowForText);
    apply(std::move(steps), std::move(values), Run::OneByOne);
}

bool QuickFilter::runs() const
{
    return tables_.tab() == tab_ && tables_.current().state() == TableState::Filtered &&
           tables_.current().rows().filter().text == filterText_;
}

int QuickFilter::step() const
{
    return runs() ? static_cast<int>(steps_.size()) : 0;
}

std::string_view QuickFilter::LblZeitRaum() const
{
    return runs() ? std::string_view(period_) : std::string_view();
}

std::string_view QuickFilter::LblFilterStep1() const
{
    constexpr std::array<std::string_view, MAX_TEXTS + 1> TEXTS{"", "2-te Filterung?", "2-ter Schritt der Filterung."};
    return TEXTS[static_cast<std::size_t>(step())];
}

void QuickFilter::today()
{
    showFrom(ports_.clock.now().startOfDay(), "Heute,");
}

void QuickFilter::lastDays()
{
    showFrom(ports_.clock.now().startOfDay().plusDays(-SliderTage_), "Seit");
}

void QuickFilter::showFrom(const DateTime& day, std::string_view since)
{
    operations_.perform(Part::LeftBar, "Filterung Datum", "Fehler bei der Filterung nach Datum!", [&] {
        if (DatumFiltern(day))
            period_ = fmt::format("{} {}", since, formatDate(day));
    });
}

bool QuickFilter::DatumFiltern(const DateTime& day)
{
    const DateField& field = DATE_FIELDS[static_cast<std::size_t>(OpErstAend_)];
    std::vector<FilterStep> steps{{std::string(field.field), formatDate(day), field.code, {}}};
    if (ChAnwender_)
        steps.push_back({std::string(field.person), session_.user.Anwender, CodeText, {}});
    std::vector<FilterRow> values;
    for (const FilterStep& step : steps)
        values.push_back({"FilternDatum", step.Feldname, step.value});
    return apply(std::move(steps), std::move(values), Run::Together);
}

void QuickFilter::setDateField(int OpErstAend)
{
    OpErstAend_ = OpErstAend;
    operations_.changed(Part::LeftBar);
}

void QuickFilter::setOwnOnly(bool ChAnwender)
{
    ChAnwender_ = ChAnwender;
    operations_.changed(Part::LeftBar);
}

void QuickFilter::setDays(int SliderTage)
{
    SliderTage_ = std::clamp(SliderTage, 1, MAX_DAYS);
    operations_.changed(Part::LeftBar);
}

bool QuickFilter::apply(std::vector<FilterStep> steps, std::vector<FilterRow> values, Run run)
{
    FilterContext context{session_, operations_, filter_, tables_, tables_.tab()};
    DocumentTable& table = context.table();
    if (table.count() == 0 || !runOrKeep(context, [&] { return runSteps(context, steps, run); }))
        return false;
    const auto left = static_cast<std::size_t>(context.state().FilterAnzahl);
    values.resize(left);
    steps.resize(run == Run::OneByOne ? left : 0);
    steps_ = std::move(steps);
    period_.clear();
    tab_ = context.tab;
    filterText_ = table.rows().filter().text;
    std::string told = description(values);
    table.showFiltered({std::move(values), filter_.status, std::move(told)});
    context.tables.announceRows(context.tab);
    reportStepsWithoutRows(context);
    return true;
}

bool QuickFilter::runSteps(FilterContext& context, const std::vector<FilterStep>& steps, Run run)
{
    TypeFilter& state = context.state();
    clearFilter(state);
    std::copy(steps.begin(), steps.end(), state.FilterSchritte.begin());
    state.FilterAnzahl = static_cast<int>(steps.size());
    const std::vector<ChainLink> chain = formChain(state, stepFragment);
    if (run == Run::OneByOne) {
        const bool ran = runChain(context, chain, filter_.status);
        state.QuickFilter = std::exchange(state.FilterString, {});
        return ran;
    }
    state.QuickFilter = chain.back().sqlForm;
    return setFilter(context, chain.back().behind(filter_.status));
}

} // namespace quelvarn
