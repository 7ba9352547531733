#include "filter/main_values.h"

#include "base/number_format.h"
#include "base/text.h"
#include "database/recordset_columns.h"
#include "database/recordset_lists.h"
#include "filter/steps.h"
#include "platform/progress.h"
#include "session/error_report.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>

namespace quelvarn {
namespace {

constexpr std::string_view MAIN_VALUES = "abcdefg";
constexpr const char* FAULT_LISTS = "Fehler beim Füllen der ComboBoxen für Hauptwerte a bis g!";

char letter(int mainValue)
{
    return MAIN_VALUES[static_cast<std::size_t>(mainValue)];
}

// Numbers that count as the same one stand there once.
ValueList numberList(const std::vector<double>& numbers)
{
    std::vector<Decimal> values;
    for (const double number : numbers) {
        const auto value = Decimal::from(number);
        if (value && !value->isZero() && (values.empty() || values.back() != *value))
            values.push_back(*value);
    }
    std::vector<std::string> texts(values.size());
    std::ranges::transform(values, texts.begin(), &Decimal::text);
    return valueList(std::move(texts));
}

std::optional<Decimal> decimalFrom(std::string_view text)
{
    const auto number = parseNumber(text);
    return number ? Decimal::from(*number) : std::nullopt;
}

} // namespace

void MainValues::chooseLabel(int mainValue)
{
    chosen_ = mainValue;
    fillLists();
    context_.operations.changed(Part::FilterPage);
}

void MainValues::showValueCount(bool set)
{
    ChShowAnzWerte_ = set;
    fillLists();
    context_.operations.changed(Part::FilterPage);
}

void MainValues::showAliasCount(bool set)
{
    ChShowAnzAlias_ = set;
    fillLists();
    context_.operations.changed(Part::FilterPage);
}

// Each list by itself: one that cannot be filled stays empty.
void MainValues::fillLists()
{
    clearLists();
    Boxes& boxes = context_.ports().boxes;
    LongWork work(context_.ports().progress, "Hauptwerte werden gelesen ...");
    const std::string value = fmt::format("Hauptwert_{}", letter(chosen_));
    const std::string alias = fmt::format("Alias_{}", letter(chosen_));
    std::optional<std::vector<Bookmark>> rows;
    guarded(boxes, "SE-Filtern: ComboBoxen für Hauptwerte a bis g", FAULT_LISTS, [&] {
        if (!loadColumns(table(), std::vector{value, alias}, std::ref(work)))
            return;
        rows = choose(table(), branch_, std::ref(work));
        if (rows && ChShowAnzWerte_)
            values_ = numberList(distinctNumbers(table(), value, *rows));
    });
    if (!rows)
        return;
    guarded(boxes, "SE-Filtern: Listen für Alias a bis g", FAULT_LISTS, [&] {
        alias_ = valueList(distinctTexts(table(), alias, *rows, [](std::string_view text) { return !text.empty(); }));
        if (!ChShowAnzAlias_)
            alias_.count.clear();
    });
}

bool MainValues::setBounds(std::string_view CbHW, std::string_view TextBB)
{
    const auto value = decimalFrom(CbHW);
    const auto band = trim(TextBB).empty() ? std::optional(Decimal()) : decimalFrom(TextBB);
    const auto MinWert = value && band ? value->minus(*band) : std::nullopt;
    const auto MaxWert = value && band ? value->plus(*band) : std::nullopt;
    if (!MinWert || !MaxWert) {
        context_.ports().boxes.warn("Zahlenwerte", fmt::format("Kein Zahlenwert: {}", value ? TextBB : CbHW));
        return false;
    }
    TypeFilter& state = context_.state();
    state.HauptwertBereich[static_cast<std::size_t>(chosen_)] = {*MinWert, *MaxWert};
    state.HauptwertAktiv = true;
    return true;
}

void MainValues::clearBounds()
{
    ClearHauptwertBereich(context_.state());
    context_.state().HauptwertAktiv = false;
}

std::string MainValues::name(int mainValue) const
{
    return fmt::format("Hauptwert {}", letter(mainValue));
}

std::string MainValues::band(int mainValue) const
{
    const MainValueBand& bounds = context_.state().HauptwertBereich[static_cast<std::size_t>(mainValue)];
    if (!bounds.set())
        return {};
    if (bounds.MinWert == bounds.MaxWert)
        return bounds.MinWert.text();
    return fmt::format("{} - {}", bounds.MinWert.text(), bounds.MaxWert.text());
}

} // namespace quelvarn
