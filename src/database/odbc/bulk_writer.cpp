#include "database/odbc/bulk_writer.h"

#include <cassert>

namespace quelvarn::odbc {

BulkWriter::BulkWriter(Engine& engine, std::string table, std::vector<ColumnInfo> columns)
    : engine_(engine), transaction_(engine)
{
    sql::Insert insert{std::move(table), {}};
    for (ColumnInfo& column : columns)
        insert.values.push_back({std::move(column.name), {}});
    insert_ = std::move(insert);
}

void BulkWriter::row(std::span<const Value> values)
{
    auto& target = std::get<sql::Insert>(insert_).values;
    assert(values.size() == target.size());
    for (std::size_t i = 0; i < values.size(); ++i)
        target[i].value = values[i];
    engine_.execute(insert_);
}

void BulkWriter::end()
{
    transaction_.commit();
}

} // namespace quelvarn::odbc
