#include "database/postgresql/engine.h"

#include "base/runtime_error.h"
#include "database/distinct_reader.h"
#include "database/faults.h"
#include "database/new_database.h"
#include "database/postgresql/bulk_writer.h"
#include "database/postgresql/ddl.h"
#include "database/postgresql/functions.h"
#include "database/postgresql/handle.h"
#include "database/postgresql/integrity.h"
#include "database/postgresql/reader.h"
#include "database/postgresql/text_values.h"
#include "database/sql/engine_dialects.h"

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <libpq-fe.h>

namespace quelvarn::postgresql {
namespace {

// Tables that are found without naming their schema.
constexpr std::string_view visibleTables = "FROM pg_catalog.pg_class c WHERE c.relkind IN ({}) "
                                           "AND pg_catalog.pg_table_is_visible(c.oid) "
                                           "AND c.relnamespace <> 'pg_catalog'::regnamespace";

std::string_view cell(const Result& result, int row, int column)
{
    return {PQgetvalue(result.get(), row, column), static_cast<std::size_t>(PQgetlength(result.get(), row, column))};
}

} // namespace

PostgresEngine::PostgresEngine(std::string_view address, Patience* patience)
    : handle_(Handle::open(address, patience)), catalog_([this](std::string_view name) { return readSchema(name); })
{
    handle_->connectedDifferently = [this] {
        catalog_.forget();
        functionsCreated_ = false;
    };
}

PostgresEngine::~PostgresEngine()
{
    handle_->connectedDifferently = {}; // A reader may keep the connection for longer.
}

void PostgresEngine::setPatience(Patience* patience)
{
    handle_->setPatience(patience);
}

std::vector<std::string> PostgresEngine::tables()
{
    const Result result =
        handle_->read(fmt::format("SELECT c.relname {} ORDER BY 1", fmt::format(visibleTables, "'r', 'p', 'f'")));
    std::vector<std::string> names;
    for (int row = 0; row < PQntuples(result.get()); ++row)
        names.emplace_back(cell(result, row, 0));
    return names;
}

std::optional<TableSchema> PostgresEngine::findTable(std::string_view name)
{
    const TableSchema* table = catalog_.find(name);
    return table ? std::optional(*table) : std::nullopt;
}

std::optional<TableSchema> PostgresEngine::readSchema(std::string_view name)
{
    const std::string sql = fmt::format("SELECT t.relname, a.attname, y.typname FROM "
                                        "(SELECT c.oid, c.relname {} AND lower(c.relname) = lower($1) "
                                        "ORDER BY c.relname <> $1 LIMIT 1) t "
                                        "JOIN pg_catalog.pg_attribute a ON a.attrelid = t.oid "
                                        "JOIN pg_catalog.pg_type y ON y.oid = a.atttypid "
                                        "WHERE a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum",
                                        fmt::format(visibleTables, "'r', 'p', 'f', 'v', 'm'"));
    const Value sought = std::string(name);
    const Result result = handle_->read(sql, {&sought, 1});
    if (PQntuples(result.get()) == 0)
        return std::nullopt;
    TableSchema table{std::string(cell(result, 0, 0)), {}, {}};
    for (int row = 0; row < PQntuples(result.get()); ++row)
        if (cell(result, row, 1) != keyColumn)
            table.columns.push_back({std::string(cell(result, row, 1)), fieldTypeFrom(cell(result, row, 2))});
    return table;
}

std::unique_ptr<RowReader> PostgresEngine::read(const sql::Select& select, WithKey key, std::size_t limit)
{
    const TableSchema& table = catalog_.tableOf(select.table, name());
    const sql::Rendered rendered = sql::postgresDialect().select(select, table, key, limit);
    return select.distinct ? readDistinct(select, rendered, limit) : reader(rendered, key);
}

std::unique_ptr<RowReader> PostgresEngine::readDistinct(const sql::Select& select, const sql::Rendered& rendered,
                                                        std::size_t limit)
{
    const auto read = [&] {
        return std::make_unique<DistinctReader>(*reader(rendered, WithKey::No), select.orderBy, limit);
    };
    try {
        return read();
    } catch (const DatabaseFault& fault) { // Nobody has seen a row yet.
        if (!handle_->mayRepeat(fault))
            throw;
    }
    return read();
}

std::unique_ptr<RowReader> PostgresEngine::readRows(std::string_view table, std::span<const std::string> columns,
                                                    std::span<const RowKey> key)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    sql::Select select;
    select.columns.assign(columns.begin(), columns.end());
    select.table = schema.name;
    sql::Rendered rendered = sql::postgresDialect().select(select, schema, WithKey::Yes);
    rendered.text += fmt::format(" WHERE {} = ANY ($1::bigint[])", keyColumn);
    rendered.parameter.emplace_back(fmt::format("{{{}}}", fmt::join(key, ",")));
    return reader(rendered, WithKey::Yes);
}

