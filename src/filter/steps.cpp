#include "filter/steps.h"

#include "filter/filter_context.h"
#include "platform/boxes.h"

#include <utility>

namespace quelvarn {
namespace {

constexpr int NO_CODE_FROM = 5; // Rows behind the fifth are those of the structure features: texts alone.

int codeOf(std::string_view Feldname, int Operator)
{
    if (Feldname == "Status")
        return CodeStatus + Operator;
    if (Feldname == "Erstellt")
        return CodeCreated + Operator;
    if (Feldname == "Geaendert")
        return CodeChanged + Operator;
    return CodeText;
}

} // namespace

void AddFilterStep(FilterContext& context, std::string_view value, std::string_view Feldname, int Operator, RowName row)
{
    TypeFilter& state = context.state();
    const int number = state.FilterAnzahl;
    const bool free = number < 5 || (number == 5 && context.section() == FilterSection::Structure) || number == 6;
    if (!free) {
        context.ports().boxes.warn("Anzahl Filter", "Alle Filter sind gefüllt!");
        state.FilterAnzahl = ALL_FILLED;
        return;
    }
    state.FilterSchritte[static_cast<std::size_t>(number)] = {std::string(Feldname),
                                                              std::string(value),
                                                              number < NO_CODE_FROM ? codeOf(Feldname, Operator)
                                                                                    : CodeText,
                                                              {},
                                                              std::move(row)};
    state.FilterAnzahl = number + 1;
}

void ClearFilterSteps(TypeFilter& state)
{
    state.FilterSchritte.fill({});
}

void ClearHauptwertBereich(TypeFilter& state)
{
    state.HauptwertBereich.fill({});
}

void SaveFilterState(TypeFilter& state)
{
    state.GesicherterFilter = {state.FilterString, state.FilterAnzahl, state.FilterSchritte, state.section};
}

void RestoreFilterState(TypeFilter& state)
{
    state.FilterString = state.GesicherterFilter.FilterString;
    state.FilterAnzahl = state.GesicherterFilter.FilterAnzahl;
    state.FilterSchritte = state.GesicherterFilter.FilterSchritte;
    state.section = state.GesicherterFilter.section;
}

void clearFilter(TypeFilter& state)
{
    state.FilterString.clear();
    state.QuickFilter.clear();
    state.FilterAnzahl = 0;
    ClearFilterSteps(state);
    ClearHauptwertBereich(state);
    state.HauptwertAktiv = false;
    state.ZusBenutzDef.clear();
}

} // namespace quelvarn
