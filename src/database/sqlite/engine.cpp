#include "database/sqlite/engine.h"

#include "database/new_database.h"
#include "database/sql/engine_dialects.h"
#include "database/sqlite/bulk_writer.h"
#include "database/sqlite/ddl.h"
#include "database/sqlite/faults.h"
#include "database/sqlite/handle.h"
#include "database/sqlite/integrity.h"
#include "database/sqlite/reader.h"
#include "database/sqlite/statement.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

namespace quelvarn::sqlite {
namespace {

std::string insertStatement(std::string_view table, std::span<const ColumnInfo> columns)
{
    std::string names;
    std::string placeholder;
    for (const ColumnInfo& column : columns) {
        names += (names.empty() ? "" : ", ") + sql::Dialect::identifier(column.name);
        placeholder += placeholder.empty() ? "?" : ", ?";
    }
    return fmt::format("INSERT INTO {} ({}) VALUES ({})", sql::Dialect::identifier(table), names, placeholder);
}

} // namespace

SqliteEngine::SqliteEngine(const std::filesystem::path& path, bool create, Patience* patience)
    : patience_(patience), handle_(Handle::open(path, create, patience)),
      catalog_([this](std::string_view name) { return readSchema(name); })
{}

void SqliteEngine::setPatience(Patience* patience)
{
    patience_ = patience;
    handle_->setPatience(patience);
}

FileState SqliteEngine::fileState() const
{
    return handle_->file().state();
}

void SqliteEngine::checkFile() const
{
    handle_->file().check(std::string(name()));
}

void SqliteEngine::makeReady()
{
    if (handle_->lost() && !transaction_.open())
        openAgain();
}

// Rows are known by their keys, which mean nothing in another file.
void SqliteEngine::openAgain()
{
    checkFile();
    handle_ = Handle::open(handle_->file().path(), false, patience_);
    catalog_.forget();
}

template <class Read> auto SqliteEngine::repeatable(Read read)
{
    makeReady();
    try {
        return read();
    } catch (const DatabaseFault&) {
        if (!handle_->lost() || transaction_.open())
            throw;
    }
    openAgain();
    return read();
}

void SqliteEngine::beforeChange()
{
    makeReady();
    if (transaction_.open())
        return;
    checkFile();
    handle_->letOthersGoFirst();
}

std::vector<std::string> SqliteEngine::tables()
{
    return repeatable([this] {
        std::vector<std::string> names;
        Statement statement = handle_->prepare(
            "SELECT name FROM sqlite_schema WHERE type = 'table' AND name NOT GLOB 'sqlite_*' ORDER BY name");
        while (statement.step())
            names.emplace_back(statement.text(0));
        return names;
    });
}

std::optional<TableSchema> SqliteEngine::findTable(std::string_view name)
{
    const TableSchema* table = catalog_.find(name);
    return table ? std::optional(*table) : std::nullopt;
}

std::optional<TableSchema> SqliteEngine::readSchema(std::string_view name)
{
    return repeatable([&] {
        Statement statement =
            handle_->prepare("SELECT t.name, c.name, c.type FROM sqlite_schema AS t, pragma_table_info(t.name) AS c "
                             "WHERE t.type IN ('table', 'view') AND t.name = ?1 COLLATE NOCASE ORDER BY c.cid");
        statement.bind(1, std::string(name));
        std::optional<TableSchema> table;
        while (statement.step()) {
            if (!table)
                table = TableSchema{std::string(statement.text(0)), {}, {}};
            if (statement.text(1) != keyColumn)
                table->columns.push_back({std::string(statement.text(1)), fieldTypeFrom(statement.text(2))});
        }
        return table;
    });
}

std::unique_ptr<RowReader> SqliteEngine::read(const sql::Select& select, WithKey key, std::size_t limit)
{
    return repeatable([&] {
        const TableSchema& table = catalog_.tableOf(select.table, name());
        return reader(sql::sqliteDialect().select(select, table, key, limit), key);
    });
}

std::unique_ptr<RowReader> SqliteEngine::readRows(std::string_view table, std::span<const std::string> columns,
                                                  std::span<const RowKey> key)
{
    return repeatable([&] {
        const TableSchema& schema = catalog_.tableOf(table, name());
        sql::Select select;
        select.columns.assign(columns.begin(), columns.end());
        select.table = schema.name;
        // One text for any number of keys, so that it is prepared once.
        sql::Rendered rendered = sql::sqliteDialect().select(select, schema, WithKey::Yes);
        rendered.text += " WHERE rowid IN (SELECT value FROM json_each(?1))";
        rendered.parameter.emplace_back(fmt::format("[{}]", fmt::join(key, ",")));
        return reader(std::move(rendered), WithKey::Yes);
    });
}

std::string SqliteEngine::executionPlan(const sql::Select& select)
{
    const TableSchema& table = catalog_.tableOf(select.table, name());
    sql::Rendered rendered = sql::sqliteDialect().select(select, table, WithKey::No);
    rendered.text.insert(0, "EXPLAIN QUERY PLAN ");
    Statement statement = prepared(rendered);
    std::string plan;
    constexpr int columnDetail = 3;
    while (statement.step())
        plan += std::string(statement.text(columnDetail)) + '\n';
    return plan;
}

Statement SqliteEngine::prepared(const sql::Rendered& rendered)
{
    Statement statement = handle_->prepare(rendered.text);
    for (std::size_t i = 0; i < rendered.parameter.size(); ++i)
        statement.bind(static_cast<int>(i) + 1, rendered.parameter[i]);
    return statement;
}

std::unique_ptr<RowReader> SqliteEngine::reader(sql::Rendered rendered, WithKey key)
{
    Statement statement = prepared(rendered);
    auto reader = std::make_unique<Reader>(std::move(statement), std::move(rendered.columns), key);
    reader->begin();
    return reader;
}

std::int64_t SqliteEngine::updateRows(const sql::Rendered& rendered)
{
    beforeChange();
    Statement statement = prepared(rendered);
    statement.step();
    handle_->rememberWrite();
    return handle_->changedRows();
}

std::int64_t SqliteEngine::execute(const sql::Statement& statement)
{
    const TableSchema& table = catalog_.tableOf(targetTable(statement), name());
    return updateRows(sql::sqliteDialect().change(statement, table));
}

RowKey SqliteEngine::insert(std::string_view table, std::span<const sql::Assignment> values)
{
    updateRows(sql::sqliteDialect().insert(catalog_.tableOf(table, name()), values));
    return handle_->lastRow();
}

bool SqliteEngine::update(std::string_view table, RowKey row, std::span<const sql::Assignment> values)
{
    return updateRows(sql::sqliteDialect().update(catalog_.tableOf(table, name()), row, values)) > 0;
}

bool SqliteEngine::remove(std::string_view table, RowKey row)
{
    return updateRows(sql::sqliteDialect().remove(catalog_.tableOf(table, name()), row)) > 0;
}

void SqliteEngine::createTable(const TableSchema& table)
{
    handle_->execute(createTableStatement(table));
    catalog_.forget();
}

void SqliteEngine::createIndexes(const TableSchema& table)
{
    for (const auto& index : table.indexes)
        handle_->execute(createIndexStatement(table, index));
}

std::vector<std::vector<IndexColumn>> SqliteEngine::missingIndexes(const TableSchema& table)
{
    return repeatable([&] {
        Statement statement = handle_->prepare("SELECT name FROM sqlite_schema WHERE type = 'index' AND name = ?1");
        std::vector<std::vector<IndexColumn>> missing;
        for (const auto& index : table.indexes) {
            statement.bind(1, indexName(table, index));
            if (!statement.step())
                missing.push_back(index);
            statement.reset();
        }
        return missing;
    });
}

void SqliteEngine::removeTable(std::string_view name)
{
    handle_->execute("DROP TABLE IF EXISTS " + sql::Dialect::identifier(name));
    catalog_.forget();
}

DamageReport SqliteEngine::findDamage(std::size_t limit)
{
    return sqlite::findDamage(*handle_, limit);
}

std::unique_ptr<Engine::BulkWriter> SqliteEngine::bulkWriter(std::string_view table,
                                                             std::span<const ColumnInfo> columns)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    std::vector<ColumnInfo> target = columnsOf(schema, columns);
    Statement insert = handle_->prepare(insertStatement(schema.name, target));
    return std::make_unique<sqlite::BulkWriter>(*this, std::move(insert), std::move(target));
}

void SqliteEngine::begin()
{
    beforeChange();
    repeatable([this] { handle_->execute(transaction_.begin()); });
    transaction_.begun();
}

void SqliteEngine::commit()
{
    handle_->execute(transaction_.completion());
    handle_->rememberWrite();
    transaction_.ended();
}

void SqliteEngine::rollBack()
{
    const std::string rollback = transaction_.rollback();
    transaction_.ended();
    catalog_.forget(); // Tables made meanwhile go as well.
    handle_->execute(rollback);
}

} // namespace quelvarn::sqlite
