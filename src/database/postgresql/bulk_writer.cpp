#include "database/postgresql/bulk_writer.h"

#include "base/runtime_error.h"
#include "base/text.h"
#include "database/sql/column_value.h"
#include "database/sql/renderer.h"

#include <cassert>
#include <fmt/format.h>

namespace quelvarn::postgresql {
namespace {

constexpr std::size_t bufferSize = 1 << 16;

// A cell of the COPY text format.
void appendCell(std::string& buffer, std::string_view text)
{
    for (const char character : text) {
        switch (character) {
        case '\\':
            buffer += "\\\\";
            break;
        case '\n':
            buffer += "\\n";
            break;
        case '\r':
            buffer += "\\r";
            break;
        case '\t':
            buffer += "\\t";
            break;
        default:
            buffer += character;
        }
    }
}

std::string copyStatement(const std::string& table, std::span<const ColumnInfo> columns)
{
    std::vector<std::string> names;
    for (const ColumnInfo& column : columns)
        names.push_back(sql::Dialect::identifier(column.name));
    return fmt::format("COPY {} ({}) FROM STDIN", sql::Dialect::identifier(table), join(names, ", "));
}

} // namespace

BulkWriter::BulkWriter(PostgresEngine& engine, std::shared_ptr<Handle> handle, const std::string& table,
                       std::vector<ColumnInfo> columns)
    : engine_(engine), handle_(std::move(handle)), table_(table), columns_(std::move(columns)), transaction_(engine)
{
    handle_->execute(copyStatement(table_, columns_));
}

BulkWriter::~BulkWriter()
{
    if (!copied_)
        return;
    try {
        handle_->endRows("abgebrochen");
    } catch (const RuntimeError&) {
        // The server confirms that it gave up, or is gone.
    }
}

void BulkWriter::row(std::span<const Value> values)
{
    assert(values.size() == columns_.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        buffer_ += i ? "\t" : "";
        const auto* text = std::get_if<std::string>(&values[i]);
        if (isNull(values[i]))
            buffer_ += "\\N";
        else if (text && columns_[i].type == FieldType::Text)
            appendCell(buffer_, *text);
        else
            appendCell(buffer_, sql::parameterText(sql::storedValue(values[i], columns_[i].type)));
    }
    buffer_ += '\n';
    if (buffer_.size() > bufferSize)
        send();
}

void BulkWriter::send()
{
    handle_->sendRows(buffer_);
    buffer_.clear();
}

void BulkWriter::end()
{
    send();
    copied_ = false;
    handle_->endRows(nullptr);
    transaction_.commit();
    engine_.refreshAll(table_);
}

} // namespace quelvarn::postgresql
