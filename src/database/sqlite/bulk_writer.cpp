#include "database/sqlite/bulk_writer.h"

#include "database/sql/column_value.h"

#include <cassert>

namespace quelvarn::sqlite {

BulkWriter::BulkWriter(Engine& engine, Statement insert, std::vector<ColumnInfo> columns)
    : insert_(std::move(insert)), columns_(std::move(columns)), transaction_(engine)
{}

void BulkWriter::row(std::span<const Value> values)
{
    assert(values.size() == columns_.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const auto parameter = static_cast<int>(i) + 1;
        const auto* text = std::get_if<std::string>(&values[i]);
        if (text && columns_[i].type == FieldType::Text)
            insert_.bindText(parameter, *text, Statement::TextDuration::SurvivesSteps);
        else
            insert_.bind(parameter, sql::storedValue(values[i], columns_[i].type));
    }
    insert_.step();
    insert_.reset();
}

void BulkWriter::end()
{
    transaction_.commit();
}

} // namespace quelvarn::sqlite
