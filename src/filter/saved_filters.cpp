#include "filter/saved_filters.h"

#include "base/utf8.h"
#include "filter/filter_context.h"
#include "filter/filter_rows.h"
#include "filter/filter_string.h"
#include "filter/status_filter.h"
#include "filter/steps.h"
#include "session/error_report.h"
#include "session/ini_reader/ini_rows.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr std::string_view TITLE = "Filterwerte";
constexpr std::string_view GROUP = "Filterwerte"; // Feld2 of the rows.
constexpr std::size_t LONGEST_NAME = 50;

const Recordset& list(const PageSettings& pages, int tab)
{
    return pages.GespeicherteFilter[static_cast<std::size_t>(tab)];
}

std::size_t count(const Recordset& list)
{
    return list.open() ? list.RecordCount() : 0;
}

std::string text(const Recordset& list, std::size_t row, std::string_view field)
{
    return asText(list.cell(row, field));
}

std::optional<std::size_t> findRow(const Recordset& list, std::string_view Filtername)
{
    for (std::size_t row = 0; row < count(list); ++row)
        if (text(list, row, "Filtername") == Filtername)
            return row;
    return std::nullopt;
}

// The list of the context's type; nullptr, after a box, when no database has filled it.
Recordset* findList(FilterContext& context)
{
    Recordset& list = context.session.pages.GespeicherteFilter[static_cast<std::size_t>(context.tab)];
    if (list.open())
        return &list;
    context.ports().boxes.warn(TITLE, "Es konnte keine Tabelle zugeordnet werden!");
    return nullptr;
}

// What is wrong with the name or the filter; "" when they can be saved.
std::string objection(const TypeFilter& state, std::string_view name)
{
    if (name.empty())
        return "Es muss ein Name für den Filter angegeben werden!";
    if (countCharacters(name) > LONGEST_NAME)
        return "Der Name für den Filter kann max. 50 Zeichen lang sein!";
    const bool status = std::ranges::find(state.ChFilterStat, true) != state.ChFilterStat.end();
    if (state.FilterSchritte[0].value.empty() && !status)
        return "Es sind keine Filterwerte eingetragen!";
    if (!storable(state))
        return "Filterwerte mit den Zeichen \\ oder | können nicht gespeichert werden!";
    return "";
}

bool standsSoInTable(const Recordset& rows, const Recordset& list)
{
    if (rows.RecordCount() != list.RecordCount())
        return false;
    for (std::size_t i = 0; i < list.RecordCount(); ++i)
        if (text(rows, i, "Feld4") != text(list, i, "Filtername") ||
            text(rows, i, "Feld5") != text(list, i, "Filterstring"))
            return false;
    return true;
}

// The value as it counts: with a star at its end, where it can take one.
std::optional<std::string> withStar(std::string_view value)
{
    if (value.ends_with('*'))
        return std::string(value);
    if (!value.starts_with('*'))
        return std::nullopt;
    if (value.ends_with(' '))
        value.remove_suffix(1);
    return std::string(value) + '*';
}

} // namespace

std::vector<std::string> savedNames(const PageSettings& pages, int tab)
{
    std::vector<std::string> names;
    for (std::size_t row = 0; row < count(list(pages, tab)); ++row)
        names.push_back(text(list(pages, tab), row, "Filtername"));
    return names;
}

std::string SavedFilterString(const PageSettings& pages, int tab, std::string_view Filtername)
{
    const auto row = findRow(list(pages, tab), Filtername);
    return row ? text(list(pages, tab), *row, "Filterstring") : "";
}

void SaveFilterRows(SessionState& session, int tab)
{
    const Recordset& filter = list(session.pages, tab);
    if (!filter.open())
        return;
    const std::string_view key = DOCUMENT_TYPES[static_cast<std::size_t>(tab)].key;
    IniRows ini(session.database.connection);
    Recordset rows = ini.rows(session.user.Anwender, GROUP, key);
    if (standsSoInTable(rows, filter))
        return;
    ini.writeAlone();
    rows = ini.rows(session.user.Anwender, GROUP, key);
    ini.remove(rows);
    for (std::size_t i = 0; i < filter.RecordCount(); ++i)
        ini.append({session.user.Anwender, GROUP, key, text(filter, i, "Filtername"), text(filter, i, "Filterstring")});
    ini.commit();
}