std::string PostgresEngine::executionPlan(const sql::Select& select)
{
    const TableSchema& table = catalog_.tableOf(select.table, name());
    const sql::Rendered rendered = sql::postgresDialect().select(select, table, WithKey::No);
    const Result result = handle_->read("EXPLAIN " + rendered.text, rendered.parameter);
    std::string plan;
    for (int row = 0; row < PQntuples(result.get()); ++row)
        plan += std::string(cell(result, row, 0)) + '\n';
    return plan;
}

std::unique_ptr<RowReader> PostgresEngine::reader(const sql::Rendered& rendered, WithKey key)
{
    return std::make_unique<Reader>(handle_, rendered.text, rendered.parameter, rendered.columns, key);
}

std::int64_t PostgresEngine::updateRows(const sql::Rendered& rendered)
{
    const Result result = handle_->execute(rendered.text, rendered.parameter);
    return integerFrom(PQcmdTuples(result.get())).value_or(0);
}

std::int64_t PostgresEngine::execute(const sql::Statement& statement)
{
    const TableSchema& table = catalog_.tableOf(targetTable(statement), name());
    return updateRows(sql::postgresDialect().change(statement, table));
}

RowKey PostgresEngine::insert(std::string_view table, std::span<const sql::Assignment> values)
{
    const sql::Rendered rendered = sql::postgresDialect().insert(catalog_.tableOf(table, name()), values);
    const Result result =
        handle_->execute(fmt::format("{} RETURNING {}", rendered.text, keyColumn), rendered.parameter);
    return integerFrom(cell(result, 0, 0)).value_or(0);
}

bool PostgresEngine::update(std::string_view table, RowKey row, std::span<const sql::Assignment> values)
{
    return updateRows(sql::postgresDialect().update(catalog_.tableOf(table, name()), row, values)) > 0;
}

bool PostgresEngine::remove(std::string_view table, RowKey row)
{
    return updateRows(sql::postgresDialect().remove(catalog_.tableOf(table, name()), row)) > 0;
}

void PostgresEngine::createTable(const TableSchema& table)
{
    createFunctions();
    handle_->execute(createTableStatement(table));
    catalog_.forget();
}

void PostgresEngine::createIndexes(const TableSchema& table)
{
    createFunctions();
    for (const auto& index : table.indexes)
        handle_->execute(createIndexStatement(table, index));
    refreshAll(table.name);
}

std::vector<std::vector<IndexColumn>> PostgresEngine::missingIndexes(const TableSchema& table)
{
    std::vector<std::vector<IndexColumn>> missing;
    for (const auto& index : table.indexes) {
        const Value name = sql::Dialect::identifier(indexName(table, index));
        const Result result = handle_->read("SELECT 1 WHERE to_regclass($1) IS NOT NULL", {&name, 1});
        if (PQntuples(result.get()) == 0)
            missing.push_back(index);
    }
    return missing;
}

void PostgresEngine::removeTable(std::string_view name)
{
    if (const TableSchema* table = catalog_.find(name))
        handle_->execute("DROP TABLE " + sql::Dialect::identifier(table->name));
    catalog_.forget();
}

void PostgresEngine::refreshAll(const std::string& table)
{
    if (!handle_->inTransaction())
        handle_->execute("VACUUM (ANALYZE) " + sql::Dialect::identifier(table));
}

void PostgresEngine::createFunctions()
{
    if (functionsCreated_)
        return;
    const std::string encoding = handle_->encoding();
    if (encoding != "UTF8")
        throw RuntimeError(FAULT_GENERAL, "PostgreSQL",
                           fmt::format("Die PostgreSQL-Datenbank muss die Kodierung UTF8 haben, nicht {}.", encoding));
    const Result schema = handle_->read("SELECT current_schema()");
    handle_->execute(createFunctionsStatement(cell(schema, 0, 0)));
    functionsCreated_ = true;
}

DamageReport PostgresEngine::findDamage(std::size_t limit)
{
    return postgresql::findDamage(*handle_, limit);
}

std::unique_ptr<Engine::BulkWriter> PostgresEngine::bulkWriter(std::string_view table,
                                                               std::span<const ColumnInfo> columns)
{
    const TableSchema& schema = catalog_.tableOf(table, name());
    return std::make_unique<postgresql::BulkWriter>(*this, handle_, schema.name, columnsOf(schema, columns));
}

// Readers go on meanwhile. As no SELECT, it leaves what the transaction sees to the time after the waiting.
void PostgresEngine::lockForWriting(std::string_view table)
{
    handle_->execute(fmt::format("LOCK TABLE {} IN SHARE ROW EXCLUSIVE MODE",
                                 sql::Dialect::identifier(catalog_.tableOf(table, name()).name)));
}

void PostgresEngine::begin()
{
    handle_->begin();
}

void PostgresEngine::commit()
{
    handle_->commit();
}

void PostgresEngine::rollBack()
{
    catalog_.forget(); // Tables made meanwhile go as well.
    functionsCreated_ = false;
    handle_->rollBack();
}

} // namespace quelvarn::postgresql
