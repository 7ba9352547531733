#include "database/sql/engine_dialects.h"

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/text.h"
#include "base/utf8.h"
#include "database/schema.h"

#include <algorithm>
#include <fmt/format.h>
#include <vector>

namespace quelvarn::sql {
namespace {

// How placeholders are written. Behind ODBC they have no numbers, and the tables no row key of ours.
enum class Count { Numbers, None };

class SqliteDialect : public Dialect
{
public:
    explicit SqliteDialect(Count count) : count_(count) {}

protected:
    std::string_view keyColumn() const override { return count_ == Count::Numbers ? "rowid" : ""; }

    std::string placeholder(std::size_t number, const Value&, FieldType) const override
    {
        return count_ == Count::Numbers ? fmt::format("?{}", number) : "?";
    }

    std::string comparisonExpression(const std::string& column) const override { return column; }
    std::string comparisonText(const std::string& text) const override { return text; }

    PatternComparison like(const std::string& expression, const std::string& pattern) const override
    {
        return {"qv_like(", pattern, ", " + expression + ")"};
    }

    std::string exactlyEqual(const std::string& expression, const std::string& text) const override
    {
        return fmt::format("{} COLLATE BINARY = {}", expression, text);
    }

    std::string asText(const std::string& column, FieldType type) const override
    {
        if (type == FieldType::Date)
            return fmt::format("replace(strftime('%d.%m.%Y %H:%M:%S', {}), ' 00:00:00', '')", column);
        if (type == FieldType::Integer)
            return fmt::format("CAST({} AS TEXT)", column);
        // printf would make a number of Null.
        return fmt::format("iif({0} IS NULL, NULL, replace(printf('%.15g', {0}), '.', ','))", column);
    }

    Value dateValue(DateTime time) const override { return formatIso(time); }

    std::string sorted(const std::string& expression, bool descending) const override
    {
        return expression + (descending ? " DESC" : "");
    }

    bool sortedDistinct() const override { return true; }

    // Without a condition the table is read in the order of storage, unless an index that begins with the column
    // serves instead.
    bool groupedDistinct(const Select& statement) const override
    {
        if (count_ == Count::None || statement.columns.size() != 1 || statement.where || !statement.orderBy.empty())
            return false;
        const TableSchema* table = findTable(statement.table);
        return table && std::ranges::any_of(table->indexes, [&](const auto& index) {
                   return equalText(index.front().name, statement.columns.front());
               });
    }

    std::string_view never() const override { return "NULL"; }

private:
    Count count_;
};

// A character of a regular expression, inside or outside of a class, that means nothing but itself.
std::string asRegexCharacters(char32_t character)
{
    const bool harmless = (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z') ||
                          (character >= U'0' && character <= U'9');
    return harmless ? std::string(1, static_cast<char>(character))
                    : fmt::format("\\U{:08x}", static_cast<std::uint32_t>(character));
}

std::string asRegexClass(const LikeToken& token)
{
    std::string ranges;
    for (std::size_t i = 0; i < token.members.size(); i += 2) {
        const char32_t first = token.members[i];
        const char32_t last = token.members[i + 1];
        if (first <= last)
            ranges += asRegexCharacters(first) + (first < last ? "-" + asRegexCharacters(last) : "");
    }
    if (ranges.empty()) // A range the wrong way round holds nothing.
        return token.negated ? "." : "(?!)";
    return (token.negated ? "[^" : "[") + ranges + "]";
}

std::string asRegex(const std::vector<LikeToken>& pattern)
{
    std::string regex = "^";
    for (const LikeToken& token : pattern) {
        switch (token.kind) {
        case LikeToken::Kind::Char:
            regex += asRegexCharacters(token.character);
            break;
        case LikeToken::Kind::AnyOne:
            regex += '.';
            break;
        case LikeToken::Kind::AnyRun:
            regex += ".*";
            break;
        case LikeToken::Kind::Class:
            regex += asRegexClass(token);
            break;
        }
    }
    return regex + "$";
}

// A pattern of the server's own LIKE, which knows no classes: "\\" takes the meaning from the character behind it.
std::string asServerPattern(const std::vector<LikeToken>& pattern)
{
    std::string text;
    for (const LikeToken& token : pattern) {
        if (token.kind == LikeToken::Kind::AnyRun)
            text += '%';
        else if (token.kind == LikeToken::Kind::AnyOne)
            text += '_';
        else if (token.character == U'%' || token.character == U'_' || token.character == U'\\')
            (text += '\\') += static_cast<char>(token.character);
        else
            appendUtf8(text, token.character);
    }
    return text;
}

class PostgresDialect : public Dialect
{
public:
    explicit PostgresDialect(Count count) : count_(count) {}

protected:
    std::string_view keyColumn() const override { return count_ == Count::Numbers ? "qv_id" : ""; }

    // The server would take the type of a placeholder from its column and refuse what is too large or no integer.
    std::string placeholder(std::size_t number, const Value& value, FieldType type) const override
    {
        std::string position = count_ == Count::Numbers ? fmt::format("${}", number) : "?";
        switch (type) {
        case FieldType::Text:
            break;
        case FieldType::Integer:
            return position + (std::holds_alternative<double>(value) ? "::float8" : "::bigint");
        case FieldType::FloatingPoint:
            return position + "::float8";
        case FieldType::Date:
            return position + "::timestamp";
        }
        return position;
    }

    std::string comparisonExpression(const std::string& column) const override { return "qv_key(" + column + ")"; }
    std::string comparisonText(const std::string& text) const override { return sortKey(text); }

    PatternComparison like(const std::string& expression, const std::string& pattern) const override
    {
        const std::vector<LikeToken> tokens = likeTokens(toUtf32(foldCase(pattern)), Wildcards::Sql);
        if (std::ranges::find(tokens, LikeToken::Kind::Class, &LikeToken::kind) != tokens.end())
            return {"qv_fold(" + expression + ") ~ ", asRegex(tokens), ""};
        return {"qv_fold(" + expression + ") LIKE ", asServerPattern(tokens), " ESCAPE '\\'"};
    }

    std::string exactlyEqual(const std::string& expression, const std::string& text) const override
    {
        return fmt::format("{} = {}", expression, text);
    }

    std::string asText(const std::string& column, FieldType type) const override
    {
        if (type == FieldType::Date)
            return fmt::format("replace(to_char({}, 'DD.MM.YYYY HH24:MI:SS'), ' 00:00:00', '')", column);
        return fmt::format("replace(CAST({} AS text), '.', ',')", column);
    }

    Value dateValue(DateTime time) const override { return time; }

    std::string sorted(const std::string& expression, bool descending) const override
    {
        return expression + (descending ? " DESC NULLS LAST" : " ASC NULLS FIRST");
    }

    bool sortedDistinct() const override { return false; }
    bool groupedDistinct(const Select&) const override { return count_ == Count::Numbers; }
    std::string_view never() const override { return "NULL::boolean"; }

private:
    Count count_;
};

} // namespace

const Dialect& sqliteDialect()
{
    static const SqliteDialect dialect(Count::Numbers);
    return dialect;
}

const Dialect& postgresDialect()
{
    static const PostgresDialect dialect(Count::Numbers);
    return dialect;
}

const Dialect& sqliteOdbcDialect()
{
    static const SqliteDialect dialect(Count::None);
    return dialect;
}

const Dialect& postgresOdbcDialect()
{
    static const PostgresDialect dialect(Count::None);
    return dialect;
}

} // namespace quelvarn::sql