void saveFilterLists(SessionState& session, Boxes& boxes)
{
    for (const DocumentType& type : DOCUMENT_TYPES)
        guarded(boxes, "Speichern der Filterwerte in die Ini-Tabelle",
                "Fehler beim Speichern der Filterwerte in die Ini-Tabelle!",
                [&] { SaveFilterRows(session, type.tab); });
}

bool saveFilter(FilterContext& context, std::string_view TxtFilterSave)
{
    const std::string reason = objection(context.state(), TxtFilterSave);
    if (!reason.empty()) {
        context.ports().boxes.warn(TITLE, reason);
        return false;
    }
    Recordset* filter = findList(context);
    if (!filter)
        return false;
    if (findRow(*filter, TxtFilterSave)) {
        context.ports().boxes.warn(TITLE, fmt::format("Der Filtername '{}' ist bereits vorhanden!", TxtFilterSave));
        return false;
    }
    filter->AddNew();
    filter->setField("Filtername", std::string(TxtFilterSave));
    filter->setField("Filterstring", asFilterString(context.state()));
    filter->Update();
    return true;
}

void removeFilter(FilterContext& context, std::string_view CbFilterSave)
{
    Recordset* filter = findList(context);
    const auto row = filter ? findRow(*filter, CbFilterSave) : std::nullopt;
    if (!row)
        return;
    filter->setPosition(*row);
    filter->Delete();
}

std::optional<std::string> chosenFilter(FilterContext& context, std::string_view CbFilterSave)
{
    if (CbFilterSave.empty()) {
        context.ports().boxes.warn(TITLE, "Es ist kein Filterwert ausgewählt!");
        return std::nullopt;
    }
    return SavedFilterString(context.session.pages, context.tab, CbFilterSave);
}

void UseSavedFilter(FilterContext& context, std::string_view Filterstring)
{
    const SavedFilter filter = readFilterString(Filterstring);
    TypeFilter& state = context.state();
    clearFilter(state);
    state.FilterSchritte = filter.FilterSchritte;
    state.FilterAnzahl = filter.FilterAnzahl;
    state.ZusBenutzDef = filter.ZusBenutzDef;
    state.ChFilterStat = filter.ChFilterStat.value_or(std::array<bool, STATUS_COUNT>{});
    BuildStatusFilter(context.filter, context.tab);
    state.section = filter.section;
}

void completeStars(FilterContext& context)
{
    const std::vector<FilterRow> rows = context.FilterWerteTabelle();
    for (std::size_t i = 0; i < rows.size(); ++i)
        if (const auto value = withStar(rows[i].value))
            setRowValue(context.state(), i, *value);
}

FilterFavourites favouriteList(const PageSettings& pages, const Labels& labels, int tab)
{
    FilterFavourites favourites{savedNames(pages, tab), std::nullopt};
    const auto warn = [](std::string text) {
        return Box{std::string(TITLE_FAVOURITE_MENU), std::move(text), Icon::Warning};
    };
    if (favourites.names.empty())
        favourites.box = warn(fmt::format("Es sind keine gespeicherten Filter für {} vorhanden!", labels.plural(tab)));
    if (favourites.names.size() > MAX_FILTER_FAVOURITES) {
        favourites.names.resize(MAX_FILTER_FAVOURITES);
        favourites.box = warn("Das Formular ist auf max. 25 Filter ausgelegt!");
    }
    return favourites;
}

std::optional<std::string> chosenFavourite(const PageSettings& pages, Boxes& boxes, int tab, std::string_view LblFilter)
{
    if (LblFilter.empty()) {
        boxes.warn("Filterfavoriten", "Es ist kein Filtername eingetragen!");
        return std::nullopt;
    }
    return SavedFilterString(pages, tab, LblFilter);
}

} // namespace quelvarn
