#include "filter/user_defined_section.h"

#include "base/collation.h"
#include "base/text.h"
#include "filter/user_defined_lists.h"
#include "filter/user_defined_match.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>

namespace quelvarn {

namespace {

constexpr int STEP_LIMIT = 5;
constexpr int ADDITION_LIMIT = 2;
constexpr int AUTHOR = 0, EDITOR = 1, MATERIAL = 2, PROJECT = 3;
constexpr std::string_view EACH_VALUE = "*";
constexpr std::size_t ROWS_PER_DOCUMENT = 5; // A guess, for the progress alone.

ValueList asList(std::vector<std::string> values)
{
    std::string count = std::to_string(values.size());
    return {std::move(values), std::move(count)};
}

std::string_view tableOf(const FilterContext& context)
{
    return DOCUMENT_TYPES[static_cast<std::size_t>(context.tab)].tableUserDef;
}

} // namespace

std::string UserDefinedSection::label(int addition) const
{
    const std::string_view column = ADDITIONAL_COLUMNS[static_cast<std::size_t>(addition)];
    const auto& names = context_.session.labels.Bezeichnungen;
    const auto name = names.find(toLower(column));
    return name == names.end() ? std::string(column) : name->second;
}

bool UserDefinedSection::exists() const
{
    const Connection& connection = context_.session.database.connection;
    return connection.open() && connection.engine().findTable(tableOf(context_)).has_value();
}

void UserDefinedSection::unlock()
{
    SperreBenutzDef_ = true;
}

void UserDefinedSection::lock()
{
    SperreBenutzDef_ = false;
}

void UserDefinedSection::fillLists()
{
    Connection& connection = context_.session.database.connection;
    name_.clear();
    values_ = {};
    addressCodes_.clear();
    addition_ = {};
    names_ = asList(readNames(connection, tableOf(context_), context_.session.rights.WhereStatus));
    const std::size_t rows = context_.table().count() * ROWS_PER_DOCUMENT; // Opening it has a progress of its own.
    LongWork work(context_.ports().progress, "Listen werden gefüllt ...");
    auto additions = readAdditions(connection, tableOf(context_), rows, work);
    std::ranges::transform(additions, addition_.begin(), [](auto& values) { return asList(std::move(values)); });
}

void UserDefinedSection::nameChosen(std::string_view name)
{
    name_ = name;
    fillValues();
}

void UserDefinedSection::setReceiver(bool set)
{
    ChReceiver_ = set;
    fillValues();
}

void UserDefinedSection::fillValues()
{
    values_ = {};
    addressCodes_.clear();
    if (name_.empty())
        return context_.operations.changed(Part::FilterPage);
    context_.operations.perform(
        Part::FilterPage, "SE-Filtern: Werte der Eigenschaft", "Fehler beim Füllen der Werteliste!", [&] {
            Connection& connection = context_.session.database.connection;
            LongWork work(context_.ports().progress, "Werte werden gelesen ...");
            const std::vector<std::string> values = readValues(connection, tableOf(context_), name_);
            std::vector<std::string> shownValues{std::string(EACH_VALUE)};
            addressCodes_ = shownValues;
            for (std::size_t i = 0; i < values.size() && work(i, values.size()); ++i) {
                const std::string shown = shownValue(values[i]);
                const std::string receiver = ChReceiver_ ? quelvarn::receiver(connection, values[i]) : shown;
                if (receiver.empty())
                    continue;
                shownValues.push_back(receiver);
                addressCodes_.push_back(shown);
            }
            values_ = asList(std::move(shownValues));
        });
}

void UserDefinedSection::valueChosen(std::string_view value)
{
    Boxes& boxes = context_.ports().boxes;
    if (!SperreBenutzDef_)
        boxes.warn("SE-Filter: Strukturmerkmale",
                   lines({"Nach Auswahl", fmt::format("{} / {} / {}", label(AUTHOR), label(EDITOR), label(MATERIAL)),
                          "", "ist die Auswahl der benutzerdefinierten Eigenschaften gesperrt!", "",
                          "Die Auswahl ist wieder entsperrt, wenn", "alle Filterwerte zurückgesetzt werden."}));
    else if (name_.empty() || value.empty())
        boxes.warn("SE-Filtern: Angaben", "Angaben sind unvollständig!");
    else if (context_.state().FilterAnzahl < STEP_LIMIT)
        takeStep(value);
    else
        boxes.warn(
            "SE-Filtern: Anzahl Filterwerte",
            lines({"Es können maximal 5 benutzerdefinierte Eigenschaften", "als Filterwerte vorgegeben werden!", "",
                   "Filterwert 6 und 7 kann aus",
                   fmt::format("{} / {} / {}", label(AUTHOR), label(EDITOR), label(MATERIAL)), "ausgewählt werden."}));
}

// A receiver is taken by the code that stands in the table.
void UserDefinedSection::takeStep(std::string_view value)
{
    const auto position = std::ranges::find(values_.values, value);
    const std::string addressCode = position == values_.values.end()
                                        ? std::string(value)
                                        : addressCodes_[static_cast<std::size_t>(position - values_.values.begin())];
    TypeFilter& state = context_.state();
    state.FilterSchritte[static_cast<std::size_t>(state.FilterAnzahl++)] = {"", name_, CodeText, addressCode};
    name_.clear();
    context_.operations.changed(Part::FilterPage);
}

void UserDefinedSection::additionChosen(int index, std::string_view value)
{
    if (value.empty())
        return;
    auto& values = context_.state().ZusBenutzDef;
    const auto column = static_cast<std::size_t>(index);
    const bool again = std::ranges::find(values, column, &AdditionalValue::column) != values.end();
    if (!again && context_.state().BenutzDefAnzahl() >= ADDITION_LIMIT)
        return context_.ports().boxes.warn(
            "SE-Filtern: Anzahl Filterwerte",
            lines({"Von den Eigenschaften",
                   fmt::format("{} / {} / {} / {}", label(PROJECT), label(AUTHOR), label(EDITOR), label(MATERIAL)),
                   "können maximal 2 Filterwerte ausgewählt werden."}));
    setAdditionalValue(values, {column, std::string(value), label(index)});
    lock();
    context_.operations.changed(Part::FilterPage);
}

} // namespace quelvarn
