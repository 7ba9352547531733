#include "database/odbc/engine.h"

#include "base/collation.h"
#include "base/runtime_error.h"
#include "base/text.h"
#include "database/distinct_reader.h"
#include "database/odbc/bulk_writer.h"
#include "database/odbc/connection_handle.h"
#include "database/odbc/database_kind.h"
#include "database/odbc/reader.h"
#include "database/sql/column_value.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <fmt/format.h>
#include <unordered_set>

namespace quelvarn::odbc {
namespace {

constexpr int ROW_AMBIGUOUS = -2147217887;
// More rows than these are looked for in one pass over the table.
constexpr std::size_t SINGLE_UNTIL = 4;
// Columns in the answer of the driver about tables and columns.
constexpr std::size_t INFORMATION_TABLE = 2;
constexpr std::size_t INFORMATION_TABLE_KIND = 3;
constexpr std::size_t INFORMATION_COLUMN = 3;
constexpr std::size_t INFORMATION_TYPE = 4;

int integerFrom(const std::string& text)
{
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

std::size_t positionOf(std::span<const ColumnInfo> columns, std::string_view name)
{
    const auto hits =
        std::ranges::find_if(columns, [&](const ColumnInfo& column) { return equalText(column.name, name); });
    return static_cast<std::size_t>(hits - columns.begin());
}

// Where each column of the table stands among those of a result.
std::vector<std::size_t> positionsOf(const TableSchema& table, const sql::Rendered& rendered)
{
    std::vector<ColumnInfo> all = rendered.columns;
    all.insert(all.end(), rendered.rest.begin(), rendered.rest.end());
    std::vector<std::size_t> positions;
    for (const ColumnInfo& column : table.columns)
        positions.push_back(positionOf(all, column.name));
    return positions;
}

std::vector<sql::Assignment> asAssignments(const TableSchema& table, std::span<const Value> row)
{
    std::vector<sql::Assignment> values;
    for (std::size_t i = 0; i < table.columns.size(); ++i)
        values.push_back({table.columns[i].name, row[i]});
    return values;
}

} // namespace

OdbcEngine::OdbcEngine(std::string_view connectionText, std::optional<WatchedFile> file)
    : file_(std::move(file)), connection_(ConnectionHandle::open(connectionText, file_ ? file_->text() : "")),
      kind_(&odbcKindOf(connection_->databaseName())),
      catalog_([this](std::string_view name) { return readSchema(name); })
{
    connection_->setSource(kind_->name);
}

std::string_view OdbcEngine::name() const
{
    return kind_->name;
}

EngineCapabilities OdbcEngine::capabilities() const
{
    EngineCapabilities can;
    can.loadsColumnsLater = false; // To know a row again, all of it must be read anyway.
    return can;
}

FileState OdbcEngine::fileState() const
{
    return file_ ? file_->state() : FileState::Same;
}

void OdbcEngine::checkFile() const
{
    if (file_)
        file_->check(std::string(name()));
}

std::vector<std::string> OdbcEngine::tables()
{
    std::vector<std::string> names;
    for (StatementHandle information = StatementHandle::tables(connection_); information.next();) {
        std::string name = information.text(INFORMATION_TABLE);
        if (!equalText(information.text(INFORMATION_TABLE_KIND),
                       "SYSTEM TABLE")) // Not every driver heeds what is asked.
            names.push_back(std::move(name));
    }
    std::ranges::sort(names);
    return names;
}

std::string OdbcEngine::savedName(std::string_view name)
{
    for (std::string& table : tables())
        if (equalText(table, name))
            return std::move(table);
    return {};
}

std::optional<TableSchema> OdbcEngine::findTable(std::string_view name)
{
    const TableSchema* table = catalog_.find(name);
    return table ? std::optional(*table) : std::nullopt;
}

std::optional<TableSchema> OdbcEngine::readSchema(std::string_view name)
{
    TableSchema table{savedName(name), {}, {}};
    if (table.name.empty())
        return std::nullopt;
    for (StatementHandle information = StatementHandle::columns(connection_, table.name); information.next();) {
        if (information.text(INFORMATION_TABLE) != table.name) // "_" in a name is a wildcard to the driver.
            continue;
        std::string column = information.text(INFORMATION_COLUMN);
        if (const auto type = findFieldType(integerFrom(information.text(INFORMATION_TYPE))))
            table.columns.push_back({std::move(column), *type});
    }
    return table;
}

std::shared_ptr<RowBook> OdbcEngine::bookOf(const TableSchema& table)
{
    std::shared_ptr<RowBook>& book = books_[table.name];
    if (!book)
        book = std::make_shared<RowBook>();
    return book;
}

StatementHandle OdbcEngine::start(const sql::Rendered& rendered)
{
    return StatementHandle::execute(connection_, rendered.text, rendered.parameter);
}

std::unique_ptr<RowReader> OdbcEngine::read(const sql::Select& select, WithKey key, std::size_t limit)
{
    const TableSchema& table = catalog_.tableOf(select.table, name());
    const sql::Rendered rendered = kind_->dialect().select(select, table, key, limit);
    std::optional<KeySource> source;
    if (key == WithKey::Yes)
        source = KeySource{bookOf(table), positionsOf(table, rendered)};
    const bool hereDistinguish = select.distinct && !kind_->distinctBlind;
    auto reader = std::make_unique<Reader>(start(rendered), rendered.columns, rendered.rest,
                                           hereDistinguish ? 0 : limit, std::move(source));
    if (hereDistinguish)
        return std::make_unique<DistinctReader>(*reader, select.orderBy, limit);
    return reader;
}

std::unique_ptr<RowReader> OdbcEngine::readRows(std::string_view table, std::span<const std::string> columns,
                                                std::span<const RowKey> key)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    sql::Select all;
    all.table = schema.name;
    all.columns.assign(columns.begin(), columns.end());
    const std::vector<ColumnInfo> sought = kind_->dialect().select(all, schema, WithKey::No).columns;
    if (key.size() <= SINGLE_UNTIL)
        return readSingle(schema, sought, key);

