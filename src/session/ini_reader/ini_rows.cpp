#include "session/ini_reader/ini_rows.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "database/sql/conditions.h"

#include <array>
#include <fmt/format.h>
#include <limits>
#include <utility>
#include <vector>

namespace quelvarn {

namespace {

constexpr std::array<std::string_view, 5> FIELDS{"Feld1", "Feld2", "Feld3", "Feld4", "Feld5"};

} // namespace

sql::ExpressionPointer iniRows(std::string_view owner, std::string_view group, std::string_view key)
{
    return sql::all(sql::equal("Feld1", owner), sql::equal("Feld2", group),
                    key.empty() ? nullptr : sql::equal("Feld3", key));
}

Recordset IniRows::read(sql::Select select)
{
    Recordset rows;
    rows.Open(std::move(select), connection_, CursorType::Static, LockType::Optimistic);
    return rows;
}

Recordset IniRows::rows(std::string_view owner, std::string_view group, std::string_view key)
{
    return read(sql::Query("Ini").where(iniRows(owner, group, key)));
}

Recordset IniRows::distinct(std::initializer_list<std::string_view> columns, std::string_view owner,
                            std::string_view group, std::string_view key)
{
    Recordset rows;
    rows.Open(sql::Query("Ini").columns(columns).distinct().where(iniRows(owner, group, key)), connection_);
    return rows;
}

Recordset IniRows::activeQuelvarn(std::string_view user)
{
    std::vector<sql::ExpressionPointer> switches;
    switches.push_back(sql::equal("Feld3", "0"));
    switches.push_back(sql::equal("Feld3", "1"));
    return read(sql::Query("Ini").where(sql::all(iniRows(user, "ActiveQuelvarn"), sql::any(std::move(switches)))));
}

Recordset IniRows::searchTexts(std::string_view user)
{
    return read(sql::Query("Ini").where(iniRows(user, "Suchen/Filtern")).sortedBy("Feld3")); // "Text0", ...
}

bool IniRows::begin()
{
    wantsToWrite_ = true;
    if (!lookOnly_ && !transaction_)
        transaction_.emplace(connection_);
    return !lookOnly_;
}

void IniRows::lookOnly()
{
    lookOnly_ = true;
    wantsToWrite_ = false;
}

void IniRows::writeAlone()
{
    lookOnly_ = false;
    transaction_.emplace(connection_);
    connection_.engine().lockForWriting("Ini");
}

void IniRows::append(std::initializer_list<std::string_view> fields)
{
    if (!begin())
        return;
    std::vector<sql::Assignment> values;
    for (const std::string_view field : fields)
        values.push_back({std::string(FIELDS.at(values.size())), std::string(field)});
    connection_.engine().insert("Ini", values);
}

void IniRows::update(Recordset& row, std::string_view field, std::string_view value)
{
    if (row.field(field) == Value(std::string(value)) || !begin())
        return;
    row.setField(field, std::string(value));
    row.Update();
}

void IniRows::updateAll(Recordset& rows, std::string_view field, std::string_view value)
{
    for (; !rows.eof(); rows.MoveNext())
        update(rows, field, value);
}

void IniRows::remove(Recordset& rows)
{
    if (rows.empty() || !begin())
        return;
    for (rows.MoveFirst(); !rows.eof();)
        rows.Delete(); // Moves to the next row.
}

void IniRows::commit()
{
    if (transaction_)
        transaction_->commit();
    transaction_.reset();
}

std::string requiredText(const Recordset& row, std::string_view field)
{
    const Value value = row.field(field);
    if (isNull(value))
        throw RuntimeError(94, "Quelvarn", fmt::format("Unzulässiger Wert Null in '{}'.", field));
    return asText(value);
}

std::string textOrEmpty(const Recordset& row, std::string_view field)
{
    return asText(row.field(field));
}

std::optional<int> findNumber(const Recordset& row, std::string_view field)
{
    using Limits = std::numeric_limits<std::int16_t>;
    const auto number = wholeNumber(row.field(field), Limits::min(), Limits::max());
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

std::string searchTextName(std::size_t number)
{
    return fmt::format("Text{}", number);
}

std::optional<std::size_t> searchTextKey(std::string_view name)
{
    for (std::size_t number = 0; number < SEARCH_TEXT_COUNT; ++number)
        if (equalText(name, searchTextName(number)))
            return number;
    return std::nullopt;
}

int numberOrZero(const Recordset& row, std::string_view field)
{
    return findNumber(row, field).value_or(0);
}

} // namespace quelvarn
