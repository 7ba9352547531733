#pragma once

#include "database/schema.h"
#include "database/sql/ast.h"

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quelvarn {

// Numbers of faults, as programs of the office know them.
constexpr int FAULT_GENERAL = -2147467259;
constexpr int FAULT_MISSING_TABLE = -2147217865;
constexpr int FAULT_STATEMENT = -2147217900;

// The tables of one connection, each read from the database when first asked for.
class TableCatalog
{
public:
    using Reader = std::function<std::optional<TableSchema>(std::string_view)>;

    explicit TableCatalog(Reader reader);

    // Valid until forget(). A missing table is asked for anew each time: another program may have made it.
    const TableSchema* find(std::string_view name);
    // Throws RuntimeError when there is no such table.
    const TableSchema& tableOf(std::string_view name, std::string_view engine);
    void forget();

private:
    Reader reader_;
    std::unordered_map<std::string, TableSchema> tables_; // By the folded name.
};

// The stored columns of these names. Throws RuntimeError when the table lacks one.
std::vector<ColumnInfo> columnsOf(const TableSchema& table, std::span<const ColumnInfo> sought);
// Where an INSERT, UPDATE or DELETE writes.
const std::string& targetTable(const sql::Statement& statement);

} // namespace quelvarn