    const std::unordered_set<RowKey> required(key.begin(), key.end());
    std::vector<KeyRow> rows;
    for (const auto reader = read(all, WithKey::Yes, 0); reader->next();) {
        if (!required.contains(reader->key()))
            continue;
        KeyRow& row = rows.emplace_back(KeyRow{reader->key()});
        for (std::size_t i = 0; i < sought.size(); ++i)
            row.values.push_back(reader->value(i));
    }
    return std::make_unique<ListReader>(sought, std::move(rows));
}

std::unique_ptr<RowReader> OdbcEngine::readSingle(const TableSchema& table, std::vector<ColumnInfo> columns,
                                                  std::span<const RowKey> key)
{
    std::vector<KeyRow> rows;
    for (const RowKey sought : key) {
        const std::string* picture = bookOf(table)->findPicture(sought);
        if (!picture)
            continue;
        const auto found = findRows(table, asAssignments(table, RowBook::rowOf(*picture)));
        if (found.empty())
            continue;
        KeyRow& row = rows.emplace_back(KeyRow{sought});
        for (const ColumnInfo& column : columns)
            row.values.push_back(found.front()[positionOf(table.columns, column.name)]);
    }
    return std::make_unique<ListReader>(std::move(columns), std::move(rows));
}

std::vector<std::vector<Value>> OdbcEngine::findRows(const TableSchema& table, std::span<const sql::Assignment> picture)
{
    const sql::Rendered rendered = kind_->dialect().readRow(table, picture);
    Reader reader(start(rendered), rendered.columns, {}, 0, std::nullopt);
    std::vector<std::vector<Value>> rows;
    while (reader.next()) {
        std::vector<Value>& row = rows.emplace_back();
        for (std::size_t i = 0; i < rendered.columns.size(); ++i)
            row.push_back(reader.value(i));
    }
    return rows;
}

std::string OdbcEngine::executionPlan(const sql::Select& select)
{
    const TableSchema& table = catalog_.tableOf(select.table, name());
    return kind_->dialect().select(select, table, WithKey::No).text;
}

std::int64_t OdbcEngine::execute(const sql::Statement& statement)
{
    const TableSchema& table = catalog_.tableOf(targetTable(statement), name());
    return start(kind_->dialect().change(statement, table)).affectedRows();
}

// The row is read again at once: a counter or a default value may have filled more columns.
RowKey OdbcEngine::insert(std::string_view table, std::span<const sql::Assignment> values)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    std::vector<sql::Assignment> saved(values.begin(), values.end());
    if (saved.empty()) // Access knows no row without a value.
        saved.push_back({schema.columns.front().name, {}});
    for (sql::Assignment& cell : saved)
        if (const std::size_t position = positionOf(schema.columns, cell.column); position < schema.columns.size())
            cell.value = sql::storedValue(cell.value, schema.columns[position].type);
    start(kind_->dialect().insert(schema, saved));

    const std::vector<std::vector<Value>> rows = findRows(schema, saved);
    if (rows.empty())
        throw RuntimeError(ROW_AMBIGUOUS, std::string(name()),
                           fmt::format("Der neue Datensatz der Tabelle '{}' wurde nicht wiedergefunden.", schema.name));
    const std::string picture = RowBook::pictureOf(rows.back());
    const auto same = std::ranges::count_if(rows, [&](const auto& row) { return RowBook::pictureOf(row) == picture; });
    return bookOf(schema)->keyOf(picture, static_cast<std::size_t>(same));
}

// False when the row is gone, or was changed by another program meanwhile.
bool OdbcEngine::writeOne(const TableSchema& table, std::span<const sql::Assignment> picture,
                          const sql::Rendered& rendered)
{
    const auto checkUnique = [&](std::int64_t rows) {
        if (rows > 1)
            throw RuntimeError(ROW_AMBIGUOUS, std::string(name()),
                               fmt::format("Der Datensatz kommt in der Tabelle '{}' {}-mal gleich vor und hat keinen "
                                           "Schlüssel.\nEs wurde nichts geändert.",
                                           table.name, rows));
        return rows == 1;
    };
    StatementHandle count = start(kind_->dialect().countRow(table, picture));
    count.next();
    if (!checkUnique(asInteger(count.cell(0, FieldType::Integer))))
        return false;
    begin();
    try {
        const bool written = checkUnique(start(rendered).affectedRows());
        commit();
        return written;
    } catch (...) {
        rollBack();
        throw;
    }
}

