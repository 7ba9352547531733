#include "database/sql/conditions.h"

#include "base/text.h"
#include "database/sql/parser.h"

#include <algorithm>
#include <cassert>
#include <iterator>
#include <memory>

namespace quelvarn::sql {
namespace {

constexpr std::size_t CHUNK = 100;

template <class Node> AusdruckZeiger expression(Node node)
{
    auto made = std::make_unique<Ausdruck>();
    made->inhalt = std::move(node);
    return made;
}

template <class Node> AusdruckZeiger joined(std::vector<AusdruckZeiger> parts)
{
    if (parts.size() == 1)
        return std::move(parts.front());
    return expression(Node{std::move(parts)});
}

} // namespace

AusdruckZeiger compare(std::string_view column, Vergleich comparison, std::string_view value)
{
    return expression(Bedingung{std::string(column), comparison, std::string(value)});
}

AusdruckZeiger like(std::string_view column, std::string_view pattern, Wildcards wildcards)
{
    return expression(Bedingung{std::string(column), Vergleich::Like, std::string(pattern), wildcards});
}

AusdruckZeiger equal(std::string_view column, std::string_view value)
{
    return compare(column, Vergleich::Gleich, value);
}

AusdruckZeiger equal(std::string_view column, std::int64_t value)
{
    return expression(Bedingung{std::string(column), Vergleich::Gleich, value});
}

AusdruckZeiger all(std::vector<AusdruckZeiger> parts)
{
    std::erase(parts, nullptr);
    return parts.empty() ? nullptr : joined<Und>(std::move(parts));
}

AusdruckZeiger any(std::vector<AusdruckZeiger> parts)
{
    assert(!parts.empty() && std::find(parts.begin(), parts.end(), nullptr) == parts.end());
    return joined<Oder>(std::move(parts));
}

std::vector<AusdruckZeiger> chunks(std::vector<AusdruckZeiger> parts)
{
    std::vector<AusdruckZeiger> conditions;
    for (auto first = parts.begin(); first != parts.end();) {
        const auto behind = first + std::min<std::ptrdiff_t>(CHUNK, parts.end() - first);
        conditions.push_back(any({std::make_move_iterator(first), std::make_move_iterator(behind)}));
        first = behind;
    }
    return conditions;
}

AusdruckZeiger statusScope(std::string_view WhereStatus)
{
    // The table is not asked.
    Anweisung statement = parseAnweisung("SELECT Status FROM Tabelle" + std::string(WhereStatus));
    return std::move(std::get<Select>(statement).where);
}

Query Query::columns(std::initializer_list<std::string_view> names) &&
{
    select_.spalten.assign(names.begin(), names.end());
    return std::move(*this);
}

Query Query::distinct() &&
{
    select_.distinct = true;
    return std::move(*this);
}

Query Query::where(AusdruckZeiger condition) &&
{
    select_.where = std::move(condition);
    return std::move(*this);
}

Query Query::sortedBy(std::string_view column) &&
{
    select_.orderBy.push_back({std::string(column), false});
    return std::move(*this);
}

Query Query::sortedDownBy(std::string_view column) &&
{
    select_.orderBy.push_back({std::string(column), true});
    return std::move(*this);
}

std::string quoted(std::string_view value)
{
    return "'" + replaceAll(value, "'", "''") + "'";
}

} // namespace quelvarn::sql
