#pragma once

#include "database/odbc/api.h"
#include "database/schema.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace quelvarn::odbc {

class ConnectionHandle;

// One statement that was run, and its rows.
class StatementHandle
{
public:
    // Every value is bound as a text, which each driver takes for any column; Null as Null.
    static StatementHandle execute(std::shared_ptr<ConnectionHandle> connection, std::string_view sql,
                                   std::span<const Value> parameter = {});
    static StatementHandle tables(std::shared_ptr<ConnectionHandle> connection);
    static StatementHandle columns(std::shared_ptr<ConnectionHandle> connection, std::string_view table);

    bool next();
    // Columns of a row are read from the left to the right, each once. The first is 0.
    Value cell(std::size_t column, FieldType type);
    std::string text(std::size_t column); // "" for Null
    std::int64_t affectedRows() const;

private:
    explicit StatementHandle(std::shared_ptr<ConnectionHandle> connection);
    bool holeText(std::size_t column, std::string& text);
    void check(Result result) const;

    std::shared_ptr<ConnectionHandle> connection_; // Outlives its statements.
    std::unique_ptr<Handle> handle_;
};

} // namespace quelvarn::odbc
