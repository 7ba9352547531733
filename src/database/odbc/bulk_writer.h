#pragma once

#include "database/engine_transaction.h"

namespace quelvarn::odbc {

// Inserts row after row, in a transaction of its own.
class BulkWriter final : public Engine::BulkWriter
{
public:
    BulkWriter(Engine& engine, std::string table, std::vector<ColumnInfo> columns);

    void row(std::span<const Value> values) override;
    void end() override;

private:
    Engine& engine_;
    sql::Statement insert_;
    EngineTransaction transaction_;
};

} // namespace quelvarn::odbc
