#pragma once

#include "database/engine_transaction.h"
#include "database/sqlite/statement.h"

namespace quelvarn::sqlite {

// Inserts row after row with one prepared statement, in a transaction of its own.
class BulkWriter final : public Engine::BulkWriter
{
public:
    BulkWriter(Engine& engine, Statement insert, std::vector<ColumnInfo> columns);

    void row(std::span<const Value> values) override;
    void end() override;

private:
    Statement insert_;
    std::vector<ColumnInfo> columns_;
    EngineTransaction transaction_;
};

} // namespace quelvarn::sqlite