bool OdbcEngine::update(std::string_view table, RowKey row, std::span<const sql::Assignment> values)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    const std::shared_ptr<RowBook> book = bookOf(schema);
    const std::string* picture = book->findPicture(row);
    if (!picture)
        return false;
    std::vector<Value> content = RowBook::rowOf(*picture);
    const auto old = asAssignments(schema, content);
    if (!writeOne(schema, old, kind_->dialect().updateRow(schema, old, values)))
        return false;
    for (const sql::Assignment& assignment : values) {
        const std::size_t position = positionOf(schema.columns, assignment.column);
        content[position] = sql::storedValue(assignment.value, schema.columns[position].type);
    }
    rememberState(book, row);
    book->replace(row, RowBook::pictureOf(content));
    return true;
}

bool OdbcEngine::remove(std::string_view table, RowKey row)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    const std::shared_ptr<RowBook> book = bookOf(schema);
    const std::string* picture = book->findPicture(row);
    if (!picture)
        return false;
    const auto old = asAssignments(schema, RowBook::rowOf(*picture));
    if (!writeOne(schema, old, kind_->dialect().removeRow(schema, old)))
        return false;
    rememberState(book, row);
    book->remove(row);
    return true;
}

void OdbcEngine::rememberState(const std::shared_ptr<RowBook>& book, RowKey key)
{
    if (!marks_.empty())
        before_.push_back({book, key, *book->findPicture(key)});
}

void OdbcEngine::checkWritingLayout() const
{
    if (!kind_->createsTables)
        throw RuntimeError(FAULT_GENERAL, std::string(name()),
                           "In einer Access-Datenbank werden keine Tabellen oder Indexe angelegt oder entfernt.");
}

void OdbcEngine::createTable(const TableSchema& table)
{
    checkWritingLayout();
    StatementHandle::execute(connection_, createTableStatement(*kind_, table));
    catalog_.forget();
}

void OdbcEngine::createIndexes(const TableSchema&)
{
    checkWritingLayout();
}

std::vector<std::vector<IndexColumn>> OdbcEngine::missingIndexes(const TableSchema&)
{
    return {};
}

void OdbcEngine::removeTable(std::string_view name)
{
    checkWritingLayout();
    if (const TableSchema* table = catalog_.find(name)) {
        StatementHandle::execute(connection_, "DROP TABLE " + sql::Dialect::identifier(table->name));
        books_.erase(table->name);
    }
    catalog_.forget();
}

std::unique_ptr<Engine::BulkWriter> OdbcEngine::bulkWriter(std::string_view table, std::span<const ColumnInfo> columns)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    return std::make_unique<odbc::BulkWriter>(*this, schema.name, columnsOf(schema, columns));
}

void OdbcEngine::lockForWriting(std::string_view table)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    if (!kind_->writeLock.empty())
        StatementHandle::execute(connection_,
                                 fmt::format(fmt::runtime(kind_->writeLock), sql::Dialect::identifier(schema.name),
                                             sql::Dialect::identifier(schema.columns.front().name)));
}

void OdbcEngine::begin()
{
    if (marks_.empty())
        connection_->begin();
    else if (kind_->savepoints)
        StatementHandle::execute(connection_, fmt::format("SAVEPOINT qv_{}", marks_.size()));
    marks_.push_back(before_.size());
}

// When it throws, the transaction is still there to be taken back.
void OdbcEngine::commit()
{
    assert(!marks_.empty());
    if (marks_.size() > 1) {
        if (kind_->savepoints)
            StatementHandle::execute(connection_, fmt::format("RELEASE SAVEPOINT qv_{}", marks_.size() - 1));
    } else {
        if (spoiled_)
            throw RuntimeError(FAULT_GENERAL, std::string(name()),
                               "Ein Teil der Änderungen ging nicht, daher wurden alle zurückgenommen.");
        connection_->end(true);
        before_.clear();
    }
    marks_.pop_back();
}

void OdbcEngine::rollBack()
{
    assert(!marks_.empty());
    const std::size_t mark = marks_.back();
    marks_.pop_back();
    catalog_.forget(); // Tables made meanwhile go as well.
    if (!marks_.empty() && !kind_->savepoints) {
        spoiled_ = true;
        return;
    }
    for (; before_.size() > mark; before_.pop_back())
        before_.back().book->replace(before_.back().key, before_.back().picture);
    if (marks_.empty()) {
        spoiled_ = false;
        connection_->end(false);
        return;
    }
    StatementHandle::execute(connection_, fmt::format("ROLLBACK TO SAVEPOINT qv_{}", marks_.size()));
    StatementHandle::execute(connection_, fmt::format("RELEASE SAVEPOINT qv_{}", marks_.size()));
}

} // namespace quelvarn::odbc
