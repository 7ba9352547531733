#include "database/row_store.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/catalog.h"
#include "database/recordset_find.h"
#include "database/recordset_keys.h"
#include "database/recordset_sort.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>
#include <utility>

namespace quelvarn {

namespace {

bool sameName(std::string_view left, std::string_view right)
{
    return left.size() == right.size() && startsWithIgnoringCase(left, right);
}

ColumnList newColumns(const std::vector<ColumnInfo>& fields)
{
    ColumnList columns;
    for (const ColumnInfo& field : fields)
        columns.push_back(newColumn(field.type));
    return columns;
}

} // namespace

void RowStore::appendField(ColumnInfo field)
{
    columns_.push_back(newColumn(field.type));
    fields_.push_back(std::move(field));
}

void RowStore::clear()
{
    columns_ = newColumns(fields_);
    count_ = 0;
}

void RowStore::open(std::shared_ptr<Engine> engine, sql::Select query, const Opening& opening)
{
    *this = {};
    engine_ = std::move(engine);
    query_ = std::move(query);
    const EngineCapabilities can = engine_->capabilities();
    // To write, a row of DISTINCT must be one certain row of the table: the first of its equals.
    const bool firstRows = query_.distinct && opening.writable && can.rowKey;
    const bool onlyNew = firstRows || (query_.distinct && !can.distinctBlind);
    if (firstRows)
        query_.distinct = false;
    hasKey_ = can.rowKey && (can.loadsColumnsLater || opening.writable) && !query_.count && !query_.distinct;

    DuplicateSearch duplicates;
    const bool whole = opening.readWhole || onlyNew || !hasKey_ || !can.loadsColumnsLater;
    if (!readWhole(whole ? 0 : opening.small, onlyNew ? &duplicates : nullptr))
        readKey();
    if (query_.distinct && !can.distinctBlind)
        rearrange();
    for (const auto& column : columns_)
        if (column)
            column->commit();
}

// Reads all columns; false, and nothing is there, when there are more rows than `atMost` (0: no limit).
bool RowStore::readWhole(std::size_t atMost, DuplicateSearch* duplicates)
{
    const auto reader = engine_->read(query_, hasKey_ ? WithKey::Yes : WithKey::No, atMost == 0 ? 0 : atMost + 1);
    fields_ = reader->columns();
    columns_ = newColumns(fields_);
    appendRows(*reader, columns_, hasKey_ ? &key_ : nullptr, duplicates);
    count_ = fields_.empty() ? 0 : columns_[0]->count();
    if (atMost == 0 || count_ <= atMost)
        return true;
    columns_.clear();
    columns_.resize(fields_.size());
    key_.clear();
    return false;
}

// An engine whose DISTINCT heeds case does not sort it as the register does.
void RowStore::rearrange()
{
    std::vector<SortField> fields;
    for (const sql::Sort& sort : query_.orderBy)
        fields.push_back({fieldOf(sort.column), sort.descending});
    std::vector<RowNumber> ranked(count_);
    std::iota(ranked.begin(), ranked.end(), RowNumber{0});
    sort(ranked, fields, [&](std::size_t field) -> const Column& { return column(field); });
    for (auto& old : columns_) {
        auto converted = newColumn(old->type());
        for (const RowNumber row : ranked)
            converted->append(old->value(row));
        old = std::move(converted);
    }
}

// Reads the keys and the columns of the sort order in one pass; without a sort order the first column.
void RowStore::readKey()
{
    std::vector<std::size_t> fields;
    for (const sql::Sort& sort : query_.orderBy) {
        const auto field = findField(sort.column);
        if (field && std::find(fields.begin(), fields.end(), *field) == fields.end())
            fields.push_back(*field);
    }
    const bool firstSorted = !fields.empty() && findField(query_.orderBy.front().column) == fields.front();
    if (fields.empty())
        fields.push_back(0);

    ColumnList read;
    for (const std::size_t field : fields)
        read.push_back(read.empty() && firstSorted ? newSortedColumn(fields_[field].type)
                                                   : newColumn(fields_[field].type));
    std::vector<std::string> all = std::exchange(query_.columns, names(fields));
    const auto reader = engine_->read(query_, WithKey::Yes);
    appendRows(*reader, read, &key_);
    query_.columns = std::move(all);
    count_ = key_.size();
    key_.shrink_to_fit();
    for (std::size_t i = 0; i < fields.size(); ++i)
        columns_[fields[i]] = std::move(read[i]);
}

bool RowStore::load(std::span<const std::size_t> wanted, const Progress& progress)
{
    std::vector<std::size_t> fields;
    ColumnList read;
    for (const std::size_t field : wanted) {
        if (loaded(field) || std::find(fields.begin(), fields.end(), field) != fields.end())
            continue;
        fields.push_back(field);
        read.push_back(newColumn(fields_[field].type));
        read.back()->setCount(count_);
    }
    if (fields.empty())
        return true;

    const auto reader = readUnsorted(fields);
    KeyMap map(key_);
    if (!setCells(*reader, read, map, progress, count_))
        return false;

    setOwn(read, fields);
    for (std::size_t i = 0; i < fields.size(); ++i) {
        read[i]->commit();
        columns_[fields[i]] = std::move(read[i]);
    }
    return true;
}

// The statement is whole again also when the engine fails: the recordset stays in use.
std::unique_ptr<RowReader> RowStore::readUnsorted(std::span<const std::size_t> fields)
{
    struct Result
    {
        ~Result()
        {
            query.columns = std::move(columns);
            query.orderBy = std::move(rowOrder);
        }
        sql::Select& query;
        std::vector<std::string> columns;
        std::vector<sql::Sort> rowOrder;
    };
    const Result result{query_, std::exchange(query_.columns, names(fields)), std::exchange(query_.orderBy, {})};
    return engine_->read(query_, WithKey::Yes);
}

// Rows changed or added here, by their keys: they may no longer meet the recordset's own condition.
void RowStore::setOwn(ColumnList& columns, std::span<const std::size_t> fields)
{
    std::sort(own_.begin(), own_.end());
    own_.erase(std::unique(own_.begin(), own_.end()), own_.end());
    const std::vector<Value> values = readCells(own_, fields);
    for (std::size_t i = 0; i < values.size(); ++i)
        columns[i % fields.size()]->set(own_[i / fields.size()], values[i]);
}

std::vector<Value> RowStore::readCells(std::span<const RowNumber> rows, std::span<const std::size_t> fields) const
{
    std::vector<Value> values(rows.size() * fields.size());
    if (values.empty())
        return values;
    std::vector<RowKey> key;
    std::unordered_map<RowKey, std::size_t> places;
    for (const RowNumber row : rows) {
        places.emplace(key_[row], key.size());
        key.push_back(key_[row]);
    }
    const auto reader = engine_->readRows(query_.table, names(fields), key);
    while (reader->next()) {
        const auto place = places.find(reader->key());
        if (place == places.end())
            continue;
        for (std::size_t i = 0; i < fields.size(); ++i)
            values[place->second * fields.size() + i] = reader->value(i);
    }
    return values;
}

std::vector<std::string> RowStore::names(std::span<const std::size_t> fields) const
{
    std::vector<std::string> names;
    for (const std::size_t field : fields)
        names.push_back(fields_[field].name);
    return names;
}

std::optional<std::size_t> RowStore::findField(std::string_view name) const
{
    for (std::size_t field = 0; field < fields_.size(); ++field)
        if (fields_[field].name == name)
            return field;
    for (std::size_t field = 0; field < fields_.size(); ++field)
        if (sameName(fields_[field].name, name))
            return field;
    return std::nullopt;
}

std::size_t RowStore::fieldOf(std::string_view name) const
{
    if (const auto field = findField(name))
        return *field;
    throw RuntimeError(3265, "Recordset", "Das Feld '" + std::string(name) + "' gibt es in diesem Recordset nicht.");
}

RowNumber RowStore::appendRow()
{
    const auto row = static_cast<RowNumber>(count_++);
    for (const auto& column : columns_)
        if (column)
            column->setCount(count_);
    if (hasKey_)
        key_.push_back(0);
    if (engine_)
        own_.push_back(row);
    return row;
}

void RowStore::set(RowNumber row, std::size_t field, const Value& value)
{
    if (loaded(field))
        columns_[field]->set(row, value);
    if (engine_ && (own_.empty() || own_.back() != row))
        own_.push_back(row);
}

std::size_t RowStore::memory() const
{
    std::size_t bytes = key_.capacity() * sizeof(RowKey);
    for (const auto& column : columns_)
        bytes += column ? column->memory() : 0;
    return bytes;
}

void RowStore::openRows(std::shared_ptr<Engine> engine, std::string_view table, std::vector<RowKey> key,
                        std::size_t small)
{
    const auto schema = engine->findTable(table);
    if (!schema)
        throw recordsetFault(FAULT_MISSING_TABLE, "Die Tabelle '" + std::string(table) + "' gibt es nicht.");
    *this = {};
    engine_ = std::move(engine);
    query_.table = schema->name;
    fields_ = schema->columns;
    columns_.resize(fields_.size());
    hasKey_ = true;
    count_ = key.size();
    key_ = std::move(key);
    if (count_ > small)
        return;

    std::vector<RowNumber> rows(count_);
    std::iota(rows.begin(), rows.end(), RowNumber{0});
    std::vector<std::size_t> all(fields_.size());
    std::iota(all.begin(), all.end(), std::size_t{0});
    const std::vector<Value> values = readCells(rows, all);
    for (std::size_t field = 0; field < fields_.size(); ++field) {
        columns_[field] = newColumn(fields_[field].type);
        for (std::size_t row = 0; row < count_; ++row)
            columns_[field]->append(values[row * fields_.size() + field]);
        columns_[field]->commit();
    }
}

} // namespace quelvarn
