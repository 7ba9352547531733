#pragma once

#include "database/engine_transaction.h"
#include "database/postgresql/engine.h"
#include "database/postgresql/handle.h"

namespace quelvarn::postgresql {

// Sends rows as one COPY, in a transaction of its own. The connection can do nothing else until it has ended.
class BulkWriter final : public Engine::BulkWriter
{
public:
    BulkWriter(PostgresEngine& engine, std::shared_ptr<Handle> handle, const std::string& table,
               std::vector<ColumnInfo> columns);
    ~BulkWriter() override; // Gives the COPY up unless end() was called.

    void row(std::span<const Value> values) override;
    void end() override;

private:
    void send();

    PostgresEngine& engine_;
    std::shared_ptr<Handle> handle_;
    std::string table_;
    std::vector<ColumnInfo> columns_;
    std::string buffer_;
    bool copied_ = true;
    EngineTransaction transaction_;
};

} // namespace quelvarn::postgresql
