#include "database/sql/access_dialect.h"

#include "base/like_pattern.h"
#include "base/utf8.h"
#include "database/sql/access_text.h"

#include <fmt/format.h>

namespace quelvarn::sql {
namespace {

std::string asAccessClass(const LikeToken& token)
{
    std::string text = token.negated ? "[!" : "[";
    for (std::size_t i = 0; i < token.members.size(); i += 2) {
        appendUtf8(text, token.members[i]);
        if (token.members[i] == token.members[i + 1])
            continue;
        text += '-';
        appendUtf8(text, token.members[i + 1]);
    }
    return text + "]";
}

// What the program calls a pattern, as Access reads it: "#", "*" and "?" are wildcards to it in some modes, and a
// bracket that is never closed is a fault. In brackets each stands for itself.
std::string asAccessPattern(std::string_view pattern)
{
    constexpr std::u32string_view SIGNS = U"[#*?%_";
    std::string text;
    for (const LikeToken& token : likeTokens(toUtf32(pattern), Wildcards::Sql)) {
        if (token.kind == LikeToken::Kind::AnyRun)
            text += '%';
        else if (token.kind == LikeToken::Kind::AnyOne)
            text += '_';
        else if (token.kind == LikeToken::Kind::Class)
            text += asAccessClass(token);
        else if (SIGNS.find(token.character) != SIGNS.npos)
            text += fmt::format("[{}]", static_cast<char>(token.character));
        else
            appendUtf8(text, token.character);
    }
    return text;
}

// Relied on: its equality, order and DISTINCT are blind to case, Null is sorted first, LIKE through ODBC knows "%" and
// "_". A text meets its pattern or value as a bound parameter: no literal of it can be cut or misread. Numbers and
// dates are literals, since a placeholder has no type of its own in Access.
class AccessDialect : public Dialect
{
protected:
    std::string name(std::string_view name) const override { return accessName(name); }
    std::string_view keyColumn() const override { return {}; }
    std::string placeholder(std::size_t, const Value&, FieldType) const override { return "?"; }

    std::optional<std::string> asLiteral(const Value& value) const override
    {
        return std::holds_alternative<std::string>(value) ? std::nullopt : std::optional(accessLiteral(value));
    }

    std::string comparisonExpression(const std::string& column) const override { return column; }
    std::string comparisonText(const std::string& text) const override { return text; }
    PatternComparison like(const std::string& expression, const std::string& pattern) const override
    {
        return {expression + " LIKE ", asAccessPattern(pattern), ""};
    }
    bool narrowsPattern() const override { return false; }
    std::string exactlyEqual(const std::string& expression, const std::string& text) const override
    {
        return fmt::format("StrComp({}, {}, 0) = 0", expression, text);
    }
    // It turns them into text by itself, in the format of the computer.
    std::string asText(const std::string& column, FieldType) const override { return column; }
    Value dateValue(DateTime time) const override { return time; }
    std::string sorted(const std::string& expression, bool descending) const override
    {
        return expression + (descending ? " DESC" : "");
    }
    bool sortedDistinct() const override { return true; }
    bool groupedDistinct(const Select&) const override { return false; }
    std::string_view never() const override { return "Null"; }
    // Rows that are equal in the order come beyond the limit; the reader ends earlier.
    std::string limitBefore(std::size_t limit) const override { return fmt::format("TOP {} ", limit); }
    std::string limitBehind(std::size_t) const override { return {}; }
};

} // namespace

const Dialect& accessDialect()
{
    static const AccessDialect dialect;
    return dialect;
}

} // namespace quelvarn::sql
