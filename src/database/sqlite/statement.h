#pragma once

#include "database/value.h"

#include <memory>
#include <string>
#include <string_view>

struct sqlite3_stmt;

namespace quelvarn::sqlite {

class Handle;

// A prepared statement on loan: when done it goes back to its connection, for the next one with the same text.
class Statement
{
public:
    Statement(std::shared_ptr<Handle> handle, std::string sql, sqlite3_stmt* statement);
    ~Statement();
    Statement(Statement&&) noexcept;
    Statement& operator=(Statement&&) = delete;

    enum class TextDuration { Copy, SurvivesSteps };

    // Parameters count from 1.
    void bind(int parameter, const Value& value);
    void bindText(int parameter, std::string_view text, TextDuration duration);
    // True for a row, false behind the last one.
    bool step();
    // Column of the current row, counted from 0; "" for Null.
    std::string_view text(int column) const;
    // Ready for another run; frees the read lock.
    void reset();

    sqlite3_stmt* raw() const { return statement_; }

private:
    void check(int result) const;

    std::shared_ptr<Handle> handle_;
    std::string sql_;
    sqlite3_stmt* statement_;
};

} // namespace quelvarn::sqlite
