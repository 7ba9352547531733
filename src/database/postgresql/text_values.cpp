#include "database/postgresql/text_values.h"

#include <charconv>
#include <system_error>

namespace quelvarn::postgresql {
namespace {

template <class Number> std::optional<Number> numberFrom(std::string_view text)
{
    Number number{};
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

} // namespace

std::optional<std::int64_t> integerFrom(std::string_view text)
{
    return numberFrom<std::int64_t>(text);
}

std::optional<double> floatingPointFrom(std::string_view text)
{
    return numberFrom<double>(text);
}

Value fromServerText(std::string_view text, FieldType type)
{
    switch (type) {
    case FieldType::Integer:
        if (const auto number = integerFrom(text))
            return *number;
        break;
    case FieldType::FloatingPoint:
        if (const auto number = floatingPointFrom(text))
            return *number;
        break;
    case FieldType::Date:
        if (const auto time = parseIso(text))
            return *time;
        break;
    case FieldType::Text:
        break;
    }
    return std::string(text);
}

FieldType fieldTypeFrom(std::string_view typeName)
{
    if (typeName == "int2" || typeName == "int4" || typeName == "int8")
        return FieldType::Integer;
    if (typeName == "float4" || typeName == "float8" || typeName == "numeric")
        return FieldType::FloatingPoint;
    if (typeName == "timestamp" || typeName == "timestamptz" || typeName == "date")
        return FieldType::Date;
    return FieldType::Text;
}

} // namespace quelvarn::postgresql
