#include "filter/user_defined_lists.h"

#include "base/collation.h"
#include "base/text.h"
#include "base/utf8.h"
#include "base/windows_path.h"
#include "database/sql/conditions.h"
#include "filter/user_defined_match.h"

#include <algorithm>
#include <fmt/format.h>
#include <functional>
#include <memory>
#include <tuple>
#include <unordered_set>

namespace quelvarn {

namespace {

constexpr std::size_t STEP_WIDTH = 8192;

struct ScatterValue
{
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

// Texts that came before, as they stand. Rows often repeat the text of the row before.
class TextCollection
{
public:
    void take(std::string_view text)
    {
        if (text == last_)
            return;
        last_ = text;
        if (!texts_.contains(text))
            texts_.emplace(text);
    }

    // In order, one of those that differ in case or trailing blanks alone, without blanks where there is such a one;
    // blank ones are left out.
    std::vector<std::string> values() const
    {
        std::vector<std::string> values;
        std::ranges::copy_if(texts_, std::back_inserter(values),
                             [](const std::string& text) { return !trimRightBlanks(text).empty(); });
        std::ranges::sort(values, [](const std::string& left, const std::string& right) {
            const int comparison = compareText(left, right);
            return comparison != 0 ? comparison < 0
                                   : std::tuple(left.ends_with(' '), std::string_view(left)) <
                                         std::tuple(right.ends_with(' '), std::string_view(right));
        });
        values.erase(std::unique(values.begin(), values.end(), equalText), values.end());
        return values;
    }

private:
    std::unordered_set<std::string, ScatterValue, std::equal_to<>> texts_;
    std::string last_;
};

std::unique_ptr<RowReader> firstName(Connection& connection, std::string_view table, sql::ExpressionPointer condition)
{
    sql::Select select = sql::Query(table).columns({"Name"}).where(std::move(condition)).sortedBy("Name");
    return connection.engine().read(select, WithKey::No, 1);
}

// The same name without blanks behind it, where some row has it so. Few names have such blanks at all.
std::string withoutBlanks(Connection& connection, std::string_view table, std::string name,
                          const std::string& WhereStatus)
{
    if (!name.ends_with(' '))
        return name;
    const auto row = firstName(connection, table,
                               sql::all(sql::equal("Name", name), sql::compare("Name", sql::Comparison::NotLike, "% "),
                                        sql::statusScope(WhereStatus)));
    return row->next() ? std::string(row->text(0)) : name;
}

} // namespace

// From one name to the next through the index: few names stand in many rows.
std::vector<std::string> readNames(Connection& connection, std::string_view table, const std::string& WhereStatus)
{
    std::vector<std::string> names;
    for (;;) {
        const auto row =
            firstName(connection, table,
                      sql::all(names.empty() ? nullptr : sql::compare("Name", sql::Comparison::Greater, names.back()),
                               sql::statusScope(WhereStatus)));
        if (!row->next())
            return names;
        names.push_back(withoutBlanks(connection, table, std::string(row->text(0)), WhereStatus));
    }
}

std::array<std::vector<std::string>, ADDITIONAL_VALUE_COUNT>
readAdditions(Connection& connection, std::string_view table, std::size_t rows, LongWork& work)
{
    sql::Select select;
    select.table = table;
    select.columns.assign(ADDITIONAL_COLUMNS.begin(), ADDITIONAL_COLUMNS.end());
    std::array<TextCollection, ADDITIONAL_VALUE_COUNT> texts;
    const auto reader = connection.engine().read(select, WithKey::No);
    for (std::size_t read = 0; reader->next(); ++read) {
        if (read % STEP_WIDTH == 0 && !work(std::min(read, rows), rows))
            return {};
        for (std::size_t column = 0; column < texts.size(); ++column)
            texts[column].take(reader->text(column));
    }
    std::array<std::vector<std::string>, ADDITIONAL_VALUE_COUNT> values;
    std::ranges::transform(texts, values.begin(), [](const TextCollection& collection) { return collection.values(); });
    return values;
}

std::vector<std::string> readValues(Connection& connection, std::string_view table, std::string_view name)
{
    sql::Select select;
    select.table = table;
    select.columns = {"Wert"};
    select.where = sql::equal("Name", name);
    TextCollection texts;
    const auto reader = connection.engine().read(select, WithKey::No);
    while (reader->next())
        texts.take(reader->text(0));
    return texts.values();
}

std::string shownValue(const std::string& value)
{
    return countCharacters(value) < FROM_PATH ? value : "*" + DateiName(value);
}

// An address is one row with a column for each item, or several rows with one item each.
std::string receiver(Connection& connection, std::string_view addressCode)
{
    sql::Select select;
    select.table = "Adresstabelle";
    select.where = sql::equal("Kennung", addressCode);
    const auto rows = connection.engine().read(select, WithKey::No);
    const auto column = [&](std::string_view name) {
        return static_cast<std::size_t>(
            std::ranges::find_if(rows->columns(),
                                 [&](const ColumnInfo& field) { return equalText(field.name, name); }) -
            rows->columns().begin());
    };
    const std::size_t end = rows->columns().size();
    std::string found;
    while (rows->next()) {
        std::string company;
        if (column("Firma") < end)
            company = rows->text(column("Firma"));
        else if (column("Wert") < end && equalText(rows->text(column("Name")), "Firma"))
            company = rows->text(column("Wert"));
        if (!company.empty())
            return company;
        found = addressCode;
    }
    return found;
}

} // namespace quelvarn
