#include "database/odbc/statement.h"

#ifdef _WIN32
#include <windows.h>
#endif
#include "base/utf16.h"
#include "database/odbc/connection_handle.h"
#include "database/sql/column_value.h"

#include <array>
#include <charconv>
#include <fmt/format.h>
#include <sql.h>
#include <sqlext.h>
#include <sqlucode.h>
#include <vector>

namespace quelvarn::odbc {
namespace {

// A text as ODBC wants to see it until the statement has run.
struct Bound
{
    std::u16string text;
    SQLLEN length = SQL_NULL_DATA;
};

std::vector<Bound> binding(std::span<const Value> parameter)
{
    std::vector<Bound> bound(parameter.size());
    for (std::size_t i = 0; i < parameter.size(); ++i) {
        if (isNull(parameter[i]))
            continue;
        bound[i].text = toUtf16(sql::parameterText(parameter[i]));
        bound[i].length = static_cast<SQLLEN>(bound[i].text.size() * sizeof(char16_t));
    }
    return bound;
}

// The longest text of a plain column of Access; beyond it a text is bound as that of a memo.
constexpr std::size_t longestText = 255;

SQLRETURN bind(RawHandle statement, std::size_t number, Bound& value)
{
    const bool longText = value.text.size() > longestText;
    const SQLULEN size = std::max<std::size_t>(value.text.size(), 1); // 0 is refused.
    return SQLBindParameter(statement, static_cast<SQLUSMALLINT>(number), SQL_PARAM_INPUT, SQL_C_WCHAR,
                            longText ? SQL_WLONGVARCHAR : SQL_WVARCHAR, size, 0, value.text.data(),
                            value.length == SQL_NULL_DATA ? 0 : value.length, &value.length);
}

SQLWCHAR* wide(std::u16string& text)
{
    return reinterpret_cast<SQLWCHAR*>(text.data());
}

DateTime fromStamp(const SQL_TIMESTAMP_STRUCT& stamp)
{
    constexpr SQLUINTEGER halfSecond = 500'000'000;
    const DateTime time = DateTime::from({stamp.year, stamp.month, stamp.day, stamp.hour, stamp.minute, stamp.second});
    return time.plusSeconds(stamp.fraction >= halfSecond ? 1 : 0);
}

} // namespace

StatementHandle::StatementHandle(std::shared_ptr<ConnectionHandle> connection)
    : connection_(std::move(connection)),
      handle_(std::make_unique<Handle>(HandleKind::StatementHandle, connection_->raw()))
{}

void StatementHandle::check(Result result) const
{
    odbc::check(result, HandleKind::StatementHandle, handle_->raw(), connection_->place());
}

StatementHandle StatementHandle::execute(std::shared_ptr<ConnectionHandle> connection, std::string_view sql,
                                         std::span<const Value> parameter)
{
    StatementHandle statement(std::move(connection));
    std::u16string text = toUtf16(sql);
    std::vector<Bound> bound = binding(parameter);
    for (std::size_t i = 0; i < bound.size(); ++i)
        statement.check(bind(statement.handle_->raw(), i + 1, bound[i]));
    const auto start = [&]() -> Result { return SQLExecDirectW(statement.handle_->raw(), wide(text), SQL_NTS); };
    statement.check(repeat(start, HandleKind::StatementHandle, statement.handle_->raw()));
    SQLFreeStmt(statement.handle_->raw(), SQL_RESET_PARAMS); // The values go now.
    return statement;
}

StatementHandle StatementHandle::tables(std::shared_ptr<ConnectionHandle> connection)
{
    StatementHandle statement(std::move(connection));
    std::u16string kinds = u"TABLE,VIEW,SYNONYM";
    statement.check(SQLTablesW(statement.handle_->raw(), nullptr, 0, nullptr, 0, nullptr, 0, wide(kinds), SQL_NTS));
    return statement;
}

StatementHandle StatementHandle::columns(std::shared_ptr<ConnectionHandle> connection, std::string_view table)
{
    StatementHandle statement(std::move(connection));
    std::u16string name = toUtf16(table);
    statement.check(SQLColumnsW(statement.handle_->raw(), nullptr, 0, nullptr, 0, wide(name), SQL_NTS, nullptr, 0));
    return statement;
}

bool StatementHandle::next()
{
    const SQLRETURN result = SQLFetch(handle_->raw());
    check(result);
    return result != SQL_NO_DATA;
}

bool StatementHandle::holeText(std::size_t column, std::string& text)
{
    std::array<char16_t, 2048> piece;
    std::u16string total;
    for (;;) {
        SQLLEN bytes = 0;
        const SQLRETURN result = SQLGetData(handle_->raw(), static_cast<SQLUSMALLINT>(column + 1), SQL_C_WCHAR,
                                            piece.data(), sizeof piece, &bytes);
        check(result);
        if (result == SQL_NO_DATA)
            break;
        if (bytes == SQL_NULL_DATA)
            return false;
        // Each piece ends with a NUL; the driver may not know how much is still to come.
        const std::size_t there = piece.size() - 1;
        const bool rest = bytes == SQL_NO_TOTAL || static_cast<std::size_t>(bytes) / sizeof(char16_t) > there;
        total.append(piece.data(), rest ? there : static_cast<std::size_t>(bytes) / sizeof(char16_t));
        if (!rest)
            break;
    }
    text = fromUtf16(total);
    return true;
}

std::string StatementHandle::text(std::size_t column)
{
    std::string text;
    holeText(column, text);
    return text;
}

Value StatementHandle::cell(std::size_t column, FieldType type)
{
    const auto number = static_cast<SQLUSMALLINT>(column + 1);
    SQLLEN length = 0;
    if (type == FieldType::FloatingPoint) {
        double integer = 0;
        check(SQLGetData(handle_->raw(), number, SQL_C_DOUBLE, &integer, sizeof integer, &length));
        return length == SQL_NULL_DATA ? Value() : Value(integer);
    }
    if (type == FieldType::Date) {
        SQL_TIMESTAMP_STRUCT stamp{};
        check(SQLGetData(handle_->raw(), number, SQL_C_TYPE_TIMESTAMP, &stamp, sizeof stamp, &length));
        return length == SQL_NULL_DATA ? Value() : Value(fromStamp(stamp));
    }
    std::string text;
    if (!holeText(column, text))
        return {};
    // Integers as texts: not every driver knows those of 64 bits.
    std::int64_t integer = 0;
    if (type == FieldType::Integer &&
        std::from_chars(text.data(), text.data() + text.size(), integer).ptr == text.data() + text.size() &&
        !text.empty())
        return integer;
    return text;
}

std::int64_t StatementHandle::affectedRows() const
{
    SQLLEN rows = 0;
    check(SQLRowCount(handle_->raw(), &rows));
    return rows;
}

} // namespace quelvarn::odbc
