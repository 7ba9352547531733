#include "filter/filter_string.h"

#include "base/text.h"
#include "filter/filter_rows.h"

#include <algorithm>
#include <charconv>
#include <fmt/format.h>
#include <span>
#include <system_error>

namespace quelvarn {

namespace {

constexpr char SEPARATOR = '\\';
constexpr char END = '|';
constexpr std::string_view STATUS_ENTRY = "Status";
constexpr std::string_view USER_DEFINED = "BenutzDef";
constexpr std::string_view ZUSBENUTZDEF = "ZusBenutzDef";
constexpr std::string_view STRUCTURE_COLUMN = "StrukturMerk";
constexpr std::string_view STRUCTURE_FEATURE = "Hauptmerkmal_";
constexpr char FIRST_LEVEL = 'C'; // Features A and B belong to the properties.

// How a row of the display table names the column of its step, where its Feldname is not the column.
struct FieldPath
{
    std::string_view Feldname;
    std::string_view Benennung;
    std::string_view column;
};
constexpr std::array<FieldPath, 3> TEXT_FIELDS{{
    {"DokubezDateiFile", "Dokumentname", "DokuBez"},
    {"DokubezDateiFile", "Dateiname", "Dateiname"},
    {"DokubezDateiFile", "Pfad-u. Dateiname", "filename"},
}};

// What an entry holds beside its row: the code of the step, or the pattern of a user-defined property once more.
std::string thirdPart(const FilterStep& step)
{
    return step.Feldname.empty() ? step.pattern : std::to_string(step.code);
}

struct Entry
{
    FilterRow row;
    std::string third;
};

// The entries that are stored.
std::vector<Entry> entries(const TypeFilter& state)
{
    std::vector<FilterRow> rows = filterRows(state);
    rows.resize(std::min(rows.size(), SAVED_STEPS));
    const std::span<const FilterStep> steps = filledSteps(state);
    std::vector<Entry> stored;
    for (std::size_t i = 0; i < rows.size(); ++i)
        stored.push_back({std::move(rows[i]), i < steps.size() ? thirdPart(steps[i]) : std::string()});
    return stored;
}

// Takes the entries of a stored text one by one.
class EntryReader
{
public:
    // False for a damaged entry.
    bool take(std::string_view entry)
    {
        const std::vector<std::string> parts = split(entry, SEPARATOR);
        if (parts.size() != 4)
            return false;
        if (parts[0].empty() && parts[2].empty() && parts[3] == STATUS_ENTRY)
            return takeStatus(parts[1]);
        const FilterRow row{parts[0], parts[3], parts[1]};
        return taken() < SAVED_STEPS && fits(row) && takeRow(row, parts[2]);
    }

    SavedFilter result() && { return std::move(filter_); }

private:
    std::size_t taken() const { return static_cast<std::size_t>(filter_.FilterAnzahl) + filter_.ZusBenutzDef.size(); }

    bool takeStatus(std::string_view digits)
    {
        const auto isDigit = [](char character) { return character == '0' || character == '1'; };
        if (digits.size() != STATUS_COUNT || !std::ranges::all_of(digits, isDigit))
            return false;
        auto& tick = filter_.ChFilterStat.emplace();
        std::ranges::transform(digits, tick.begin(), [](char character) { return character == '1'; });
        return true;
    }

    static FilterSection sectionOf(const FilterRow& row)
    {
        if (row.Feldname == USER_DEFINED || row.Feldname.starts_with(ZUSBENUTZDEF))
            return FilterSection::UserDefined;
        const bool feature = row.Feldname.starts_with(STRUCTURE_FEATURE) && row.Feldname.back() >= FIRST_LEVEL;
        return feature || row.Feldname.starts_with(STRUCTURE_COLUMN) ? FilterSection::Structure
                                                                     : FilterSection::Properties;
    }

    // The parts of the page do not mix.
    bool fits(const FilterRow& row)
    {
        const FilterSection section = sectionOf(row);
        if (taken() == 0)
            filter_.section = section;
        return filter_.section == section && !row.Feldname.empty();
    }

    bool takeRow(const FilterRow& row, std::string_view third)
    {
        if (row.Feldname == USER_DEFINED)
            return append({"", row.Benennung, CodeText, row.value});
        if (row.Feldname.starts_with(ZUSBENUTZDEF))
            return addition(row);
        if (row.Feldname.starts_with(STRUCTURE_FEATURE))
            return (filter_.section != FilterSection::Structure || isNextLevel(row.Feldname)) &&
                   step(row, row.Feldname, row.value, CodeText);
        if (row.Feldname.starts_with(STRUCTURE_COLUMN)) {
            const std::string column = row.Feldname.substr(STRUCTURE_COLUMN.size());
            return (column == "Material" || column == "Firma") && step(row, column, row.value, CodeText);
        }
        return property(row, third);
    }

