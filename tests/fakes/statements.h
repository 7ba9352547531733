#pragma once

#include "database/sql/parser.h"

#include <string_view>
#include <variant>

namespace quelvarn::test {

// Tests write statements as a person types them.
inline sql::Statement statement(std::string_view text)
{
    return sql::parseStatement(text);
}

inline sql::Select query(std::string_view text)
{
    return std::get<sql::Select>(statement(text));
}

} // namespace quelvarn::test
