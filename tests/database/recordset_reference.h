#pragma once

#include "base/collation.h"
#include "base/like_pattern.h"
#include "base/utf8.h"
#include "database/value.h"

#include <functional>
#include <optional>
#include <random>
#include <string>
#include <vector>

// Random rows and conditions, with what they mean told row by row: the measure for every quicker way.
namespace quelvarn::reference {

using Row = std::vector<Value>; // by the columns below
struct Field
{
    std::string name;
    FieldType type;
};
inline const std::vector<Field> FIELDS{{"Titel", FieldType::Text},
                                       {"Thema", FieldType::Text},
                                       {"Nr", FieldType::Integer},
                                       {"Wert", FieldType::FloatingPoint},
                                       {"Tag", FieldType::Date}};

// True, false, or nothing where Null is compared.
using Verdict = std::optional<bool>;
struct Condition
{
    std::string asFilter; // day first; means the same where the patterns are those of filters
    std::string asSql;    // month first
    std::function<Verdict(const Row&)> meets;
};

inline bool fits(std::u32string_view text, std::u32string_view pattern)
{
    if (pattern.empty())
        return text.empty();
    if (pattern[0] == U'%')
        return fits(text, pattern.substr(1)) || (!text.empty() && fits(text.substr(1), pattern));
    if (text.empty())
        return false;
    if (pattern[0] == U'[') {
        const std::size_t end = pattern.find(U']');
        return pattern.substr(1, end - 1).find(text[0]) != pattern.npos &&
               fits(text.substr(1), pattern.substr(end + 1));
    }
    return (pattern[0] == U'_' || pattern[0] == text[0]) && fits(text.substr(1), pattern.substr(1));
}

inline int compare(const Value& left, const Value& right)
{
    if (const auto* text = std::get_if<std::string>(&left))
        return sortKey(*text).compare(sortKey(asText(right)));
    const double l = asNumber(left);
    const double r = asNumber(right);
    return l < r ? -1 : l > r ? 1 : 0;
}

class Random
{
public:
    explicit Random(unsigned seed) : source_(seed) {}
    bool filterPatterns = false; // '*' alone is a wildcard; else '%', '_' and classes are.
    std::size_t below(std::size_t limit) { return source_() % limit; }
    template <class T> const T& out(const std::vector<T>& list) { return list[below(list.size())]; }

    std::string text()
    {
        static const std::vector<std::string> PIECES{"a", "A", "ä", "Ä", "b",  "B", "ß", "ss",
                                                     " ", "1", "é", "-", "ab", "_", "["};
        std::string result;
        for (std::size_t n = below(4); n > 0; --n)
            result += out(PIECES);
        return result;
    }

    Value value(FieldType type)
    {
        if (below(6) == 0)
            return {};
        switch (type) {
        case FieldType::Text:
            return text();
        case FieldType::Integer:
            return static_cast<std::int64_t>(below(7)) - 2;
        case FieldType::FloatingPoint:
            return (static_cast<double>(below(9)) - 4) / 2;
        case FieldType::Date:
            break;
        }
        return day();
    }

    Row row()
    {
        Row result;
        for (const Field& field : FIELDS)
            result.push_back(value(field.type));
        return result;
    }

    Condition condition(int depth)
    {
        if (depth == 0 || below(3) == 0)
            return sheet();
        if (below(5) == 0) {
            const Condition part = condition(depth - 1);
            return {"NOT (" + part.asFilter + ")", "NOT (" + part.asSql + ")", [=](const Row& row) -> Verdict {
                        const Verdict verdict = part.meets(row);
                        return verdict ? Verdict(!*verdict) : verdict;
                    }};
        }
        const bool both = below(2) == 0;
        const std::string word = both ? ") AND (" : ") OR (";
        const Condition left = condition(depth - 1);
        const Condition right = condition(depth - 1);
        return {"(" + left.asFilter + word + right.asFilter + ")", "(" + left.asSql + word + right.asSql + ")",
                [=](const Row& row) { return connected(left.meets(row), right.meets(row), both); }};
    }

private:
    static Verdict connected(Verdict left, Verdict right, bool both)
    {
        if (left == Verdict(!both) || right == Verdict(!both))
            return !both;
        return left && right ? Verdict(both) : std::nullopt;
    }

    DateTime day()
    {
        return DateTime::from(
            {2024, 1 + static_cast<int>(below(3)), 1 + static_cast<int>(below(3)), below(2) ? 12 : 0});
    }

    Condition sheet()
    {
        const std::size_t number = below(FIELDS.size());
        const Field& field = FIELDS[number];
        if (below(8) == 0) {
            const bool negate = below(2) == 0;
            const std::string text = field.name + (negate ? " Is Not Null" : " Is Null");
            return {text, text, [=](const Row& row) -> Verdict { return isNull(row[number]) != negate; }};
        }
        if (field.type == FieldType::Text && below(2) == 0)
            return like(number);
        static const std::vector<std::pair<std::string, std::function<bool(int)>>> OPERATORS{
            {"=", [](int o) { return o == 0; }}, {"<>", [](int o) { return o != 0; }},
            {"<", [](int o) { return o < 0; }},  {"<=", [](int o) { return o <= 0; }},
            {">", [](int o) { return o > 0; }},  {">=", [](int o) { return o >= 0; }}};
        const auto& [character, check] = out(OPERATORS);
        Value literal;
        while (isNull(literal))
            literal = value(field.type == FieldType::Integer && below(2) ? FieldType::FloatingPoint : field.type);
        const std::string before = field.name + " " + character + " ";
        return {before + literalText(literal, true), before + literalText(literal, false),
                [=, &check = check](const Row& row) -> Verdict {
                    return isNull(row[number]) ? Verdict() : check(compare(row[number], literal));
                }};
    }

    Condition like(std::size_t number)
    {
        static const std::vector<std::string> PIECES{"%", "%", "_", "a", "ä", "B", "ß", "[aé]", " ", "1"};
        static const std::vector<std::string> OF_FILTERS{"*", "*", "_", "a", "ä", "B", "ß", "[", " ", "1", "%"};
        std::string filterPattern;
        for (std::size_t n = below(5); n > 0; --n)
            filterPattern += out(filterPatterns ? OF_FILTERS : PIECES);
        const std::string pattern = filterPatterns ? asSqlPattern(filterPattern, Wildcards::Star) : filterPattern;
        const bool negate = below(3) == 0;
        const std::string before = FIELDS[number].name + (negate ? " NOT LIKE '" : " Like '");
        return {before + filterPattern + "'", before + pattern + "'",
                [=, folded = toUtf32(foldCase(pattern))](const Row& row) -> Verdict {
                    if (isNull(row[number]))
                        return std::nullopt;
                    return fits(toUtf32(foldCase(asText(row[number]))), folded) != negate;
                }};
    }

    std::string literalText(const Value& literal, bool dayFirst)
    {
        if (const auto* text = std::get_if<std::string>(&literal))
            return "'" + *text + "'";
        if (const auto* time = std::get_if<DateTime>(&literal)) {
            const CalendarTime k = time->calendar();
            const auto two = [](int number) { return std::string(number < 10 ? "0" : "") + std::to_string(number); };
            return "#" + two(dayFirst ? k.day : k.month) + "/" + two(dayFirst ? k.month : k.day) + "/24 " +
                   two(k.hour) + ":00:00#";
        }
        if (const auto* whole = std::get_if<std::int64_t>(&literal))
            return std::to_string(*whole);
        std::string number = std::to_string(asNumber(literal));
        return number;
    }

    std::mt19937 source_;
};

} // namespace quelvarn::reference