    // The tree is walked from level C down.
    bool isNextLevel(std::string_view Feldname) const
    {
        return Feldname.substr(STRUCTURE_FEATURE.size()) ==
               std::string(1, static_cast<char>(FIRST_LEVEL + filter_.FilterAnzahl));
    }

    bool step(const FilterRow& row, std::string_view column, std::string_view value, int code)
    {
        return append({std::string(column), std::string(value), code, "", {row.Feldname, row.Benennung}});
    }

    bool append(FilterStep fresh)
    {
        filter_.FilterSchritte[static_cast<std::size_t>(filter_.FilterAnzahl++)] = std::move(fresh);
        return true;
    }

    bool addition(const FilterRow& row)
    {
        const auto position = std::ranges::find(ADDITIONAL_COLUMNS, row.Feldname.substr(ZUSBENUTZDEF.size()));
        if (position == ADDITIONAL_COLUMNS.end())
            return false;
        setAdditionalValue(filter_.ZusBenutzDef,
                           {static_cast<std::size_t>(position - ADDITIONAL_COLUMNS.begin()), row.value, row.Benennung});
        return true;
    }

    bool property(const FilterRow& row, std::string_view third)
    {
        int code = 0;
        const auto read = std::from_chars(third.data(), third.data() + third.size(), code);
        if (read.ec != std::errc() || read.ptr != third.data() + third.size() || code < 0 || code > 99)
            return false;
        if (const std::string_view column = dateColumn(row, code); !column.empty())
            return date(row, column, code);
        const auto textField = std::ranges::find_if(TEXT_FIELDS, [&](const FieldPath& route) {
            return route.Feldname == row.Feldname && route.Benennung == row.Benennung;
        });
        const bool quickfilter = row.Feldname == "FilternDatum"; // Its second row: Autor or Bearbeiter.
        const std::string column = textField != TEXT_FIELDS.end() ? std::string(textField->column)
                                   : quickfilter                  ? row.Benennung
                                                                  : row.Feldname;
        return !column.empty() && row.Feldname != "Kalender" && step(row, column, row.value, code);
    }

    // "" when the row is no date.
    static std::string_view dateColumn(const FilterRow& row, int code)
    {
        const bool dateRow = row.Feldname == "Kalender" || row.Feldname == "FilternDatum";
        for (const std::string_view column : {"Erstellt", "Geaendert"})
            if ((dateRow ? row.Benennung : row.Feldname) == column)
                return column;
        if (code / 10 == CodeCreated / 10)
            return "Erstellt";
        return code / 10 == CodeChanged / 10 ? "Geaendert" : "";
    }

    // The operator in front of the date counts more than that of the code.
    bool date(const FilterRow& row, std::string_view column, int code)
    {
        const auto [written, day] = splitOperator(row.value);
        const int op = written.value_or(code % 10);
        const int stem = column == "Erstellt" ? CodeCreated : CodeChanged;
        return op < static_cast<int>(OPERATORS.size()) && step(row, column, trim(day), stem + op);
    }

    SavedFilter filter_;
};

} // namespace

std::string asFilterString(const TypeFilter& state)
{
    std::string text;
    for (const auto& [row, third] : entries(state))
        text += fmt::format("{}\\{}\\{}\\{}|", row.Feldname, row.value, third, row.Benennung);
    const auto& tick = state.ChFilterStat;
    if (std::ranges::find(tick, true) == tick.end())
        return text;
    std::string digits;
    for (const bool set : tick)
        digits += set ? '1' : '0';
    return text + "\\" + digits + "\\\\Status|";
}

SavedFilter readFilterString(std::string_view Filterstring)
{
    EntryReader reader;
    // An entry without its end was cut off.
    for (std::size_t end = Filterstring.find(END); end != std::string_view::npos && end > 0;
         end = Filterstring.find(END)) {
        if (!reader.take(Filterstring.substr(0, end)))
            break;
        Filterstring.remove_prefix(end + 1);
    }
    return std::move(reader).result();
}

bool storable(const TypeFilter& state)
{
    const auto whole = [](std::string_view text) { return text.find_first_of("\\|") == std::string_view::npos; };
    return std::ranges::all_of(entries(state), [&](const Entry& entry) {
        return whole(entry.row.Feldname) && whole(entry.row.value) && whole(entry.row.Benennung) && whole(entry.third);
    });
}

} // namespace quelvarn
